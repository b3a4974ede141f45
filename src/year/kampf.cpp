// Fights and pirates in the year. The fights themselves come with their own
// work; the clean-up of partners and wrecks is needed by every year already.
#include "year/kampf.h"

#include "state/codes.h"
#include "year/jahr.h"

void ANGRIFFE(Spiel&) {}
void ANGRIFFSBERICHT(Spiel&, int) {}
void HAUPTQUARTIER_FEUER(Spiel&, int) {}
void SCHIFF_BESCHAEDIGEN(Spiel&, int) {}

void PARTNER_PRUEFEN(Spiel& s) {
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& sch = s.Schiffe(i);
        // A freighter keeps its station; every other slot, emptied ones too,
        // lets go of a partner that is gone or elsewhere.
        if (IstFrachter(sch) || sch.Partner <= 0) continue;
        if (sch.Partner <= MAX_SCHIFFE) {
            const Schiff& p = s.Schiffe(sch.Partner);
            if (p.Besitzer != 0 && p.Planet == sch.Planet) continue;
        }
        sch.Partner = 0;
        if (!(sch.Besitzer == BESITZER_PIRATEN && sch.Zustand == ZUSTAND_FLIEGT)) sch.Zustand = ZUSTAND_RUHT;
    }
}

void ZERSTOERTE_ENTFERNEN(Spiel& s) {
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& sch = s.Schiffe(i);
        if (sch.Schaden <= 99 || sch.Besitzer <= 0) continue;
        const bool pirat = sch.Besitzer == BESITZER_PIRATEN;
        if (sch.Partner > 0 && sch.Partner <= MAX_SCHIFFE && sch.Zustand != ZUSTAND_ANGRIFF) {
            Schiff& p = s.Schiffe(sch.Partner);
            if (sch.Zustand == ZUSTAND_FLIEGT) {
                SCHIFF_ENTFERNEN(s, sch.Partner);
                p.Partner = 0;
                if (!pirat) EINSTATISTIK(s, EST_VERLORENE_SCHIFFE, 1);
            } else if (sch.Typ == TYP_FRACHTER) {
                p.Planet = sch.Planet;
                p.Partner = 0;
                p.Zustand = ZUSTAND_RUHT;
            } else {
                p.Partner = 0;
            }
        }
        SCHIFF_ENTFERNEN(s, i);
        sch.Partner = 0;
        if (!pirat) EINSTATISTIK(s, EST_VERLORENE_SCHIFFE, 1);
        for (int k = 1; k <= s.HoechstesSchiff; ++k)
            if (s.Schiffe(k).Partner == i && s.Schiffe(k).Zustand == ZUSTAND_ANGRIFF) {
                s.Schiffe(k).Zustand = ZUSTAND_RUHT;
                s.Schiffe(k).Partner = 0;
            }
    }
}
