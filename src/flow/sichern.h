#pragma once
// Saving and loading through the dialogs of the game.
#include "state/spiel.h"

void SPIEL_SICHERN(Spiel& s);
void SPIEL_LADEN(Spiel& s);
