// The canvas of 1024 x 768 pixels behind both platforms: shapes, the
// pictures from the program's folder, and the screenshot as a PNG.
#include "screen/leinwand.h"

#include <png.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "screen/bildliste.h"
#include "state/text.h"

namespace {

constexpr uint32_t SCHWARZ_ARGB = 0xFF000000u;
constexpr uint32_t PLATZHALTER_FLAECHE = 0xFF404040u;
constexpr uint32_t PLATZHALTER_RAND = 0xFF909090u;

// Span half-widths of a midpoint circle of radius r, row by row (0..r).
std::vector<int> Halbbreiten(int r) {
    std::vector<int> h(static_cast<size_t>(r) + 1, 0);
    int x = r, y = 0, d = 1 - r;
    while (x >= y) {
        h[y] = std::max(h[y], x);
        h[x] = std::max(h[x], y);
        ++y;
        if (d < 0) {
            d += 2 * y + 1;
        } else {
            --x;
            d += 2 * (y - x) + 1;
        }
    }
    return h;
}

}  // namespace

// --- shapes --------------------------------------------------------------------

void Leinwand::leeren() { std::fill(pix_.begin(), pix_.end(), SCHWARZ_ARGB); }

void Leinwand::punkt(int x, int y, uint32_t c) {
    if (x < 0 || y < 0 || x >= BREITE || y >= HOEHE) return;
    pix_[static_cast<size_t>(y) * BREITE + x] = c;
}

void Leinwand::strecke(int x1, int x2, int y, uint32_t c) {
    if (y < 0 || y >= HOEHE) return;
    if (x1 > x2) std::swap(x1, x2);
    x1 = std::max(x1, 0);
    x2 = std::min(x2, BREITE - 1);
    if (x1 > x2) return;
    uint32_t* z = &pix_[static_cast<size_t>(y) * BREITE];
    std::fill(z + x1, z + x2 + 1, c);
}

void Leinwand::stift(int x, int y, uint32_t c, int breite) {
    if (breite <= 1) {
        punkt(x, y, c);
        return;
    }
    const int a = -(breite - 1) / 2;  // 2: 0..1, 3: -1..1
    for (int dy = a; dy < a + breite; ++dy) strecke(x + a, x + a + breite - 1, y + dy, c);
}

void Leinwand::linie(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    const uint32_t c = Argb(f);
    // Far off the canvas: cut to a sane range so the walk stays short.
    constexpr int GRENZE = 1 << 14;
    if (std::abs(x1) > GRENZE || std::abs(y1) > GRENZE || std::abs(x2) > GRENZE || std::abs(y2) > GRENZE) return;
    const int dx = std::abs(x2 - x1), sx = x1 < x2 ? 1 : -1;
    const int dy = -std::abs(y2 - y1), sy = y1 < y2 ? 1 : -1;
    int err = dx + dy;
    for (;;) {
        stift(x1, y1, c, breite);
        if (x1 == x2 && y1 == y2) break;
        const int e2 = 2 * err;
        if (e2 >= dy) {
            err += dy;
            x1 += sx;
        }
        if (e2 <= dx) {
            err += dx;
            y1 += sy;
        }
    }
}

void Leinwand::box(int x1, int y1, int x2, int y2, Farbe f) {
    const uint32_t c = Argb(f);
    if (y1 > y2) std::swap(y1, y2);
    y1 = std::max(y1, 0);
    y2 = std::min(y2, HOEHE - 1);
    for (int y = y1; y <= y2; ++y) strecke(x1, x2, y, c);
}

void Leinwand::rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    const int w = std::max(breite, 1);
    // The pen runs inside the rectangle: nothing outside x1..x2, y1..y2.
    if (2 * w >= x2 - x1 + 1 || 2 * w >= y2 - y1 + 1) {
        box(x1, y1, x2, y2, f);
        return;
    }
    box(x1, y1, x2, y1 + w - 1, f);
    box(x1, y2 - w + 1, x2, y2, f);
    box(x1, y1 + w, x1 + w - 1, y2 - w, f);
    box(x2 - w + 1, y1 + w, x2, y2 - w, f);
}

void Leinwand::kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) {
    if (r < 0 || r > 4096) return;
    const uint32_t c = Argb(f);
    if (r == 0) {
        punkt(cx, cy, c);
        return;
    }
    const std::vector<int> aussen = Halbbreiten(r);
    if (gefuellt) {
        for (int dy = 0; dy <= r; ++dy) {
            strecke(cx - aussen[dy], cx + aussen[dy], cy - dy, c);
            if (dy) strecke(cx - aussen[dy], cx + aussen[dy], cy + dy, c);
        }
        return;
    }
    if (breite <= 1) {
        int x = r, y = 0, d = 1 - r;
        while (x >= y) {
            for (int s = 0; s < 2; ++s) {
                const int a = s ? y : x, b = s ? x : y;
                punkt(cx + a, cy + b, c);
                punkt(cx - a, cy + b, c);
                punkt(cx + a, cy - b, c);
                punkt(cx - a, cy - b, c);
            }
            ++y;
            if (d < 0) {
                d += 2 * y + 1;
            } else {
                --x;
                d += 2 * (y - x) + 1;
            }
        }
        return;
    }
    // A thicker ring: what lies between the circle of r and that of r - breite.
    const int ri = r - breite;
    const std::vector<int> innen = ri >= 0 ? Halbbreiten(ri) : std::vector<int>();
    for (int dy = 0; dy <= r; ++dy) {
        const int a = aussen[dy];
        for (int s = dy ? -1 : 1; s <= 1; s += 2) {
            const int y = cy + s * dy;
            if (dy > ri) {
                strecke(cx - a, cx + a, y, c);
            } else {
                strecke(cx - a, cx - innen[dy] - 1, y, c);
                strecke(cx + innen[dy] + 1, cx + a, y, c);
            }
        }
    }
}

// --- pictures ------------------------------------------------------------------

int Leinwand::bilderLaden(const std::string& programmVerzeichnis) {
    int gefunden = 0;
    for (const BildEintrag& e : BILDLISTE) {
        Bild b;
        b.b = e.breite;
        b.h = e.hoehe;
        const std::string pfad = programmVerzeichnis + "/bilder/" + BildDateiname(e.schluessel);
        bool gut = false;
        png_image bild;
        std::memset(&bild, 0, sizeof bild);
        bild.version = PNG_IMAGE_VERSION;
        std::error_code fc;
        if (std::filesystem::is_regular_file(pfad, fc) && png_image_begin_read_from_file(&bild, pfad.c_str())) {
            if (static_cast<int>(bild.width) == e.breite && static_cast<int>(bild.height) == e.hoehe) {
                bild.format = PNG_FORMAT_RGB;
                std::vector<uint8_t> rgb(PNG_IMAGE_SIZE(bild));
                png_color schwarz{0, 0, 0};  // transparent parts go on black
                if (png_image_finish_read(&bild, &schwarz, rgb.data(), 0, nullptr)) {
                    b.pix.resize(static_cast<size_t>(b.b) * b.h);
                    for (size_t i = 0; i < b.pix.size(); ++i)
                        b.pix[i] = 0xFF000000u | (uint32_t(rgb[3 * i]) << 16) | (uint32_t(rgb[3 * i + 1]) << 8) |
                                   rgb[3 * i + 2];
                    gut = true;
                }
            } else {
                std::fprintf(stderr, "Bild '%s' hat %ux%u statt %dx%d Bildpunkte.\n", pfad.c_str(), bild.width,
                             bild.height, e.breite, e.hoehe);
            }
            png_image_free(&bild);
        }
        if (gut) {
            ++gefunden;
        } else {  // a placeholder of the right size, so the screen keeps its layout
            b.pix.assign(static_cast<size_t>(b.b) * b.h, PLATZHALTER_FLAECHE);
            for (int y = 0; y < b.h; ++y)
                for (int x = 0; x < b.b; ++x)
                    if (x == 0 || y == 0 || x == b.b - 1 || y == b.h - 1)
                        b.pix[static_cast<size_t>(y) * b.b + x] = PLATZHALTER_RAND;
        }
        bilder_[T(e.schluessel)] = std::move(b);
    }
    return gefunden;
}

bool Leinwand::bild(const std::string& schluessel, int x, int y) {
    auto it = bilder_.find(schluessel);
    if (it == bilder_.end()) return false;
    const Bild& b = it->second;
    const int x1 = std::max(x, 0), x2 = std::min(x + b.b, BREITE);
    if (x1 >= x2) return true;
    for (int r = 0; r < b.h; ++r) {
        const int py = y + r;
        if (py < 0 || py >= HOEHE) continue;
        const uint32_t* quelle = &b.pix[static_cast<size_t>(r) * b.b + (x1 - x)];
        std::copy(quelle, quelle + (x2 - x1), &pix_[static_cast<size_t>(py) * BREITE + x1]);
    }
    return true;
}

bool Leinwand::bildGroesse(const std::string& schluessel, int& b, int& h) const {
    auto it = bilder_.find(schluessel);
    if (it == bilder_.end()) return false;
    b = it->second.b;
    h = it->second.h;
    return true;
}

// --- screenshot ----------------------------------------------------------------

bool Leinwand::pngSchreiben(const std::string& pfad, std::string& fehler) const {
    std::vector<uint8_t> rgb(static_cast<size_t>(BREITE) * HOEHE * 3);
    for (size_t i = 0; i < pix_.size(); ++i) {
        rgb[3 * i] = static_cast<uint8_t>(pix_[i] >> 16);
        rgb[3 * i + 1] = static_cast<uint8_t>(pix_[i] >> 8);
        rgb[3 * i + 2] = static_cast<uint8_t>(pix_[i]);
    }
    png_image bild;
    std::memset(&bild, 0, sizeof bild);
    bild.version = PNG_IMAGE_VERSION;
    bild.width = BREITE;
    bild.height = HOEHE;
    bild.format = PNG_FORMAT_RGB;
    if (!png_image_write_to_file(&bild, pfad.c_str(), 0, rgb.data(), 0, nullptr)) {
        fehler = "Das Bild '" + pfad + "' konnte nicht geschrieben werden";
        if (bild.message[0]) fehler += std::string(" (") + bild.message + ")";
        fehler += ".";
        png_image_free(&bild);
        return false;
    }
    return true;
}
