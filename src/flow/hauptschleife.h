#pragma once
// The main screen and the turn loop.
#include "state/spiel.h"

void HAUPTBILDSCHIRM(Spiel& s, bool mitMeldungUndLager);
// Rank and name of the player whose turn it is.
void KOPFZEILE(Spiel& s, bool mitLeerzeichen = true);
// "Aktion:" and the player's cash.
void AKTIONSZEILE(Spiel& s);
void AUSSETZEN(Spiel& s);
void SPIELSCHLEIFE(Spiel& s);  // the turn loop, for ever
