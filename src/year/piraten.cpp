// The pirates' year: the pirate in the ship pass, their moves, new pirates.
#include "year/kampf.h"

// The pirates' moves come with their own work.
void PIRAT_IM_SCHIFFSDURCHLAUF(Spiel&, int) {}
void PIRATEN_ZIEHEN(Spiel&) {}
void NEUE_PIRATEN(Spiel&) {}
