// What a saved game must hold before the game may run on it: every number
// that picks a record of a table, and every count that bounds a loop, lies
// where the game can use it. A damaged or doctored file is refused whole.
#include <cmath>
#include <string>

#include "flow/spielstand.h"
#include "state/codes.h"

namespace {

struct Pruefung {
    const Spiel& s;
    std::string wo;  // the first value out of range
    bool gut() const { return wo.empty(); }
    void pruefen(bool ok, const std::string& feld, long wert) {
        if (!ok && wo.empty()) wo = feld + " = " + std::to_string(wert);
    }
    std::string schiff(int i, const char* feld) const { return "Schiffe(" + std::to_string(i) + ")." + feld; }
    // A planet a ship may stand on or fly to: Sol III or one in play.
    bool imSpiel(long p) const { return p == SOL_III || (p >= 11 && p <= s.AnzahlPlaneten + 10); }
};

// Money, counters and stock far beyond any game, but with room left below
// the width of a Long for the sums of a year.
constexpr long GELD_GRENZE = 1000000000L;
// Star positions and offsets far beyond any map, but so that no distance
// outgrows an Integer.
constexpr int KARTEN_GRENZE = 10000;
constexpr int ABSTAND_GRENZE = 2000;
// Holds, planet prices and stock far beyond any game, so that a year of
// loading by every slot cannot outgrow the money.
constexpr int LADERAUM_GRENZE = 1000;
constexpr int PREIS_GRENZE = 1000;
constexpr long BESTAND_GRENZE = 1000000L;

bool TypBekannt(const std::string& typ) {
    if (typ.empty()) return true;
    for (int nr = 1; nr <= ANZAHL_SCHIFFSTYPEN; ++nr)
        if (typ == TypCode(nr)) return true;
    return false;
}

}  // namespace

bool SPIELSTAND_PRUEFEN(const Spiel& s, std::string& wo) {
    Pruefung p{s, {}};
    p.pruefen(s.AnzahlSpieler >= 1 && s.AnzahlSpieler <= SPIELER_MAX, "AnzahlSpieler", s.AnzahlSpieler);
    p.pruefen(s.AnzahlPlaneten >= 500 && s.AnzahlPlaneten <= 4000 && s.AnzahlPlaneten % 10 == 0, "AnzahlPlaneten",
              s.AnzahlPlaneten);
    p.pruefen(s.HoechstesSchiff >= s.AnzahlSpieler && s.HoechstesSchiff < SCHIFF_GRENZE, "HoechstesSchiff",
              s.HoechstesSchiff);
    if (!p.gut()) return wo = p.wo, false;
    p.pruefen(s.Jahr >= 2000 && s.Jahr <= 1000000, "Jahr", s.Jahr);
    p.pruefen(s.Zeitlimit == 0 || s.Zeitlimit == -1, "Zeitlimit", s.Zeitlimit);

    for (int i = 1; i <= SPIELER_MAX + 1; ++i)
        p.pruefen(s.SpielerName(i).size() <= 40, "SpielerName(" + std::to_string(i) + ")", static_cast<long>(s.SpielerName(i).size()));
    for (int i = 1; i <= SPIELER_MAX; ++i) {
        const std::string n = "(" + std::to_string(i) + ")";
        p.pruefen(s.Rang(i) >= 0 && s.Rang(i) <= 9 && (i > s.AnzahlSpieler || s.Rang(i) >= 1), "Rang" + n, s.Rang(i));
        p.pruefen(s.Medaille(i) >= 0 && s.Medaille(i) <= 4, "Medaille" + n, s.Medaille(i));
        p.pruefen(s.Kredit(i) >= 0 && s.Kredit(i) <= 10000, "Kredit" + n, s.Kredit(i));
        p.pruefen(s.Bargeld(i) >= -GELD_GRENZE && s.Bargeld(i) <= GELD_GRENZE, "Bargeld" + n, s.Bargeld(i));
        p.pruefen(s.ForschungsRest(i) >= -GELD_GRENZE && s.ForschungsRest(i) <= GELD_GRENZE, "ForschungsRest" + n,
                  s.ForschungsRest(i));
        for (int c = 1; c <= 21; ++c)
            p.pruefen(s.Statistik(c, i) >= -GELD_GRENZE && s.Statistik(c, i) <= GELD_GRENZE,
                      "Statistik(" + std::to_string(c) + ", " + std::to_string(i) + ")", s.Statistik(c, i));
        for (int k = 1; k <= DOCK_PLAETZE_ERWEITERT; ++k) {
            const int d = s.DockSchiffe(k, i);
            p.pruefen(d >= 0 && d <= s.HoechstesSchiff, "DockSchiffe(" + std::to_string(k) + ", " + std::to_string(i) + ")", d);
        }
    }
    for (int i = 1; i <= SCHIFF_GRENZE - 1; ++i) {
        const Schiff& sch = s.Schiffe(i);
        p.pruefen(TypBekannt(sch.Typ), p.schiff(i, "Typ"), static_cast<long>(sch.Typ.size()));
        p.pruefen(sch.Name.size() <= 40, p.schiff(i, "Name"), static_cast<long>(sch.Name.size()));
        p.pruefen(sch.Besitzer >= NIEMAND && sch.Besitzer <= BESITZER_PIRATEN, p.schiff(i, "Besitzer"), sch.Besitzer);
        p.pruefen(sch.Partner >= 0 && sch.Partner <= MAX_SCHIFFE, p.schiff(i, "Partner"), sch.Partner);
        p.pruefen(sch.Planet >= 0 && sch.Planet <= MAX_PLANETEN, p.schiff(i, "Planet"), sch.Planet);
        p.pruefen(sch.StartPlanet >= -MAX_PLANETEN && sch.StartPlanet <= MAX_PLANETEN, p.schiff(i, "StartPlanet"),
                  sch.StartPlanet);
        const bool tankGut = std::isfinite(sch.Treibstoff) && std::fabs(sch.Treibstoff) <= 1000.0f;
        p.pruefen(tankGut, p.schiff(i, "Treibstoff"), tankGut ? static_cast<long>(sch.Treibstoff) : 0);
        if (IstFrei(sch)) continue;
        p.pruefen(sch.Laderaum >= 0 && sch.Laderaum <= LADERAUM_GRENZE, p.schiff(i, "Laderaum"), sch.Laderaum);
        p.pruefen(sch.Ladung >= -LADERAUM_GRENZE && sch.Ladung <= LADERAUM_GRENZE, p.schiff(i, "Ladung"), sch.Ladung);
        // A ship in use stands on, or flies between, planets in play.
        // Only a new pirate may wait above HoechstesSchiff, until a player's
        // new ship raises the bound past it.
        p.pruefen(i <= s.HoechstesSchiff || IstPirat(sch), p.schiff(i, "Typ") + " (above HoechstesSchiff)", i);
        p.pruefen(p.imSpiel(sch.Planet), p.schiff(i, "Planet"), sch.Planet);
        p.pruefen(sch.StartPlanet == 0 || p.imSpiel(sch.StartPlanet < 0 ? -sch.StartPlanet : sch.StartPlanet),
                  p.schiff(i, "StartPlanet"), sch.StartPlanet);
        p.pruefen(sch.Besitzer == BESITZER_PIRATEN || (sch.Besitzer >= 1 && sch.Besitzer <= s.AnzahlSpieler),
                  p.schiff(i, "Besitzer"), sch.Besitzer);
        p.pruefen((sch.Zustand >= ZUSTAND_WERFT_DTW && sch.Zustand <= ZUSTAND_ANGRIFF) || sch.Zustand == ZUSTAND_GEKOPPELT,
                  p.schiff(i, "Zustand"), sch.Zustand);
    }
    for (int i = HAENDLER_ERSTES; i <= HAENDLER_LETZTES; ++i)
        p.pruefen(p.imSpiel(s.Schiffe(i).Planet), p.schiff(i, "Planet"), s.Schiffe(i).Planet);  // they sail every year
    const Schiff& hq = s.Schiffe(PIRATEN_HQ);
    p.pruefen(hq.Planet == 0 || p.imSpiel(hq.Planet), p.schiff(PIRATEN_HQ, "Planet"), hq.Planet);

    for (int n = 1; n <= MAX_PLANETEN; ++n) {
        const Planet& pl = s.Dokument(n);
        const std::string d = "Dokument(" + std::to_string(n) + ").";
        // Every planet in play produces a good; the goods index the market.
        const bool imSpiel = n >= 11 && n <= s.AnzahlPlaneten + 10;
        p.pruefen(pl.Ware >= (imSpiel ? 1 : 0) && pl.Ware <= ANZAHL_WAREN, d + "Ware", pl.Ware);
        p.pruefen(pl.Bestand >= -BESTAND_GRENZE && pl.Bestand <= BESTAND_GRENZE, d + "Bestand", pl.Bestand);
        p.pruefen(pl.Preis >= 0 && pl.Preis <= PREIS_GRENZE, d + "Preis", pl.Preis);
        p.pruefen(pl.X >= -KARTEN_GRENZE && pl.X <= KARTEN_GRENZE, d + "X", pl.X);
        p.pruefen(pl.Y >= -KARTEN_GRENZE && pl.Y <= KARTEN_GRENZE, d + "Y", pl.Y);
        p.pruefen(pl.Abstand >= -ABSTAND_GRENZE && pl.Abstand <= ABSTAND_GRENZE, d + "Abstand", pl.Abstand);
        p.pruefen(pl.Name.size() <= 40, d + "Name", static_cast<long>(pl.Name.size()));
    }
    for (int k = 1; k <= 5; ++k)
        p.pruefen(s.KomponentenPlanet(k) == 0 || p.imSpiel(s.KomponentenPlanet(k)),
                  "KomponentenPlanet(" + std::to_string(k) + ")", s.KomponentenPlanet(k));
    for (int k = 1; k <= 15; ++k)
        p.pruefen(s.ForschungsKosten(k) >= -GELD_GRENZE && s.ForschungsKosten(k) <= GELD_GRENZE,
                  "ForschungsKosten(" + std::to_string(k) + ")", s.ForschungsKosten(k));
    p.pruefen(s.Komponenten >= 0 && s.Komponenten <= 5, "Komponenten", s.Komponenten);
    wo = p.wo;
    return p.gut();
}
