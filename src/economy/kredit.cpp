// The bank: a credit of up to 10000 SD, taken and paid back in the turn, and
// its yearly repayment and interest.
#include "economy/kredit.h"

#include <algorithm>
#include <cmath>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "state/text.h"

namespace {

constexpr long KREDIT_GRENZE = 10000;

void WahlZeigen(Spiel& s, int wahl) {
    TEXT_AUSGEBEN(s, wahl == 1 ? "Kredit aufnehmen " : "Kredit abbezahlen", 15, 50, 630, WEISS);
}

// "Wie viel?" with the upper bound; 0 or less when nothing is to be booked.
long WievielFragen(Spiel& s, long long max) {
    TEXT_AUSGEBEN(s, "Wie viel?", 15, 50, 660, WEISS);
    ZAHL_EINGEBEN(s, 0, max, 200, 660, 15, WEISS, 6, 0, 0);
    return s.Eingabe;
}

void Bestaetigen(Spiel& s, const char* text) {
    TEXT_AUSGEBEN(s, text, 15, 50, 690, WEISS);
    Warten(s, 1000);
}

// Int(x + 0.999): a share of the debt, rounded up to whole SD.
long Aufgerundet(double x) { return static_cast<long>(std::floor(x + 0.999)); }

}  // namespace

void KREDIT(Spiel& s) {
    const int p = s.AktSpieler;
    int wahl = 1;
    s.Eingabe = wahl;
    WahlZeigen(s, wahl);
    TEXT_AUSGEBEN(s, "Aktueller Kredit:" + Rechtsbuendig(s.Kredit(p), 6), 15, 50, 690, WEISS);
    for (;;) {
        const int k = TASTE_ABWARTEN(s);
        if (k == Taste::Esc) return;
        if (k == Taste::Enter) break;
        if (k == Taste::Hoch || k == Taste::Runter) {
            wahl = 3 - wahl;
            s.Eingabe = wahl;
            WahlZeigen(s, wahl);
        }
    }

    if (wahl == 1) {
        const long e = WievielFragen(s, KREDIT_GRENZE - s.Kredit(p));
        if (e < 1) return;
        s.Kredit(p) = static_cast<Integer>(s.Kredit(p) + e);
        s.Bargeld(p) += e;
        Bestaetigen(s, "Kredit wurde aufgenommen!");
        return;
    }
    if (s.Kredit(p) == 0) {
        ABLEHNEN(s, "Kein Kredit vorhanden!", 660);
        return;
    }
    if (s.Bargeld(p) <= 0) {
        ABLEHNEN(s, "Sie haben kein Geld!", 660);
        return;
    }
    const long e = WievielFragen(s, std::min<long long>(s.Bargeld(p), s.Kredit(p)));
    if (e < 1) return;
    s.Kredit(p) = static_cast<Integer>(s.Kredit(p) - e);
    s.Bargeld(p) -= e;
    Bestaetigen(s, "Kredit wurde abbezahlt!");
}

void KREDIT_VERBUCHEN(Spiel& s) {
    const int spieler = std::min<int>(s.AnzahlSpieler, SPIELER_MAX);
    for (int p = 1; p <= spieler; ++p) {
        const long k = s.Kredit(p);
        if (k <= 0) continue;
        const long tilgung = Aufgerundet(k * 0.005);
        const long zinsen = Aufgerundet(k * 0.01);
        // The bank takes its share whether the cash is there or not.
        s.Bargeld(p) -= tilgung + zinsen;
        s.Kredit(p) = static_cast<Integer>(k - tilgung);
    }
}
