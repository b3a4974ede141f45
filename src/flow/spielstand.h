#pragma once
// The saved game: items 1 to 26 in one pass, little-endian, strings as a
// 2-byte length and Windows-1252 text. Writer and reader go through the same
// list in the same order.
#include <cstdint>
#include <string>
#include <vector>

#include "state/spiel.h"

std::vector<uint8_t> SPIELSTAND_BYTES(const Spiel& s);
// Reads the items into s; false (and s untouched) when the bytes run short
// or hold values no game can have.
bool SPIELSTAND_LESEN(Spiel& s, const std::vector<uint8_t>& bytes, std::string& fehler);
// Every index and count of a loaded game within the tables and the game;
// false with the first value out of range ("Schiffe(12).Planet = 9999").
bool SPIELSTAND_PRUEFEN(const Spiel& s, std::string& wo);
// Writes the saved game and its companion file through temporary files, so
// a full disk never spoils an old save.
bool SPIELSTAND_DATEI_SCHREIBEN(const Spiel& s, const std::string& pfad, std::string& fehler);
std::string DATEN_ORDNER(const Spiel& s);
