#pragma once
// Where the window program finds its data and keeps the player's files.
#include <string>

// The game's data: beside the program during development (build/data), then
// where the package puts it (/usr/games -> /usr/share/games/quorvant), else
// `standard`, the source tree the program was built from.
std::string SPIELDATEN_ORDNER(const std::string& standard);
// A folder of the player's own below ~/.local/share/quorvant ("Daten" for the
// saved games, "Aufnahmen" for the recordings); "" when SDL knows none.
std::string SPIELER_ORDNER(const char* name);
