// "Status anzeigen": the fleet list, the evaluation page and, in a game of
// one player, the page of further figures. Nothing in the game changes here.
#include "views/status.h"

#include <cmath>
#include <string>

#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/text.h"

namespace {

// --- the worth of a house -----------------------------------------------------
// STAND-IN: the guild's Bewertung of the year's end is the same figure with
// the debt taken off. Until the year's end offers it, this copy computes it
// here without the debt; once it does, call that one and drop this.
Long BewertungOhneKredit(const Spiel& s, int p) {
    long long w = s.Bargeld(p);
    auto waren = [&](const Schiff& sch) {
        long long summe = 0;
        for (int g = 1; g <= ANZAHL_WAREN; ++g) summe += static_cast<long long>(s.Preis(g)) * sch.Fracht(g);
        return summe;
    };
    for (int n = 1; n <= s.HoechstesSchiff && n < SCHIFF_GRENZE; ++n) {
        const Schiff& sch = s.Schiffe(n);
        if (IstFrei(sch) || sch.Besitzer != p) continue;
        const double rest = 1.0 - sch.Schaden / 100.0;
        double rumpf;
        long long ladung = 0;
        if (IstFrachter(sch)) {
            rumpf = rest * (900 + 10 * sch.Laderaum + 50 * sch.Bewaffnung);
            ladung = waren(sch);
        } else if (IstTanker(sch)) {
            rumpf = rest * (800 + 10 * sch.Laderaum + 50 * sch.Bewaffnung);
            ladung = 30LL * sch.Fracht(FRACHT_SPRIT);
        } else if (IstKreuzer(sch)) {
            rumpf = rest * (470 + 70 * sch.Bewaffnung);
        } else if (IstStation(sch)) {
            rumpf = rest * (2000 + 50 * sch.Bewaffnung);
            ladung = waren(sch) + 30LL * sch.Fracht(FRACHT_SPRIT);
        } else {
            rumpf = rest * 400;  // scouts, and great freighters count no more
        }
        // The running total is rounded after each hull, a half to the even.
        w = static_cast<long long>(std::nearbyint(static_cast<double>(w) + rumpf)) + ladung;
    }
    for (int g = 1; g <= ANZAHL_WAREN; ++g) w += static_cast<long long>(s.Lager(g, p)) * s.Preis(g);
    long long erfindungen = 0;  // the columns of the inventions, and the next one, which is never set
    for (int k = 1; k <= ANZAHL_ERFINDUNGEN + 1; ++k)
        if (s.Forschung(k, p) == -1) ++erfindungen;
    w += 2500 * erfindungen * erfindungen;
    return static_cast<Long>(w);
}

void Rot(Spiel& s, const std::string& text, int y) { TEXT_AUSGEBEN(s, text, 15, 510, y, ROT); }

// Waits for the next key; true if it was PageUp.
bool ZurueckGeblaettert(Spiel& s) {
    AUF_TASTE_WARTEN(s);
    const bool zurueck = s.TastenCode == Taste::BildAuf;
    s.TasteDa = 0;
    return zurueck;
}

void Auswertung(Spiel& s, long anzahl) {
    const int p = s.AktSpieler;
    BOX(s, 502, 245, 998, 738, SCHWARZ);
    Rot(s, T("Vermögen:       ") + Rechtsbuendig(static_cast<long long>(s.Bargeld(p)) - s.Kredit(p), 10), 250);
    Rot(s, "Bewertung:      " + Rechtsbuendig(BewertungOhneKredit(s, p), 10), 275);
    Rot(s, "Anzahl Schiffe: " + Rechtsbuendig(anzahl, 10), 300);
    Rot(s, "Verkaufte Waren:", 325);
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        const Long t = s.Statistik(g, p);
        if (t <= 0) continue;
        const std::string name = s.WarenName(g) + ": ";
        const std::string zahl = Str(t);
        // Name and number fill 26 places, the number to the right.
        const int luecke = 26 - static_cast<int>(s.WarenName(g).size() + zahl.size());
        TEXT_AUSGEBEN(s, name + Space(luecke) + zahl, 12, 541, 330 + 18 * g, ROT);
    }
    Rot(s, "Piraten besiegt:" + Rechtsbuendig(s.Statistik(STAT_PIRATEN_BESIEGT, p), 10), 710);
}

// A per mille value as a percentage with one decimal: 5 -> "0,5 %".
std::string Prozent(long long promille) {
    const std::string t = std::to_string(promille < 0 ? -promille : promille);
    std::string r = t.size() == 1 ? "0," + t : t.substr(0, t.size() - 1) + "," + t.substr(t.size() - 1);
    if (promille < 0) r = "-" + r;
    r += " %";
    return Space(12 - static_cast<int>(r.size())) + r;
}

// Int() of the share in per mille; a share of nothing is 0.
long long Promille(long long teil, long long ganzes) {
    if (ganzes == 0) return 0;
    const long long z = teil * 1000;
    long long q = z / ganzes;
    if ((z % ganzes != 0) && ((z < 0) != (ganzes < 0))) --q;
    return q;
}

void WeitereInformationen(Spiel& s) {
    auto st = [&](int spalte) -> long long { return s.Statistik(spalte, 2); };
    auto zeile = [&](const char* label, int spalte, const char* einheit, int y) {
        Rot(s, T(label) + Rechtsbuendig(st(spalte), 9) + einheit, y);
    };
    const bool dtw = s.Komponenten == 5;
    BOX(s, 502, 245, 998, 738, SCHWARZ);
    Rot(s, "Weitere Informationen:", 250);
    zeile("Gesamterlös aus Verkauf:    ", EST_VERKAUFSERLOES, " SD", 275);
    zeile("Zahlungen für Wareneinkauf: ", EST_WARENEINKAUF, " SD", 300);
    zeile("Steuerzahlungen:            ", EST_STEUERN, " SD", 325);
    zeile("Gebühren für Raumfahrthafen:", EST_HAFENGEBUEHREN, " SD", 350);
    zeile("Zahlungen an die Spacedocks:", EST_DOCK_ZAHLUNGEN, " SD", 375);
    zeile("  davon für Bau:            ", EST_DOCK_BAU, " SD", 396);
    zeile("  davon für Laderaum:       ", EST_DOCK_LADERAUM, " SD", 417);
    zeile("  davon für Bewaffnung:     ", EST_DOCK_BEWAFFNUNG, " SD", 438);
    zeile("  davon für Reperatur:      ", EST_DOCK_REPARATUR, " SD", 459);
    if (dtw) zeile("  davon für DTW-Filter:     ", EST_DOCK_DTW, " SD", 480);
    // Until the docks have worked once there is nothing more to tell.
    const long long belegt = st(EST_DOCK_BELEGT);
    if (belegt == 0) return;
    auto anteil = [&](const char* label, long long promille, int y) { Rot(s, label + Prozent(promille), y); };
    anteil("Auslastung der Spacedocks: ", Promille(belegt, st(EST_DOCK_ANGEBOTEN)), 505);
    anteil("  davon am Bau:            ", Promille(st(EST_BELEGT_BAU), belegt), 526);
    anteil("  davon am Laderaum:       ", Promille(st(EST_BELEGT_LADERAUM), belegt), 547);
    anteil("  davon an der Bewaffnung: ", Promille(st(EST_BELEGT_BEWAFFNUNG), belegt), 568);
    anteil("  davon an der Reperatur:  ", Promille(st(EST_BELEGT_REPARATUR), belegt), 589);
    if (dtw) anteil("  davon am DTW-Filter:     ", Promille(st(EST_BELEGT_DTW), belegt), 610);
    zeile("Gekaufte Tankeinheiten:     ", EST_TANKEINHEITEN, " TE", 635);
    zeile("Anzahl abgebrannter Waren:  ", EST_ABGEBRANNT, " t", 660);
    zeile("Anzahl verlorener Schiffe:  ", EST_VERLORENE_SCHIFFE, "", 685);
    zeile("Anzahl geraubter Waren:     ", EST_GERAUBT, " t", 710);
}

}  // namespace

void STATUS(Spiel& s) {
    for (;;) {
        long anzahl = 0;
        if (!FLOTTENLISTE(s, anzahl)) return;
        bool zurListe = false;
        while (!zurListe) {
            Auswertung(s, anzahl);
            if (ZurueckGeblaettert(s)) {
                zurListe = true;
            } else if (s.AnzahlSpieler != 1) {
                return;
            } else {
                WeitereInformationen(s);
                if (!ZurueckGeblaettert(s)) return;
            }
        }
    }
}
