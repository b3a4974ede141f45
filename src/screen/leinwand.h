#pragma once
// The 1024 x 768 picture that persists: every print, line and picture goes
// here, and the window only shows it. The headless platform uses the very
// same canvas, so tests see the pixels a player sees.
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "screen/plattform.h"

class Leinwand {
public:
    static constexpr int BREITE = 1024;
    static constexpr int HOEHE = 768;

    Leinwand();
    ~Leinwand();
    Leinwand(const Leinwand&) = delete;
    Leinwand& operator=(const Leinwand&) = delete;

    // Finds "Courier New" through fontconfig (Liberation Mono) and opens it.
    // On failure returns false with a German message in fehler.
    bool schriftLaden(std::string& fehler);
    // Loads data/bilder/*.png for the 44 keys; a missing picture is drawn as
    // a grey placeholder of its size. Returns the number found.
    int bilderLaden(const std::string& programmVerzeichnis);

    void leeren();
    void text(const std::string& cp1252, int groesse, int x, int y, Farbe f);
    // Cells are fixed: 12 px wide at size 15, 16 at size 20.
    void textMessen(const std::string& cp1252, int groesse, int& breite, int& hoehe) const;
    void linie(int x1, int y1, int x2, int y2, Farbe f, int breite);
    void rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite);
    void box(int x1, int y1, int x2, int y2, Farbe f);
    void kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite);
    // Key in Windows-1252. Returns false for an unknown key.
    bool bild(const std::string& schluesselCp1252, int x, int y);
    bool bildGroesse(const std::string& schluesselCp1252, int& b, int& h) const;

    const uint32_t* pixel() const { return pix_.data(); }  // 0xAARRGGBB, row after row
    uint32_t pixelAn(int x, int y) const { return pix_[static_cast<size_t>(y) * BREITE + x]; }
    bool pngSchreiben(const std::string& pfad, std::string& fehler) const;
    // For a box laid over the picture for a while: take the pixels, put them back.
    std::vector<uint32_t> kopie() const { return pix_; }
    void zurueckholen(const std::vector<uint32_t>& p) {
        if (p.size() == pix_.size()) pix_ = p;
    }

private:
    struct Schrift;
    struct Groesse;
    // Metrics and glyphs of one size; made on first use.
    Groesse* groesse(int g) const;
    void punkt(int x, int y, uint32_t c);  // clipped
    void strecke(int x1, int x2, int y, uint32_t c);  // one row, clipped
    void stift(int x, int y, uint32_t c, int breite);  // the pen: breite x breite
    std::vector<uint32_t> pix_;
    std::unique_ptr<Schrift> schrift_;
    struct Bild {
        int b = 0, h = 0;
        std::vector<uint32_t> pix;
    };
    std::map<std::string, Bild> bilder_;  // by key, Windows-1252
};

// 0xAARRGGBB of a game colour (blue-green-red number).
inline uint32_t Argb(Farbe f) {
    uint32_t r = f & 0xFF, g = (f >> 8) & 0xFF, b = (f >> 16) & 0xFF;
    return 0xFF000000u | (r << 16) | (g << 8) | b;
}
