#pragma once
// What the cargo and fuel orders share: their refusal, the cash shown after a
// purchase, the lists they choose from and the stations of a planet.
#include <cmath>
#include <string>
#include <vector>

#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "state/codes.h"
#include "state/spiel.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"

namespace fracht {

// Cargo orders refuse on the row below their question and show the order
// menu again.
inline Ausgang Ablehnung(Spiel& s, const std::string& text) { return ABLEHNEN(s, text, 690, Ausgang::ZumMenue); }

inline Ausgang KeinGeld(Spiel& s) { return Ablehnung(s, "Nicht genug Geld vorhanden!"); }

inline Ausgang Kasse(Spiel& s, int schiff) {
    SCHIFF_ANZEIGEN(s, schiff);
    const Long geld = s.Bargeld(s.AktSpieler);
    int w = 0, h = 0;
    s.plattform->textMessen(std::to_string(geld), 15, w, h);
    TEXT_AUSGEBEN(s, Str(geld), 15, 470 - w, 570, WEISS);
    DoEvents(s);
    Warten(s, 1000);
    return Ausgang::Ende;
}

inline bool Erfunden(const Spiel& s, int k) { return ::Erfunden(s, k, s.AktSpieler); }


// A menu list from texts; entry 0 unused, empty texts are places not offered.
struct Liste {
    std::vector<std::string> t;
    int von = 0, bis = 0;
    explicit Liste(int n) : t(static_cast<size_t>(n + 1)) {}
    void setzen(int i, const std::string& text) {
        t[static_cast<size_t>(i)] = text;
        if (!von || i < von) von = i;
        if (i > bis) bis = i;
    }
};

// AUSWAHL over a list; -1 for Esc.
inline int Waehlen(Spiel& s, Liste& l, int x, int y, int start) {
    if (s.AuswahlTasten.size() < 2) s.AuswahlTasten = {"", "*"};
    Long vorgabe = start;
    AUSWAHL(s, l.t, l.von, l.bis, x, y, 15, WEISS, vorgabe, s.AuswahlTasten);
    return static_cast<int>(s.Eingabe);
}

inline Long Zahl(Spiel& s, long long min, long long max, int x, int y, int breite, int vorgabe, int schiff) {
    ZAHL_EINGEBEN(s, min, max, x, y, 15, WEISS, breite, vorgabe, schiff);
    return s.Eingabe;
}

// The stations here that pass the test, chosen from a list; 0 for Esc or none.
template <class F>
int StationWaehlen(Spiel& s, int p, const std::string& kopf, int y, F test) {
    Liste l(static_cast<int>(s.HoechstesSchiff));
    std::vector<int> nummern(1);
    for (int t = 1; t <= s.HoechstesSchiff; ++t) {
        const Schiff& st = s.Schiffe(t);
        if (st.Typ == TYP_STATION && st.Zustand == ZUSTAND_RUHT && st.Planet == p && test(st)) {
            nummern.push_back(t);
            l.setzen(static_cast<int>(nummern.size()) - 1, Space(3 - static_cast<int>(std::to_string(t).size())) + std::to_string(t));
        }
    }
    if (nummern.size() < 2) return 0;
    TEXT_AUSGEBEN(s, kopf, 15, 50, y, WEISS);
    const int i = Waehlen(s, l, 240, y, 1);
    return i < 1 ? 0 : nummern[static_cast<size_t>(i)];
}

inline void TankFuellen(Schiff& sch) {
    if (sch.Typ == TYP_GROSSFRACHTER) {
        sch.Treibstoff += sch.Tankgroesse / 2.0f;  // the double tank needs two fillings
        if (sch.Treibstoff > sch.Tankgroesse) sch.Treibstoff = sch.Tankgroesse;
    } else {
        sch.Treibstoff = sch.Tankgroesse;
    }
}

inline bool JaGesagt(Spiel& s, int x, int y) {
    Integer wert = -1;
    JA_NEIN(s, wert, x, y, 15, WEISS);
    return s.Eingabe == 1;
}

}  // namespace fracht
