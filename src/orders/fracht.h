#pragma once
#include "screen/dialog.h"
#include "state/spiel.h"


Ausgang BELADEN_VON_STATION(Spiel& s, int schiff);
Ausgang BELADEN_VOM_PLANETEN(Spiel& s, int schiff);
Ausgang BELADEN_AUSRUESTUNG(Spiel& s, int schiff);
Ausgang BELADEN_TANKER(Spiel& s, int schiff);
Ausgang BETANKEN_SOL(Spiel& s, int schiff);
Ausgang BETANKEN_STATION(Spiel& s, int schiff);
Ausgang ENTLADEN(Spiel& s, int schiff);
Ausgang ANKOPPELN(Spiel& s, int schiff);
Ausgang TRENNEN(Spiel& s, int schiff);
