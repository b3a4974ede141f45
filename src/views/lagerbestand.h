#pragma once
#include "state/spiel.h"

// The player's cash, credit and storage on Sol III, in the left column.
void LAGERBESTAND(Spiel& s);
