// What a computer player does in his turn: one action at a time, chosen
// from the tables and planned as the keys a person would press.
#include <algorithm>
#include <string>

#include "bots/computerspieler.h"
#include "bots/strategie_intern.h"
#include "economy/schiffe.h"
#include "state/codes.h"
#include "economy/spacedocks.h"
#include "state/sterne.h"

using namespace bots;

namespace {

constexpr int AKTIONEN_JE_ZUG = 40;

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
        getankt_.clear();
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& sch = s_.Schiffe(i);
            if (!IstFrei(sch) && sch.Zustand == ZUSTAND_FLIEGT) ziele_.insert(sch.Planet);
        }
        if (vonSol_.empty()) {
            vonSol_.assign(static_cast<size_t>(s_.AnzahlPlaneten) + 11, 0);
            for (int t = 11; t <= s_.AnzahlPlaneten + 10; ++t) vonSol_[static_cast<size_t>(t)] = ENTFERNUNG(s_, SOL_III, t);
        }
        netzAufbauen();
    }
    if (++aktionen_ <= AKTIONEN_JE_ZUG) {
        const long jahr = s_.Jahr - 2000;
        if (!a_.nebenMenschen && p == 1 && jahr % 50 == 49 && !sichernBestellt_ && gesichert_.empty() && erledigt_.insert("sichern").second) {
            sichernBestellt_ = true;
            menue("I");
            return;
        }
        if (verkaufen() || schiffVerkaufen() || kreditRegeln() || docks() || schiffAnweisen() || forschen() || ansehen()) return;
        if (!a_.nebenMenschen && p == 1 && jahr % 100 == 61 && erledigt_.insert("aussetzen").second) {
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
        // One sale sinks the demand for years: a good waits for its starting price to come back,
        // unless the store is full or the house needs the cash.
        const bool warten = 4 * s_.Preis(g) < 3 * s_.GrundPreis(g) && s_.Lager(g, p) < 300 && s_.Bargeld(p) > 300;
        if (liste[static_cast<size_t>(g)].empty() || warten) continue;
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
    // Trade earns little and interest is paid every year, debt or not: the bank bridges
    // a short purse with a few tanks of fuel, once, and is paid back first.
    if (s_.Bargeld(p) < 60 && s_.Bargeld(p) >= 0 && s_.Kredit(p) == 0 && erledigt_.insert("kredit").second) {
        menue("K");
        taste("ENTER");
        tippen(std::to_string(300 - s_.Bargeld(p)));
        taste("ENTER");
        return true;
    }
    // Interest eats 1.5 % a year: what is beyond a working reserve pays the debt back.
    if (s_.Kredit(p) > 0 && s_.Bargeld(p) > 400 && erledigt_.insert("kredit").second) {
        menue("K");
        taste("DOWN");
        taste("ENTER");
        tippen(std::to_string(std::min<Long>(s_.Kredit(p), s_.Bargeld(p) - 100)));
        taste("ENTER");
        return true;
    }
    return false;
}

bool Computerspieler::forschen() {
    const int p = s_.AktSpieler;
    bool offen = false;
    for (int k = 1; k <= ANZAHL_ERFINDUNGEN; ++k) offen = offen || s_.Forschung(k, p) == 0;
    // Cash loses a tenth to the tax every twenty years; what the house does not need goes to research.
    const Long vorrat = 5000 + 1500L * s_.Rang(p);
    if (!offen || s_.Bargeld(p) < vorrat + 1000 || s_.Kredit(p) > 0 || !erledigt_.insert("forschung").second) return false;
    menue("F");
    tippen(std::to_string((s_.Bargeld(p) - vorrat) / 2));
    taste("ENTER");
    return true;
}

// A job of the docks for this ship: the job from the list; the docks offer the
// ships the job fits, lowest first, and Up goes to the next.
void Computerspieler::dockAuftrag(int auftrag, int schiff) {
    menue("D");
    for (int i = 1; i < auftrag; ++i) taste("UP");
    taste("ENTER");
    for (int i = 1; i < schiff; ++i)
        if (DOCK_AUFTRAG_PASST(s_, auftrag, i)) taste("UP");
    taste("ENTER");
}

bool Computerspieler::docks() {
    const int p = s_.AktSpieler;
    const int plaetze = DockPlaetze(s_, p);
    if (s_.DockSchiffe(plaetze, p) != 0 || erledigt_.count("docks2")) return false;
    erledigt_.insert(erledigt_.count("docks") ? "docks2" : "docks");
    const Long geld = s_.Bargeld(p);
    // Jobs on ships at home first, then a new ship.
    const int kaputt = ErstesAufSol(s_, p, [](const Schiff& sch) { return sch.Schaden > 0; });
    if (kaputt && s_.Schiffe(kaputt).Schaden >= 25 && geld > REPARATUR_PREIS(s_.Schiffe(kaputt)) + RESERVE / 2) {
        dockAuftrag(AUFTRAG_REPARATUR, kaputt);
        taste("ENTER");  // ja
        return true;
    }
    // The fleet a house of this rank wants.
    int piraten = 0;
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) piraten += IstPirat(s_.Schiffe(i)) && !IstFrei(s_.Schiffe(i)) ? 1 : 0;
    const int rang = s_.Rang(p);
    const int frachter = anzahl(p, TYP_FRACHTER), kreuzer = anzahl(p, TYP_KREUZER), scouts = anzahl(p, TYP_SCOUT);
    const int stationen = anzahl(p, TYP_STATION), tanker = anzahl(p, TYP_TANKER);
    // A station waiting at home for its freighter, or one still in the yard, is enough on the way.
    bool stationWartet = ErstesAufSol(s_, p, [](const Schiff& sch) { return IstStation(sch) && sch.Partner == 0; }) != 0;
    for (int k = 1; k <= plaetze; ++k) stationWartet = stationWartet || (s_.DockSchiffe(k, p) > 0 && IstStation(s_.Schiffe(s_.DockSchiffe(k, p))));
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    const bool hqNah = hq > 0 && rueckweg(hq) <= 14;
    // The next station opens new ground, and new ground pays with first landings: the
    // house saves for it before anything else grows.
    const bool sparen = frachter >= 1 && scouts >= 1 && !stationWartet && stationen < 1 + rang + s_.Komponenten && geld <= 4000 &&
                        standort() != 0;
    const int raum = ErstesAufSol(s_, p, [&](const Schiff& sch) { return sch.Laderaum < LADERAUM_GRENZE(s_, sch, p); });
    // Holds grow once the house has cash to spare: a tanker's to a full load for a station.
    if (raum && !sparen && geld > 2000 + 10L * s_.Schiffe(raum).Laderaum + RESERVE) {
        const Schiff& sch = s_.Schiffe(raum);
        const long n = std::min<long>({LADERAUM_GRENZE(s_, sch, p) - sch.Laderaum, 30, (geld - RESERVE) / 10});
        dockAuftrag(AUFTRAG_LADERAUM, raum);
        tippen(std::to_string(n));
        taste("ENTER");
        return true;
    }
    // Cruisers are armed first, even while the house saves: they only take on weaker pirates.
    int waffen = ErstesAufSol(s_, p, [&](const Schiff& sch) { return IstKreuzer(sch) && sch.Bewaffnung < WAFFEN_GRENZE(s_, sch, p); });
    if (!waffen && !sparen && wuerfel(40) == 0)
        waffen = ErstesAufSol(s_, p, [&](const Schiff& sch) { return sch.Bewaffnung < WAFFEN_GRENZE(s_, sch, p); });
    if (waffen && geld > 85 + 2 * RESERVE) {
        const Schiff& sch = s_.Schiffe(waffen);
        const long n = std::min<long>(WAFFEN_GRENZE(s_, sch, p) - sch.Bewaffnung, (geld - 2 * RESERVE) / 85);
        dockAuftrag(AUFTRAG_BEWAFFNUNG, waffen);
        tippen(std::to_string(n));
        taste("ENTER");
        return true;
    }
    const int filter = ErstesAufSol(s_, p, [](const Schiff& sch) { return !IstStation(sch) && sch.Tankgroesse == 30; });
    if (s_.Komponenten >= 5 && !sparen && geld > 200 + RESERVE && filter) {
        dockAuftrag(AUFTRAG_DTW_FILTER, filter);
        taste("ENTER");
        return true;
    }
    int typ = 0;
    // The first station opens the way out, a tanker keeps it filled, a cruiser earns
    // the pirates' prizes; a second freighter and a scout follow.
    if (frachter < 1) typ = NR_FRACHTER;
    else if (scouts < 1 && geld > 1000) typ = NR_SCOUT;  // first landings pay from the first years on
    else if (!stationWartet && standort() && stationen < 1 + rang + s_.Komponenten && geld > 4000) typ = NR_STATION;
    else if (stationen > 0 && tanker < std::min(1 + stationen / 3, 4) && geld > 1500) typ = NR_TANKER;
    else if (kreuzer < 1 && geld > 2500) typ = NR_KREUZER;  // one cruiser for the pirates, saving or not
    else if (sparen) typ = 0;
    else if (kreuzer < std::min(1 + (hqNah ? 3 : 0) + piraten / 20, 6) && geld > 2500) typ = NR_KREUZER;
    else if (frachter < 2) typ = NR_FRACHTER;
    else if (frachter < std::min(2 + 2 * rang, 14) && geld > 2500) typ = NR_FRACHTER;
    else if (scouts < 2 && stationen > 1 && geld > 3000) typ = NR_SCOUT;
    else if (Erfunden(s_, ERF_GROSSFRACHTER, p) && anzahl(p, TYP_GROSSFRACHTER) < 1 + rang / 3 && geld > 15000) typ = NR_GROSSFRACHTER;
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
    int wahl = 0;
    // A house that can't pay a filling sells the dearest ship it can spare at home, and keeps a
    // freighter to earn its way back with.
    const int frachter = anzahl(p, TYP_FRACHTER);
    if (s_.Bargeld(p) < 30)
        for (int i = 1; i <= s_.HoechstesSchiff; ++i)
            if (SCHIFF_VERKAEUFLICH(s_, i) && (!IstFrachter(s_.Schiffe(i)) || frachter > 1) && (!wahl || SCHIFF_WERT(s_, i) > SCHIFF_WERT(s_, wahl)))
                wahl = i;
    // Else a wreck at home that the house can't afford to mend, or a third scout. Debts alone
    // sell nothing: the house earns its way out with its ships.
    for (int i = 1; i <= s_.HoechstesSchiff && !wahl; ++i) {
        const Schiff& sch = s_.Schiffe(i);
        if (sch.Besitzer != p || !SCHIFF_VERKAEUFLICH(s_, i)) continue;
        const bool wrack = sch.Schaden >= 60 && s_.Bargeld(p) < REPARATUR_PREIS(sch);
        if (wrack || (IstScout(sch) && anzahl(p, TYP_SCOUT) > 2)) wahl = i;
    }
    if (!wahl) return false;
    erledigt_.insert("verkauf");
    menue("U");
    taste("SPACE");
    tippen(std::to_string(wahl));
    taste("ENTER");
    taste("ENTER");
    return true;
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
