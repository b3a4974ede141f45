#pragma once
// Pixel work shared by the canvas and the window's sharp layer: colours laid
// over each other by coverage, and the coverage of a glyph FreeType rendered.
#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstddef>
#include <cstdint>
#include <vector>

// Lays colour c over d with coverage a (0..255).
inline uint32_t PixelMischen(uint32_t d, uint32_t c, unsigned a) {
    if (a >= 255) return c;
    if (a == 0) return d;
    auto kanal = [&](int s) {
        int dk = static_cast<int>((d >> s) & 0xFF), ck = static_cast<int>((c >> s) & 0xFF);
        return static_cast<uint32_t>(dk + ((ck - dk) * static_cast<int>(a) + 127) / 255) << s;
    };
    return 0xFF000000u | kanal(16) | kanal(8) | kanal(0);
}

// The coverage of a rendered glyph, a byte a pixel, row by row: grey as it
// is, a bitmap font's bits as 0 or 255.
inline void GlyphenDeckung(const FT_Bitmap& bm, std::vector<uint8_t>& deckung) {
    const int b = static_cast<int>(bm.width), h = static_cast<int>(bm.rows);
    deckung.assign(static_cast<size_t>(b) * h, 0);
    for (int r = 0; r < h; ++r) {
        const unsigned char* zeile = bm.buffer + static_cast<ptrdiff_t>(r) * bm.pitch;
        for (int k = 0; k < b; ++k) {
            unsigned a = 0;
            if (bm.pixel_mode == FT_PIXEL_MODE_GRAY) a = zeile[k];
            else if (bm.pixel_mode == FT_PIXEL_MODE_MONO) a = (zeile[k >> 3] & (0x80 >> (k & 7))) ? 255 : 0;
            deckung[static_cast<size_t>(r) * b + k] = static_cast<uint8_t>(a);
        }
    }
}
