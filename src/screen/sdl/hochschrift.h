#pragma once
// The game's font (Courier New, on Debian Liberation Mono) at the window's
// scale: size 15 at scale 2 is drawn from the outlines at twice the pixel
// size, not enlarged from the small glyphs.
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class Hochschrift {
public:
    struct Glyphe {
        bool da = false;
        int links = 0, oben = 0, b = 0, h = 0;
        std::vector<uint8_t> deckung;  // b * h, 0..255
    };

    Hochschrift();
    ~Hochschrift();
    Hochschrift(const Hochschrift&) = delete;
    Hochschrift& operator=(const Hochschrift&) = delete;

    // On failure false with a German message.
    bool laden(std::string& fehler);
    // A new scale: the glyphs made so far are thrown away.
    void massstabSetzen(double s);
    // Top of the cell to the baseline, in window pixels, at size g.
    double ascent(int groesse);
    // The glyph of a Windows-1252 byte at size g, made on first use; null
    // for characters that show nothing.
    const Glyphe* glyphe(int groesse, unsigned char zeichen);

private:
    struct Face;
    struct Groesse {
        double ascent = 0;
        std::array<Glyphe, 256> glyphen;
    };
    Groesse* groesse(int g);
    std::unique_ptr<Face> face_;
    double s_ = 1.0;
    std::map<int, std::unique_ptr<Groesse>> groessen_;
};
