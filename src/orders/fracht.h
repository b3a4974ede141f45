#pragma once
#include "state/spiel.h"

// How a cargo order ends: done, or refused and back to the order menu.
enum class Ausgang { Ende, ZumMenue };

Ausgang BELADEN_VON_STATION(Spiel& s, int schiff);
Ausgang BELADEN_VOM_PLANETEN(Spiel& s, int schiff);
Ausgang BELADEN_AUSRUESTUNG(Spiel& s, int schiff);
Ausgang BELADEN_TANKER(Spiel& s, int schiff);
Ausgang BETANKEN_SOL(Spiel& s, int schiff);
Ausgang BETANKEN_STATION(Spiel& s, int schiff);
Ausgang ENTLADEN(Spiel& s, int schiff);
Ausgang ANKOPPELN(Spiel& s, int schiff);
Ausgang TRENNEN(Spiel& s, int schiff);
