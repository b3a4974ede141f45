#pragma once
#include "state/spiel.h"

// Adds how each house stands now as the entry of the year just played
// (replacing an entry of the same year, as after a load).
void VERLAUF_FORTSCHREIBEN(Spiel& s);
