#pragma once
#include "screen/plattform.h"
#include "state/spiel.h"

// Screen position of a planet on the star map.
int KarteX(const Spiel& s, int planet);
int KarteY(const Spiel& s, int planet);
// The map in the news frame: stars, and every ship with its course.
void STERNKARTE(Spiel& s);

// The cursor on the map, as the target choice and the star list walk it.
// Drawn as a ring: radius 3 around Sol III, 2 on any other planet.
void KARTEN_CURSOR(Spiel& s, int z, Farbe f);
// The planet the cursor goes to for a key: Up and Down by number (or by
// direction while `richtung` is set, which Blank toggles), Left and Right by
// direction, a letter to the next star of that initial, Tab to the next
// system's star, the period key home to Sol III. Unknown keys keep z.
int KARTEN_TASTE(const Spiel& s, int z, int taste, bool& richtung);
// The nearest star in the quarter of the map that an arrow key points to;
// z itself when there is none.
int RICHTUNGSSUCHE(const Spiel& s, int z, int taste);
// The next star whose name begins with the letter of the key; z0 when the
// search comes round to z0's own system (or once round from Sol III).
int BUCHSTABENSUCHE(const Spiel& s, int z0, int taste);
// The target of a trip of the ship, walked to on the map by keys or clicks;
// Eingabe gets the planet, -1 for Esc.
void ZIEL_WAEHLEN(Spiel& s, int schiff);
