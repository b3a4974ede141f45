// "Status anzeigen": the fleet list, the evaluation page and, in a game of
// one player, the page of further figures. Nothing in the game changes here.
#include "views/status.h"

#include <cmath>
#include <string>

#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/text.h"
#include "year/jahresende.h"

namespace {

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
    Rot(s, "Bewertung:      " + Rechtsbuendig(BEWERTUNG(s, p, true), 10), 275);
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
