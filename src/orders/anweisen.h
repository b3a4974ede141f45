#pragma once
#include <string>
#include <vector>

#include "state/spiel.h"

// The eighteen places of the order menu for a ship where it stands; entry 0
// unused, an empty text is a place not offered.
std::vector<std::string> ANWEISUNGEN(const Spiel& s, int schiff);
// "Raumschiffe anweisen": choose a ship, then one of its orders.
void SCHIFFE_ANWEISEN(Spiel& s);
