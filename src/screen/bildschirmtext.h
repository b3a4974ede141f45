#pragma once
// What the screen shows as text: every print and picture that is still
// visible, with the characters that something drawn later has covered.
// Tests read it, and the computer players read the screen through it as a
// person reads the window.
#include <string>
#include <vector>

#include "screen/plattform.h"

class Bildschirmtext {
public:
    void leeren() { posten_.clear(); }
    // A print: zellB x zellH is the size of one character cell.
    void text(const std::string& cp1252, int groesse, int x, int y, Farbe f, int zellB, int zellH);
    // A picture of b x h pixels: it covers what lies under it.
    void bild(const std::string& schluessel, int x, int y, int b, int h);
    // A filled disc covers what lies in the square inside it.
    void kreis(int cx, int cy, int r, bool gefuellt);
    // A filled area covers every character cell and picture wholly inside it (inclusive).
    void verdecken(int x1, int y1, int x2, int y2);

    // The text that begins at (x, y), covered characters as blanks; "" if none.
    std::string textBei(int x, int y) const;
    // One line per item (text / picture), in print order, as UTF-8.
    std::string bildschirm() const;

private:
    struct Posten {
        bool istText = true;
        int x = 0, y = 0, groesse = 0;
        Farbe farbe = 0;
        std::string text;            // Windows-1252, or the picture key
        std::vector<bool> verdeckt;  // per character
        size_t anzahlVerdeckt = 0;
        int zellB = 0, zellH = 0;    // character cell, or picture size
    };
    std::vector<Posten> posten_;
};
