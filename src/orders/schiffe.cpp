#include "orders/schiffe.h"

#include <array>
#include <cmath>

#include "screen/ausgabe.h"
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
    // Typ     Dauer  Laderaum  Bewaffnung      no.
    {"SST ",   10,    10,       0},          //  1 Frachter
    {"TST ",   10,    10,       0},          //  2 Tanker
    {"FSS ",   16,     0,       4},          //  3 Kreuzer
    {" XS ",   16,     0,       0},          //  4 Scout
    {"TSR ",   19,    90,       0},          //  5 Raumstation
    {"XXL ",   25,   200,       0},          //  6 Großfrachter
}};
static_assert(SCHIFF_START.size() == 6, "six ship types");

}  // namespace

void SCHIFF_NEU(Spiel& s, int typ) {
    const int p = s.AktSpieler;
    const int m = s.Forschung(7, p) == -1 ? 7 : 5;
    int i = 1;
    while (i < SCHIFF_GRENZE && !s.Schiffe(i).Name.empty()) ++i;
    if (i == SCHIFF_GRENZE) {
        TEXT_AUSGEBEN(s, "Zu viele Schiffe!", 15, 50, 630, WEISS);
        DoEvents(s);
        Warten(s, 1000);
        return;
    }
    if (i > s.HoechstesSchiff) s.HoechstesSchiff = static_cast<Integer>(i);

    // Into the dock list, which stays ascending with its gaps behind.
    for (int k = m; k >= 2; --k) {
        Integer& vor = s.DockSchiffe(k - 1, p);
        if (vor > 0 && vor < i) {
            s.DockSchiffe(k, p) = static_cast<Integer>(i);
            break;
        }
        if (vor > 0) s.DockSchiffe(k, p) = vor;
        if (k == 2) s.DockSchiffe(1, p) = static_cast<Integer>(i);
    }

    Schiff& sch = s.Schiffe(i);
    const SchiffStart& st = SCHIFF_START[static_cast<size_t>(typ - 1)];
    sch.Typ = st.typ;
    sch.Dauer = st.dauer;
    sch.Laderaum = st.laderaum;
    sch.Bewaffnung = st.bewaffnung;

    s.Bargeld(p) -= s.SchiffPreis(typ);
    if (s.AnzahlSpieler == 1) {
        s.Statistik(6, 2) += s.SchiffPreis(typ);
        s.Statistik(7, 2) += s.SchiffPreis(typ);
    }

    sch.Name = s.SchiffKlasse(typ);
    sch.Treibstoff = 30.0f;
    sch.Tankgroesse = 30;
    sch.Supersprit = 0;
    sch.Schaden = 0;
    sch.Zustand = -1;
    sch.Planet = SOL_III;
    sch.Besitzer = static_cast<Integer>(p);
    sch.Partner = sch.StartPlanet = sch.Ladung = 0;
    sch.Fracht = {};
    // Selling Flopse makes the yards slow: a fifth more years.
    if (s.Statistik(16, p) > 0) sch.Dauer = static_cast<Integer>(sch.Dauer + sch.Dauer / 5);
}

Integer SCHIFF_WERT(const Spiel& s, int schiff) {
    const Schiff& sch = s.Schiffe(schiff);
    const double f = (1.0 - sch.Schaden / 100.0) * 0.8;
    double b;
    if (sch.Typ == "SST ") b = 1000 + 0.7 * (sch.Laderaum - 10) + 50 * sch.Bewaffnung;
    else if (sch.Typ == "TST ") b = 900 + 0.7 * (sch.Laderaum - 10) + 50 * sch.Bewaffnung;
    else if (sch.Typ == "FSS ") b = 750 + 70 * (sch.Bewaffnung - 4);
    else if (sch.Typ == "TSR ") b = 2000 + 50 * sch.Bewaffnung;
    else b = 400;
    return static_cast<Integer>(std::nearbyint(f * b));
}

bool SCHIFF_VERKAEUFLICH(const Spiel& s, int schiff) {
    const Schiff& sch = s.Schiffe(schiff);
    return !sch.Typ.empty() && sch.Besitzer == s.AktSpieler && sch.Planet == SOL_III && sch.Zustand == 0 &&
           sch.Partner == 0;
}

namespace {

void VerkaufZeigen(Spiel& s, int schiff) {
    SCHIFF_ANZEIGEN(s, schiff);
    TEXT_AUSGEBEN(s, "Verkaufswert: " + Rechtsbuendig(SCHIFF_WERT(s, schiff), 5), 15, 50, 660, WEISS);
}

// From n (inclusive) upward, round past HoechstesSchiff, to a sellable ship.
int NaechsterVerkaeuflicher(const Spiel& s, int n, int schritt) {
    for (int versuch = 0; versuch <= s.HoechstesSchiff + 1; ++versuch) {
        if (n > s.HoechstesSchiff) n = 1;
        if (n < 1) n = s.HoechstesSchiff;
        if (SCHIFF_VERKAEUFLICH(s, n)) return n;
        n += schritt;
    }
    return 0;
}

}  // namespace

void SCHIFF_VERKAUFEN(Spiel& s) {
    int schiff = 0;
    for (int i = 1; i <= s.HoechstesSchiff && schiff == 0; ++i)
        if (SCHIFF_VERKAEUFLICH(s, i)) schiff = i;
    if (schiff == 0) return;
    VerkaufZeigen(s, schiff);
    TEXT_AUSGEBEN(s, T("Bitte Raumschiff wählen!"), 15, 50, 630, WEISS);

    s.TasteDa = 0;
    for (;;) {
        s.plattform->schlafen(5);
        DoEvents(s);
        if (s.TasteDa == 0) continue;
        const int code = s.TastenCode;
        s.TasteDa = 0;
        if (code == Taste::Esc) return;
        if (code == Taste::Hoch || code == Taste::Runter) {
            const int schritt = code == Taste::Hoch ? 1 : -1;
            schiff = NaechsterVerkaeuflicher(s, schiff + schritt, schritt);
            VerkaufZeigen(s, schiff);
        } else if (code == Taste::Leer) {
            long n = 0;
            auto zeigen = [&] {
                TEXT_AUSGEBEN(s, "Nummer: " + Space(4 - static_cast<int>(Str(n).size())) + std::to_string(n), 15, 50,
                              690, ROT);
            };
            zeigen();
            for (;;) {
                s.plattform->schlafen(5);
                DoEvents(s);
                if (s.TasteDa == 0) continue;
                const int c = s.TastenCode;
                if (c == Taste::Enter) break;
                s.TasteDa = 0;
                if (c == Taste::Esc) return;
                if (c >= '0' && c <= '9') {
                    if (n * 10 + (c - '0') < s.HoechstesSchiff + 1) n = n * 10 + (c - '0');
                } else if (c == Taste::Backspace) {
                    n /= 10;
                }
                zeigen();
            }
            s.TasteDa = 0;
            TEXT_AUSGEBEN(s, Space(13), 15, 50, 690, WEISS);
            if (n == 0) n = 1;
            schiff = NaechsterVerkaeuflicher(s, static_cast<int>(n), 1);
            VerkaufZeigen(s, schiff);
        } else if (code == Taste::Enter) {
            Schiff& sch = s.Schiffe(schiff);
            s.Bargeld(s.AktSpieler) += SCHIFF_WERT(s, schiff);
            sch.Typ.clear();
            sch.Name.clear();
            sch.Besitzer = 0;
            sch.Zustand = 0;
            sch.Planet = SOL_III;
            sch.Dauer = 0;
            sch.Partner = 0;
            if (s.LetztesSchiff == schiff) {
                int j = schiff;
                do {
                    ++j;
                    if (j > s.HoechstesSchiff) j = 1;
                } while (j != schiff && !(s.Schiffe(j).Besitzer == s.AktSpieler && !s.Schiffe(j).Typ.empty()));
                s.LetztesSchiff = static_cast<Integer>(j == schiff ? 0 : j);
            }
            return;
        }
    }
}
