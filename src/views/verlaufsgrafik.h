#pragma once
// F6: the history of the houses as graphs, one line per house in a colour
// of its own, a page for each measure.
#include "state/spiel.h"

// The pages: Bewertung, cash, fleet, tonnes sold.
inline constexpr int VERLAUF_SEITEN = 4;

// Draws page seite (0 to VERLAUF_SEITEN - 1) of the graphs into the box laid over the screen.
void VERLAUF_SEITE_ZEICHNEN(Spiel& s, int seite);

// Shows the graphs from the first page; Down, Right and PageDown leaf on, Up,
// Left and PageUp back, any other key closes them. The screen is then as before.
void VERLAUF_ZEIGEN(Spiel& s);
