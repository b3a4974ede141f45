#pragma once
// F1: the help, laid over whatever is on the screen, page by page.
#include <string>
#include <vector>

#include "state/spiel.h"

struct HilfeSeite {
    const char* titel;
    std::vector<const char*> zeilen;  // UTF-8, at most HILFE_BREITE characters
};
inline constexpr int HILFE_BREITE = 76;
inline constexpr int HILFE_ZEILEN = 25;

// The pages, in the order they are shown.
const std::vector<HilfeSeite>& HILFE_SEITEN();

// Shows the help from its first page; Down, Right and PageDown leaf on, Up,
// Left and PageUp back, any other key closes it. The screen is then as before.
void HILFE(Spiel& s);
