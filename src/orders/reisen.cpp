// Start, Teleportieren and Notruf: the travel orders of a ship.
#include "orders/reisen.h"

#include <utility>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"
#include "views/sternkarte.h"

namespace {

bool Portalziel(const Spiel& s, int t, int schiff) {
    return s.Dokument(t).Portal == -1 && t != s.Schiffe(schiff).Planet;
}

void Portalname(Spiel& s, int t) {
    const std::string name = PlanetenName(s, t);
    TEXT_AUSGEBEN(s, Space(30 - static_cast<int>(name.size())) + name, 15, 70, 660, WEISS);
}

// The partner of a freighter travels with it.
void PartnerMitnehmen(Spiel& s, int schiff) {
    const Schiff& sch = s.Schiffe(schiff);
    if (sch.Partner > 0 && sch.Partner <= MAX_SCHIFFE) s.Schiffe(sch.Partner).Planet = sch.Planet;
}

}  // namespace

void ORDER_START(Spiel& s, int schiff) {
    STERNKARTE(s);
    ZIEL_WAEHLEN(s, schiff);
    Schiff& sch = s.Schiffe(schiff);
    if (s.Eingabe == -1 || s.Eingabe == sch.Planet) return;
    sch.Zustand = ZUSTAND_FLIEGT;
    sch.StartPlanet = sch.Planet;
    sch.Planet = static_cast<Integer>(s.Eingabe);
    sch.Dauer = static_cast<Integer>(ENTFERNUNG(s, sch.StartPlanet, sch.Planet));
    PartnerMitnehmen(s, schiff);
}

void ORDER_TELEPORTIEREN(Spiel& s, int schiff) {
    const int letzter = s.AnzahlPlaneten + 10;
    int t = 3;
    while (t <= letzter && !Portalziel(s, t, schiff)) ++t;
    if (t > letzter) {
        ABLEHNEN(s, "Kein weiteres Portal vorhanden!", 660);
        return;
    }
    STERNKARTE(s);
    Portalname(s, t);
    KARTEN_CURSOR(s, t, WEISS);
    for (;;) {
        const int c = TASTE_ABWARTEN(s);
        if (c == Taste::Esc) return;
        if (c == Taste::Enter) break;
        if (c == Taste::Hoch || c == Taste::Runter) {
            KARTEN_CURSOR(s, t, SCHWARZ);
            do {
                if (c == Taste::Hoch) {
                    if (++t > letzter) t = 3;
                } else {
                    if (--t == 2) t = letzter;
                }
            } while (!Portalziel(s, t, schiff));
            Portalname(s, t);
            KARTEN_CURSOR(s, t, WEISS);
        }
    }
    Schiff& sch = s.Schiffe(schiff);
    sch.StartPlanet = static_cast<Integer>(-sch.Planet);
    sch.Planet = static_cast<Integer>(t);
    sch.Dauer = 1;
    sch.Zustand = ZUSTAND_FLIEGT;
    PartnerMitnehmen(s, schiff);
}

void ORDER_NOTRUF(Spiel& s, int schiff) {
    Schiff& sch = s.Schiffe(schiff);
    std::swap(sch.Planet, sch.StartPlanet);
    sch.Dauer = static_cast<Integer>(ENTFERNUNG(s, sch.StartPlanet, sch.Planet) - sch.Dauer);
    if (sch.Dauer == 0) sch.Zustand = ZUSTAND_RUHT;
    PartnerMitnehmen(s, schiff);
    TEXT_AUSGEBEN(s, "Notruf erhalten. Schiff kehrt um!", 15, 50, 660, WEISS);
    SCHIFF_ANZEIGEN(s, schiff);
    DoEvents(s);
    Warten(s, 1000);
}
