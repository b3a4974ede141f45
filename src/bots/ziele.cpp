// Where a computer player sends a ship, and the keys that give the order:
// the ship picked by its number, the place in the order menu, the target
// walked to on the map; the way there goes from filling to filling.
#include <algorithm>
#include <cstdio>
#include <string>

#include "bots/computerspieler.h"
#include "bots/strategie_intern.h"
#include "orders/anweisen.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "views/sternkarte.h"

using namespace bots;

namespace {

constexpr long UNERREICHBAR = 1L << 40;
constexpr int VERSUCHE = 6;  // the best targets tried for a way there

// The best targets first; `wert` 0 or less is no target.
template <class Wert>
std::vector<int> Bestenliste(const Spiel& s, const std::vector<long>& kosten, Wert wert) {
    std::vector<std::pair<double, int>> liste;
    for (int t = 11; t <= s.AnzahlPlaneten + 10; ++t) {
        if (kosten[static_cast<size_t>(t)] >= UNERREICHBAR) continue;
        const double w = wert(t, kosten[static_cast<size_t>(t)]);
        if (w > 0) liste.emplace_back(-w, t);
    }
    const size_t n = std::min<size_t>(liste.size(), VERSUCHE);
    std::partial_sort(liste.begin(), liste.begin() + static_cast<long>(n), liste.end());
    std::vector<int> beste;
    for (size_t i = 0; i < n; ++i) beste.push_back(liste[i].second);
    return beste;
}

}  // namespace

bool Computerspieler::schiffAnweisen() {
    const int p = s_.AktSpieler;
    // Stations first: they take the freighter that tows them before it leaves.
    for (int runde = 0; runde < 2; ++runde)
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& sch = s_.Schiffe(i);
            if (IstFrei(sch) || sch.Besitzer != p || sch.Zustand < 0 || IstStation(sch) != (runde == 0)) continue;
            if (!angewiesen_.insert(i).second) continue;
            if (anweisen(i)) return true;
        }
    return false;
}

bool Computerspieler::anweisen(int nr) {
    const std::vector<std::string> l = ANWEISUNGEN(s_, nr);
    bool eine = false;
    for (int i = 1; i <= 18; ++i) eine = eine || Da(l, i);
    if (!eine) return false;
    const Schiff& sch = s_.Schiffe(nr);
    if (IstHandelsschiff(sch)) return handelsschiff(nr, l);
    if (IstKreuzer(sch)) return kreuzer(nr, l);
    if (IstScout(sch)) return scout(nr, l);
    if (IstTanker(sch)) return tanker(nr, l);
    if (IstStation(sch)) return station(nr, l);
    return false;
}

void Computerspieler::befehl(int nr, const std::vector<std::string>& l, int platz) {
    static const char* const NAMEN[] = {"", "Start", "Teleportieren", "Beladen (Station)", "Beladen", "Ausrüstung",
                                        "Tankeinheiten", "Betanken", "Betanken (Station)", "Entladen", "Ankoppeln",
                                        "Trennen", "Angriff", "Angriff beenden", "Notruf", "Handeln", "Reparatur",
                                        "Gerät ausliefern", "Portal installieren"};
    ++aktionenGezaehlt_[NAMEN[platz]];
    menue("R");
    schiffWaehlen(nr);
    int von = 1;
    while (von < 18 && !Da(l, von)) ++von;
    auswahlGehen(l, von, platz);
    taste("ENTER");
}

// A filling before the ship leaves a filling station; the ship gets its next order in the same turn.
bool Computerspieler::tanken(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    if (sch.Treibstoff >= sch.Tankgroesse || getankt_.count(nr)) return false;
    if (Da(l, P_TANKEN_SOL) && s_.Bargeld(s_.AktSpieler) >= 30) {
        befehl(nr, l, P_TANKEN_SOL);
        taste("ENTER");
        taste("ENTER");
    } else if (Da(l, P_TANKEN_STATION)) {
        befehl(nr, l, P_TANKEN_STATION);
        taste("ENTER");
    } else {
        return false;
    }
    getankt_.insert(nr);
    angewiesen_.erase(nr);
    return true;
}

// On the way to `ziel`: filled up where there is fuel, then off to the next filling or the target.
bool Computerspieler::fliegen(int nr, const std::vector<std::string>& l, int ziel, long rueck) {
    if (ziel <= 0) return false;
    if (tanken(nr, l)) return true;
    if (!Da(l, P_START)) return false;
    const int h = halt(nr, ziel, rueck);
    if (h == 0) return false;
    ziele_.insert(ziel);
    if (spur_)
        std::fprintf(stderr, "  > %d: %d -> %d (Ziel %d, rueck %ld) d=%d T=%.1f\n", nr, s_.Schiffe(nr).Planet, h, ziel, rueck,
                     static_cast<int>(ENTFERNUNG(s_, s_.Schiffe(nr).Planet, h)), static_cast<double>(s_.Schiffe(nr).Treibstoff));
    befehl(nr, l, P_START);
    zielTasten(nr, h);
    return true;
}

bool Computerspieler::heimwaerts(int nr, const std::vector<std::string>& l) {
    if (fliegen(nr, l, SOL_III, 0)) return true;
    // No way home from here: to the nearest filling, to wait for the next one.
    const int hier = s_.Schiffe(nr).Planet;
    if (tankstelle(hier)) return false;
    int best = 0;
    long weg = 1L << 30;
    for (int k : knoten_) {
        const long d = ENTFERNUNG(s_, hier, k);
        if (d < weg) {
            weg = d;
            best = k;
        }
    }
    return best && direkt(nr, best) && fliegen(nr, l, best, 0);
}

// The keys that walk the map's cursor from the ship's planet to the target.
void Computerspieler::zielTasten(int schiff, int ziel) {
    if (ziel == SOL_III) {
        taste("PERIOD");
        taste("ENTER");
        return;
    }
    const int start = s_.Schiffe(schiff).Planet;
    bool richtung = false;
    std::vector<std::string> tasten;
    int z = start;
    const std::string& name = s_.Dokument(System(ziel) * 10 + 1).Name;
    const int buchstabe = name.empty() ? 0 : static_cast<unsigned char>(name[0]);
    if (System(z) != System(ziel) && buchstabe >= 'A' && buchstabe <= 'Z') {
        for (int i = 0; i < 100 && System(z) != System(ziel); ++i) {
            z = KARTEN_TASTE(s_, z, buchstabe, richtung);
            tasten.push_back(std::string(1, static_cast<char>(buchstabe)));
        }
    }
    if (System(z) != System(ziel)) {  // no letter leads there: star by star
        tasten.clear();
        z = start;
        for (int i = 0; i < 500 && System(z) != System(ziel); ++i) {
            z = KARTEN_TASTE(s_, z, Taste::Tab, richtung);
            tasten.push_back("TAB");
        }
    }
    for (int i = 0; i < 12 && z != ziel; ++i) {
        const bool hoch = z < ziel;
        z = KARTEN_TASTE(s_, z, hoch ? Taste::Hoch : Taste::Runter, richtung);
        tasten.push_back(hoch ? "UP" : "DOWN");
    }
    for (const auto& t : tasten) taste(t);
    taste(z == ziel ? "ENTER" : "ESC");
}

// Whether the ship flies there on what is in its tank and still reaches a filling.
bool Computerspieler::direkt(int nr, int ziel) const {
    const Schiff& sch = s_.Schiffe(nr);
    return ENTFERNUNG(s_, sch.Planet, ziel) + rueckweg(ziel) <= weite(sch, sch.Treibstoff);
}

int Computerspieler::erkundungsziel(int nr) {
    // Every first landing pays twice the way from Sol III, and the ten planets of a
    // system lie 2 to 4 units apart: a ship out there tours the system and its
    // neighbours on what is in its tank before it turns to the far ones. The good of a
    // system is known before anybody lands, and a freighter looks at it too.
    const Schiff& sch = s_.Schiffe(nr);
    const int hier = sch.Planet;
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    const bool traeger = IstHandelsschiff(sch);
    const long schnell = IstScout(sch) ? 2 : 1;
    const long heim = hier == SOL_III ? 0 : vonSol_[static_cast<size_t>(hier)];
    const auto& netz = karte(weite(sch, sch.Tankgroesse));
    std::vector<long> kosten(netz.size(), UNERREICHBAR);
    const long tank = weite(sch, sch.Treibstoff);
    for (int t = 11; t <= s_.AnzahlPlaneten + 10; ++t) {
        if (s_.Dokument(t).Produktion != 0) continue;  // discovered: no target
        const long n = netz[static_cast<size_t>(t)];
        const long d = ENTFERNUNG(s_, hier, t);
        kosten[static_cast<size_t>(t)] = d <= tank && d + rueckweg(t) <= tank ? d : n < UNERREICHBAR ? n + heim : UNERREICHBAR;
    }
    std::vector<int> unentdeckt(static_cast<size_t>(s_.AnzahlPlaneten / 10) + 2, 0);
    for (int t = 11; t <= s_.AnzahlPlaneten + 10; ++t) unentdeckt[static_cast<size_t>(System(t))] += s_.Dokument(t).Produktion == 0;
    const auto beste = Bestenliste(s_, kosten, [&](int t, long weg) {
        const Planet& pl = s_.Dokument(t);
        if (pl.Produktion != 0 || t == hq || ziele_.count(t) || pl.Ware < 1 || pl.Ware > ANZAHL_WAREN) return 0.0;
        const double marge = std::max(0.0, s_.Preis(pl.Ware) - 3.0 * pl.Ware - 0.5);
        const double wert = 2.0 * vonSol_[static_cast<size_t>(t)] + (traeger ? 6.5 * marge : 0.0) + 1.0;
        // The tour through the system must pay the fillings of the way there and back.
        const int neue = unentdeckt[static_cast<size_t>(System(t))];
        if (wert * neue < 30.0 * (1.0 + 2.0 * static_cast<double>(weg) / (28.0 * schnell))) return 0.0;
        return wert / (static_cast<double>(weg) / schnell + 2.0);
    });
    for (int t : beste)
        if (halt(nr, t, rueckweg(t))) return t;
    return 0;
}

int Computerspieler::handelsziel(int nr) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    const long frei = sch.Laderaum - sch.Ladung;
    if (frei <= 2) return 0;
    const auto beste = Bestenliste(s_, karte(weite(sch, sch.Tankgroesse)), [&](int t, long kosten) {
        const Planet& pl = s_.Dokument(t);
        if (pl.Produktion == 0 || t == hq || t == sch.Planet || ziele_.count(t) || pl.Ware < 1 || pl.Ware > ANZAHL_WAREN) return 0.0;
        const long menge = std::min<long>(pl.Bestand / 100, frei);
        if (menge < 3 || !Lohnend(s_, pl.Ware, pl.Preis)) return 0.0;
        // The load must pay the fuel of the way, a filling for every tank's way there and back.
        const double gewinn = static_cast<double>((s_.Preis(pl.Ware) - pl.Preis) * menge);
        if (gewinn < 45.0 * (1.0 + 2.0 * static_cast<double>(kosten) / 28.0)) return 0.0;
        return gewinn / (2.0 * kosten + 1.0);
    });
    for (int t : beste)
        if (halt(nr, t, rueckweg(t))) return t;
    return 0;
}

// A merchant in reach who gives more for the cargo than the market: he offers
// first what the market does not know yet, else mostly the dearest good.
int Computerspieler::haendlerziel(int nr) {
    const Schiff& sch = s_.Schiffe(nr);
    long tonnen = 0, wert = 0;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        tonnen += sch.Fracht(g);
        wert += static_cast<long>(sch.Fracht(g)) * s_.Preis(g);
    }
    if (tonnen < 5) return 0;
    int angebot = 0;
    for (int g = 1; g <= ANZAHL_WAREN && !angebot; ++g)
        if (s_.AltPreis(g) == -1) angebot = g;
    if (!angebot)
        for (int g = 1; g <= ANZAHL_WAREN; ++g)
            if (!angebot || s_.Preis(g) >= s_.Preis(angebot)) angebot = g;
    if (s_.Preis(angebot) * tonnen < wert + 20 * tonnen) return 0;
    // The nearest merchant at rest the network leads to; he may sail before the ship is there.
    int best = 0;
    long weg = 1L << 30;
    for (int h = HAENDLER_ERSTES; h < HAENDLER_ERSTES + 6; ++h) {
        const Schiff& hsz = s_.Schiffe(h);
        if (hsz.Zustand != ZUSTAND_RUHT || hsz.Planet <= SOL_III || hsz.Planet > s_.AnzahlPlaneten + 10) continue;
        const long d = ENTFERNUNG(s_, sch.Planet, hsz.Planet);
        if (d < weg && (hsz.Planet == sch.Planet || halt(nr, hsz.Planet, rueckweg(hsz.Planet)))) {
            weg = d;
            best = hsz.Planet;
        }
    }
    return best;
}

int Computerspieler::piratenziel(int nr) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    if (hq > 0 && sch.Bewaffnung >= 6 && sch.Schaden < 20 && halt(nr, hq, rueckweg(hq))) return hq;
    int best = 0;
    long weg = 1000000;
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
        const Schiff& pirat = s_.Schiffe(i);
        if (IstFrei(pirat) || !IstPirat(pirat) || pirat.Zustand != ZUSTAND_RUHT) continue;
        const int t = pirat.Planet;
        if (t <= SOL_III || t > s_.AnzahlPlaneten + 10 || t == sch.Planet) continue;
        // Only a weaker pirate: against an equal one the fight lasts decades, a stronger one wins.
        if (pirat.Bewaffnung >= sch.Bewaffnung) continue;
        const long d = ENTFERNUNG(s_, sch.Planet, t);
        if (d < weg && halt(nr, t, rueckweg(t))) {
            weg = d;
            best = t;
        }
    }
    return best;
}
