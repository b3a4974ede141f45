// What a computer player does in his turn: one action at a time, chosen
// from the tables and planned as the keys a person would press.
#include <algorithm>
#include <string>

#include "bots/computerspieler.h"
#include "orders/anweisen.h"
#include "orders/reisen.h"
#include "orders/schiffe.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "state/text.h"

namespace {

// The places of the order menu.
enum Platz : int {
    P_START = 1, P_TELEPORT, P_VON_STATION, P_VOM_PLANETEN, P_AUSRUESTUNG, P_TANKER, P_TANKEN_SOL, P_TANKEN_STATION,
    P_ENTLADEN, P_ANKOPPELN, P_TRENNEN, P_ANGRIFF, P_ANGRIFF_ENDE, P_NOTRUF, P_HANDELN, P_REPARATUR, P_GERAET, P_PORTAL,
};

constexpr int AKTIONEN_JE_ZUG = 40;
constexpr Long RESERVE = 600;

int System(int planet) { return (planet - 1) / 10; }
bool Da(const std::vector<std::string>& l, int platz) { return !l[static_cast<size_t>(platz)].empty(); }

int WaffenGrenze(const Spiel& s, const Schiff& sch, int p) {
    if (IstFrachter(sch) || IstTanker(sch)) return 4;
    if (IstStation(sch)) return 6;
    if (IstGrossfrachter(sch)) return 9;
    if (IstKreuzer(sch)) return Erfunden(s, ERF_WAFFEN, p) ? 15 : 9;
    return 0;
}

int LaderaumGrenze(const Spiel& s, const Schiff& sch, int p) {
    if (IstFrachter(sch) || IstTanker(sch)) return Erfunden(s, ERF_LADERAUM, p) ? 120 : 90;
    if (IstStation(sch)) return Erfunden(s, ERF_STATIONEN, p) ? 150 : 90;
    if (IstGrossfrachter(sch)) return 300;
    return 0;
}

// The first ship of p resting on Sol III that passes the test, as the docks choose it; 0 none.
template <class F>
int ErstesAufSol(const Spiel& s, int p, F test) {
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (!IstFrei(sch) && sch.Besitzer == p && sch.Zustand == ZUSTAND_RUHT && sch.Planet == SOL_III && test(sch)) return i;
    }
    return 0;
}

}  // namespace

int Computerspieler::anzahl(int p, const char* typ) const {
    int n = 0;
    for (int i = 1; i <= s_.HoechstesSchiff; ++i)
        if (s_.Schiffe(i).Besitzer == p && s_.Schiffe(i).Typ == typ) ++n;
    return n;
}

// --- the turn ------------------------------------------------------------------------

void Computerspieler::zugPlanen() {
    const int p = s_.AktSpieler;
    baueZaehlen();
    if (zugJahr_ != s_.Jahr || zugSpieler_ != p) {
        zugJahr_ = s_.Jahr;
        zugSpieler_ = p;
        aktionen_ = 0;
        erledigt_.clear();
        angewiesen_.clear();
        ziele_.clear();
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& sch = s_.Schiffe(i);
            if (!IstFrei(sch) && sch.Zustand == ZUSTAND_FLIEGT) ziele_.insert(sch.Planet);
        }
        if (nah_.empty()) {
            // The planets a ship can reach from Sol III and come back, nearest first.
            abstand_.assign(static_cast<size_t>(s_.AnzahlPlaneten) + 11, 0);
            for (int t = 11; t <= s_.AnzahlPlaneten + 10; ++t) {
                abstand_[static_cast<size_t>(t)] = ENTFERNUNG(s_, SOL_III, t);
                if (abstand_[static_cast<size_t>(t)] <= 38) nah_.push_back(t);
            }
            std::stable_sort(nah_.begin(), nah_.end(),
                             [this](int a, int b) { return abstand_[static_cast<size_t>(a)] < abstand_[static_cast<size_t>(b)]; });
        }
    }
    if (++aktionen_ <= AKTIONEN_JE_ZUG) {
        const long jahr = s_.Jahr - 2000;
        if (p == 1 && jahr % 50 == 49 && !sichernBestellt_ && gesichert_.empty() && erledigt_.insert("sichern").second) {
            sichernBestellt_ = true;
            menue("I");
            return;
        }
        if (verkaufen() || schiffVerkaufen() || kreditRegeln() || docks() || schiffAnweisen() || forschen() || ansehen()) return;
        if (p == 1 && jahr % 100 == 61 && erledigt_.insert("aussetzen").second) {
            menue("A");
            tippen("2");
            taste("ENTER");
            return;
        }
    }
    menue("W");
}

bool Computerspieler::verkaufen() {
    const int p = s_.AktSpieler;
    std::vector<std::string> liste(21);
    int erste = 0;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        if (s_.Lager(g, p) <= 0) continue;
        liste[static_cast<size_t>(g)] = s_.WarenName(g);
        if (!erste) erste = g;
    }
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        // A price fallen below half waits for the demand to come back, unless the store is full.
        if (liste[static_cast<size_t>(g)].empty() || (2 * s_.Preis(g) < s_.GrundPreis(g) && s_.Lager(g, p) < 300)) continue;
        if (!erledigt_.insert(std::string("verkauf").append(std::to_string(g))).second) continue;
        menue("V");
        auswahlGehen(liste, erste, g);
        taste("ENTER");
        taste("ENTER");  // the whole stock
        return true;
    }
    return false;
}

bool Computerspieler::kreditRegeln() {
    const int p = s_.AktSpieler;
    if (s_.Bargeld(p) < 200 && s_.Kredit(p) <= 4000 && erledigt_.insert("kredit").second) {
        menue("K");
        taste("ENTER");
        tippen(std::to_string(std::min(1000, 10000 - s_.Kredit(p))));
        taste("ENTER");
        return true;
    }
    if (s_.Kredit(p) > 0 && s_.Bargeld(p) > s_.Kredit(p) + 3000 && erledigt_.insert("kredit").second) {
        menue("K");
        taste("DOWN");
        taste("ENTER");
        tippen(std::to_string(s_.Kredit(p)));
        taste("ENTER");
        return true;
    }
    return false;
}

bool Computerspieler::forschen() {
    const int p = s_.AktSpieler;
    bool offen = false;
    for (int k = 1; k <= ANZAHL_ERFINDUNGEN; ++k) offen = offen || s_.Forschung(k, p) == 0;
    if (!offen || s_.Bargeld(p) < 3000 || s_.Kredit(p) > 0 || !erledigt_.insert("forschung").second) return false;
    menue("F");
    tippen(std::to_string(s_.Bargeld(p) / 5));
    taste("ENTER");
    return true;
}

bool Computerspieler::docks() {
    const int p = s_.AktSpieler;
    const int plaetze = DockPlaetze(s_, p);
    if (s_.DockSchiffe(plaetze, p) != 0 || erledigt_.count("docks2")) return false;
    erledigt_.insert(erledigt_.count("docks") ? "docks2" : "docks");
    const Long geld = s_.Bargeld(p);
    // Jobs on ships at home first, then a new ship.
    const int kaputt = ErstesAufSol(s_, p, [](const Schiff& sch) { return sch.Schaden > 0; });
    if (kaputt && s_.Schiffe(kaputt).Schaden >= 25 && geld > 80L * s_.Schiffe(kaputt).Schaden + RESERVE) {
        menue("D");
        for (int i = 1; i < AUFTRAG_REPARATUR; ++i) taste("UP");
        taste("ENTER");
        taste("ENTER");  // the ship
        taste("ENTER");  // ja
        return true;
    }
    const int raum = ErstesAufSol(s_, p, [&](const Schiff& sch) { return sch.Laderaum < LaderaumGrenze(s_, sch, p); });
    // Holds grow with the house: a small one is filled by a tour through a system.
    if (raum && s_.Schiffe(raum).Laderaum < 30 + 30 * s_.Rang(p) && geld > 1000 + RESERVE) {
        const Schiff& sch = s_.Schiffe(raum);
        const long n = std::min<long>({LaderaumGrenze(s_, sch, p) - sch.Laderaum, 20, (geld - RESERVE) / 10});
        menue("D");
        for (int i = 1; i < AUFTRAG_LADERAUM; ++i) taste("UP");
        taste("ENTER");
        taste("ENTER");
        tippen(std::to_string(n));
        taste("ENTER");
        return true;
    }
    const int waffen = ErstesAufSol(s_, p, [&](const Schiff& sch) { return sch.Bewaffnung < WaffenGrenze(s_, sch, p); });
    if (waffen && (IstKreuzer(s_.Schiffe(waffen)) || wuerfel(40) == 0) && geld > 85 + 2 * RESERVE) {
        const Schiff& sch = s_.Schiffe(waffen);
        const long n = std::min<long>(WaffenGrenze(s_, sch, p) - sch.Bewaffnung, (geld - 2 * RESERVE) / 85);
        menue("D");
        for (int i = 1; i < AUFTRAG_BEWAFFNUNG; ++i) taste("UP");
        taste("ENTER");
        taste("ENTER");
        tippen(std::to_string(n));
        taste("ENTER");
        return true;
    }
    if (s_.Komponenten >= 5 && geld > 200 + RESERVE &&
        ErstesAufSol(s_, p, [](const Schiff& sch) { return !IstStation(sch) && sch.Tankgroesse == 30; })) {
        menue("D");
        for (int i = 1; i < AUFTRAG_DTW_FILTER; ++i) taste("UP");
        taste("ENTER");
        taste("ENTER");
        taste("ENTER");
        return true;
    }
    // The fleet a house of this rank wants.
    int piraten = 0;
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) piraten += IstPirat(s_.Schiffe(i)) && !IstFrei(s_.Schiffe(i)) ? 1 : 0;
    const int rang = s_.Rang(p);
    int typ = 0;
    const int frachter = anzahl(p, TYP_FRACHTER), kreuzer = anzahl(p, TYP_KREUZER);
    if (frachter < 2) typ = NR_FRACHTER;
    else if (kreuzer < 1) typ = NR_KREUZER;
    else if (anzahl(p, TYP_SCOUT) < 1) typ = NR_SCOUT;
    else if (frachter < std::min(1 + 2 * rang, 14) && geld > 2500) typ = NR_FRACHTER;
    else if (kreuzer < std::min(1 + rang / 2 + piraten / 15, 6) && geld > 2000) typ = NR_KREUZER;
    else if (anzahl(p, TYP_STATION) < 1 && geld > 4000) typ = NR_STATION;
    else if (anzahl(p, TYP_TANKER) < 1 && anzahl(p, TYP_STATION) > 0) typ = NR_TANKER;
    else if (Erfunden(s_, ERF_GROSSFRACHTER, p) && anzahl(p, TYP_GROSSFRACHTER) < 1 + rang / 3 && geld > 25000) typ = NR_GROSSFRACHTER;
    if (typ == 0 || geld < s_.SchiffPreis(typ) + RESERVE) return false;
    menue("D");
    taste("ENTER");  // Bauen
    for (int i = 1; i < typ; ++i) taste("UP");
    taste("ENTER");
    taste("ENTER");  // ja
    bauTyp_ = typ;
    bauVorher_ = anzahl(p, TypCode(typ));
    return true;
}

void Computerspieler::baueZaehlen() {
    if (bauTyp_ == 0) return;
    if (anzahl(s_.AktSpieler, TypCode(bauTyp_)) > bauVorher_) ++gebaut_[static_cast<size_t>(bauTyp_)];
    bauTyp_ = 0;
}

bool Computerspieler::schiffVerkaufen() {
    const int p = s_.AktSpieler;
    if (erledigt_.count("verkauf")) return false;
    // A wreck at home that the house can't afford to mend, or a second scout;
    // in debt the dearest ship at home but the last freighter, to fly again.
    const bool schulden = s_.Bargeld(p) < 0;
    int teuerstes = 0;
    if (schulden) {
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& sch = s_.Schiffe(i);
            if (sch.Besitzer != p || !SCHIFF_VERKAEUFLICH(s_, i)) continue;
            if (IstFrachter(sch) && anzahl(p, TYP_FRACHTER) < 2) continue;
            if (!teuerstes || SCHIFF_WERT(s_, i) > SCHIFF_WERT(s_, teuerstes)) teuerstes = i;
        }
    }
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
        const Schiff& sch = s_.Schiffe(i);
        if (sch.Besitzer != p || !SCHIFF_VERKAEUFLICH(s_, i)) continue;
        const bool wrack = sch.Schaden >= 60 && s_.Bargeld(p) < 80L * sch.Schaden;
        const bool zuviel = IstScout(sch) && anzahl(p, TYP_SCOUT) > 1;
        if (!wrack && !zuviel && i != teuerstes) continue;
        erledigt_.insert("verkauf");
        menue("U");
        taste("SPACE");
        tippen(std::to_string(i));
        taste("ENTER");
        taste("ENTER");
        return true;
    }
    return false;
}

bool Computerspieler::ansehen() {
    if (s_.AktSpieler != 1) return false;
    if (s_.Jahr % 40 == 7 && erledigt_.insert("status").second) {
        menue("S");
        return true;
    }
    if (s_.Jahr % 40 == 27 && erledigt_.insert("liste").second) {
        menue("L");
        return true;
    }
    return false;
}

// --- ships ------------------------------------------------------------------------------

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
        if (menge < 3 || marge <= 0) continue;
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

bool Computerspieler::handelsschiff(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int p = s_.AktSpieler;
    const int hier = sch.Planet;
    const Long geld = s_.Bargeld(p);
    if (sch.Zustand == ZUSTAND_FLIEGT) {
        // Called back when the pirates' headquarters stands at the target.
        if (Da(l, P_NOTRUF) && hier == s_.Schiffe(PIRATEN_HQ).Planet) {
            befehl(nr, l, P_NOTRUF);
            return true;
        }
        return false;
    }
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (Da(l, P_TANKEN_SOL)) {
            befehl(nr, l, P_TANKEN_SOL);
            taste("ENTER");
            taste("ENTER");
            return true;
        }
        if (Da(l, P_AUSRUESTUNG) && sch.Partner == 0) {
            // The equipment list: repair set, devices, portal.
            std::vector<std::string> a(4);
            if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s_, ERF_REPARATURSET, p)) a[1].push_back('R');
            if (sch.Ladung + 1 < sch.Laderaum && Erfunden(s_, ERF_GERAETE, p)) a[2].push_back('G');
            if (Erfunden(s_, ERF_PORTAL, p) && sch.Ladung == 0 && sch.Laderaum >= 100) a[3].push_back('P');
            int portale = 0;
            for (int i = 1; i <= s_.HoechstesSchiff; ++i) portale += s_.Schiffe(i).Besitzer == p && s_.Schiffe(i).Fracht(FRACHT_PORTAL) == 1;
            int wahl = 0;
            if (!a[3].empty() && geld > 150000 && portale == 0) wahl = 3;
            else if (!a[1].empty() && geld > 8000) wahl = 1;
            else if (!a[2].empty() && sch.Fracht(FRACHT_GERAETE) == 0 && geld > 3000) wahl = 2;
            if (wahl) {
                int von = 1;
                while (a[static_cast<size_t>(von)].empty()) ++von;
                befehl(nr, l, P_AUSRUESTUNG);
                auswahlGehen(a, von, wahl);
                taste("ENTER");
                if (wahl == 2) tippen(std::to_string(std::min<long>(5, (sch.Laderaum - sch.Ladung) / 2)));
                taste("ENTER");
                return true;
            }
        }
        if (!Da(l, P_START)) return false;
        int ziel = sch.Fracht(FRACHT_PORTAL) == 1 ? 0 : handelsziel(nr, SOL_III);
        if (ziel == 0 || wuerfel(4) == 0) {
            const int neu = erkundungsziel(nr, SOL_III);
            if (neu) ziel = neu;
        }
        if (ziel == 0 && sch.Fracht(FRACHT_PORTAL) == 1) {
            // A portal goes to the farthest planet in reach that has none.
            for (auto it = nah_.rbegin(); it != nah_.rend() && !ziel; ++it)
                if (s_.Dokument(*it).Portal == 0 && erreichbar(nr, SOL_III, *it, true)) ziel = *it;
        }
        if (ziel == 0) return false;
        ziele_.insert(ziel);
        befehl(nr, l, P_START);
        zielTasten(nr, ziel);
        return true;
    }
    // Away from home; a towed station is set down first.
    if (sch.Partner != 0) return false;
    const Planet& pl = s_.Dokument(hier);
    if (Da(l, P_PORTAL)) {
        befehl(nr, l, P_PORTAL);
        taste("ENTER");
        return true;
    }
    if (Da(l, P_GERAET) && pl.Produktion < 30) {
        befehl(nr, l, P_GERAET);
        taste("ENTER");
        return true;
    }
    if (Da(l, P_REPARATUR)) {
        befehl(nr, l, P_REPARATUR);
        taste("ENTER");
        return true;
    }
    const long waren = sch.Ladung - 2L * sch.Fracht(FRACHT_GERAETE);
    if (Da(l, P_HANDELN) && waren > 0 && wuerfel(2) == 0) {
        befehl(nr, l, P_HANDELN);
        taste("ENTER");
        return true;
    }
    const bool lohnt = pl.Ware >= 1 && pl.Ware <= ANZAHL_WAREN && s_.Preis(pl.Ware) > pl.Preis;
    const std::string geladen = std::string("lade").append(std::to_string(nr));
    if (Da(l, P_VOM_PLANETEN) && lohnt && geld >= 10L * pl.Preis + RESERVE && !erledigt_.count(geladen)) {
        erledigt_.insert(geladen);
        angewiesen_.erase(nr);  // and then on its way
        befehl(nr, l, P_VOM_PLANETEN);
        taste("M");
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START) && !Da(l, P_TELEPORT)) return false;
    if (Da(l, P_START) && sch.Ladung + 2 < sch.Laderaum && sch.Fracht(FRACHT_PORTAL) == 0) {
        // A tour through the system: the next planet to discover or with stock to buy.
        const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
        int ziel = 0;
        long weg = 1000000;
        for (int t = System(hier) * 10 + 1; t <= System(hier) * 10 + 10; ++t) {
            const Planet& z = s_.Dokument(t);
            if (t == hier || t == hq || t > s_.AnzahlPlaneten + 10 || ziele_.count(t)) continue;
            const bool neu = z.Produktion == 0;
            const bool ware = z.Bestand >= 300 && z.Ware >= 1 && z.Ware <= ANZAHL_WAREN && s_.Preis(z.Ware) > z.Preis;
            if (!neu && !ware) continue;
            const long d = ENTFERNUNG(s_, hier, t);
            if (d < weg && erreichbar(nr, hier, t, true)) {
                weg = d;
                ziel = t;
            }
        }
        if (ziel) {
            ziele_.insert(ziel);
            befehl(nr, l, P_START);
            zielTasten(nr, ziel);
            return true;
        }
    }
    if (waren <= 0 && sch.Fracht(FRACHT_PORTAL) == 0) {
        int ziel = handelsziel(nr, hier);
        if (ziel == 0) ziel = erkundungsziel(nr, hier);
        if (ziel && Da(l, P_START)) {
            ziele_.insert(ziel);
            befehl(nr, l, P_START);
            zielTasten(nr, ziel);
            return true;
        }
    }
    if (Da(l, P_TELEPORT) && waren > 0 && wuerfel(3) == 0) {
        befehl(nr, l, P_TELEPORT);
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START) || !erreichbar(nr, hier, SOL_III, false)) return false;
    befehl(nr, l, P_START);
    zielTasten(nr, SOL_III);
    return true;
}

bool Computerspieler::kreuzer(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hier = sch.Planet;
    if (sch.Zustand == ZUSTAND_ANGRIFF) {
        if (Da(l, P_ANGRIFF_ENDE) && sch.Schaden > 60) {
            befehl(nr, l, P_ANGRIFF_ENDE);
            return true;
        }
        return false;
    }
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (Da(l, P_TANKEN_SOL)) {
            befehl(nr, l, P_TANKEN_SOL);
            taste("ENTER");
            taste("ENTER");
            return true;
        }
        if (sch.Bewaffnung == 0 || sch.Schaden >= 25 || !Da(l, P_START)) return false;
        const int ziel = piratenziel(nr, SOL_III);
        if (!ziel) return false;
        befehl(nr, l, P_START);
        zielTasten(nr, ziel);
        return true;
    }
    // Only pirates and their headquarters are fought, never another house.
    bool pirat = hier == s_.Schiffe(PIRATEN_HQ).Planet;
    for (int i = 1; i <= s_.HoechstesSchiff && !pirat; ++i) {
        const Schiff& o = s_.Schiffe(i);
        pirat = !IstFrei(o) && IstPirat(o) && o.Planet == hier && (o.Zustand == ZUSTAND_RUHT || o.Zustand == ZUSTAND_ANGRIFF);
    }
    if (Da(l, P_ANGRIFF) && pirat && sch.Bewaffnung > 0 && sch.Schaden < 50) {
        befehl(nr, l, P_ANGRIFF);
        if (hier == s_.Schiffe(PIRATEN_HQ).Planet) {
            taste("ENTER");  // ja
        } else {
            tasteBis("UP", 70, 660, "Piraten", 12);  // a pirate among the ships here
            taste("ENTER");
        }
        return true;
    }
    if (Da(l, P_REPARATUR)) {
        befehl(nr, l, P_REPARATUR);
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START)) return false;
    int ziel = sch.Schaden < 40 ? piratenziel(nr, hier) : 0;
    if (ziel == hier) ziel = 0;
    if (!ziel) {
        if (!erreichbar(nr, hier, SOL_III, false)) return false;
        ziel = SOL_III;
    }
    befehl(nr, l, P_START);
    zielTasten(nr, ziel);
    return true;
}

bool Computerspieler::scout(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hier = sch.Planet;
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III && Da(l, P_TANKEN_SOL)) {
        befehl(nr, l, P_TANKEN_SOL);
        // Supersprit for the fast ship when there are Mirellen in store.
        if (Erfunden(s_, ERF_SUPERSPRIT, s_.AktSpieler) && s_.Lager(WARE_MIRELLEN, s_.AktSpieler) > 0) taste("UP");
        taste("ENTER");
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START)) return false;
    int ziel = erkundungsziel(nr, hier);
    if (!ziel && hier != SOL_III && erreichbar(nr, hier, SOL_III, false)) ziel = SOL_III;
    if (!ziel) return false;
    ziele_.insert(ziel);
    befehl(nr, l, P_START);
    zielTasten(nr, ziel);
    return true;
}

bool Computerspieler::tanker(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int p = s_.AktSpieler;
    const int hier = sch.Planet;
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (Da(l, P_TANKEN_SOL)) {
            befehl(nr, l, P_TANKEN_SOL);
            taste("ENTER");
            taste("ENTER");
            return true;
        }
        if (Da(l, P_TANKER) && sch.Ladung < sch.Laderaum && s_.Bargeld(p) > 3000) {
            befehl(nr, l, P_TANKER);
            if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s_, ERF_REPARATURSET, p)) taste("ENTER");  // Tankeinheiten
            if (Erfunden(s_, ERF_SUPERSPRIT, p)) {
                taste("DOWN");  // normal fuel
                taste("ENTER");
            }
            taste("ENTER");
            return true;
        }
        if (sch.Ladung == 0 || !Da(l, P_START)) return false;
        // To a station of the house out in space.
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& st = s_.Schiffe(i);
            if (st.Besitzer != p || !IstStation(st) || st.Zustand != ZUSTAND_RUHT || st.Planet == SOL_III) continue;
            if (st.Ladung >= st.Laderaum || !erreichbar(nr, SOL_III, st.Planet, true)) continue;
            befehl(nr, l, P_START);
            zielTasten(nr, st.Planet);
            return true;
        }
        return false;
    }
    if (Da(l, P_ENTLADEN)) {
        befehl(nr, l, P_ENTLADEN);
        taste("ENTER");  // the station
        taste("ENTER");  // all of it
        return true;
    }
    if (!Da(l, P_START) || !erreichbar(nr, hier, SOL_III, false)) return false;
    befehl(nr, l, P_START);
    zielTasten(nr, SOL_III);
    return true;
}

bool Computerspieler::station(int nr, const std::vector<std::string>& l) {
    const Schiff& st = s_.Schiffe(nr);
    if (Da(l, P_ANKOPPELN) && st.Planet == SOL_III) {
        befehl(nr, l, P_ANKOPPELN);
        taste("ENTER");  // the first empty freighter
        return true;
    }
    if (Da(l, P_TRENNEN) && st.Partner > 0 && s_.Schiffe(st.Partner).Planet != SOL_III) {
        befehl(nr, l, P_TRENNEN);
        return true;
    }
    if (Da(l, P_TANKEN_SOL) && st.Planet == SOL_III) {
        befehl(nr, l, P_TANKEN_SOL);
        taste("ENTER");
        taste("ENTER");
        return true;
    }
    return false;
}
