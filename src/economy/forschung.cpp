// Research: money sunk into it in the turn, and the yearly test by which paid
// money becomes an invention, the cheapest one not yet owned first.
#include "economy/forschung.h"

#include <algorithm>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/erfindungen.h"

namespace {

bool Besitzt(const Spiel& s, int k, int p) { return s.Forschung(k, p) == -1; }

// The cheapest invention p does not own, the lowest number of equal costs;
// an owned one only when all are owned.
int NaechsteErfindung(const Spiel& s, int p) {
    int l = 1;
    for (int k = 2; k <= ANZAHL_ERFINDUNGEN; ++k)
        if ((s.Forschung(k, p) == 0 && s.ForschungsKosten(k) < s.ForschungsKosten(l)) || Besitzt(s, l, p)) l = k;
    return l;
}

}  // namespace

void FORSCHUNG_FINANZIEREN(Spiel& s) {
    const int p = s.AktSpieler;
    bool offen = false;
    for (int k = 1; k <= ANZAHL_ERFINDUNGEN && !offen; ++k) offen = s.Forschung(k, p) == 0;
    if (!offen) {
        ABLEHNEN(s, T("Keine Erfindung mehr möglich!"), 630);
        return;
    }
    TEXT_AUSGEBEN(s, "Wie viel?", 15, 50, 630, WEISS);
    ZAHL_EINGEBEN(s, 0, s.Bargeld(p), 160, 630, 15, WEISS, 9, 0, 0);
    const long e = s.Eingabe;
    if (e < 1) return;
    // The engineers tell nothing of price or progress.
    s.Bargeld(p) -= e;
    s.ForschungsRest(p) -= e;
}

void ERFINDUNG_PRUEFEN(Spiel& s) {
    const int spieler = std::min<int>(s.AnzahlSpieler, SPIELER_MAX);
    for (int p = 1; p <= spieler; ++p) {
        // Drawn for every player every year, paid for or not.
        const float r = Rnd(s);
        if (!(r < 0.2f && s.ForschungsRest(p) < 0)) continue;
        int l = NaechsteErfindung(s, p);
        s.Forschung(l, p) = -1;
        ERFINDUNG_ZEIGEN(s, l, p);
        // What was paid beyond this one counts towards the next.
        l = NaechsteErfindung(s, p);
        if (Besitzt(s, l, p)) s.ForschungsRest(p) = 1;
        else s.ForschungsRest(p) += s.ForschungsKosten(l);
    }
}
