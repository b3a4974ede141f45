#pragma once
// A cruiser's attack orders. They only mark the ship; the fire is exchanged
// year by year.
#include "state/spiel.h"

// Angriff: the headquarters question where it stands, else a victim chosen
// among the ships on the planet.
void ORDER_ANGRIFF(Spiel& s, int schiff);
// Angriff beenden: the cruiser stands down.
void ORDER_ANGRIFF_BEENDEN(Spiel& s, int schiff);
