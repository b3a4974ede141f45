#pragma once
// The pieces of a year, in the order RUNDE_AUSFUEHREN calls them.
#include <string>

#include "screen/plattform.h"
#include "state/spiel.h"

// News: a new line at the end of the list; past the table's end the last
// line says how many were left out.
void MELDUNG_NEU(Spiel& s, const std::string& text, Farbe farbe, Long planet = -1);
// "SST 12": type code and slot number, as the news name a ship.
std::string LABEL(const Spiel& s, int schiff);
// Empties a slot: the ship is gone.
void SCHIFF_ENTFERNEN(Spiel& s, int schiff);

void JAHRESENDE(Spiel& s);
void PLANETEN_PRODUKTION(Spiel& s);
void SCHIFF_FLUG(Spiel& s, int schiff);
void SCHIFF_LANDUNG(Spiel& s, int schiff);
void STATION_JAHR(Spiel& s, int schiff);
void WERFT_JAHR(Spiel& s, int schiff);
void ABNUTZUNG(Spiel& s, int schiff);
void HAENDLER_JAHR(Spiel& s);

// Fights and pirates.
void ANGRIFFE(Spiel& s);
void PIRAT_IM_SCHIFFSDURCHLAUF(Spiel& s, int schiff);
void ANGRIFFSBERICHT(Spiel& s, int schiff);
void HAUPTQUARTIER_FEUER(Spiel& s, int schiff);
void SCHIFF_BESCHAEDIGEN(Spiel& s, int schiff);
void PARTNER_PRUEFEN(Spiel& s);
void ZERSTOERTE_ENTFERNEN(Spiel& s);
void PIRATEN_ZIEHEN(Spiel& s);
void NEUE_PIRATEN(Spiel& s);
void JAHRES_KLANG(Spiel& s);
