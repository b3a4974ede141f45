// Where a computer player sends a ship, and the keys that give the order:
// the ship picked by its number, the place in the order menu, the target
// walked to on the map.
#include <algorithm>
#include <string>

#include "bots/computerspieler.h"
#include "bots/strategie_intern.h"
#include "orders/anweisen.h"
#include "orders/reisen.h"
#include "state/codes.h"
#include "state/sterne.h"

using namespace bots;

bool Computerspieler::schiffAnweisen() {
    const int p = s_.AktSpieler;
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
        const Schiff& sch = s_.Schiffe(i);
        if (IstFrei(sch) || sch.Besitzer != p || sch.Zustand < 0 || !angewiesen_.insert(i).second) continue;
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

bool Computerspieler::erreichbar(int nr, int von, int ziel, bool zurueck) const {
    const Schiff& sch = s_.Schiffe(nr);
    long weg = ENTFERNUNG(s_, von, ziel);
    if (zurueck) weg += ziel == SOL_III ? 0 : (von == SOL_III ? weg : ENTFERNUNG(s_, ziel, SOL_III));
    double sprit = sch.Treibstoff;
    if (IstGrossfrachter(sch)) sprit *= 2;
    if (IstScout(sch)) sprit *= 2;
    return weg + 1 <= sprit;
}

int Computerspieler::erkundungsziel(int nr, int von) {
    // The good of a system is known before anybody lands: dear goods, near home, first.
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    const Schiff& sch = s_.Schiffe(nr);
    const double reichweite = sch.Treibstoff * (IstGrossfrachter(sch) || IstScout(sch) ? 2.0 : 1.0);
    int best = 0;
    double wert = 0;
    for (int t : nah_) {
        const long d = abstand_[static_cast<size_t>(t)];
        if (2.0 * d + 1 > reichweite) break;
        const Planet& pl = s_.Dokument(t);
        if (pl.Produktion != 0 || t == hq || ziele_.count(t) || pl.Ware < 1 || pl.Ware > ANZAHL_WAREN) continue;
        const double w = (s_.Preis(pl.Ware) - 3.0 * pl.Ware + 1.0) / (d + 3.0);
        if (w > wert) {
            wert = w;
            best = t;
        }
    }
    return best && erreichbar(nr, von, best, true) ? best : 0;
}

int Computerspieler::handelsziel(int nr, int von) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    const long frei = sch.Laderaum - sch.Ladung;
    if (frei <= 0) return 0;
    int best = 0;
    double wert = 0;
    for (int t : nah_) {
        const Planet& pl = s_.Dokument(t);
        if (pl.Produktion == 0 || t == hq || t == von || ziele_.count(t) || pl.Ware < 1 || pl.Ware > ANZAHL_WAREN) continue;
        const long menge = std::min<long>(pl.Bestand / 100, frei);
        const long marge = s_.Preis(pl.Ware) - pl.Preis;
        if (menge < 3 || !Lohnend(s_, pl.Ware, pl.Preis)) continue;
        const double w = static_cast<double>(marge * menge) / (2.0 * abstand_[static_cast<size_t>(t)] + 1.0);
        if (w > wert && erreichbar(nr, von, t, true)) {
            wert = w;
            best = t;
        }
    }
    return best;
}

int Computerspieler::piratenziel(int nr, int von) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    // Now and then a cruiser goes out on a one-way hunt: it fights where it is stranded.
    const bool jagd = wuerfel(12) == 0;
    if (hq > 0 && sch.Bewaffnung >= 8 && sch.Schaden < 30 && erreichbar(nr, von, hq, !jagd)) return hq;
    int best = 0;
    long weg = 1000000;
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
        const Schiff& pirat = s_.Schiffe(i);
        if (IstFrei(pirat) || !IstPirat(pirat) || pirat.Zustand != ZUSTAND_RUHT) continue;
        const int t = pirat.Planet;
        if (t <= SOL_III || t > s_.AnzahlPlaneten + 10 || t == von) continue;
        const long d = abstand_[static_cast<size_t>(t)];
        if (d < weg && erreichbar(nr, von, t, !jagd)) {
            weg = d;
            best = t;
        }
    }
    return best;
}
