#pragma once
// The companion file beside a saved game ("Name.qvz" beside "Name.qvt"):
// what the game keeps of a game besides the saved game's own bytes, which
// stay exactly as they always were. It holds sections by name, so that an
// older game reads a newer file and skips what it does not know:
//   ROLL  who plays each house (the computer or a person)
//   VERL  the history: how each house stood at the end of every year
// A checksum over the whole file finds damage; a second one ties the file
// to the saved game it was written with.
#include <cstdint>
#include <string>
#include <vector>

#include "state/spiel.h"

// "Name.qvz" for "Name.qvt".
std::string BEGLEIT_PFAD(const std::string& spielstandPfad);

// The companion of the game s whose saved game has the bytes spielstand.
std::vector<uint8_t> BEGLEIT_BYTES(const Spiel& s, const std::vector<uint8_t>& spielstand);

// Reads the companion into s. A companion written with another saved game
// (a save cut off between its two files) is left aside: true, s untouched.
// Damage: false with a German message, s untouched.
bool BEGLEIT_LESEN(Spiel& s, const std::vector<uint8_t>& bytes, const std::vector<uint8_t>& spielstand,
                   std::string& fehler);
