#include "views/sternlist.h"

// The star list comes with its own work; until then the map is shown and
// the menu comes back.
void STERNLIST(Spiel&) {}
