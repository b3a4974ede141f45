#pragma once
#include "screen/plattform.h"
#include "state/spiel.h"

// Runs the game from the window's start until it ends. Returns the exit status.
int PROGRAMM_AUSFUEHREN(Spiel& s, Plattform& p);
// Ends the program: stops the music and leaves every routine.
[[noreturn]] void PROGRAMM_BEENDEN(Spiel& s, int status = 0);
