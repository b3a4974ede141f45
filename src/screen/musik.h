#pragma once
// One piece of music at a time, in the background; a new one cuts the old.
#include <string>

#include "state/spiel.h"

// Plays "<program folder>/Musik/<datei>" once. A missing file costs a
// message box and nothing else.
void MCI_Play(Spiel& s, const std::string& datei);
void MCI_Stop(Spiel& s);
