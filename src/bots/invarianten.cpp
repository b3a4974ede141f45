// What must hold in the tables after every year, whatever was played: the
// loader's range check, and the links and counts that the rules keep.
#include <string>

#include "bots/computerspieler.h"
#include "flow/spielstand.h"
#include "state/codes.h"

namespace {

struct Befund {
    std::string wo;
    void pruefen(bool ok, const std::string& tabelle, int satz, const char* feld, long wert) {
        if (ok || !wo.empty()) return;
        wo = tabelle + "(" + std::to_string(satz) + ")" + (*feld ? "." : "") + feld + " = " + std::to_string(wert);
    }
    void pruefen(bool ok, const std::string& name, long wert) {
        if (!ok && wo.empty()) wo = name + " = " + std::to_string(wert);
    }
};

bool Lebt(const Spiel& s, int n) { return n >= 1 && n < SCHIFF_GRENZE && !IstFrei(s.Schiffe(n)); }

// The tonnes the hold counts: goods, devices, and a tanker's fuel.
long Gezaehlt(const Schiff& sch) {
    long t = 0;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) t += sch.Fracht(g);
    t += 2L * sch.Fracht(FRACHT_GERAETE);
    if (IstTanker(sch)) t += sch.Fracht(FRACHT_SPRIT) + sch.Fracht(FRACHT_SUPERSPRIT);
    return t;
}

void Schiffe(const Spiel& s, Befund& b) {
    for (int i = 1; i < SCHIFF_GRENZE; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch)) continue;
        const int p = sch.Partner;
        b.pruefen(p == 0 || p == PIRATEN_HQ || Lebt(s, p), "Schiffe", i, "Partner", p);
        b.pruefen(p != PIRATEN_HQ || sch.Zustand == ZUSTAND_ANGRIFF, "Schiffe", i, "Partner", p);
        b.pruefen(sch.Schaden >= 0 && sch.Schaden <= 99, "Schiffe", i, "Schaden", sch.Schaden);
        b.pruefen(sch.Bewaffnung >= 0 && sch.Bewaffnung <= 15, "Schiffe", i, "Bewaffnung", sch.Bewaffnung);
        const bool zustand = (sch.Zustand >= ZUSTAND_WERFT_DTW && sch.Zustand <= ZUSTAND_ANGRIFF) || sch.Zustand == ZUSTAND_GEKOPPELT;
        b.pruefen(zustand, "Schiffe", i, "Zustand", sch.Zustand);
        // A pirate's hop within its planet leaves Dauer below 0 when it lands: a rule.
        if (IstPirat(sch)) continue;
        b.pruefen(sch.Dauer >= 0, "Schiffe", i, "Dauer", sch.Dauer);
        b.pruefen(sch.Treibstoff >= 0 && sch.Treibstoff <= sch.Tankgroesse, "Schiffe", i, "Treibstoff",
                  static_cast<long>(sch.Treibstoff));
        b.pruefen(sch.Tankgroesse == 30 || sch.Tankgroesse == 40, "Schiffe", i, "Tankgroesse", sch.Tankgroesse);
        b.pruefen(sch.Laderaum >= 0, "Schiffe", i, "Laderaum", sch.Laderaum);
        for (int f = 1; f <= 25; ++f) b.pruefen(sch.Fracht(f) >= 0, "Schiffe", i, "Fracht", sch.Fracht(f));
        if (sch.Fracht(FRACHT_PORTAL) == 1) {
            b.pruefen(sch.Ladung == sch.Laderaum, "Schiffe", i, "Ladung", sch.Ladung);
        } else {
            // Not held to Laderaum: a hold lost in a fight leaves the cargo aboard.
            b.pruefen(sch.Ladung == Gezaehlt(sch), "Schiffe", i, "Ladung", sch.Ladung);
        }
        if (sch.Zustand == ZUSTAND_GEKOPPELT) {
            b.pruefen(IstStation(sch) && Lebt(s, p) && s.Schiffe(p).Partner == i, "Schiffe", i, "Partner", p);
        } else if (p > 0 && p != PIRATEN_HQ && sch.Zustand != ZUSTAND_ANGRIFF) {
            // A freighter's partner is the station it tows, and the station knows it.
            b.pruefen(IstFrachter(sch) && s.Schiffe(p).Partner == i, "Schiffe", i, "Partner", p);
        }
    }
    // Slots from 1000 up hold no pirate.
    for (int i = SCHIFF_GRENZE; i <= MAX_SCHIFFE; ++i)
        b.pruefen(IstFrei(s.Schiffe(i)) || !IstPirat(s.Schiffe(i)), "Schiffe", i, "Besitzer", s.Schiffe(i).Besitzer);
}

void Spieler(const Spiel& s, Befund& b) {
    for (int p = 1; p <= SPIELER_MAX; ++p) {
        bool luecke = false;
        int vorher = 0;
        for (int k = 1; k <= DOCK_PLAETZE_ERWEITERT; ++k) {
            const int d = s.DockSchiffe(k, p);
            const std::string t = "DockSchiffe(" + std::to_string(k) + ", " + std::to_string(p) + ")";
            if (d == 0) {
                luecke = true;
                continue;
            }
            // Ascending, the empty places behind, within the player's docks.
            b.pruefen(!luecke && d > vorher && k <= DockPlaetze(s, p), t, d);
            // A ship of the player in the yard.
            b.pruefen(Lebt(s, d) && s.Schiffe(d).Besitzer == p, t, d);
            b.pruefen(s.Schiffe(d).Zustand < 0, "Schiffe", d, "Zustand", s.Schiffe(d).Zustand);
            vorher = d;
        }
        if (p > s.AnzahlSpieler) continue;
        b.pruefen(s.Kredit(p) >= 0 && s.Kredit(p) <= 10000, "Kredit", p, "", s.Kredit(p));
        b.pruefen(s.Rang(p) >= 1 && s.Rang(p) <= 9, "Rang", p, "", s.Rang(p));
        for (int g = 1; g <= ANZAHL_WAREN; ++g) b.pruefen(s.Lager(g, p) >= 0, "Lager", g, "", s.Lager(g, p));
        for (int c = 1; c <= 21; ++c) b.pruefen(s.Statistik(c, p) >= 0, "Statistik", c, "", s.Statistik(c, p));
    }
    // Each ship in a yard stands in its owner's row.
    for (int i = 1; i < SCHIFF_GRENZE; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch) || sch.Zustand >= 0 || IstPirat(sch)) continue;
        bool drin = false;
        for (int k = 1; k <= DOCK_PLAETZE_ERWEITERT; ++k) drin = drin || s.DockSchiffe(k, sch.Besitzer) == i;
        b.pruefen(drin, "Schiffe", i, "Zustand", sch.Zustand);
    }
}

void Welt(const Spiel& s, Befund& b) {
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        b.pruefen(s.Preis(g) >= 0, "Preis", g, "", s.Preis(g));
        b.pruefen(s.AltPreis(g) >= -1, "AltPreis", g, "", s.AltPreis(g));
        b.pruefen(s.Bedarf(g) >= -200, "Bedarf", g, "", s.Bedarf(g));
    }
    for (int n = 11; n <= s.AnzahlPlaneten + 10; ++n) {
        const Planet& pl = s.Dokument(n);
        b.pruefen(pl.Bestand >= 0 && pl.Bestand <= 9500, "Dokument", n, "Bestand", pl.Bestand);
        b.pruefen(pl.Produktion >= 0, "Dokument", n, "Produktion", pl.Produktion);
        b.pruefen(pl.Preis >= 0, "Dokument", n, "Preis", pl.Preis);
        b.pruefen(pl.Ware >= 1 && pl.Ware <= ANZAHL_WAREN, "Dokument", n, "Ware", pl.Ware);
    }
    for (int k = 1; k <= 5; ++k) b.pruefen(s.EreignisJahre(k) >= 0, "EreignisJahre", k, "", s.EreignisJahre(k));
    b.pruefen(s.MeldungAnzahl >= 0 && s.MeldungAnzahl <= MELDUNGEN_MAX, "MeldungAnzahl", 1, "", s.MeldungAnzahl);
    const Schiff& hq = s.Schiffe(PIRATEN_HQ);
    b.pruefen(hq.Schaden >= 0, "Schiffe", PIRATEN_HQ, "Schaden", hq.Schaden);
}

}  // namespace

std::string INVARIANTEN_PRUEFEN(const Spiel& s) {
    std::string wo;
    if (!SPIELSTAND_PRUEFEN(s, wo)) return wo;
    Befund b;
    Schiffe(s, b);
    Spieler(s, b);
    Welt(s, b);
    return b.wo;
}
