#include "views/schiff_anzeigen.h"

#include <cmath>
#include <string>

#include "screen/ausgabe.h"
#include "state/sterne.h"
#include "state/text.h"
#include "state/codes.h"

namespace {

constexpr int X = 30;

int Gerundet(double v) { return static_cast<int>(std::nearbyint(v)); }

// One bar of the tank gauge: colour up to `bis`, white behind it.
void Balken(Spiel& s, int y1, int y2, double bis, Farbe c, bool weissDahinter) {
    const int x = Gerundet(bis);
    BOX(s, 200, y1, x, y2, c);
    if (weissDahinter && x + 1 <= 400) BOX(s, x + 1, y1, 400, y2, WEISS);
}

void Tankanzeige(Spiel& s, const Schiff& sch) {
    const double t = sch.Treibstoff, g = sch.Tankgroesse > 0 ? sch.Tankgroesse : 30;
    const Farbe c = sch.Supersprit != 0 ? GRUEN : MAGENTA;
    if (sch.Typ != TYP_GROSSFRACHTER) {
        Balken(s, 235, 245, 200 + 200 * t / g, c, t < g);
        return;
    }
    // The Großfrachter carries two tanks: the upper fills first.
    if (t == g) {
        BOX(s, 200, 228, 400, 238, c);
        BOX(s, 200, 242, 400, 252, c);
    } else if (2 * t > g) {
        BOX(s, 200, 228, 400, 238, c);
        Balken(s, 242, 252, 400 * t / g, c, true);
    } else if (2 * t == g || 2 * t + 1 == g) {
        BOX(s, 200, 228, 400, 238, c);
        BOX(s, 200, 242, 400, 252, WEISS);
    } else {
        Balken(s, 228, 238, 200 + 400 * t / g, c, true);
        BOX(s, 200, 242, 400, 252, WEISS);
    }
}

struct Frachtzeile {
    Spiel& s;
    int x = 40, y = 350;
    void weiter(int schritt) {
        x += schritt;
        if (x == 450) {
            x = 50;
            y += 20;
        }
    }
    void bild(const std::string& schluessel, int schritt) {
        weiter(schritt);
        BILD(s, schluessel, x, y);
    }
};

void Frachtsymbole(Spiel& s, const Schiff& sch) {
    Frachtzeile z{s};
    if (sch.Typ == TYP_FRACHTER || sch.Typ == TYP_STATION || sch.Typ == TYP_GROSSFRACHTER) {
        if (sch.Fracht(FRACHT_GERAETE) > 0) {
            z.x = 30;
            for (int i = 0; i < sch.Fracht(FRACHT_GERAETE); ++i) z.bild(T("Geräte"), 20);
            z.weiter(10);
        }
        for (int g = 1; g <= 20; ++g)
            for (int i = 0; i < sch.Fracht(g); ++i) z.bild(s.WarenName(g), 10);
        for (int i = 0; i < sch.Laderaum - sch.Ladung; ++i) z.bild("Leer", 10);
    } else if (sch.Typ == TYP_TANKER) {
        for (int i = 0; i < sch.Fracht(FRACHT_SPRIT); ++i) z.bild("Tank", 10);
        for (int i = 0; i < sch.Fracht(FRACHT_SUPERSPRIT); ++i) z.bild("Supersprit", 10);
        for (int i = 0; i < sch.Laderaum - sch.Ladung; ++i) z.bild("Leer", 10);
    }
}

}  // namespace

int RESTJAHRE(const Spiel& s, const Schiff& sch) {
    const int d = sch.Dauer;
    if (sch.Supersprit == 0) return sch.Typ == TYP_SCOUT ? (d + 1) / 2 : d;
    if (sch.Typ == TYP_SCOUT) return (d + 2) / 3;
    int jahre = 2 * (d / 3) + d % 3;
    if (s.Jahr % 2 == 0 && d == 2) --jahre;
    return jahre;
}

void SCHIFF_ANZEIGEN(Spiel& s, int nr) {
    const Schiff& sch = s.Schiffe(nr);
    BOX(s, 22, 92, 488, 548, SCHWARZ);
    DoEvents(s);
    TEXT_AUSGEBEN(s, sch.Name + "   " + sch.Typ + " " + std::to_string(nr), 15, X, 110, MAGENTA);

    const bool gekoppelt = sch.Partner != 0 && sch.Zustand != ZUSTAND_ANGRIFF;
    if (gekoppelt) {
        BILD(s, "Frachter", 400, 120);
        BILD(s, "Raumstation", 330, 120);
    } else {
        std::string bild = T("Großfrachter");
        if (sch.Typ == TYP_FRACHTER || sch.Typ == TYP_TANKER) bild = "Frachter";
        else if (sch.Typ == TYP_KREUZER) bild = "Kreuzer";
        else if (sch.Typ == TYP_SCOUT) bild = "Scout";
        else if (sch.Typ == TYP_STATION) bild = "Raumstation";
        BILD(s, bild, 400, 120);
    }

    if (sch.Planet >= 1 && sch.Planet <= MAX_PLANETEN)
        TEXT_AUSGEBEN(s, "Ziel: " + PlanetenName(s, sch.Planet), 15, X, 140, MAGENTA);

    if (sch.Zustand == ZUSTAND_RUHT) {
        TEXT_AUSGEBEN(s, sch.Typ == TYP_STATION ? "- im Orbit -" : "- gelandet -", 15, X, 170, MAGENTA);
    } else if (sch.Zustand == ZUSTAND_FLIEGT) {
        TEXT_AUSGEBEN(s, "Entfernung: " + std::to_string(ENTFERNUNG(s, sch.Planet, sch.StartPlanet)), 15, X, 170,
                      MAGENTA);
        TEXT_AUSGEBEN(s, "Dauer:      " + std::to_string(RESTJAHRE(s, sch)), 15, X, 200, MAGENTA);
    } else if (sch.Zustand == ZUSTAND_ANGRIFF) {
        if (sch.Partner == PIRATEN_HQ) {
            TEXT_AUSGEBEN(s, "- im Angriff auf Hauptquartier -", 15, X, 170, MAGENTA);
        } else if (sch.Partner >= 1 && sch.Partner <= MAX_SCHIFFE) {
            TEXT_AUSGEBEN(s, "- im Angriff auf " + s.Schiffe(sch.Partner).Typ + std::to_string(sch.Partner) + " -", 15,
                          X, 170, MAGENTA);
        }
    } else if (InWerft(sch)) {
        TEXT_AUSGEBEN(s, "- in der Werft -", 15, X, 170, MAGENTA);
        TEXT_AUSGEBEN(s, "Dauer:      " + std::to_string(sch.Dauer), 15, X, 200, MAGENTA);
    }

    TEXT_AUSGEBEN(s, "Treibstoff: ", 15, X, 230, MAGENTA);
    Tankanzeige(s, sch);
    if (sch.Schaden > 0) TEXT_AUSGEBEN(s, "Schaden:  " + std::to_string(sch.Schaden) + "%", 15, X, 260, MAGENTA);
    TEXT_AUSGEBEN(s, "Bewaffnung:  " + std::to_string(sch.Bewaffnung), 15, X, 290, MAGENTA);

    if (gekoppelt) {
        const int partner = sch.Partner >= 1 && sch.Partner <= MAX_SCHIFFE ? sch.Partner : 0;
        TEXT_AUSGEBEN(s, "Gekoppelt mit " + (partner ? s.Schiffe(partner).Typ : std::string()) + std::to_string(sch.Partner),
                      15, X, 320, MAGENTA);
    } else {
        TEXT_AUSGEBEN(s, "Laderaum:  " + std::to_string(sch.Laderaum) + "t", 15, X, 320, MAGENTA);
        if (sch.Laderaum != 0) Frachtsymbole(s, sch);
    }

    if (sch.Tankgroesse == 40) BILD(s, "DTW-Filter", 400, 300);
    if (sch.Fracht(FRACHT_REPARATURSET) == 1) BILD(s, "Reparaturset", 370, 300);

    if (sch.Typ == TYP_STATION && sch.Partner == 0) {
        if (Erfunden(s, ERF_SUPERSPRIT, s.AktSpieler)) {
            if (sch.Fracht(FRACHT_SPRIT) > 0) TEXT_AUSGEBEN(s, "Tankeinheiten: Normal: " + Str(sch.Fracht(FRACHT_SPRIT)), 15, X, 470, MAGENTA);
            if (sch.Fracht(FRACHT_SUPERSPRIT) > 0) {
                TEXT_AUSGEBEN(s, "               Super:  " + Str(sch.Fracht(FRACHT_SUPERSPRIT)), 15, X, 500, MAGENTA);
                if (sch.Fracht(FRACHT_SPRIT) == 0) TEXT_AUSGEBEN(s, "Tankeinheiten:", 15, X, 500, MAGENTA);
            }
        } else if (sch.Fracht(FRACHT_SPRIT) > 0) {
            TEXT_AUSGEBEN(s, "Tankeinheiten: " + Str(sch.Fracht(FRACHT_SPRIT)), 15, X, 470, MAGENTA);
        }
    }
    if (sch.Fracht(FRACHT_PORTAL) == 1) BILD(s, "Portal", 140, 360);
    DoEvents(s);
}
