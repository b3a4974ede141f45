#pragma once
#include "screen/plattform.h"
#include "state/spiel.h"

// Runs the game from the window's start until it ends. Returns the exit status.
int PROGRAMM_AUSFUEHREN(Spiel& s, Plattform& p);
// Ends the program: stops the music and leaves every routine.
[[noreturn]] void PROGRAMM_BEENDEN(Spiel& s, int status = 0);
// Hands the screen's handlers and the year their ways back into the game.
void HAKEN_SETZEN(Spiel& s);
// The start timer's one tick: intro, new game or load, then the turn loop.
void tmrStart_Timer(Spiel& s);
