#pragma once
#include "state/spiel.h"

// A new ship of type 1..6 for AktSpieler: lowest free slot, booked, into the docks.
void SCHIFF_NEU(Spiel& s, int typ);
// What the docks pay for a ship.
Integer SCHIFF_WERT(const Spiel& s, int schiff);
bool SCHIFF_VERKAEUFLICH(const Spiel& s, int schiff);
// "Schiff verkaufen": a ship at rest on Sol III back to the docks.
void SCHIFF_VERKAUFEN(Spiel& s);
