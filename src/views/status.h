#pragma once
#include "state/spiel.h"

// The fleet list, the evaluation page and the one-player statistics.
void STATUS(Spiel& s);
