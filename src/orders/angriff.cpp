// Angriff and Angriff beenden for cruisers.
#include "orders/angriff.h"

#include <string>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "state/codes.h"
#include "state/text.h"

namespace {

// A ship the cruiser may fall on: on its planet, of another owner, and at
// rest or itself attacking; a coupled station only while its freighter rests.
// Ships in flight or in the yard are out of reach.
bool MoeglichesOpfer(const Spiel& s, int angreifer, int v) {
    if (v < 1 || v > s.HoechstesSchiff || v > MAX_SCHIFFE) return false;
    const Schiff& a = s.Schiffe(angreifer);
    const Schiff& o = s.Schiffe(v);
    if (IstFrei(o) || o.Planet != a.Planet || o.Besitzer == a.Besitzer) return false;
    if (o.Zustand == ZUSTAND_RUHT || o.Zustand == ZUSTAND_ANGRIFF) return true;
    return o.Zustand == ZUSTAND_GEKOPPELT && SchiffNummerGueltig(o.Partner) && s.Schiffe(o.Partner).Zustand == ZUSTAND_RUHT;
}

void Opferzeile(Spiel& s, int v) {
    const Schiff& o = s.Schiffe(v);
    const std::string eigner = o.Besitzer >= 1 && o.Besitzer <= BESITZER_PIRATEN ? s.SpielerName(o.Besitzer) : std::string();
    TEXT_AUSGEBEN(s, o.Typ + std::to_string(v) + " (Eigt.: " + eigner + ")         ", 15, 70, 660, WEISS);
}

void Angreifen(Schiff& sch, int ziel) {
    sch.Zustand = ZUSTAND_ANGRIFF;
    sch.Partner = static_cast<Integer>(ziel);
}

}  // namespace

void ORDER_ANGRIFF(Spiel& s, int schiff) {
    Schiff& sch = s.Schiffe(schiff);
    if (sch.Bewaffnung == 0) {
        ABLEHNEN(s, "Kreuzer hat keine Bewaffnung!", 660);
        return;
    }
    // Where the headquarters stands it is the only target.
    if (sch.Planet == s.Schiffe(PIRATEN_HQ).Planet) {
        TEXT_AUSGEBEN(s, "Piratenhauptquartier angreifen?", 15, 50, 660, WEISS);
        Integer wert = -1;
        JA_NEIN(s, wert, 70, 690, 15, WEISS);
        if (s.Eingabe == 1) Angreifen(sch, PIRATEN_HQ);
        return;
    }
    auto passt = [&s, schiff](int v) { return MoeglichesOpfer(s, schiff, v); };
    int v = NAECHSTES_SCHIFF(1, 1, s.HoechstesSchiff, passt);
    if (v == 0) return;
    TEXT_AUSGEBEN(s, T("Bitte Angriffsopfer wählen!"), 15, 50, 630, WEISS);
    Opferzeile(s, v);
    for (;;) {
        const int c = TASTE_ABWARTEN(s);
        if (c == Taste::Esc) return;
        if (c == Taste::Enter) break;
        if (c == Taste::Hoch || c == Taste::Runter) {
            const int richtung = c == Taste::Hoch ? 1 : -1;
            const int n = NAECHSTES_SCHIFF(v + richtung, richtung, s.HoechstesSchiff, passt);
            if (n) v = n;
            Opferzeile(s, v);
        }
    }
    Angreifen(sch, v);
}

void ORDER_ANGRIFF_BEENDEN(Spiel& s, int schiff) {
    Schiff& sch = s.Schiffe(schiff);
    sch.Zustand = ZUSTAND_RUHT;
    sch.Partner = 0;
    TEXT_AUSGEBEN(s, "Angriff beendet!", 15, 50, 660, WEISS);
    DoEvents(s);
    Warten(s, 1000);
}
