// Fuel: tank units loaded into a tanker, and tanks filled on Sol III or
// from a station.
#include "orders/fracht.h"

#include "orders/fracht_dialog.h"

using namespace fracht;

namespace {

void TankeinheitenBuchen(Spiel& s, Schiff& sch, long e, bool super) {
    sch.Fracht(super ? 23 : 21) = static_cast<Integer>(sch.Fracht(super ? 23 : 21) + e);
    sch.Ladung = static_cast<Integer>(sch.Ladung + e);
    s.Bargeld(s.AktSpieler) -= 30 * e;
    EINSTATISTIK(s, EST_TANKEINHEITEN, e);
    if (super) s.Lager(WARE_MIRELLEN, s.AktSpieler) = static_cast<Integer>(s.Lager(WARE_MIRELLEN, s.AktSpieler) - (e + 4) / 5);
}

Ausgang NormaleTankeinheiten(Spiel& s, int nr, int y) {
    Schiff& sch = s.Schiffe(nr);
    const Long geld = s.Bargeld(s.AktSpieler);
    TEXT_AUSGEBEN(s, "Wie viele Tankeinheiten? ", 15, 50, y, WEISS);
    if (y == 660) TEXT_AUSGEBEN(s, "1 TE kostet 30", 15, 50, 690, WEISS);
    const long r = sch.Laderaum - sch.Ladung;
    const long a = r * 30 > geld ? geld / 30 : r;
    const long e = Zahl(s, 0, r, 340, y, 4, static_cast<int>(a), nr);
    if (e < 0) return Ausgang::Ende;
    if (geld < 30 * e) return KeinGeld(s);
    TankeinheitenBuchen(s, sch, e, false);
    return Ausgang::Ende;
}

}  // namespace

Ausgang BELADEN_TANKER(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    const int p = s.AktSpieler;
    if (sch.Planet != SOL_III) {
        const int t = StationWaehlen(s, sch.Planet, "Beladen von TSR    :", 660,
                                     [](const Schiff& st) { return st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT) > 0; });
        if (!t) return Ausgang::Ende;
        Schiff& st = s.Schiffe(t);
        long a = st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT);
        if (sch.Ladung + a > sch.Laderaum) a = sch.Laderaum - sch.Ladung;
        long e = Zahl(s, 0, a, 300, 660, 4, static_cast<int>(a), 0);
        if (e <= 0) return Ausgang::Ende;
        if (e < st.Fracht(FRACHT_SUPERSPRIT)) {  // Supersprit goes first
            st.Fracht(FRACHT_SUPERSPRIT) = static_cast<Integer>(st.Fracht(FRACHT_SUPERSPRIT) - e);
            sch.Fracht(FRACHT_SUPERSPRIT) = static_cast<Integer>(sch.Fracht(FRACHT_SUPERSPRIT) + e);
            sch.Ladung = static_cast<Integer>(sch.Ladung + e);
        } else {
            sch.Fracht(FRACHT_SUPERSPRIT) = static_cast<Integer>(sch.Fracht(FRACHT_SUPERSPRIT) + st.Fracht(FRACHT_SUPERSPRIT));
            sch.Ladung = static_cast<Integer>(sch.Ladung + st.Fracht(FRACHT_SUPERSPRIT));
            e -= st.Fracht(FRACHT_SUPERSPRIT);
            st.Fracht(FRACHT_SUPERSPRIT) = 0;
            st.Fracht(FRACHT_SPRIT) = static_cast<Integer>(st.Fracht(FRACHT_SPRIT) - e);
            sch.Fracht(FRACHT_SPRIT) = static_cast<Integer>(sch.Fracht(FRACHT_SPRIT) + e);
            sch.Ladung = static_cast<Integer>(sch.Ladung + e);
        }
        return Ausgang::Ende;
    }
    Liste l(2);
    if (sch.Ladung < sch.Laderaum) l.setzen(1, "Tankeinheiten");
    if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s, ERF_REPARATURSET)) l.setzen(2, "Reperaturset ");
    int wahl = 1;
    if (!l.t[2].empty()) wahl = Waehlen(s, l, 50, 660, l.von);
    if (wahl < 1) return Ausgang::Ende;
    if (wahl == 2) {
        if (s.Bargeld(p) < 1000) return KeinGeld(s);
        s.Bargeld(p) -= 1000;
        sch.Fracht(FRACHT_REPARATURSET) = 1;
        return Kasse(s, nr);
    }
    if (!Erfunden(s, ERF_SUPERSPRIT, p)) return NormaleTankeinheiten(s, nr, 660);
    Liste art(2);
    art.setzen(1, "Normaler Treibstoff: Kosten 30      ");
    art.setzen(2, "Supersprit: Kosten 30 + 0.2t Mirell.");
    const int sorte = Waehlen(s, art, 50, 660, 2);
    if (sorte < 1) return Ausgang::Ende;
    if (sorte == 1) return NormaleTankeinheiten(s, nr, 690);
    const long lager = s.Lager(WARE_MIRELLEN, p);
    if (lager == 0) return Ablehnung(s, "Keine Mirellen aus Lager!");
    TEXT_AUSGEBEN(s, "Wie viele Tankeinheiten? ", 15, 50, 690, WEISS);
    const long r = sch.Laderaum - sch.Ladung;
    long a = r;
    if ((r + 4) / 5 > lager) a = 5 * lager;
    if (r * 30 > s.Bargeld(p)) a = s.Bargeld(p) / 30;
    const long e = Zahl(s, 0, r, 340, 690, 4, static_cast<int>(a), nr);
    if (e < 0) return Ausgang::Ende;
    if (s.Bargeld(p) < 30 * e) return KeinGeld(s);
    if ((e + 4) / 5 > lager) return Ablehnung(s, "Nicht genug Mirellen vorhanden!");
    TankeinheitenBuchen(s, sch, e, true);
    return Ausgang::Ende;
}

Ausgang BETANKEN_SOL(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    const int p = s.AktSpieler;
    if (s.Bargeld(p) < 30) return ABLEHNEN(s, "Nicht genug Geld vorhanden!", 660);
    bool super = false;
    if (!Erfunden(s, ERF_SUPERSPRIT, p)) {
        TEXT_AUSGEBEN(s, "Kosten: 30       OK?", 15, 50, 660, WEISS);
        if (!JaGesagt(s, 305, 660)) return Ausgang::Ende;
    } else {
        Liste l(2);
        l.setzen(1, "Normaler Treibstoff");
        l.setzen(2, "Supersprit         ");
        const int wahl = Waehlen(s, l, 50, 660, 1);
        if (wahl < 1) return Ausgang::Ende;
        if (wahl == 1) {
            TEXT_AUSGEBEN(s, "Kosten: 30       OK?", 15, 50, 690, WEISS);
            if (!JaGesagt(s, 305, 690)) return Ausgang::Ende;
        } else {
            if (s.Lager(WARE_MIRELLEN, p) == 0) return Ablehnung(s, "Keine Mirellen aus Lager!");
            TEXT_AUSGEBEN(s, "Kosten: 30 + 1t Mirellen   OK?", 15, 50, 690, WEISS);
            if (!JaGesagt(s, 425, 690)) return Ausgang::Ende;
            super = true;
            s.Lager(WARE_MIRELLEN, p) = static_cast<Integer>(s.Lager(WARE_MIRELLEN, p) - 1);
        }
    }
    TankFuellen(sch);
    sch.Supersprit = super ? -1 : 0;
    s.Bargeld(p) -= 30;
    EINSTATISTIK(s, EST_TANKEINHEITEN, 1);
    SCHIFF_ANZEIGEN(s, nr);
    DoEvents(s);
    Warten(s, 1000);
    return Ausgang::Ende;
}

Ausgang BETANKEN_STATION(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    int t = 0;
    for (int i = 1; i <= s.HoechstesSchiff && !t; ++i) {
        const Schiff& st = s.Schiffe(i);
        if (st.Typ == TYP_STATION && st.Zustand == ZUSTAND_RUHT && st.Planet == sch.Planet && st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT) > 0) t = i;
    }
    if (!t) return Ausgang::Ende;
    Schiff& st = s.Schiffe(t);
    if (!Erfunden(s, ERF_SUPERSPRIT, s.AktSpieler)) {
        TEXT_AUSGEBEN(s, "Tanken von TSR " + std::to_string(t) + " (Tankeinh.: " + std::to_string(st.Fracht(FRACHT_SPRIT)) + ")", 15,
                      50, 660, WEISS);
        if (!JaGesagt(s, 70, 690)) return Ausgang::Ende;
        TankFuellen(sch);
        st.Fracht(FRACHT_SPRIT) = static_cast<Integer>(st.Fracht(FRACHT_SPRIT) - 1);
    } else {
        TEXT_AUSGEBEN(s, "Tanken von TSR " + std::to_string(t) + "       ", 15, 50, 630, WEISS);
        TEXT_AUSGEBEN(s, "Normal: " + std::to_string(st.Fracht(FRACHT_SPRIT)) + "    Super: " + std::to_string(st.Fracht(FRACHT_SUPERSPRIT)), 15, 50, 660,
                      WEISS);
        Liste l(2);
        l.t[1] = "Normaler Treibstoff";
        l.t[2] = "Supersprit         ";
        l.von = st.Fracht(FRACHT_SPRIT) != 0 ? 1 : 2;
        l.bis = st.Fracht(FRACHT_SUPERSPRIT) != 0 ? 2 : 1;
        const int wahl = Waehlen(s, l, 50, 690, sch.Typ == TYP_STATION ? l.von : l.bis);
        if (wahl < 1) return Ausgang::Ende;
        TankFuellen(sch);
        sch.Supersprit = wahl == 2 ? -1 : 0;
        st.Fracht(wahl == 2 ? 23 : 21) = static_cast<Integer>(st.Fracht(wahl == 2 ? 23 : 21) - 1);
    }
    SCHIFF_ANZEIGEN(s, nr);
    DoEvents(s);
    Warten(s, 1000);
    return Ausgang::Ende;
}

