#pragma once
#include "state/spiel.h"

// The galaxy planet by planet, on the map that STERNKARTE has drawn.
void STERNLIST(Spiel& s);
