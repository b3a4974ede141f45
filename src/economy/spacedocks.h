#pragma once
#include "state/spiel.h"

// The docks on Sol III: build a ship, or have one enlarged, armed, repaired
// or given the DTW filter.
void SPACEDOCKS(Spiel& s);
