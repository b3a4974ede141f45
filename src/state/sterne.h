#pragma once
// The star map: the galaxy of a new game and the one measure of distance.
#include <string>
#include <vector>

#include "state/spiel.h"

// Reads the star list: 400 entries, each a 2-byte little-endian length and
// that many bytes of text (name in columns 1-15, distance in 17-19). On
// failure returns false with a German message in Windows-1252 in fehler.
bool PLANETENLISTE_LESEN(const std::string& pfad, std::vector<std::string>& eintraege, std::string& fehler);

// The good that a star at distance e from Sol produces for the draw r.
Integer WARE_FUER_STERN(int e, float r);

// Makes the galaxy of a new game from ProgrammVerzeichnis/Planetenliste.bin
// for AnzahlPlaneten / 10 systems: names, positions, goods, the hidden
// components, the merchants, the pirates' headquarters and the offsets.
// False with a German message in Windows-1252 in fehler when the star list
// cannot be used; the caller tells the player and ends the program.
bool STERNE_NEU(Spiel& s, std::string& fehler);
// The same where the message is not wanted (benchmarks, tests of the map).
inline bool STERNE_NEU(Spiel& s) {
    std::string fehler;
    return STERNE_NEU(s, fehler);
}

// Distance in distance units between two planets; a negative ZielPlanet
// (the target of a teleport) is 1 away.
Integer ENTFERNUNG(const Spiel& s, int AnfPlanet, int ZielPlanet);
