#pragma once
// Texts of the game are Windows-1252, one byte per character. Source files
// are UTF-8, so literals go through T(); the screen file and the window's
// font take UTF-8 again.
#include <string>
#include <string_view>
#include <vector>

// UTF-8 to Windows-1252; characters the code page cannot hold are dropped.
std::string T(std::string_view utf8);
// Windows-1252 to UTF-8.
std::string Utf8(std::string_view cp1252);
// One Unicode code point to its Windows-1252 byte; -1 if it has none.
int CodepunktZuCp1252(unsigned int cp);
unsigned int Cp1252ZuCodepunkt(unsigned char c);

// The game's little text helpers.
std::string Str(long long n);                 // " 5", "-5"
std::string Space(int n);
std::string Rechtsbuendig(long long n, int breite);  // Space(w - Len(Str(n))) & Str(n)
std::string Trim(const std::string& s);
std::string UCase(const std::string& s);
// Lines of at most breite characters, broken between words (a word longer
// than a line is cut); line breaks in the text are kept.
std::vector<std::string> Umbrechen(const std::string& text, size_t breite);
std::string PlanetenName(const struct Spiel& s, int planet);  // "Sol III"
