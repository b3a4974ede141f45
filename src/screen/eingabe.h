#pragma once
// The three prompts of the game. Each returns its result in Eingabe; -1 is Esc.
#include <string>
#include <vector>

#include "screen/plattform.h"
#include "state/spiel.h"

void JA_NEIN(Spiel& s, Integer& wert, int x, int y, int groesse, Farbe farbe);
// Texte and Tasten are indexed from 1 (entry 0 unused).
void AUSWAHL(Spiel& s, const std::vector<std::string>& texte, int von, int bis, int x, int y,
             int groesse, Farbe farbe, Long& vorgabe, const std::vector<std::string>& tasten);
// What the key M offers when buying at the planet where the ship stands.
long MAXIMALE_LADUNG(Spiel& s, int schiff);
void ZAHL_EINGEBEN(Spiel& s, long long min, long long max, int x, int y, int groesse,
                   Farbe farbe, int breite, int vorgabe, int schiff);
