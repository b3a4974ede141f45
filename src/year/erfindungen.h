#pragma once
#include "state/spiel.h"

// The story screen of invention L for player p; waits for a key.
void ERFINDUNG_ZEIGEN(Spiel& s, int L, int p);
// The discovery pass: ships on the planets of the hidden components.
void KOMPONENTEN_PRUEFEN(Spiel& s);
