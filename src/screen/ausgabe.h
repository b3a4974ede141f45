#pragma once
// Printing and drawing on the game window, and the message queue.
#include <string>
#include <vector>

#include "screen/plattform.h"
#include "state/spiel.h"

constexpr Farbe SCHWARZ = 0, ROT = 255, GRUEN = 65280, GELB = 65535, BLAU = 16711680,
                MAGENTA = 16711935, CYAN = 16776960, WEISS = 16777215;
// Hints beside the game's own texts (the keys of help, graphs and map), quieter than they.
constexpr Farbe HINWEIS_GRAU = 0x909090;

// Prints after blanking the text's rectangle in black; runs the queue once.
void TEXT_AUSGEBEN(Spiel& s, const std::string& text, int groesse, int x, int y, Farbe farbe);
void TEXT_MIT_HINTERGRUND(Spiel& s, const std::string& text, int groesse, int x, int y,
                          Farbe hintergrund, Farbe farbe);
// Runs the message queue once: events reach the handlers, due timers fire.
void DoEvents(Spiel& s);
// Sleeps the given time (the game's fixed pauses), then nothing else.
void Warten(Spiel& s, int ms);
// Sets TasteDa to 0 and polls every 5 ms until a key (or click) is noted.
void AUF_TASTE_WARTEN(Spiel& s);

// Draws on the window with the current line width.
void LINIE(Spiel& s, int x1, int y1, int x2, int y2, Farbe f);
void RAHMEN(Spiel& s, int x1, int y1, int x2, int y2, Farbe f);
void BOX(Spiel& s, int x1, int y1, int x2, int y2, Farbe f);
void BILD(Spiel& s, const std::string& schluessel, int x, int y);
