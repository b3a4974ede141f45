#pragma once
// The event handlers of the game window. They run while a routine pumps the
// queue and only leave notes in the shared fields; where they must reach the
// game (the start, F3, closing) they call the hooks in Spiel::haken.
#include "state/spiel.h"

void Form_KeyDown(Spiel& s, int keyCode);
void Form_KeyPress(Spiel& s, int keyAscii);
void Form_MouseUp(Spiel& s, int knopf, int x, int y);
void Form_QueryUnload(Spiel& s, bool& abbrechen);
void tmrZeit_Timer(Spiel& s);
