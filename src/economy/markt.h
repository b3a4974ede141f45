#pragma once
#include "state/spiel.h"

void MARKT_FORTSCHREIBEN(Spiel& s);
void MARKT_ANZEIGEN(Spiel& s);
// One row of the board: the price text, and with mitName picture and name too.
void MARKT_ZEILE(Spiel& s, int ware, bool mitName);
// "Waren verkaufen": goods from the storage onto the market.
void WAREN_VERKAUFEN(Spiel& s);
