// The canvas's font: Courier New's metric twin found through fontconfig,
// rendered by FreeType once per size and byte, and laid over the pixels.
#include <ft2build.h>
#include FT_FREETYPE_H
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>

#include "screen/leinwand.h"
#include "screen/pixel.h"
#include "screen/schriftdatei.h"
#include "state/text.h"

namespace {

// Where Debian keeps the metric twin of Courier New, should fontconfig fail.
constexpr const char* ERSATZ_SCHRIFTEN[] = {
    "/usr/share/fonts/truetype/liberation2/LiberationMono-Regular.ttf",
    "/usr/share/fonts/truetype/liberation/LiberationMono-Regular.ttf",
};

const char* const SCHRIFT_FEHLT =
    "Schriftart 'Courier New' (Liberation Mono) nicht gefunden. "
    "Bitte das Paket fonts-liberation2 installieren.";

// Nothing is drawn for control characters and the holes of the code page.
inline bool Sichtbar(unsigned int cp) { return cp >= 0x20 && !(cp >= 0x7F && cp < 0xA0); }

}  // namespace

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

FT_Face COURIER_OEFFNEN(FT_Library bib, std::string& fehler) {
    FT_Face face = nullptr;
    std::string datei, familie;
    const bool gefunden = SchriftSuchen(datei, familie);
    const bool richtig = familie == "Liberation Mono" || familie == "Courier New";
    if (gefunden && richtig && FT_New_Face(bib, datei.c_str(), 0, &face) != 0) face = nullptr;
    if (!face) {  // fontconfig gave another font or none: try the known places first
        for (const char* p : ERSATZ_SCHRIFTEN) {
            if (FT_New_Face(bib, p, 0, &face) == 0) {
                familie = "Liberation Mono";
                break;
            }
            face = nullptr;
        }
    }
    if (!face && gefunden && FT_New_Face(bib, datei.c_str(), 0, &face) != 0) face = nullptr;
    if (!face) {
        fehler = SCHRIFT_FEHLT;
        return nullptr;
    }
    if (familie != "Liberation Mono" && familie != "Courier New")
        std::fprintf(stderr,
                     "Warnung: statt 'Courier New' (Liberation Mono) wird '%s' verwendet; "
                     "das Paket fonts-liberation2 fehlt wohl.\n",
                     familie.c_str());
    FT_Select_Charmap(face, FT_ENCODING_UNICODE);
    return face;
}

bool SCHRIFT_STARTEN(FT_Library& bib, FT_Face& face, std::string& fehler) {
    if (FT_Init_FreeType(&bib) != 0) {
        bib = nullptr;
        fehler = "Die Schriftbibliothek FreeType lässt sich nicht starten.";
        return false;
    }
    face = COURIER_OEFFNEN(bib, fehler);
    return face != nullptr;
}

// Here, where the font's parts are known: the canvas starts black.
Leinwand::Leinwand() : pix_(static_cast<size_t>(BREITE) * HOEHE) { leeren(); }
Leinwand::~Leinwand() = default;

bool Leinwand::schriftLaden(std::string& fehler) {
    if (schrift_) return true;
    auto s = std::make_unique<Schrift>();
    if (!SCHRIFT_STARTEN(s->bib, s->face, fehler)) return false;
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
                GlyphenDeckung(bm, gl.deckung);
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
                ziel[px] = PixelMischen(ziel[px], farbe, quelle[k]);
            }
        }
    }
}

