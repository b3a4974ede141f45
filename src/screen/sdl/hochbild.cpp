#include "screen/sdl/hochbild.h"
#include "screen/pixel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr uint32_t SCHWARZ = 0xFF000000u;
constexpr int B = Leinwand::BREITE, H = Leinwand::HOEHE;

Hochbild::Rechteck Geschnitten(int x1, int y1, int x2, int y2) {
    Hochbild::Rechteck r{std::max(x1, 0), std::max(y1, 0), std::min(x2, B - 1), std::min(y2, H - 1)};
    if (r.leer()) r = Hochbild::Rechteck{};
    return r;
}

inline double Klemmen01(double v) { return v < 0 ? 0 : (v > 1 ? 1 : v); }

}  // namespace

void Hochbild::Rechteck::vereinen(const Rechteck& r) {
    if (r.leer()) return;
    if (leer()) {
        *this = r;
        return;
    }
    x1 = std::min(x1, r.x1);
    y1 = std::min(y1, r.y1);
    x2 = std::max(x2, r.x2);
    y2 = std::max(y2, r.y2);
}

// --- scale ---------------------------------------------------------------------

int Hochbild::wx(double x) const { return static_cast<int>(std::lround(x * s_)); }
int Hochbild::wy(double y) const { return static_cast<int>(std::lround(y * s_)); }

void Hochbild::fensterRechteck(const Rechteck& r, int& x, int& y, int& b, int& h) const {
    x = std::clamp(wx(r.x1), 0, b_);
    y = std::clamp(wy(r.y1), 0, h_);
    b = std::clamp(wx(r.x2 + 1), 0, b_) - x;
    h = std::clamp(wy(r.y2 + 1), 0, h_) - y;
}

void Hochbild::massstabSetzen(double s, int breite, int hoehe) {
    if (s <= 1.0 || breite <= 0 || hoehe <= 0) {
        s_ = 0.0;
        b_ = h_ = 0;
        std::vector<uint32_t>().swap(pix_);
        return;
    }
    if (s == s_ && breite == b_ && hoehe == h_) return;
    s_ = s;
    b_ = breite;
    h_ = hoehe;
    schrift_.massstabSetzen(s);
    allesZeichnen();
}

void Hochbild::allesZeichnen() {
    if (!aktiv()) return;
    pix_.assign(static_cast<size_t>(b_) * h_, SCHWARZ);
    for (const Schritt& s : liste_) zeichnen(s);
}

// --- the list --------------------------------------------------------------------

Hochbild::Rechteck Hochbild::aufnehmen(Schritt s, bool deckend) {
    if (s.bereich.leer()) return {};
    if (deckung_.empty()) deckung_.assign(static_cast<size_t>(B) * H, 0);
    s.nummer = naechste_++;
    if (deckend)
        for (int y = s.bereich.y1; y <= s.bereich.y2; ++y)
            std::fill_n(&deckung_[static_cast<size_t>(y) * B + s.bereich.x1], s.bereich.x2 - s.bereich.x1 + 1,
                        s.nummer);
    if (aktiv()) zeichnen(s);
    const Rechteck r = s.bereich;
    liste_.push_back(std::move(s));
    if (liste_.size() > grenze_) aufraeumen();
    return r;
}

void Hochbild::aufraeumen() {
    auto unsichtbar = [&](const Schritt& s) {
        for (int y = s.bereich.y1; y <= s.bereich.y2; ++y) {
            const uint32_t* z = &deckung_[static_cast<size_t>(y) * B];
            for (int x = s.bereich.x1; x <= s.bereich.x2; ++x)
                if (z[x] <= s.nummer) return false;
        }
        return true;
    };
    liste_.erase(std::remove_if(liste_.begin(), liste_.end(), unsichtbar), liste_.end());
    grenze_ = std::max<size_t>(2048, 2 * liste_.size());
}

struct Hochbild::Stand {
    std::vector<Schritt> liste;
    std::vector<uint32_t> deckung, pix;
    uint32_t naechste = 1;
    double s = 0;
    int b = 0, h = 0;
};

std::shared_ptr<Hochbild::Stand> Hochbild::sichern() const {
    auto st = std::make_shared<Stand>();
    st->liste = liste_;
    st->deckung = deckung_;
    st->pix = pix_;
    st->naechste = naechste_;
    st->s = s_;
    st->b = b_;
    st->h = h_;
    return st;
}

void Hochbild::zurueckholen(const std::shared_ptr<Stand>& st) {
    if (!st) return;
    liste_ = st->liste;
    deckung_ = st->deckung;
    naechste_ = st->naechste;
    grenze_ = std::max<size_t>(2048, 2 * liste_.size());
    if (st->s == s_ && st->b == b_ && st->h == h_) pix_ = st->pix;
    else allesZeichnen();  // the window changed size meanwhile
}

// --- the steps -------------------------------------------------------------------

Hochbild::Rechteck Hochbild::leeren() {
    liste_.clear();
    deckung_.assign(static_cast<size_t>(B) * H, 0);
    naechste_ = 1;
    grenze_ = 2048;
    if (aktiv()) std::fill(pix_.begin(), pix_.end(), SCHWARZ);
    return Rechteck{0, 0, B - 1, H - 1};
}

Hochbild::Rechteck Hochbild::text(const std::string& t, int groesse, int x, int y, Farbe f) {
    if (t.empty()) return {};
    int w = 0, h = 0;
    leinwand_.textMessen(t, groesse, w, h);
    Schritt s;
    s.art = Art::Text;
    s.bereich = Geschnitten(x, y, x + w - 1, y + h - 1);
    s.farbe = Argb(f);
    s.a = x;
    s.b = y;
    s.c = w / static_cast<int>(t.size());  // the cell
    s.d = h;
    s.groesse = groesse;
    s.text = t;
    return aufnehmen(std::move(s), false);
}

Hochbild::Rechteck Hochbild::box(int x1, int y1, int x2, int y2, Farbe f) {
    Schritt s;
    s.art = Art::Box;
    s.bereich = Geschnitten(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2));
    s.farbe = Argb(f);
    return aufnehmen(std::move(s), true);
}

Hochbild::Rechteck Hochbild::rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    // The same four boxes as on the canvas: the pen runs inside the rectangle.
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    const int w = std::max(breite, 1);
    if (2 * w >= x2 - x1 + 1 || 2 * w >= y2 - y1 + 1) return box(x1, y1, x2, y2, f);
    Rechteck r = box(x1, y1, x2, y1 + w - 1, f);
    r.vereinen(box(x1, y2 - w + 1, x2, y2, f));
    r.vereinen(box(x1, y1 + w, x1 + w - 1, y2 - w, f));
    r.vereinen(box(x2 - w + 1, y1 + w, x2, y2 - w, f));
    return r;
}

Hochbild::Rechteck Hochbild::linie(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    constexpr int GRENZE = 1 << 14;  // as the canvas: far off lines are not drawn
    if (std::abs(x1) > GRENZE || std::abs(y1) > GRENZE || std::abs(x2) > GRENZE || std::abs(y2) > GRENZE) return {};
    const int w = std::max(breite, 1);
    const int a = -(w - 1) / 2;  // the pen's square: a .. a + w - 1 around each point
    // A straight line is a box, and covers what lay below it.
    if (x1 == x2 || y1 == y2)
        return box(std::min(x1, x2) + a, std::min(y1, y2) + a, std::max(x1, x2) + a + w - 1,
                   std::max(y1, y2) + a + w - 1, f);
    Schritt s;
    s.art = Art::Linie;
    s.bereich = Geschnitten(std::min(x1, x2) + a, std::min(y1, y2) + a, std::max(x1, x2) + a + w - 1,
                            std::max(y1, y2) + a + w - 1);
    s.farbe = Argb(f);
    s.a = x1;
    s.b = y1;
    s.c = x2;
    s.d = y2;
    s.breite = w;
    return aufnehmen(std::move(s), false);
}

Hochbild::Rechteck Hochbild::kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) {
    if (r < 0 || r > 4096) return {};
    Schritt s;
    s.art = Art::Kreis;
    s.bereich = Geschnitten(cx - r, cy - r, cx + r, cy + r);
    s.farbe = Argb(f);
    s.a = cx;
    s.b = cy;
    s.c = r;
    s.gefuellt = gefuellt || r == 0 || r - breite < 0;
    s.breite = std::max(breite, 1);
    return aufnehmen(std::move(s), false);
}

Hochbild::Rechteck Hochbild::bild(const std::string& schluessel, int x, int y) {
    int bw = 0, bh = 0;
    if (!leinwand_.bildGroesse(schluessel, bw, bh) || bw <= 0 || bh <= 0) return {};
    std::shared_ptr<const Pixelbild> bild;
    for (const auto& [k, p] : bilder_)
        if (k == schluessel) bild = p;
    if (!bild) {
        // The canvas has just painted it: its pixels are the picture.
        auto p = std::make_shared<Pixelbild>();
        p->b = bw;
        p->h = bh;
        p->pix.assign(static_cast<size_t>(bw) * bh, SCHWARZ);
        const bool ganz = x >= 0 && y >= 0 && x + bw <= B && y + bh <= H;
        for (int r = 0; r < bh; ++r)
            for (int k = 0; k < bw; ++k)
                if (x + k >= 0 && x + k < B && y + r >= 0 && y + r < H)
                    p->pix[static_cast<size_t>(r) * bw + k] = leinwand_.pixelAn(x + k, y + r);
        bild = p;
        if (ganz) bilder_.emplace_back(schluessel, bild);
    }
    Schritt s;
    s.art = Art::Bild;
    s.bereich = Geschnitten(x, y, x + bw - 1, y + bh - 1);
    s.a = x;
    s.b = y;
    s.bild = std::move(bild);
    return aufnehmen(std::move(s), true);
}

// --- drawing at the scale ------------------------------------------------------------

void Hochbild::zeichnen(const Schritt& s) {
    klipp_ = s.bereich;
    switch (s.art) {
        case Art::Box: fuellen(s.bereich, s.farbe); break;
        case Art::Text: textZeichnen(s); break;
        case Art::Linie: linieZeichnen(s); break;
        case Art::Kreis: kreisZeichnen(s); break;
        case Art::Bild: bildZeichnen(s); break;
    }
}

void Hochbild::fuellen(const Rechteck& r, uint32_t c) {
    int x, y, b, h;
    fensterRechteck(r, x, y, b, h);
    for (int zy = y; zy < y + h; ++zy) std::fill_n(&pix_[static_cast<size_t>(zy) * b_ + x], b, c);
}

void Hochbild::textZeichnen(const Schritt& s) {
    int kx, ky, kb, kh;
    fensterRechteck(klipp_, kx, ky, kb, kh);
    const int zeile1 = std::max(ky, wy(s.b)), zeile2 = std::min(ky + kh, wy(s.b + s.d));
    const int grund = static_cast<int>(std::lround(s.b * s_ + schrift_.ascent(s.groesse)));
    for (size_t i = 0; i < s.text.size(); ++i) {
        const Hochschrift::Glyphe* gl = schrift_.glyphe(s.groesse, static_cast<unsigned char>(s.text[i]));
        if (!gl) continue;
        // Each glyph sits in its own cell, as on the canvas, so the columns hold at any scale.
        const int zelle = s.a + s.c * static_cast<int>(i);
        const int spalte1 = std::max(kx, wx(zelle)), spalte2 = std::min(kx + kb, wx(zelle + s.c));
        const int gx = wx(zelle) + gl->links, gy = grund - gl->oben;
        for (int r = 0; r < gl->h; ++r) {
            const int py = gy + r;
            if (py < zeile1 || py >= zeile2) continue;
            uint32_t* ziel = &pix_[static_cast<size_t>(py) * b_];
            const uint8_t* quelle = &gl->deckung[static_cast<size_t>(r) * gl->b];
            for (int k = 0; k < gl->b; ++k) {
                const int px = gx + k;
                if (px < spalte1 || px >= spalte2 || quelle[k] == 0) continue;
                ziel[px] = PixelMischen(ziel[px], s.farbe, quelle[k]);
            }
        }
    }
}

void Hochbild::mischen(int x, int y, uint32_t c, double deckung) {
    const unsigned a = static_cast<unsigned>(std::lround(Klemmen01(deckung) * 255.0));
    uint32_t& z = pix_[static_cast<size_t>(y) * b_ + x];
    z = PixelMischen(z, c, a);
}

void Hochbild::linieZeichnen(const Schritt& s) {
    // A smooth stroke as wide as the pen, from the middle of the first pen
    // square to the middle of the last one.
    const int a = -(s.breite - 1) / 2;
    const double mitte = a + s.breite / 2.0;
    const double px = (s.a + mitte) * s_, py = (s.b + mitte) * s_;
    const double qx = (s.c + mitte) * s_, qy = (s.d + mitte) * s_;
    const double dx = qx - px, dy = qy - py, laenge2 = dx * dx + dy * dy;
    const double rad = std::max(s.breite * s_ / 2.0, 0.6);
    int kx, ky, kb, kh;
    fensterRechteck(klipp_, kx, ky, kb, kh);
    const double band = (rad + 0.5) * std::sqrt(laenge2) / std::abs(dy);  // half the row's span
    for (int y = ky; y < ky + kh; ++y) {
        const double yc = y + 0.5;
        const double xm = px + (yc - py) * dx / dy;
        const int x1 = std::max(kx, static_cast<int>(std::floor(xm - band))),
                  x2 = std::min(kx + kb - 1, static_cast<int>(std::ceil(xm + band)));
        for (int x = x1; x <= x2; ++x) {
            const double xc = x + 0.5;
            const double t = std::clamp(((xc - px) * dx + (yc - py) * dy) / laenge2, 0.0, 1.0);
            const double ex = px + t * dx - xc, ey = py + t * dy - yc;
            const double d = std::sqrt(ex * ex + ey * ey);
            if (d < rad + 0.5) mischen(x, y, s.farbe, rad + 0.5 - d);
        }
    }
}

void Hochbild::kreisZeichnen(const Schritt& s) {
    int kx, ky, kb, kh;
    fensterRechteck(klipp_, kx, ky, kb, kh);
    if (s.c == 0) {
        fuellen(klipp_, s.farbe);
        return;
    }
    // The canvas circle covers the pixels whose middle lies within about r + 0.5
    // of the centre pixel's middle; a ring is the band between two such edges.
    const double mx = (s.a + 0.5) * s_, my = (s.b + 0.5) * s_;
    const double aussen = (s.c + 0.5) * s_;
    const double innen = s.gefuellt ? -1.0 : (s.c - (s.breite <= 1 ? 1 : s.breite) + 0.5) * s_;
    for (int y = ky; y < ky + kh; ++y) {
        const double ey = y + 0.5 - my;
        if (std::abs(ey) > aussen + 0.5) continue;
        const double halb = std::sqrt(std::max(0.0, (aussen + 0.5) * (aussen + 0.5) - ey * ey));
        const double loch = innen > 1.0 ? std::sqrt(std::max(0.0, (innen - 1.0) * (innen - 1.0) - ey * ey)) : 0.0;
        const int x1 = std::max(kx, static_cast<int>(std::floor(mx - halb))),
                  x2 = std::min(kx + kb - 1, static_cast<int>(std::ceil(mx + halb)));
        for (int x = x1; x <= x2; ++x) {
            const double ex = x + 0.5 - mx;
            if (std::abs(ex) < loch) continue;  // well inside the ring's hole
            const double d = std::sqrt(ex * ex + ey * ey);
            double deckung = Klemmen01(aussen + 0.5 - d);
            if (innen >= 0) deckung *= Klemmen01(d - innen + 0.5);
            if (deckung > 0) mischen(x, y, s.farbe, deckung);
        }
    }
}

void Hochbild::bildZeichnen(const Schritt& s) {
    // Pictures are pixel art: whole multiples, nearest neighbour, centred in
    // the place the layout gives them; the rest of that place is black.
    fuellen(klipp_, SCHWARZ);
    const Pixelbild& p = *s.bild;
    const int k = std::max(1, static_cast<int>(std::floor(s_ + 1e-9)));
    const int ox = wx(s.a) + (wx(s.a + p.b) - wx(s.a) - p.b * k) / 2;
    const int oy = wy(s.b) + (wy(s.b + p.h) - wy(s.b) - p.h * k) / 2;
    int kx, ky, kb, kh;
    fensterRechteck(klipp_, kx, ky, kb, kh);
    const int x1 = std::max(kx, ox), x2 = std::min(kx + kb, ox + p.b * k);
    const int y1 = std::max(ky, oy), y2 = std::min(ky + kh, oy + p.h * k);
    for (int y = y1; y < y2; ++y) {
        const uint32_t* quelle = &p.pix[static_cast<size_t>((y - oy) / k) * p.b];
        uint32_t* ziel = &pix_[static_cast<size_t>(y) * b_];
        for (int x = x1; x < x2; ++x) ziel[x] = quelle[(x - ox) / k];
    }
}
