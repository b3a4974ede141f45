#include "flow/routinen.h"

// Ship orders and the star map come with their own work; until
// then the menu items return straight to the menu.
void SCHIFFE_ANWEISEN(Spiel&) {}
void STERNKARTE(Spiel&) {}
