#include "year/erfindungen.h"

// The stories of inventions and components come with their own work.
void ERFINDUNG_ZEIGEN(Spiel&, int, int) {}
void KOMPONENTEN_PRUEFEN(Spiel&) {}
