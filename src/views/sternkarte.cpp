// The star map in the news frame, its cursor and keys, and the choice of a
// target on it.
#include "views/sternkarte.h"

#include <cmath>
#include <cstdlib>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "state/text.h"

namespace {

constexpr Farbe GRAU = 120 + 120 * 256 + 120 * 65536;
const std::string KARTEN_HINWEIS = "Pfeile Leer Tab . A-Z Enter Esc F1 Klick";

int System(int planet) { return (planet - 1) / 10; }

void Beschriftung(Spiel& s, int schiff, int z) {
    const Planet& pl = s.Dokument(z);
    std::string l = PlanetenName(s, z);
    if (z == SOL_III) {
    } else if (pl.Produktion == 0) {
        l += " (Prod. unbek.)";
    } else if (z == s.Schiffe(PIRATEN_HQ).Planet) {
        l += " (Hauptquartier)";
    } else {
        l += " (" + std::to_string(pl.Bestand / 100) + "t " +
             (pl.Ware >= 1 && pl.Ware <= 20 ? s.WarenName(pl.Ware) : std::string()) + ")";
    }
    TEXT_AUSGEBEN(s, l + Space(35 - static_cast<int>(l.size())), 15, 50, 660, WEISS);
    const int von = s.Schiffe(schiff).Planet;
    const long d = z == von ? 0 : ENTFERNUNG(s, von, z);
    TEXT_AUSGEBEN(s, "Entfernung: " + Space(4 - static_cast<int>(Str(d).size())) + std::to_string(d), 15, 50, 690, WEISS);
}

}  // namespace

int KarteX(const Spiel& s, int planet) { return static_cast<int>(std::nearbyint(750 + 1.25 * s.Dokument(planet).X)); }
int KarteY(const Spiel& s, int planet) { return static_cast<int>(std::nearbyint(490 + 1.25 * s.Dokument(planet).Y)); }

void KARTEN_CURSOR(Spiel& s, int z, Farbe f) {
    if (z == SOL_III) s.plattform->kreis(750, 490, 3, f, false, s.Linienbreite);
    else s.plattform->kreis(KarteX(s, z), KarteY(s, z), 2, f, false, s.Linienbreite);
}

int RICHTUNGSSUCHE(const Spiel& s, int z, int taste) {
    const int zx = s.Dokument(z).X, zy = s.Dokument(z).Y;
    auto gut = [&](int cx, int cy) {
        const int dx = cx - zx, dy = cy - zy;
        switch (taste) {
            case Taste::Hoch: return zy > cy && std::abs(dx) < std::abs(dy);
            case Taste::Runter: return zy < cy && std::abs(dx) < std::abs(dy);
            case Taste::Rechts: return zx < cx && std::abs(dx) > std::abs(dy);
            default: return zx > cx && std::abs(dx) > std::abs(dy);
        }
    };
    long best = 50000;
    int kandidat = 0;
    if (gut(0, 0)) {
        kandidat = SOL_III;
        best = static_cast<long>(zx) * zx + static_cast<long>(zy) * zy;
    }
    for (int i = 1; i <= s.AnzahlPlaneten / 10; ++i) {
        const int c = 10 * i + 1;
        const int cx = s.Dokument(c).X, cy = s.Dokument(c).Y;
        const long d2 = static_cast<long>(cx - zx) * (cx - zx) + static_cast<long>(cy - zy) * (cy - zy);
        if (gut(cx, cy) && d2 < best && i != System(z)) {
            kandidat = c;
            best = d2;
        }
    }
    return kandidat ? kandidat : z;
}

int BUCHSTABENSUCHE(const Spiel& s, int z0, int taste) {
    int z = z0;
    for (int runde = 0; runde <= s.AnzahlPlaneten / 10; ++runde) {
        z = System(z) * 10 + 11;
        if (z > s.AnzahlPlaneten) z = 11;
        if (z / 10 == System(z0)) return z0;
        const std::string& name = s.Dokument(z).Name;
        if (!name.empty() && static_cast<unsigned char>(name[0]) == taste) return z;
    }
    return z0;
}

int KARTEN_TASTE(const Spiel& s, int z, int taste, bool& richtung) {
    const bool pfeil = taste == Taste::Hoch || taste == Taste::Runter || taste == Taste::Links || taste == Taste::Rechts;
    if (taste == Taste::Leer) {
        richtung = !richtung;
    } else if (pfeil && richtung) {
        return RICHTUNGSSUCHE(s, z, taste);
    } else if (taste == Taste::Hoch) {
        int neu = z + 1;
        if (neu == 4) neu = 11;
        if (neu > s.AnzahlPlaneten + 10) neu = SOL_III;
        return neu;
    } else if (taste == Taste::Runter) {
        int neu = z - 1;
        if (neu == 2) neu = s.AnzahlPlaneten + 10;
        if (neu == 10) neu = SOL_III;
        return neu;
    } else if (taste >= 'A' && taste <= 'Z') {
        return BUCHSTABENSUCHE(s, z, taste);
    } else if (taste == Taste::Tab) {
        const int neu = System(z) * 10 + 11;
        return neu > s.AnzahlPlaneten ? 11 : neu;
    } else if (taste == Taste::Punkt) {
        return SOL_III;
    }
    return z;
}

void STERNKARTE(Spiel& s) {
    BOX(s, 502, 245, 998, 738, SCHWARZ);
    s.Linienbreite = 1;
    s.plattform->kreis(750, 490, 2, WEISS, true, 1);
    const int sterne = static_cast<int>(std::nearbyint(s.AnzahlPlaneten / 10.0));
    for (int i = 1; i <= sterne; ++i) s.plattform->kreis(KarteX(s, 10 * i + 1), KarteY(s, 10 * i + 1), 1, GELB, true, 1);
    for (int n = 1; n <= s.HoechstesSchiff; ++n) {
        const Schiff& sch = s.Schiffe(n);
        if (sch.Typ.empty()) continue;
        Farbe f;
        bool linie;
        if (sch.Besitzer == s.AktSpieler) {
            f = CYAN;
            linie = sch.Zustand == ZUSTAND_FLIEGT && sch.StartPlanet > 0;
        } else if (sch.Besitzer == BESITZER_PIRATEN) {
            f = GRAU;
            linie = sch.Zustand == ZUSTAND_FLIEGT;
        } else {
            f = BLAU;
            linie = sch.Zustand == ZUSTAND_FLIEGT && sch.StartPlanet >= 0;
        }
        const int start = std::abs(sch.StartPlanet);
        if (linie && sch.Planet >= 1 && start >= 1 && start <= MAX_PLANETEN)
            LINIE(s, KarteX(s, sch.Planet), KarteY(s, sch.Planet), KarteX(s, start), KarteY(s, start), f);
        if (sch.Planet > SOL_III && sch.Planet <= MAX_PLANETEN)
            s.plattform->kreis(KarteX(s, sch.Planet), KarteY(s, sch.Planet), 1, f, true, 1);
    }
}

void ZIEL_WAEHLEN(Spiel& s, int schiff) {
    int z = s.Schiffe(schiff).Planet;
    bool richtung = false;
    KARTEN_CURSOR(s, z, WEISS);
    Beschriftung(s, schiff, z);
    // The map also answers the mouse; a line below names the keys for a newcomer.
    const std::string vorher = s.Bildschirm;
    s.Bildschirm = "ZIEL";
    TEXT_AUSGEBEN(s, KARTEN_HINWEIS, 12, 50, 716, HINWEIS_GRAU);
    auto ende = [&](Long eingabe) {
        TEXT_AUSGEBEN(s, Space(static_cast<int>(KARTEN_HINWEIS.size())), 12, 50, 716, SCHWARZ);
        s.Bildschirm = vorher;
        s.MausStern = -1;
        s.Eingabe = eingabe;
    };
    s.MausStern = -1;
    for (;;) {
        s.TasteDa = 0;
        while (s.TasteDa == 0 && s.MausStern < 0) {
            s.plattform->schlafen(5);
            DoEvents(s);
        }
        int neu = z;
        if (s.MausStern >= 0) {
            // A click on a star moves the cursor there; a click on the star under it chooses it.
            neu = static_cast<int>(s.MausStern);
            s.MausStern = -1;
            if (neu == z) {
                ende(z);
                return;
            }
        } else {
            const int c = s.TastenCode;
            s.TasteDa = 0;
            if (c == Taste::Esc || c == Taste::Enter) {
                ende(c == Taste::Esc ? -1 : z);
                return;
            }
            neu = KARTEN_TASTE(s, z, c, richtung);
        }
        if (neu != z) {
            KARTEN_CURSOR(s, z, SCHWARZ);
            z = neu;
            KARTEN_CURSOR(s, z, WEISS);
        }
        Beschriftung(s, schiff, z);
    }
}
