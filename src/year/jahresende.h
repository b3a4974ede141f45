#pragma once
#include "state/spiel.h"

// The turn of the year: ranks, medals, the first million, the countdown
// events, research and the story discoveries.
void JAHRESENDE(Spiel& s);

// What player p is worth to the guild: cash (less debt unless ohneKredit),
// ship by ship with the total rounded after each hull, the stock at market
// prices, and 2500 x n x n for n inventions. The rank goes by it; the status
// page shows it without the debt.
Long BEWERTUNG(const Spiel& s, int p, bool ohneKredit = false);
