#include "screen/leinwand.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include <fontconfig/fontconfig.h>
#include <png.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <mutex>

#include "screen/bildliste.h"
#include "state/text.h"

namespace {

constexpr uint32_t SCHWARZ_ARGB = 0xFF000000u;
constexpr uint32_t PLATZHALTER_FLAECHE = 0xFF404040u;
constexpr uint32_t PLATZHALTER_RAND = 0xFF909090u;

// Where Debian keeps the metric twin of Courier New, should fontconfig fail.
constexpr const char* ERSATZ_SCHRIFTEN[] = {
    "/usr/share/fonts/truetype/liberation2/LiberationMono-Regular.ttf",
    "/usr/share/fonts/truetype/liberation/LiberationMono-Regular.ttf",
};

const char* const SCHRIFT_FEHLT =
    "Schriftart 'Courier New' (Liberation Mono) nicht gefunden. "
    "Bitte das Paket fonts-liberation2 installieren.";

// Lays colour c over d with coverage a (0..255).
inline uint32_t Mischen(uint32_t d, uint32_t c, unsigned a) {
    if (a >= 255) return c;
    if (a == 0) return d;
    auto kanal = [&](int s) {
        int dk = static_cast<int>((d >> s) & 0xFF), ck = static_cast<int>((c >> s) & 0xFF);
        return static_cast<uint32_t>(dk + ((ck - dk) * static_cast<int>(a) + 127) / 255) << s;
    };
    return 0xFF000000u | kanal(16) | kanal(8) | kanal(0);
}

// Nothing is drawn for control characters and the holes of the code page.
inline bool Sichtbar(unsigned int cp) { return cp >= 0x20 && !(cp >= 0x7F && cp < 0xA0); }

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

// --- the font ------------------------------------------------------------------

struct Leinwand::Groesse {
    struct Glyphe {
        bool da = false;
        int links = 0, oben = 0, b = 0, h = 0;
        std::vector<uint8_t> deckung;  // b * h, 0..255
    };
    int punkte = 0;
    int zellB = 0;   // the fixed advance
    int hoehe = 0;   // ascender - descender
    int ascent = 0;  // top of the cell to the baseline
    std::array<Glyphe, 256> glyphen;  // by Windows-1252 byte
};

struct Leinwand::Schrift {
    FT_Library bib = nullptr;
    FT_Face face = nullptr;
    int aktiv = 0;  // size the face is set to
    std::map<int, std::unique_ptr<Groesse>> groessen;

    ~Schrift() {
        if (face) FT_Done_Face(face);
        if (bib) FT_Done_FreeType(bib);
    }
    bool groesseSetzen(int g) {
        if (aktiv == g) return true;
        if (FT_Set_Char_Size(face, 0, static_cast<FT_F26Dot6>(g) * 64, 96, 96) != 0) return false;
        aktiv = g;
        return true;
    }
};

namespace {

// The file fontconfig gives for "Courier New", and its family.
bool FontconfigFragen(std::string& datei, std::string& familie) {
    FcConfig* konfig = FcInitLoadConfigAndFonts();
    if (!konfig) return false;
    bool gut = false;
    if (FcPattern* muster = FcNameParse(reinterpret_cast<const FcChar8*>("Courier New"))) {
        FcConfigSubstitute(konfig, muster, FcMatchPattern);
        FcDefaultSubstitute(muster);
        FcResult ergebnis = FcResultNoMatch;
        FcPattern* treffer = FcFontMatch(konfig, muster, &ergebnis);
        FcPatternDestroy(muster);
        if (treffer) {
            FcChar8* f = nullptr;
            FcChar8* fam = nullptr;
            gut = FcPatternGetString(treffer, FC_FILE, 0, &f) == FcResultMatch && f;
            if (gut) datei = reinterpret_cast<const char*>(f);
            if (FcPatternGetString(treffer, FC_FAMILY, 0, &fam) == FcResultMatch && fam)
                familie = reinterpret_cast<const char*>(fam);
            FcPatternDestroy(treffer);
        }
    }
    FcConfigDestroy(konfig);
    return gut;
}

// Asked once per run; the answer does not change while we play.
bool SchriftSuchen(std::string& datei, std::string& familie) {
    static std::mutex sperre;
    static bool gefragt = false, gut = false;
    static std::string d, f;
    std::lock_guard<std::mutex> halt(sperre);
    if (!gefragt) {
        gefragt = true;
        gut = FontconfigFragen(d, f);
    }
    datei = d;
    familie = f;
    return gut;
}

}  // namespace

Leinwand::Leinwand() : pix_(static_cast<size_t>(BREITE) * HOEHE, SCHWARZ_ARGB) {}
Leinwand::~Leinwand() = default;

bool Leinwand::schriftLaden(std::string& fehler) {
    if (schrift_) return true;
    auto s = std::make_unique<Schrift>();
    if (FT_Init_FreeType(&s->bib) != 0) {
        s->bib = nullptr;
        fehler = "Die Schriftbibliothek FreeType lässt sich nicht starten.";
        return false;
    }
    std::string datei, familie;
    const bool gefunden = SchriftSuchen(datei, familie);
    const bool richtig = familie == "Liberation Mono" || familie == "Courier New";
    if (gefunden && richtig && FT_New_Face(s->bib, datei.c_str(), 0, &s->face) != 0) s->face = nullptr;
    if (!s->face) {  // fontconfig gave another font or none: try the known places first
        for (const char* p : ERSATZ_SCHRIFTEN) {
            if (FT_New_Face(s->bib, p, 0, &s->face) == 0) {
                familie = "Liberation Mono";
                break;
            }
            s->face = nullptr;
        }
    }
    if (!s->face && gefunden && FT_New_Face(s->bib, datei.c_str(), 0, &s->face) != 0) s->face = nullptr;
    if (!s->face) {
        fehler = SCHRIFT_FEHLT;
        return false;
    }
    if (familie != "Liberation Mono" && familie != "Courier New")
        std::fprintf(stderr,
                     "Warnung: statt 'Courier New' (Liberation Mono) wird '%s' verwendet; "
                     "das Paket fonts-liberation2 fehlt wohl.\n",
                     familie.c_str());
    FT_Select_Charmap(s->face, FT_ENCODING_UNICODE);
    schrift_ = std::move(s);
    return true;
}

Leinwand::Groesse* Leinwand::groesse(int g) const {
    if (!schrift_ || g <= 0) return nullptr;
    auto& eintrag = schrift_->groessen[g];
    if (eintrag) return eintrag.get();
    if (!schrift_->groesseSetzen(g)) return nullptr;
    FT_Face face = schrift_->face;
    auto n = std::make_unique<Groesse>();
    n->punkte = g;
    FT_Pos asc, desc;
    if (FT_IS_SCALABLE(face)) {
        asc = FT_MulFix(face->ascender, face->size->metrics.y_scale);
        desc = FT_MulFix(face->descender, face->size->metrics.y_scale);
    } else {
        asc = face->size->metrics.ascender;
        desc = face->size->metrics.descender;
    }
    n->ascent = static_cast<int>((asc + 32) >> 6);
    n->hoehe = static_cast<int>((asc - desc + 32) >> 6);
    if (FT_Load_Char(face, '0', FT_LOAD_DEFAULT) == 0)
        n->zellB = static_cast<int>((face->glyph->advance.x + 32) >> 6);
    if (n->zellB <= 0) n->zellB = std::max(1, (g * 96 / 72) * 3 / 5);
    eintrag = std::move(n);
    return eintrag.get();
}

void Leinwand::textMessen(const std::string& t, int g, int& breite, int& hoehe) const {
    if (Groesse* m = groesse(g)) {
        breite = m->zellB * static_cast<int>(t.size());
        hoehe = m->hoehe;
        return;
    }
    // No font: the proportions of Courier New, so layout still works.
    const double px = g * 96.0 / 72.0;
    breite = static_cast<int>(px * 0.6 + 0.5) * static_cast<int>(t.size());
    hoehe = static_cast<int>(px * 1.133 + 0.5);
}

void Leinwand::text(const std::string& t, int g, int x, int y, Farbe f) {
    Groesse* m = groesse(g);
    if (!m) return;
    const uint32_t farbe = Argb(f);
    FT_Face face = schrift_->face;
    // Rows of the cell, clipped to the canvas.
    const int zy1 = std::max(y, 0), zy2 = std::min(y + m->hoehe, HOEHE);
    for (size_t i = 0; i < t.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(t[i]);
        const unsigned int cp = Cp1252ZuCodepunkt(c);
        if (!Sichtbar(cp)) continue;
        Groesse::Glyphe& gl = m->glyphen[c];
        if (!gl.da) {
            gl.da = true;
            if (schrift_->groesseSetzen(g) && FT_Load_Char(face, cp, FT_LOAD_RENDER) == 0) {
                const FT_Bitmap& bm = face->glyph->bitmap;
                gl.links = face->glyph->bitmap_left;
                gl.oben = face->glyph->bitmap_top;
                gl.b = static_cast<int>(bm.width);
                gl.h = static_cast<int>(bm.rows);
                gl.deckung.assign(static_cast<size_t>(gl.b) * gl.h, 0);
                for (int r = 0; r < gl.h; ++r) {
                    const unsigned char* zeile = bm.buffer + static_cast<ptrdiff_t>(r) * bm.pitch;
                    for (int k = 0; k < gl.b; ++k) {
                        unsigned a = 0;
                        if (bm.pixel_mode == FT_PIXEL_MODE_GRAY) a = zeile[k];
                        else if (bm.pixel_mode == FT_PIXEL_MODE_MONO) a = (zeile[k >> 3] & (0x80 >> (k & 7))) ? 255 : 0;
                        gl.deckung[static_cast<size_t>(r) * gl.b + k] = static_cast<uint8_t>(a);
                    }
                }
            }
        }
        if (gl.deckung.empty()) continue;
        const int zelle = x + m->zellB * static_cast<int>(i);
        const int zx1 = std::max(zelle, 0), zx2 = std::min(zelle + m->zellB, BREITE);
        const int gx = zelle + gl.links, gy = y + m->ascent - gl.oben;
        for (int r = 0; r < gl.h; ++r) {
            const int py = gy + r;
            if (py < zy1 || py >= zy2) continue;
            uint32_t* ziel = &pix_[static_cast<size_t>(py) * BREITE];
            const uint8_t* quelle = &gl.deckung[static_cast<size_t>(r) * gl.b];
            for (int k = 0; k < gl.b; ++k) {
                const int px = gx + k;
                if (px < zx1 || px >= zx2 || quelle[k] == 0) continue;
                ziel[px] = Mischen(ziel[px], farbe, quelle[k]);
            }
        }
    }
}

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
