// The graphs of a game's history, in the manner of the company graphs of
// the great business games: years to the right, the measure upward, a line
// for each house and a legend of their names.
#include "views/verlaufsgrafik.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "state/text.h"

namespace {

constexpr int X1 = 30, Y1 = 20, X2 = 994, Y2 = 738;
constexpr int GX1 = 150, GX2 = 960, GY1 = 80, GY2 = 600;  // the plot
constexpr Farbe HAUSFARBE[6] = {CYAN, GELB, MAGENTA, GRUEN, 36095 /* orange */, 16752720 /* light blue */};
constexpr Farbe GITTER = 0x404040;

struct Seite {
    const char* titel;
    long long (*wert)(const HausJahr&);
};
const Seite SEITEN[VERLAUF_SEITEN] = {
    {"Verlauf: Bewertung in SD", [](const HausJahr& h) -> long long { return h.bewertung; }},
    {"Verlauf: Bargeld in SD", [](const HausJahr& h) -> long long { return h.bargeld; }},
    {"Verlauf: Flotte, Schiffe je Haus",
     [](const HausJahr& h) -> long long {
         long long n = 0;
         for (Integer k : h.schiffe) n += k;
         return n;
     }},
    {"Verlauf: Verkaufte Waren in Tonnen", [](const HausJahr& h) -> long long { return h.tonnen; }},
};

// 1234567 as "1.234.567"; from ten millions on "12 Mio".
std::string Zahl(long long v) {
    const bool minus = v < 0;
    unsigned long long a = minus ? 0ULL - static_cast<unsigned long long>(v) : static_cast<unsigned long long>(v);
    std::string einheit;
    if (a >= 10000000ULL) {
        a /= 1000000ULL;
        einheit = " Mio";
    }
    std::string t = std::to_string(a);
    for (int i = static_cast<int>(t.size()) - 3; i > 0; i -= 3) t.insert(static_cast<size_t>(i), ".");
    return (minus ? "-" : "") + t + einheit;
}

// A step of 1, 2 or 5 times a power of ten that cuts the range into about five parts.
long long Schritt(long long spanne) {
    long long s = 1;
    while (s * 10 <= spanne / 5) s *= 10;
    for (long long f : {1, 2, 5, 10})
        if (s * f * 6 >= spanne) return s * f;
    return s * 10;
}

int Y(long long v, long long lo, long long hi) {
    const double anteil = hi == lo ? 0.0 : static_cast<double>(v - lo) / static_cast<double>(hi - lo);
    return GY2 - static_cast<int>(std::lround(anteil * (GY2 - GY1)));
}

void Legende(Spiel& s) {
    for (int p = 1; p <= s.AnzahlSpieler && p <= 6; ++p) {
        const int x = GX1 + ((p - 1) % 3) * 270, y = 660 + ((p - 1) / 3) * 26;
        BOX(s, x, y + 8, x + 24, y + 12, HAUSFARBE[p - 1]);
        TEXT_AUSGEBEN(s, Trim(s.SpielerName(p)).substr(0, 16), 15, x + 34, y, HAUSFARBE[p - 1]);
    }
}

}  // namespace

void VERLAUF_SEITE_ZEICHNEN(Spiel& s, int seite) {
    const Seite& was = SEITEN[seite];
    UEBERLAGERUNG_RAHMEN(s, X1, Y1, X2, Y2, T(was.titel), CYAN);
    TEXT_AUSGEBEN(s,
                  "Seite " + std::to_string(seite + 1) + "/" + std::to_string(VERLAUF_SEITEN) +
                      T("  ·  Bild ab: weiter  ·  Bild auf: zurück  ·  Esc: schließen"),
                  15, X1 + 20, Y2 - 32, GELB);
    const Verlauf& v = s.VerlaufJahre;
    const int haeuser = std::clamp<int>(s.AnzahlSpieler, 0, 6);
    if (v.size() < 2 || haeuser == 0) {
        TEXT_AUSGEBEN(s, T("Noch kein Verlauf: die Grafiken wachsen mit jedem gespielten Jahr."), 15, GX1, 300, WEISS);
        Legende(s);
        return;
    }
    long long lo = 0, hi = 0;
    for (const VerlaufJahr& j : v)
        for (int h = 0; h < haeuser; ++h) {
            const long long w = was.wert(j.haus[static_cast<size_t>(h)]);
            lo = std::min(lo, w);
            hi = std::max(hi, w);
        }
    // Ticks at round values; the range is widened to whole steps.
    const long long schritt = Schritt(std::max(1LL, hi - lo));
    lo = static_cast<long long>(std::floor(static_cast<double>(lo) / static_cast<double>(schritt))) * schritt;
    hi = static_cast<long long>(std::ceil(static_cast<double>(hi) / static_cast<double>(schritt))) * schritt;
    if (hi == lo) hi = lo + schritt;
    s.Linienbreite = 1;
    for (long long t = lo; t <= hi; t += schritt) {
        const int y = Y(t, lo, hi);
        LINIE(s, GX1, y, GX2, y, t == 0 ? 0x808080 : GITTER);
        const std::string z = Zahl(t);
        TEXT_AUSGEBEN(s, z, 12, GX1 - 8 - 10 * static_cast<int>(z.size()), y - 9, WEISS);
    }

    // Years: as many columns as the plot is wide; a long game is pressed together,
    // each column showing the lowest and highest value of its years.
    const long long erstes = v.front().jahr, letztes = v.back().jahr;
    const long long jahre = std::max(1LL, letztes - erstes);
    const long long jSchritt = Schritt(jahre);
    for (long long j = (erstes + jSchritt - 1) / jSchritt * jSchritt; j <= letztes; j += jSchritt) {
        const int x = GX1 + static_cast<int>((j - erstes) * (GX2 - GX1) / jahre);
        LINIE(s, x, GY1, x, GY2, GITTER);
        const std::string z = std::to_string(j);
        TEXT_AUSGEBEN(s, z, 12, x - 5 * static_cast<int>(z.size()), GY2 + 8, WEISS);
    }
    RAHMEN(s, GX1, GY1, GX2, GY2, 0x808080);

    const int breite = GX2 - GX1;
    for (int h = 0; h < haeuser; ++h) {
        int altX = -1, altY = 0;
        size_t i = 0;
        for (int spalte = 0; spalte <= breite && i < v.size(); ++spalte) {
            // The years whose place falls into this column.
            long long min = 0, max = 0, erster = 0, zuletzt = 0;
            bool da = false;
            while (i < v.size() && (v[i].jahr - erstes) * breite / jahre <= spalte) {
                const long long w = was.wert(v[i].haus[static_cast<size_t>(h)]);
                if (!da) erster = w;
                min = da ? std::min(min, w) : w;
                max = da ? std::max(max, w) : w;
                zuletzt = w;
                da = true;
                ++i;
            }
            if (!da) continue;
            const int x = GX1 + spalte;
            if (altX >= 0) LINIE(s, altX, altY, x, Y(erster, lo, hi), HAUSFARBE[h]);
            if (min != max) LINIE(s, x, Y(min, lo, hi), x, Y(max, lo, hi), HAUSFARBE[h]);
            altX = x;
            altY = Y(zuletzt, lo, hi);
        }
    }
    Legende(s);
}

void VERLAUF_ZEIGEN(Spiel& s) {
    Ueberlagerung ueber(s);
    int seite = 0;
    for (;;) {
        VERLAUF_SEITE_ZEICHNEN(s, seite);
        const int t = ueber.taste();
        if (t == Taste::BildAb || t == Taste::Runter || t == Taste::Rechts) seite = (seite + 1) % VERLAUF_SEITEN;
        else if (t == Taste::BildAuf || t == Taste::Hoch || t == Taste::Links) seite = (seite + VERLAUF_SEITEN - 1) % VERLAUF_SEITEN;
        else break;
    }
}
