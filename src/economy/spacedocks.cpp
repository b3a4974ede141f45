// The spacedocks on Sol III: the list of jobs in hand, and the five jobs.
// Money and the ship's new values are booked when the job is ordered; the
// years in the yard are only waiting, counted down in the ship pass.
#include "economy/spacedocks.h"

#include <algorithm>
#include <string>
#include <vector>

#include "economy/schiffe.h"
#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "state/codes.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"

namespace {

constexpr const char* KEIN_GELD = "Nicht genug Geld vorhanden!";

template <class F>
std::vector<std::string> Liste(const F& f) {
    std::vector<std::string> l(static_cast<size_t>(F::bis) + 1);
    for (int i = F::von; i <= F::bis; ++i) l[static_cast<size_t>(i)] = f(i);
    return l;
}

// The word of a job in the dock list, by Zustand.
const char* DockWort(Integer zustand) {
    switch (zustand) {
        case ZUSTAND_WERFT_BAU: return "in Bau";
        case ZUSTAND_WERFT_LADERAUM: return "Laderaum";
        case ZUSTAND_WERFT_WAFFEN: return "Bewaffnung";
        case ZUSTAND_WERFT_REPARATUR: return "Reparatur";
        default: return "DTW-Filter";
    }
}

void DockListe(Spiel& s, int p, int m) {
    BOX(s, 502, 244, 998, 738, SCHWARZ);
    RAHMEN(s, 510, 260, 990, 280 + 30 * m, GELB);
    TEXT_AUSGEBEN(s, "Spacedocks", 15, 670, 250, GELB);
    if (s.DockSchiffe(1, p) == 0) {
        TEXT_AUSGEBEN(s, T("Spacedocks sind unbeschäftigt"), 15, 550, 275, GELB);
        return;
    }
    for (int i = 1; i <= m; ++i) {
        const int n = s.DockSchiffe(i, p);
        if (n == 0 || !SchiffNummerGueltig(n)) continue;
        const Schiff& sch = s.Schiffe(n);
        TEXT_AUSGEBEN(s, sch.Typ + std::to_string(n) + ": " + std::to_string(sch.Dauer) + " Runden,  " + DockWort(sch.Zustand),
                      15, 520, 245 + 30 * i, GELB);
    }
}

// The ship for a job, chosen with Up and Down; 0 when there is none or on Esc.
int SchiffFuerAuftrag(Spiel& s, int auftrag) {
    auto passt = [&s, auftrag](int n) { return DOCK_AUFTRAG_PASST(s, auftrag, n); };
    int n = 0;
    for (int i = 1; i <= s.HoechstesSchiff && n == 0; ++i)
        if (passt(i)) n = i;
    if (n == 0) {
        ABLEHNEN(s, "Kein Schiff auf Sol III!", 630);
        return 0;
    }
    TEXT_AUSGEBEN(s, T("Schiff wählen!"), 15, 50, 630, WEISS);
    SCHIFF_ANZEIGEN(s, n);
    SchiffWahl wahl;
    wahl.passt = passt;
    wahl.zeigen = [&s](int k) { SCHIFF_ANZEIGEN(s, k); };
    wahl.grenze = s.HoechstesSchiff;
    return SCHIFF_WAEHLEN(s, n, wahl).schiff;
}

// The ship goes into the docks for its job: the years (a fifth more once the
// player has sold Flopse, except for the filter), the place, the payment.
void Einliefern(Spiel& s, int n, Integer zustand, int dauer, long preis, int spalte, bool verlangsamt = true) {
    const int p = s.AktSpieler;
    Schiff& sch = s.Schiffe(n);
    sch.Zustand = zustand;
    if (verlangsamt && s.Statistik(WARE_FLOPSE, p) > 0) dauer += dauer / 5;
    sch.Dauer = static_cast<Integer>(dauer);
    DOCK_EINREIHEN(s, p, n);
    s.Bargeld(p) -= static_cast<Long>(preis);
    EINSTATISTIK(s, EST_DOCK_ZAHLUNGEN, preis);
    EINSTATISTIK(s, spalte, preis);
}

bool Zugesagt(Spiel& s, const std::string& frage, int x) {
    TEXT_AUSGEBEN(s, frage, 15, 50, 660, WEISS);
    Integer wert = -1;
    JA_NEIN(s, wert, x, 660, 15, WEISS);
    return s.Eingabe == 1;
}

void Bauen(Spiel& s) {
    const int p = s.AktSpieler;
    TEXT_AUSGEBEN(s, "Typ: ", 15, 50, 630, WEISS);
    const int bis = s.Forschung(ERF_GROSSFRACHTER, p) != 0 ? NR_GROSSFRACHTER : NR_STATION;
    Long vorgabe = 1;
    AUSWAHL(s, Liste(s.SchiffKlasse), 1, bis, 120, 630, 15, WEISS, vorgabe, s.AuswahlTasten);
    if (s.Eingabe < 1) return;
    const int typ = static_cast<int>(s.Eingabe);
    const long c = s.SchiffPreis(typ);
    // Asked first, the money checked after the answer.
    if (!Zugesagt(s, "Kosten: " + Space(6 - static_cast<int>(Str(c).size())) + std::to_string(c) + "    OK?", 305)) return;
    if (s.Bargeld(p) < c) {
        ABLEHNEN(s, KEIN_GELD, 690);
        return;
    }
    SCHIFF_NEU(s, typ);
}

// How much more a ship gets, asked on the rows of the docks: 0 when the player
// takes nothing or can't pay for it.
long WievielMehr(Spiel& s, const std::string& frage, const std::string& preis, int x, int breite, int max, long je) {
    TEXT_AUSGEBEN(s, frage, 15, 50, 660, WEISS);
    TEXT_AUSGEBEN(s, preis, 15, 50, 690, WEISS);
    ZAHL_EINGEBEN(s, 0, max, x, 660, 15, WEISS, breite, max, 0);
    const long e = s.Eingabe;
    if (e < 1) return 0;
    if (je * e > s.Bargeld(s.AktSpieler)) {
        ABLEHNEN(s, KEIN_GELD, 690);
        return 0;
    }
    return e;
}

void LaderaumErweitern(Spiel& s) {
    const int n = SchiffFuerAuftrag(s, AUFTRAG_LADERAUM);
    if (n == 0) return;
    Schiff& sch = s.Schiffe(n);
    const long e = WievielMehr(s, "Erweitern um     t", T("1t für 10 SD"), 203, 4, LADERAUM_GRENZE(s, sch, s.AktSpieler) - sch.Laderaum, 10);
    if (e < 1) return;
    Einliefern(s, n, ZUSTAND_WERFT_LADERAUM, static_cast<int>((e + 4) / 5), 10 * e, EST_DOCK_LADERAUM);
    sch.Laderaum = static_cast<Integer>(sch.Laderaum + e);
}

void Bewaffnen(Spiel& s) {
    const int n = SchiffFuerAuftrag(s, AUFTRAG_BEWAFFNUNG);
    if (n == 0) return;
    Schiff& sch = s.Schiffe(n);
    const long e = WievielMehr(s, "Erweitern um", T("1 für 85 SD"), 194, 3, WAFFEN_GRENZE(s, sch, s.AktSpieler) - sch.Bewaffnung, 85);
    if (e < 1) return;
    Einliefern(s, n, ZUSTAND_WERFT_WAFFEN, static_cast<int>(2 * e), 85 * e, EST_DOCK_BEWAFFNUNG);
    sch.Bewaffnung = static_cast<Integer>(sch.Bewaffnung + e);
}

void Reparieren(Spiel& s) {
    const int n = SchiffFuerAuftrag(s, AUFTRAG_REPARATUR);
    if (n == 0) return;
    Schiff& sch = s.Schiffe(n);
    const long c = REPARATUR_PREIS(sch);
    // The money is checked before the question, on the question's row.
    if (c > s.Bargeld(s.AktSpieler)) {
        ABLEHNEN(s, KEIN_GELD, 660);
        return;
    }
    if (!Zugesagt(s, "Kosten:" + Rechtsbuendig(c, 6) + "     OK?", 315)) return;
    Einliefern(s, n, ZUSTAND_WERFT_REPARATUR, (sch.Schaden + 4) / 5, c, EST_DOCK_REPARATUR);
    sch.Schaden = 0;
}

void FilterEinbauen(Spiel& s) {
    const int n = SchiffFuerAuftrag(s, AUFTRAG_DTW_FILTER);
    if (n == 0) return;
    constexpr long PREIS = 200;
    if (s.Bargeld(s.AktSpieler) < PREIS) {
        ABLEHNEN(s, KEIN_GELD, 690);
        return;
    }
    if (!Zugesagt(s, "Kosten: 200        OK?", 320)) return;
    Einliefern(s, n, ZUSTAND_WERFT_DTW, 3, PREIS, EST_DOCK_DTW, false);
    Schiff& sch = s.Schiffe(n);
    sch.Tankgroesse = 40;
    sch.Treibstoff = 40.0f;  // the larger tank comes full
}

}  // namespace

bool DOCK_AUFTRAG_PASST(const Spiel& s, int auftrag, int n) {
    const Schiff& sch = s.Schiffe(n);
    const int p = s.AktSpieler;
    if (IstFrei(sch) || sch.Besitzer != p || sch.Zustand != ZUSTAND_RUHT || sch.Planet != SOL_III) return false;
    switch (auftrag) {
        case AUFTRAG_LADERAUM: return sch.Laderaum < LADERAUM_GRENZE(s, sch, p);
        case AUFTRAG_BEWAFFNUNG: return sch.Bewaffnung < WAFFEN_GRENZE(s, sch, p);
        case AUFTRAG_REPARATUR: return sch.Schaden > 0;
        case AUFTRAG_DTW_FILTER: return !IstStation(sch) && sch.Tankgroesse == 30;
        default: return false;
    }
}

long REPARATUR_PREIS(const Schiff& sch) {
    const long d = sch.Schaden;
    if (IstFrachter(sch)) return 9 * d;
    if (IstTanker(sch)) return 8 * d;
    if (IstKreuzer(sch)) return 7 * d;
    if (IstScout(sch)) return static_cast<long>(3.5 * static_cast<double>(d));
    if (IstStation(sch)) return 18 * d;
    return 80 * d;
}

void DOCK_EINREIHEN(Spiel& s, int spieler, int schiff) {
    // The row stays ascending with its empty places behind; the caller has
    // made sure that the last place is free.
    for (int k = DockPlaetze(s, spieler); k >= 2; --k) {
        Integer& vor = s.DockSchiffe(k - 1, spieler);
        if (vor > 0 && vor < schiff) {
            s.DockSchiffe(k, spieler) = static_cast<Integer>(schiff);
            return;
        }
        if (vor > 0) s.DockSchiffe(k, spieler) = vor;
        if (k == 2) s.DockSchiffe(1, spieler) = static_cast<Integer>(schiff);
    }
}

void SPACEDOCKS(Spiel& s) {
    const int p = s.AktSpieler;
    const int m = DockPlaetze(s, p);
    DockListe(s, p, m);
    if (s.DockSchiffe(m, p) != 0) {
        ABLEHNEN(s, "Spacedocks sind ausgelastet!", 630);
        return;
    }
    // The filter is offered once all five components are found.
    const int bis = std::min(s.Komponenten / 5 + 4, static_cast<int>(AUFTRAG_DTW_FILTER));
    if (s.AuswahlTasten.size() < 2) s.AuswahlTasten = {"", "*"};
    Long vorgabe = 1;
    AUSWAHL(s, Liste(s.DockAuftrag), 1, bis, 50, 600, 15, WEISS, vorgabe, s.AuswahlTasten);
    switch (s.Eingabe) {
        case AUFTRAG_BAUEN: Bauen(s); break;
        case AUFTRAG_LADERAUM: LaderaumErweitern(s); break;
        case AUFTRAG_BEWAFFNUNG: Bewaffnen(s); break;
        case AUFTRAG_REPARATUR: Reparieren(s); break;
        case AUFTRAG_DTW_FILTER: FilterEinbauen(s); break;
        default: break;  // Esc
    }
}

// Greatest hold a ship of this type may be given; 0: none can be enlarged.
int LADERAUM_GRENZE(const Spiel& s, const Schiff& sch, int p) {
    if (IstFrachter(sch) || IstTanker(sch)) return Erfunden(s, ERF_LADERAUM, p) ? 120 : 90;
    if (IstStation(sch)) return Erfunden(s, ERF_STATIONEN, p) ? 150 : 90;
    if (IstGrossfrachter(sch)) return 300;
    return 0;
}

// Highest weapons level of this type; 0: it carries none.
int WAFFEN_GRENZE(const Spiel& s, const Schiff& sch, int p) {
    if (IstFrachter(sch) || IstTanker(sch)) return 4;
    if (IstStation(sch)) return 6;
    if (IstGrossfrachter(sch)) return 9;
    if (IstKreuzer(sch)) return Erfunden(s, ERF_WAFFEN, p) ? 15 : 9;
    return 0;
}
