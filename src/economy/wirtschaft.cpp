#include "flow/routinen.h"

// The spacedocks, the sale of goods, research and credit come with their own
// work; until then the menu items return straight to the menu.
void SPACEDOCKS(Spiel&) {}
void WAREN_VERKAUFEN(Spiel&) {}
void FORSCHUNG_FINANZIEREN(Spiel&) {}
void KREDIT(Spiel&) {}
