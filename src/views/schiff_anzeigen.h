#pragma once
#include "state/spiel.h"

// One ship in the big frame of the left column; changes nothing.
void SCHIFF_ANZEIGEN(Spiel& s, int schiff);
// Years left on a trip, from the distance units in Dauer.
int RESTJAHRE(const Spiel& s, const Schiff& sch);
