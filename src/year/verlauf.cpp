// The history of the houses, written at the end of every year.
#include "year/verlauf.h"

#include "state/codes.h"
#include "year/jahresende.h"

void VERLAUF_FORTSCHREIBEN(Spiel& s) {
    VerlaufJahr j;
    j.jahr = s.Jahr;
    for (int p = 1; p <= s.AnzahlSpieler && p <= 6; ++p) {
        HausJahr& h = j.haus[static_cast<size_t>(p - 1)];
        h.bewertung = BEWERTUNG(s, p);
        h.bargeld = s.Bargeld(p);
        h.kredit = s.Kredit(p);
        h.rang = s.Rang(p);
        for (int g = 1; g <= ANZAHL_WAREN; ++g) h.tonnen += s.Statistik(g, p);
        for (int k = 1; k <= ANZAHL_ERFINDUNGEN; ++k) h.erfindungen += Erfunden(s, k, p) ? 1 : 0;
    }
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch) || sch.Besitzer < 1 || sch.Besitzer > 6) continue;
        const int typ = TypNummer(sch.Typ);
        if (typ >= 1 && typ <= 6) ++j.haus[static_cast<size_t>(sch.Besitzer - 1)].schiffe[static_cast<size_t>(typ - 1)];
    }
    while (!s.VerlaufJahre.empty() && s.VerlaufJahre.back().jahr >= j.jahr) s.VerlaufJahre.pop_back();
    s.VerlaufJahre.push_back(j);
}
