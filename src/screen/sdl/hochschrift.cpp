#include "screen/sdl/hochschrift.h"
#include "screen/pixel.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include <fontconfig/fontconfig.h>

#include <cmath>

#include "state/text.h"

namespace {

constexpr const char* BEKANNTE_ORTE[] = {
    "/usr/share/fonts/truetype/liberation2/LiberationMono-Regular.ttf",
    "/usr/share/fonts/truetype/liberation/LiberationMono-Regular.ttf",
};

// The file fontconfig gives for "Courier New", if it is that font or its twin.
std::string CourierDatei() {
    std::string datei;
    FcConfig* konfig = FcInitLoadConfigAndFonts();
    if (!konfig) return datei;
    if (FcPattern* muster = FcNameParse(reinterpret_cast<const FcChar8*>("Courier New"))) {
        FcConfigSubstitute(konfig, muster, FcMatchPattern);
        FcDefaultSubstitute(muster);
        FcResult ergebnis = FcResultNoMatch;
        if (FcPattern* treffer = FcFontMatch(konfig, muster, &ergebnis)) {
            FcChar8* f = nullptr;
            FcChar8* fam = nullptr;
            if (FcPatternGetString(treffer, FC_FILE, 0, &f) == FcResultMatch && f &&
                FcPatternGetString(treffer, FC_FAMILY, 0, &fam) == FcResultMatch && fam) {
                const std::string familie = reinterpret_cast<const char*>(fam);
                if (familie == "Liberation Mono" || familie == "Courier New") datei = reinterpret_cast<const char*>(f);
            }
            FcPatternDestroy(treffer);
        }
        FcPatternDestroy(muster);
    }
    FcConfigDestroy(konfig);
    return datei;
}

}  // namespace

struct Hochschrift::Face {
    FT_Library bib = nullptr;
    FT_Face face = nullptr;
    int aktiv = 0;
    ~Face() {
        if (face) FT_Done_Face(face);
        if (bib) FT_Done_FreeType(bib);
    }
};

Hochschrift::Hochschrift() = default;
Hochschrift::~Hochschrift() = default;

bool Hochschrift::laden(std::string& fehler) {
    if (face_) return true;
    auto f = std::make_unique<Face>();
    if (FT_Init_FreeType(&f->bib) != 0) {
        f->bib = nullptr;
        fehler = "Die Schriftbibliothek FreeType lässt sich nicht starten.";
        return false;
    }
    const std::string gefunden = CourierDatei();
    if (!gefunden.empty() && FT_New_Face(f->bib, gefunden.c_str(), 0, &f->face) != 0) f->face = nullptr;
    for (const char* ort : BEKANNTE_ORTE) {
        if (f->face) break;
        if (FT_New_Face(f->bib, ort, 0, &f->face) != 0) f->face = nullptr;
    }
    if (!f->face) {
        fehler = "Schriftart 'Courier New' (Liberation Mono) nicht gefunden. "
                 "Bitte das Paket fonts-liberation2 installieren.";
        return false;
    }
    FT_Select_Charmap(f->face, FT_ENCODING_UNICODE);
    face_ = std::move(f);
    return true;
}

void Hochschrift::massstabSetzen(double s) {
    if (s == s_) return;
    s_ = s;
    groessen_.clear();
    if (face_) face_->aktiv = 0;
}

Hochschrift::Groesse* Hochschrift::groesse(int g) {
    if (!face_ || g <= 0) return nullptr;
    auto& eintrag = groessen_[g];
    FT_Face face = face_->face;
    // Size g is g points at 96 dots per inch, here times the scale (26.6 fixed point).
    const auto punkte = static_cast<FT_F26Dot6>(std::lround(g * 64.0 * s_));
    if (face_->aktiv != g) {
        if (FT_Set_Char_Size(face, 0, punkte, 96, 96) != 0) return nullptr;
        face_->aktiv = g;
    }
    if (!eintrag) {
        eintrag = std::make_unique<Groesse>();
        const FT_Pos asc = FT_IS_SCALABLE(face) ? FT_MulFix(face->ascender, face->size->metrics.y_scale)
                                                : face->size->metrics.ascender;
        eintrag->ascent = static_cast<double>(asc) / 64.0;
    }
    return eintrag.get();
}

double Hochschrift::ascent(int g) {
    Groesse* m = groesse(g);
    return m ? m->ascent : 0.0;
}

const Hochschrift::Glyphe* Hochschrift::glyphe(int g, unsigned char c) {
    const unsigned int cp = Cp1252ZuCodepunkt(c);
    if (cp < 0x20 || (cp >= 0x7F && cp < 0xA0)) return nullptr;
    Groesse* m = groesse(g);
    if (!m) return nullptr;
    Glyphe& gl = m->glyphen[c];
    if (!gl.da) {
        gl.da = true;
        FT_Face face = face_->face;
        if (FT_Load_Char(face, cp, FT_LOAD_RENDER) == 0) {
            const FT_Bitmap& bm = face->glyph->bitmap;
            gl.links = face->glyph->bitmap_left;
            gl.oben = face->glyph->bitmap_top;
            gl.b = static_cast<int>(bm.width);
            gl.h = static_cast<int>(bm.rows);
            GlyphenDeckung(bm, gl.deckung);
        }
    }
    return gl.deckung.empty() ? nullptr : &gl;
}
