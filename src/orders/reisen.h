#pragma once
// The travel orders: they write the course; the year moves the ship.
#include "state/spiel.h"

// Start: a target chosen on the star map, the trip's length from the distance.
void ORDER_START(Spiel& s, int schiff);
// Teleportieren: from a portal to another one, in one year.
void ORDER_TELEPORTIEREN(Spiel& s, int schiff);
// Notruf: the ship turns back on its way.
void ORDER_NOTRUF(Spiel& s, int schiff);
