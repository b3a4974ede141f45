#pragma once
#include "state/spiel.h"

// Screen position of a planet on the star map.
int KarteX(const Spiel& s, int planet);
int KarteY(const Spiel& s, int planet);
// The map in the news frame: stars, and every ship with its course.
void STERNKARTE(Spiel& s);
void ZIEL_WAEHLEN(Spiel& s, int schiff);
void ORDER_START(Spiel& s, int schiff);
void ORDER_TELEPORTIEREN(Spiel& s, int schiff);
void ORDER_NOTRUF(Spiel& s, int schiff);
