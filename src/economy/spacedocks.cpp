#include "economy/spacedocks.h"

// The docks' dialog comes with its own work; until then the menu item
// returns straight to the menu.
void SPACEDOCKS(Spiel&) {}
