#pragma once
// The rule tables and the defaults of a game.
#include "state/spiel.h"

// Fills the rule tables (goods, ship types, ranks, dock jobs, main menu,
// numerals) and the defaults of a game, and draws the years of the yearly
// events and the costs of the inventions. Reads only AnzahlSpieler.
void VORBELEGUNG_VARIABLEN(Spiel& s);
