#pragma once
#include "state/spiel.h"

// Money sunk into research, for the player whose turn it is.
void FORSCHUNG_FINANZIEREN(Spiel& s);
// The yearly test of every player: has paid research become an invention?
void ERFINDUNG_PRUEFEN(Spiel& s);
