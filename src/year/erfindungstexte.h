#pragma once
// The words of the story screens: the eleven inventions and the five
// components of the drive filter, in Windows-1252.
#include <string>
#include <vector>

// The story of invention L, the player's name put in; empty for no invention.
std::vector<std::string> ErfindungsText(int L, const std::string& name);
// The story of the n-th component found (1 to 5); empty for any other n.
std::vector<std::string> KomponentenText(int n);
// The prize for the n-th component found; 0 for any other n.
long KomponentenPraemie(int n);
