#include "year/jahresende.h"

// Ranks, medals, the countdown events and the inventions of the year come
// with their own work.
void JAHRESENDE(Spiel&) {}
