// The two stories of the year: an invention of a player's engineers, and a
// component of the drive filter found by a ship that arrives on its planet.
#include "year/erfindungen.h"

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/musik.h"
#include "state/codes.h"
#include "year/erfindungstexte.h"

namespace {

constexpr int ANZAHL_KOMPONENTEN = 5;

// The story takes over the news frame and holds the year until a key comes;
// the news come back when the year is over.
void Geschichte(Spiel& s, const std::vector<std::string>& zeilen) {
    BOX(s, 502, 245, 998, 738, SCHWARZ);
    int y = 280;
    for (const std::string& z : zeilen) {
        TEXT_AUSGEBEN(s, z, 15, 510, y, GELB);
        y += 30;
    }
    TEXT_AUSGEBEN(s, "Weiter mit einer beliebigen Taste.", 15, 510, 700, GELB);
    DoEvents(s);
    TASTE_ABWARTEN(s);
}

// Arrives on its Planet in this year's ship pass, by a single step.
bool Ankommend(const Schiff& sch) {
    return !IstFrei(sch) && sch.Zustand == ZUSTAND_FLIEGT && IstSpielerBesitz(sch) &&
           (sch.Dauer == 1 || (IstScout(sch) && sch.Dauer == 2));
}

}  // namespace

void ERFINDUNG_ZEIGEN(Spiel& s, int L, int p) {
    if (s.SoundAn == -1) MCI_Play(s, "ForschungQuorvant.mid");
    if (L == ERF_PORTAL) s.Dokument(SOL_III).Portal = -1;  // for every player from now on
    const std::string name = p >= 1 && p <= SPIELER_MAX ? s.SpielerName(p) : std::string();
    Geschichte(s, ErfindungsText(L, name));
}

void KOMPONENTEN_PRUEFEN(Spiel& s) {
    for (int i = 1; i <= s.HoechstesSchiff && i <= MAX_SCHIFFE; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (!Ankommend(sch)) continue;
        for (int k = 1; k <= ANZAHL_KOMPONENTEN; ++k) {
            if (s.KomponentenPlanet(k) == 0 || sch.Planet != s.KomponentenPlanet(k)) continue;
            if (s.Komponenten < 0 || s.Komponenten >= ANZAHL_KOMPONENTEN) continue;
            s.KomponentenPlanet(k) = 0;
            if (s.SoundAn == -1) MCI_Play(s, "DTWQuorvant.mid");
            // The story goes by how many were found before, not by where.
            const int n = s.Komponenten + 1;
            s.Bargeld(sch.Besitzer) += KomponentenPraemie(n);
            s.Komponenten = static_cast<Integer>(n);
            Geschichte(s, KomponentenText(n));
        }
    }
}
