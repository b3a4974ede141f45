#include "screen/sdl/hochschrift.h"
#include "screen/pixel.h"
#include "screen/schriftdatei.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cmath>

#include "state/text.h"

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
    if (!SCHRIFT_STARTEN(f->bib, f->face, fehler)) return false;
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
