#pragma once
// What a computer house did in its turn, told to the persons at the keyboard
// afterwards: the difference between the house as its turn began and as it
// ended, in the words of the game's screens, and a paged box to read it in.
#include <map>
#include <string>
#include <vector>

#include "state/spiel.h"

// The house as its turn begins: what the status screens and the ship panel show of it.
struct HausStand {
    Long bargeld = 0;
    Integer kredit = 0;
    Long forschung = 0;
    std::vector<Integer> lager;       // goods 1..20
    std::map<int, Schiff> schiffe;    // its ships by slot
};
HausStand HAUS_STAND(const Spiel& s, int spieler);

// The lines of the report (Windows-1252): a head line with the house, then
// one line for each thing it did; only the head line when it did nothing.
std::vector<std::string> ZUG_BERICHT(const Spiel& s, int spieler, const HausStand& vorher);

// The reports in a box laid over the screen, a page at a time: Up, Down,
// PageUp and PageDown leaf, any other key closes it. The screen is then
// exactly as before.
void ZUEGE_ZEIGEN(Spiel& s, const std::vector<std::string>& zeilen);
