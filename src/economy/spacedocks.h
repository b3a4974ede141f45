#pragma once
#include "state/spiel.h"

// The docks on Sol III: build a ship, or have one enlarged, armed, repaired
// or given the DTW filter.
void SPACEDOCKS(Spiel& s);
// Puts a ship into the player's row of the docks, ascending, the empty
// places behind; the last place must be free.
void DOCK_EINREIHEN(Spiel& s, int spieler, int schiff);
// Greatest hold the docks give a ship of this type for player p; 0: none.
int LADERAUM_GRENZE(const Spiel& s, const Schiff& sch, int p);
// Highest weapons level of this type for player p; 0: it carries none.
int WAFFEN_GRENZE(const Spiel& s, const Schiff& sch, int p);
// What the docks take for mending the ship's damage.
long REPARATUR_PREIS(const Schiff& sch);
// Whether a job of the docks can be done on ship n of AktSpieler: at rest on
// Sol III, and the job still possible for it.
bool DOCK_AUFTRAG_PASST(const Spiel& s, int auftrag, int n);
