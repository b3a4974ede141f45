#pragma once
// The driver script: a session's inputs as text, one line each. The headless
// platform reads it; the window writes it while a player plays.
//
//   key NAME        a key with its character (ENTER, A, 7, F3 ...)
//   type TEXT       characters, each with the key that types it
//   keycode N [Z]   a key by its code, with character Z (a number) or without
//   char Z          a character without a key (a composed one)
//   click X Y       a mouse click on the canvas
//   close           the window's close button
//   answer yes|no   the answer of the next yes/no box
//   wait MS         the next input comes MS after the one before, wherever the
//                   game is; an input without a wait comes at the next poll
//   seed N          the next seeding from the clock gives N
//   # ...           a comment
#include <cstdint>
#include <string>
#include <vector>

#include "screen/plattform.h"

enum class SkriptArt { Taste, Tippen, Klick, Warten, Antwort, Schliessen, Saat };

struct SkriptZeile {
    SkriptArt art = SkriptArt::Taste;
    int nummer = 0;      // line number in the script
    int code = 0;        // key: key code, -1 for a character alone
    int zeichen = -1;    // key: its character, -1 none
    std::string text;    // type: Windows-1252
    int x = 0, y = 0;
    long long ms = 0;
    bool ja = true;
    uint32_t saat = 0;
};

// On a bad line false, naming it in fehler.
bool SkriptLesen(const std::string& text, std::vector<SkriptZeile>& zeilen, std::string& fehler);

// The key that types a character on a German keyboard, 0 if none.
int SkriptTastenCode(unsigned char zeichen);

// The line for one input that reaches the game: a key down with the character
// it typed (zeichen -1: none), a character alone (code -1), a click, the close.
std::string SkriptTaste(int code, int zeichen);
std::string SkriptEreignis(const Ereignis& e);
