#pragma once
#include "state/spiel.h"

// The turn of the year: ranks, medals, the first million, the countdown
// events, research and the story discoveries.
void JAHRESENDE(Spiel& s);
