#pragma once
#include "state/spiel.h"

// The yearly interest and repayment of every player's debt.
void KREDIT_VERBUCHEN(Spiel& s);
