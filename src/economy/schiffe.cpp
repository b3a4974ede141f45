#include "economy/schiffe.h"

#include <array>
#include <cmath>

#include "economy/spacedocks.h"
#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "state/codes.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"

namespace {

struct SchiffStart {
    const char* typ;
    Integer dauer;      // years in the yard
    Integer laderaum;   // t
    Integer bewaffnung;
};

// Start values of a new ship, by ship type number.
constexpr std::array<SchiffStart, 6> SCHIFF_START = {{
    // Typ              Dauer  Laderaum  Bewaffnung      no.
    {TYP_FRACHTER,       10,    10,       0},          //  1 Frachter
    {TYP_TANKER,         10,    10,       0},          //  2 Tanker
    {TYP_KREUZER,        16,     0,       4},          //  3 Kreuzer
    {TYP_SCOUT,          16,     0,       0},          //  4 Scout
    {TYP_STATION,        19,    90,       0},          //  5 Raumstation
    {TYP_GROSSFRACHTER,  25,   200,       0},          //  6 Großfrachter
}};
static_assert(SCHIFF_START.size() == 6, "six ship types");

}  // namespace

void SCHIFF_NEU(Spiel& s, int typ) {
    const int p = s.AktSpieler;
    int i = 1;
    while (i < SCHIFF_GRENZE && !s.Schiffe(i).Name.empty()) ++i;
    if (i == SCHIFF_GRENZE) {
        ABLEHNEN(s, "Zu viele Schiffe!", 630);
        return;
    }
    if (i > s.HoechstesSchiff) s.HoechstesSchiff = static_cast<Integer>(i);

    DOCK_EINREIHEN(s, p, i);

    Schiff& sch = s.Schiffe(i);
    const SchiffStart& st = SCHIFF_START[static_cast<size_t>(typ - 1)];
    sch.Typ = st.typ;
    sch.Dauer = st.dauer;
    sch.Laderaum = st.laderaum;
    sch.Bewaffnung = st.bewaffnung;

    s.Bargeld(p) -= s.SchiffPreis(typ);
    if (s.AnzahlSpieler == 1) {
        s.Statistik(EST_DOCK_ZAHLUNGEN, 2) += s.SchiffPreis(typ);
        s.Statistik(EST_DOCK_BAU, 2) += s.SchiffPreis(typ);
    }

    sch.Name = s.SchiffKlasse(typ);
    sch.Treibstoff = 30.0f;
    sch.Tankgroesse = 30;
    sch.Supersprit = 0;
    sch.Schaden = 0;
    sch.Zustand = ZUSTAND_WERFT_BAU;
    sch.Planet = SOL_III;
    sch.Besitzer = static_cast<Integer>(p);
    sch.Partner = sch.StartPlanet = sch.Ladung = 0;
    sch.Fracht = {};
    // Selling Flopse makes the yards slow: a fifth more years.
    if (s.Statistik(WARE_FLOPSE, p) > 0) sch.Dauer = static_cast<Integer>(sch.Dauer + sch.Dauer / 5);
}

Integer SCHIFF_WERT(const Spiel& s, int schiff) {
    const Schiff& sch = s.Schiffe(schiff);
    const double f = (1.0 - sch.Schaden / 100.0) * 0.8;
    double b;
    if (sch.Typ == TYP_FRACHTER) b = 1000 + 0.7 * (sch.Laderaum - 10) + 50 * sch.Bewaffnung;
    else if (sch.Typ == TYP_TANKER) b = 900 + 0.7 * (sch.Laderaum - 10) + 50 * sch.Bewaffnung;
    else if (sch.Typ == TYP_KREUZER) b = 750 + 70 * (sch.Bewaffnung - 4);
    else if (sch.Typ == TYP_STATION) b = 2000 + 50 * sch.Bewaffnung;
    else b = 400;
    return static_cast<Integer>(std::nearbyint(f * b));
}

bool SCHIFF_VERKAEUFLICH(const Spiel& s, int schiff) {
    const Schiff& sch = s.Schiffe(schiff);
    return !sch.Typ.empty() && sch.Besitzer == s.AktSpieler && sch.Planet == SOL_III && sch.Zustand == ZUSTAND_RUHT &&
           sch.Partner == 0;
}

namespace {

void VerkaufZeigen(Spiel& s, int schiff) {
    SCHIFF_ANZEIGEN(s, schiff);
    TEXT_AUSGEBEN(s, "Verkaufswert: " + Rechtsbuendig(SCHIFF_WERT(s, schiff), 5), 15, 50, 660, WEISS);
}

}  // namespace

void SCHIFF_VERKAUFEN(Spiel& s) {
    auto verkaeuflich = [&s](int n) { return SCHIFF_VERKAEUFLICH(s, n); };
    int schiff = NAECHSTES_SCHIFF(1, 1, s.HoechstesSchiff, verkaeuflich);
    if (schiff == 0) return;
    VerkaufZeigen(s, schiff);
    TEXT_AUSGEBEN(s, T("Bitte Raumschiff wählen!"), 15, 50, 630, WEISS);

    SchiffWahl wahl;
    wahl.passt = verkaeuflich;
    wahl.zeigen = [&s](int n) { VerkaufZeigen(s, n); };
    wahl.grenze = s.HoechstesSchiff;
    wahl.nummerY = 690;
    wahl.nummerBis = s.HoechstesSchiff;
    schiff = SCHIFF_WAEHLEN(s, schiff, wahl).schiff;
    if (schiff == 0) return;

    Schiff& sch = s.Schiffe(schiff);
    s.Bargeld(s.AktSpieler) += SCHIFF_WERT(s, schiff);
    SCHIFF_SLOT_LEEREN(sch);
    sch.Planet = SOL_III;
    sch.Partner = 0;
    if (s.LetztesSchiff == schiff) {
        // The next ship of the player after the one sold, if there is one.
        const int p = s.AktSpieler;
        const int j = NAECHSTES_SCHIFF(schiff + 1, 1, s.HoechstesSchiff, [&s, p](int n) {
            return s.Schiffe(n).Besitzer == p && !IstFrei(s.Schiffe(n));
        });
        s.LetztesSchiff = static_cast<Integer>(j == schiff ? 0 : j);
    }
}
