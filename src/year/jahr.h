#pragma once
// One year of the world: RUNDE_AUSFUEHREN and the pieces of its ship pass.
#include "state/spiel.h"

void RUNDE_AUSFUEHREN(Spiel& s);

void PLANETEN_PRODUKTION(Spiel& s);
void SCHIFF_FLUG(Spiel& s, int schiff);
void SCHIFF_LANDUNG(Spiel& s, int schiff);
void STATION_JAHR(Spiel& s, int schiff);
void WERFT_JAHR(Spiel& s, int schiff);
void ABNUTZUNG(Spiel& s, int schiff);
void HAENDLER_JAHR(Spiel& s);
// Empties the slot of a ship lost in the year.
void SCHIFF_ENTFERNEN(Spiel& s, int schiff);
