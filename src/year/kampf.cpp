// Fights in the year: the exchange of fire of every attacker, the reports,
// the headquarters' guns, damage turning into losses, and the clean-up of
// partners and wrecks.
#include "year/kampf.h"

#include <cmath>

#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/jahr.h"
#include "year/meldung.h"

namespace {

// To the nearest whole number, a half to the even one.
int Runden(float x) { return static_cast<int>(std::lrint(x)); }

void SchadenDazu(Schiff& sch, int punkte) { sch.Schaden = static_cast<Integer>(sch.Schaden + punkte); }

// The headquarters takes the blow of one attacker; above 99 it falls and
// the attacker's house is paid.
void AufHauptquartier(Spiel& s, int i) {
    Schiff& hq = s.Schiffe(PIRATEN_HQ);
    const Schiff& sch = s.Schiffe(i);
    SchadenDazu(hq, static_cast<int>(std::floor((sch.Bewaffnung + 2) * Rnd(s) / 2.0f)));
    if (hq.Schaden <= 99) return;
    MELDUNG_NEU(s, T("Hauptquartier zerstört von FSS ") + std::to_string(i), ROT);
    MELDUNG_NEU(s, "   " + s.SpielerName(sch.Besitzer >= 1 && sch.Besitzer <= 7 ? sch.Besitzer : 7) +
                       T(" erhält 10000 Prämie!"),
                ROT);
    if (IstSpielerBesitz(sch)) s.Bargeld(sch.Besitzer) += 10000;
    hq.Besitzer = NIEMAND;
    hq.Planet = 0;
}

// One blow on a ship, and the answer of the victim by the difference of the
// weapons: an attacker one to three levels better takes more than an equal
// one, four levels keep it out of reach.
void AufSchiff(Spiel& s, int i, int p) {
    Schiff& sch = s.Schiffe(i);
    Schiff& opfer = s.Schiffe(p);
    const int diff = sch.Bewaffnung - opfer.Bewaffnung;
    SchadenDazu(opfer, 3 * (diff > 0 ? diff : 0) + Runden(Rnd(s) * 4));
    if (opfer.Partner == i) return;  // it fires back in its own turn
    if (diff < 0) SchadenDazu(sch, Runden(Rnd(s) * 6));
    else if (diff <= 3) SchadenDazu(sch, Runden(static_cast<float>(diff) * Rnd(s)));
}

}  // namespace

void ANGRIFFE(Spiel& s) {
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch) || sch.Zustand != ZUSTAND_ANGRIFF) continue;
        const int p = sch.Partner;
        if (!SchiffNummerGueltig(p)) continue;  // no victim: the partner check ends it
        if (p == PIRATEN_HQ && s.Schiffe(PIRATEN_HQ).Schaden < 100) AufHauptquartier(s, i);
        else AufSchiff(s, i, p);
    }
}

void ANGRIFFSBERICHT(Spiel& s, int i) {
    Schiff& sch = s.Schiffe(i);
    const int p = sch.Partner;
    if (!SchiffNummerGueltig(p)) return;
    const Schiff& opfer = s.Schiffe(p);
    const bool pirat = IstPirat(sch);
    if (!pirat && p == PIRATEN_HQ) MELDUNG_NEU(s, LABEL(s, i) + ": Angriff auf das Hauptquartier", CYAN);
    else MELDUNG_NEU(s, LABEL(s, i) + ": Angriff auf " + LABEL(s, p), pirat ? ROT : CYAN);
    if (opfer.Schaden < 100 && opfer.Planet != sch.Planet) {
        sch.Zustand = ZUSTAND_RUHT;
        MELDUNG_NEU(s, LABEL(s, i) + " meldet Flucht des Opfers", CYAN);
    }
}

void HAUPTQUARTIER_FEUER(Spiel& s, int i) {
    Schiff& sch = s.Schiffe(i);
    const int hqPlanet = s.Schiffe(PIRATEN_HQ).Planet;
    if (sch.Zustand == ZUSTAND_FLIEGT || !IstSpielerBesitz(sch) || hqPlanet <= 0 || sch.Planet != hqPlanet) return;
    const float a = Rnd(s);
    const float b = Rnd(s);
    SchadenDazu(sch, 17 + static_cast<int>(std::floor(a * 7)) -
                         static_cast<int>(std::floor(static_cast<float>(sch.Bewaffnung) * b / 2.0f)));
    MELDUNG_NEU(s, "Piratenhauptquartier:", ROT);
    MELDUNG_NEU(s, "   Angriff auf " + LABEL(s, i), ROT);
}

void SCHIFF_BESCHAEDIGEN(Spiel& s, int schiff) {
    if (schiff < 1 || schiff > s.HoechstesSchiff || schiff > MAX_SCHIFFE) return;
    Schiff& sch = s.Schiffe(schiff);
    if (IstFrei(sch)) return;  // lost earlier in this year's pass
    const std::string label = LABEL(s, schiff);
    if (sch.Schaden > 99) {
        MELDUNG_NEU(s, label + T(" ist völlig zerstört!"), ROT);
        if (!IstPirat(sch)) return;
        // One prize, to the lowest of the players' ships that were at it.
        for (int k = 1; k <= s.HoechstesSchiff; ++k) {
            const Schiff& a = s.Schiffe(k);
            if (a.Partner != schiff || a.Zustand != ZUSTAND_ANGRIFF || !IstSpielerBesitz(a)) continue;
            MELDUNG_NEU(s, s.SpielerName(a.Besitzer) + T(" erhält 500 Prämie!"), ROT);
            s.Bargeld(a.Besitzer) += 500;
            s.Statistik(STAT_PIRATEN_BESIEGT, a.Besitzer) += 1;
            break;
        }
        return;
    }
    // Cruisers and freighters go to pieces by degrees, one loss a year.
    if (!IstKreuzer(sch) && !IstFrachter(sch)) return;
    if (sch.Schaden > 79 && sch.Bewaffnung > 0) {
        MELDUNG_NEU(s, label + " hat die Bewaffnung verloren!", ROT);
        sch.Bewaffnung = 0;
    } else if (sch.Schaden > 69 && sch.Laderaum > 10) {
        MELDUNG_NEU(s, label + " hat den Laderaum verloren!", ROT);
        sch.Laderaum = 10;
    } else if (sch.Schaden > 49 && sch.Laderaum > 0 && sch.Ladung != 0) {
        MELDUNG_NEU(s, label + " hat die Ladung verloren!", ROT);
        for (int f = 1; f <= FRACHT_PORTAL; ++f)
            if (f != FRACHT_REPARATURSET) sch.Fracht(f) = 0;  // the repair set stays aboard
        sch.Ladung = 0;
    }
}

void PARTNER_PRUEFEN(Spiel& s) {
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& sch = s.Schiffe(i);
        // An attack on no slot at all ends here, whatever the ship.
        const bool ohneOpfer = sch.Zustand == ZUSTAND_ANGRIFF && !SchiffNummerGueltig(sch.Partner);
        // A freighter keeps its station; every other slot, emptied ones too,
        // lets go of a partner that is gone or elsewhere.
        if (!ohneOpfer && (IstFrachter(sch) || sch.Partner <= 0)) continue;
        if (SchiffNummerGueltig(sch.Partner)) {
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
                // The carrier was hit on the way: its station goes down with it.
                SCHIFF_ENTFERNEN(s, sch.Partner);
                p.Partner = 0;
                if (!pirat) EINSTATISTIK(s, EST_VERLORENE_SCHIFFE, 1);
            } else if (sch.Typ == TYP_FRACHTER) {
                // At rest the station stays behind on the planet, free.
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
