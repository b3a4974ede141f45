// Handeln, Reparatur, Gerät ausliefern and Portal installieren.
#include "orders/sonder.h"

#include <algorithm>
#include <string>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "state/text.h"
#include "state/zufall.h"
#include "views/schiff_anzeigen.h"

namespace {

constexpr Integer PRODUKTION_HOECHSTENS = 30;

void Pause(Spiel& s) {
    DoEvents(s);
    Warten(s, 1000);
}

bool JaGesagt(Spiel& s, int x, int y) {
    Integer wert = -1;
    JA_NEIN(s, wert, x, y, 15, WEISS);
    return s.Eingabe == 1;
}

// The first merchant at rest on the planet; 0 if none.
int HaendlerHier(const Spiel& s, int p) {
    for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h)
        if (s.Schiffe(h).Planet == p && s.Schiffe(h).Zustand == ZUSTAND_RUHT) return h;
    return 0;
}

// Tonnes given in trade: the goods with the lowest numbers go first.
void Abgeben(Schiff& sch, long menge) {
    long rest = menge;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        if (sch.Fracht(g) > rest) {
            sch.Fracht(g) = static_cast<Integer>(sch.Fracht(g) - rest);
            rest = 0;
        } else {
            rest -= sch.Fracht(g);
            sch.Fracht(g) = 0;
        }
    }
}

// After a trade the merchant sails to a planet at most 40 units away.
void Davonsegeln(Spiel& s, int h) {
    Schiff& hsz = s.Schiffe(h);
    if (s.AnzahlPlaneten <= 0) return;
    int z = 0, d = 0, zuege = 0;
    do {
        z = static_cast<int>(ZufallGanz(s, 11, s.AnzahlPlaneten + 10));
        d = ENTFERNUNG(s, hsz.Planet, z);
    } while (!(d < 41 && z != hsz.Planet) && ++zuege < HAENDLER_ZUEGE);
    if (zuege == HAENDLER_ZUEGE) return;  // nothing near: it stays
    hsz.Zustand = ZUSTAND_FLIEGT;
    hsz.Dauer = static_cast<Integer>(d);
    hsz.Planet = static_cast<Integer>(z);
}

// The good a merchant offers: the first one the market does not know yet,
// else most likely the dearest.
int Handelsware(Spiel& s) {
    for (int g = 1; g <= ANZAHL_WAREN; ++g)
        if (s.AltPreis(g) == -1) return g;
    int k = 1;
    for (int c = 2; c <= ANZAHL_WAREN; ++c)
        if (Rnd(s) < 0.9f && s.Preis(k) <= s.Preis(c)) k = c;
    return k;
}

}  // namespace

void ORDER_HANDELN(Spiel& s, int schiff) {
    Schiff& sch = s.Schiffe(schiff);
    // Devices and a portal take room in the hold but are no goods.
    long waren = sch.Ladung - 2L * sch.Fracht(FRACHT_GERAETE);
    if (sch.Fracht(FRACHT_PORTAL) == 1) waren -= sch.Laderaum;
    if (waren <= 0) {
        ABLEHNEN(s, "Sie haben keine Waren!", 660);
        return;
    }
    const int h = HaendlerHier(s, sch.Planet);
    if (h == 0) return;
    const int k = Handelsware(s);
    const std::string hsz = std::to_string(HaendlerNummer(h));
    TEXT_AUSGEBEN(s, "Das Schiff HSZ " + hsz + " bietet Ihnen 1t", 15, 50, 600, WEISS);
    TEXT_AUSGEBEN(s, s.WarenName(k) + T(" für jede Tonne Ihrer"), 15, 50, 630, WEISS);
    TEXT_AUSGEBEN(s, "Ladung. Wie viel wollen Sie", 15, 50, 660, WEISS);
    TEXT_AUSGEBEN(s, "tauschen?", 15, 50, 690, WEISS);
    ZAHL_EINGEBEN(s, 0, waren, 170, 690, 15, WEISS, 4, static_cast<int>(waren), 0);
    if (s.Eingabe < 0) return;
    const long menge = s.Eingabe;
    Abgeben(sch, menge);
    sch.Fracht(k) = static_cast<Integer>(sch.Fracht(k) + menge);
    Davonsegeln(s, h);
    SCHIFF_ANZEIGEN(s, schiff);
    BOX(s, 40, 600, 480, 718, SCHWARZ);
    TEXT_AUSGEBEN(s, "HSZ " + hsz + " bedankt sich!", 15, 50, 600, WEISS);
    Pause(s);
}

void ORDER_REPARATUR(Spiel& s, int schiff) {
    TEXT_AUSGEBEN(s, "Schiff reparieren?", 15, 50, 660, WEISS);
    if (!JaGesagt(s, 300, 660)) return;
    Schiff& sch = s.Schiffe(schiff);
    sch.Fracht(FRACHT_REPARATURSET) = 0;
    const int schaden = sch.Schaden - 50 + static_cast<int>(ZufallGanz(s, 0, 6));
    sch.Schaden = static_cast<Integer>(std::max(schaden, 0));
    SCHIFF_ANZEIGEN(s, schiff);
    Pause(s);
}

void ORDER_GERAET_AUSLIEFERN(Spiel& s, int schiff) {
    Schiff& sch = s.Schiffe(schiff);
    Planet& pl = s.Dokument(sch.Planet);
    if (pl.Produktion >= PRODUKTION_HOECHSTENS) {
        TEXT_AUSGEBEN(s, "Produktion kann nicht weiter", 15, 50, 660, WEISS);
        ABLEHNEN(s, "gesteigert werden!", 690);
        return;
    }
    TEXT_AUSGEBEN(s, T("Einmal Geräte ausliefern?"), 15, 50, 660, WEISS);
    if (!JaGesagt(s, 350, 660)) return;
    sch.Fracht(FRACHT_GERAETE) = static_cast<Integer>(sch.Fracht(FRACHT_GERAETE) - 1);
    sch.Ladung = static_cast<Integer>(sch.Ladung - 2);
    const int mehr = static_cast<int>(ZufallGanz(s, 4, 7));
    pl.Produktion = static_cast<Integer>(std::min<int>(pl.Produktion + mehr, PRODUKTION_HOECHSTENS));
}

void ORDER_PORTAL_INSTALLIEREN(Spiel& s, int schiff) {
    TEXT_AUSGEBEN(s, "Portal hier installieren?", 15, 50, 660, WEISS);
    if (!JaGesagt(s, 70, 690)) return;
    Schiff& sch = s.Schiffe(schiff);
    sch.Fracht(FRACHT_PORTAL) = 0;
    sch.Ladung = 0;
    s.Dokument(sch.Planet).Portal = -1;
}
