#pragma once
#include "state/spiel.h"

// The fleet list, the evaluation page and the one-player statistics.
void STATUS(Spiel& s);
// The fleet list of STATUS with its tabs and sortable headings. False when
// the player left it with Esc (or a click on a ship, which fakes Esc);
// anzahl gets the number of rows of the filter shown last.
bool FLOTTENLISTE(Spiel& s, long& anzahl);
