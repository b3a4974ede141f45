#pragma once
#include "state/spiel.h"

// Taking and paying back a credit at the bank.
void KREDIT(Spiel& s);
// The yearly interest and repayment of every player's debt.
void KREDIT_VERBUCHEN(Spiel& s);
