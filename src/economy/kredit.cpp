#include "economy/kredit.h"

// The bank comes with its own work; until then the menu item returns
// straight to the menu and no debt is booked.
void KREDIT(Spiel&) {}
void KREDIT_VERBUCHEN(Spiel&) {}
