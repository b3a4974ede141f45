#pragma once
// The autosave: at the start of every year the game as an ordered save would
// hold it, kept three deep beside the player's own saves.
#include <string>

#include "state/spiel.h"

inline constexpr int AUTOSICHERUNGEN = 3;

// "Autosicherung-n" (n = 1 the newest): a name the player cannot type, so his saves are never touched.
std::string AUTOSICHERUNG_NAME(int n);

// Writes Autosicherung-1 and moves the older ones down, -3 falling away.
// False, with everything as it was, when the folder takes nothing.
bool AUTOSICHERUNG(Spiel& s);
