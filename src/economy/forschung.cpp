#include "economy/forschung.h"

// Research comes with its own work; until then the menu item returns
// straight to the menu and no invention is made.
void FORSCHUNG_FINANZIEREN(Spiel&) {}
void ERFINDUNG_PRUEFEN(Spiel&) {}
