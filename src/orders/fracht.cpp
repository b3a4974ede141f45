// Filling and emptying ships: goods, equipment, fuel, stations.
#include "orders/fracht.h"

#include <cmath>
#include <string>
#include <vector>

#include "screen/ausgabe.h"
#include "screen/eingabe.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"
#include "state/codes.h"

namespace {

// Cargo orders refuse on the row below their question and show the order
// menu again.
Ausgang Ablehnung(Spiel& s, const std::string& text) { return ABLEHNEN(s, text, 690, Ausgang::ZumMenue); }

Ausgang KeinGeld(Spiel& s) { return Ablehnung(s, "Nicht genug Geld vorhanden!"); }

Ausgang Kasse(Spiel& s, int schiff) {
    SCHIFF_ANZEIGEN(s, schiff);
    const Long geld = s.Bargeld(s.AktSpieler);
    int w = 0, h = 0;
    s.plattform->textMessen(std::to_string(geld), 15, w, h);
    TEXT_AUSGEBEN(s, Str(geld), 15, 470 - w, 570, WEISS);
    DoEvents(s);
    Warten(s, 1000);
    return Ausgang::Ende;
}

bool Erfunden(const Spiel& s, int k) { return ::Erfunden(s, k, s.AktSpieler); }


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
int Waehlen(Spiel& s, Liste& l, int x, int y, int start) {
    if (s.AuswahlTasten.size() < 2) s.AuswahlTasten = {"", "*"};
    Long vorgabe = start;
    AUSWAHL(s, l.t, l.von, l.bis, x, y, 15, WEISS, vorgabe, s.AuswahlTasten);
    return static_cast<int>(s.Eingabe);
}

Long Zahl(Spiel& s, long long min, long long max, int x, int y, int breite, int vorgabe, int schiff) {
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

void TankFuellen(Schiff& sch) {
    if (sch.Typ == TYP_GROSSFRACHTER) {
        sch.Treibstoff += sch.Tankgroesse / 2.0f;  // the double tank needs two fillings
        if (sch.Treibstoff > sch.Tankgroesse) sch.Treibstoff = sch.Tankgroesse;
    } else {
        sch.Treibstoff = sch.Tankgroesse;
    }
}

bool JaGesagt(Spiel& s, int x, int y) {
    Integer wert = -1;
    JA_NEIN(s, wert, x, y, 15, WEISS);
    return s.Eingabe == 1;
}

}  // namespace

Ausgang BELADEN_VOM_PLANETEN(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    Planet& pl = s.Dokument(sch.Planet);
    const Long geld = s.Bargeld(s.AktSpieler);
    const std::string ware = pl.Ware >= 1 && pl.Ware <= 20 ? s.WarenName(pl.Ware) : std::string();
    TEXT_AUSGEBEN(s, "Es gibt " + std::to_string(pl.Bestand / 100) + "t " + ware + " (Preis: " + std::to_string(pl.Preis) + ")",
                  15, 50, 660, WEISS);
    long a = pl.Bestand / 100;
    if (sch.Ladung + a > sch.Laderaum) a = sch.Laderaum - sch.Ladung;
    if (pl.Preis > 0 && geld < pl.Preis * a) a = geld / pl.Preis;
    const long e = Zahl(s, 0, pl.Bestand / 100, 50, 690, 3, static_cast<int>(a), nr);
    if (e < 0) return Ausgang::Ende;
    if (sch.Ladung + e > sch.Laderaum) return Ablehnung(s, "Nicht genug Laderaum vorhanden!");
    if (geld < pl.Preis * e) return KeinGeld(s);
    pl.Bestand -= 100 * e;
    sch.Fracht(pl.Ware) = static_cast<Integer>(sch.Fracht(pl.Ware) + e);
    sch.Ladung = static_cast<Integer>(sch.Ladung + e);
    s.Bargeld(s.AktSpieler) -= pl.Preis * e;
    EINSTATISTIK(s, EST_WARENEINKAUF, pl.Preis * e);
    return Ausgang::Ende;
}

Ausgang BELADEN_AUSRUESTUNG(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    Long& geld = s.Bargeld(s.AktSpieler);
    Liste l(3);
    if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s, ERF_REPARATURSET)) l.setzen(1, "Reparaturset     ");
    if (sch.Ladung + 1 < sch.Laderaum && Erfunden(s, ERF_GERAETE)) l.setzen(2, T("Produktionsgeräte"));
    if (Erfunden(s, ERF_PORTAL) && sch.Ladung == 0 && sch.Laderaum >= 100) l.setzen(3, "Portal           ");
    if (!l.von) return Ausgang::Ende;
    const int wahl = Waehlen(s, l, 50, 660, l.von);
    if (wahl == 1) {
        const bool xxl = sch.Typ == TYP_GROSSFRACHTER;
        TEXT_AUSGEBEN(s, xxl ? "Kosten: 6000 SD     OK?" : "Kosten: 1000 SD     OK?", 15, 50, 690, WEISS);
        Integer wert = -1;
        JA_NEIN(s, wert, 340, 690, 15, WEISS);
        if (s.Eingabe != 1) return Ausgang::Ende;
        if (geld < (xxl ? 6000 : 1000)) return KeinGeld(s);
        geld -= xxl ? 6000 : 1000;
        sch.Fracht(FRACHT_REPARATURSET) = 1;
        return Kasse(s, nr);
    }
    if (wahl == 2) {
        TEXT_AUSGEBEN(s, "Kosten: 50SD", 15, 300, 660, WEISS);
        TEXT_AUSGEBEN(s, "Wie viele?", 15, 50, 690, WEISS);
        const long m = (sch.Laderaum - sch.Ladung) / 2;
        const long a = m * 50 > geld ? geld / 50 : m;
        const long e = Zahl(s, 0, m, 250, 690, 4, static_cast<int>(a), 0);
        if (e < 1) return Ausgang::Ende;
        if (e * 50 > geld) return KeinGeld(s);
        sch.Fracht(FRACHT_GERAETE) = static_cast<Integer>(sch.Fracht(FRACHT_GERAETE) + e);
        sch.Ladung = static_cast<Integer>(sch.Ladung + 2 * e);
        geld -= 50 * e;
        return Kasse(s, nr);
    }
    if (wahl == 3) {
        if (geld < 100000) return KeinGeld(s);
        TEXT_AUSGEBEN(s, "Kosten: 100000SD     OK?", 15, 50, 690, WEISS);
        Integer wert = -1;
        JA_NEIN(s, wert, 350, 690, 15, WEISS);
        if (s.Eingabe != 1) return Ausgang::Ende;
        sch.Fracht(FRACHT_PORTAL) = 1;
        sch.Ladung = sch.Laderaum;  // the portal fills the whole hold
        geld -= 100000;
        return Kasse(s, nr);
    }
    return Ausgang::Ende;
}

Ausgang BELADEN_VON_STATION(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    const int t = StationWaehlen(s, sch.Planet, "Beladen von TSR    :", 660, [](const Schiff& st) { return st.Ladung > 0; });
    if (!t) return Ausgang::Ende;
    Schiff& st = s.Schiffe(t);
    Liste l(22);
    if (st.Fracht(FRACHT_GERAETE) > 0) l.setzen(1, T("Geräte        "));
    if (st.Ladung > 2 * st.Fracht(FRACHT_GERAETE)) l.setzen(2, "Alle Waren    ");
    for (int g = 20; g >= 1; --g)
        if (st.Fracht(g) > 0) l.setzen(23 - g, s.WarenName(g));
    if (!l.von) return Ausgang::Ende;
    const int wahl = Waehlen(s, l, 300, 660, l.von);
    if (wahl < 1) return Ausgang::Ende;
    const long frei = sch.Laderaum - sch.Ladung;
    if (wahl == 1) {
        long a = st.Fracht(FRACHT_GERAETE);
        if (2 * a > frei) a = frei / 2;
        const long e = Zahl(s, 0, a, 50, 690, 4, static_cast<int>(a), 0);
        if (e < 0) return Ausgang::Ende;
        st.Fracht(FRACHT_GERAETE) = static_cast<Integer>(st.Fracht(FRACHT_GERAETE) - e);
        st.Ladung = static_cast<Integer>(st.Ladung - 2 * e);
        sch.Fracht(FRACHT_GERAETE) = static_cast<Integer>(sch.Fracht(FRACHT_GERAETE) + e);
        sch.Ladung = static_cast<Integer>(sch.Ladung + 2 * e);
    } else if (wahl == 2) {
        long a = st.Ladung - 2 * st.Fracht(FRACHT_GERAETE);
        if (a > frei) a = frei;
        long e = Zahl(s, 0, a, 50, 690, 4, static_cast<int>(a), 0);
        if (e < 0) return Ausgang::Ende;
        st.Ladung = static_cast<Integer>(st.Ladung - e);
        sch.Ladung = static_cast<Integer>(sch.Ladung + e);
        for (int g = 20; g >= 1 && e > 0; --g) {  // the dear goods first
            const long n = st.Fracht(g) > e ? e : st.Fracht(g);
            st.Fracht(g) = static_cast<Integer>(st.Fracht(g) - n);
            sch.Fracht(g) = static_cast<Integer>(sch.Fracht(g) + n);
            e -= n;
        }
    } else {
        const int g = 23 - wahl;
        long a = st.Fracht(g);
        if (a > frei) a = frei;
        const long e = Zahl(s, 0, a, 50, 690, 4, static_cast<int>(a), 0);
        if (e < 0) return Ausgang::Ende;
        st.Fracht(g) = static_cast<Integer>(st.Fracht(g) - e);
        sch.Fracht(g) = static_cast<Integer>(sch.Fracht(g) + e);
        st.Ladung = static_cast<Integer>(st.Ladung - e);
        sch.Ladung = static_cast<Integer>(sch.Ladung + e);
    }
    return Ausgang::Ende;
}

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

Ausgang ENTLADEN(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    const int t = StationWaehlen(s, sch.Planet, "Entladen in TSR    :   ", 630,
                                 [](const Schiff& st) { return st.Ladung < st.Laderaum; });
    if (!t) return Ausgang::Ende;
    Schiff& st = s.Schiffe(t);
    if (sch.Typ == TYP_TANKER) {
        TEXT_AUSGEBEN(s, "Wie viel?      TE", 15, 50, 660, WEISS);
        long e = Zahl(s, 0, sch.Ladung, 180, 660, 4, sch.Ladung, 0);
        if (e < 1) return Ausgang::Ende;
        if (e <= sch.Fracht(FRACHT_SUPERSPRIT)) {
            st.Fracht(FRACHT_SUPERSPRIT) = static_cast<Integer>(st.Fracht(FRACHT_SUPERSPRIT) + e);
            sch.Fracht(FRACHT_SUPERSPRIT) = static_cast<Integer>(sch.Fracht(FRACHT_SUPERSPRIT) - e);
            sch.Ladung = static_cast<Integer>(sch.Ladung - e);
        } else {
            st.Fracht(FRACHT_SUPERSPRIT) = static_cast<Integer>(st.Fracht(FRACHT_SUPERSPRIT) + sch.Fracht(FRACHT_SUPERSPRIT));
            e -= sch.Fracht(FRACHT_SUPERSPRIT);
            st.Fracht(FRACHT_SPRIT) = static_cast<Integer>(st.Fracht(FRACHT_SPRIT) + e);
            sch.Fracht(FRACHT_SPRIT) = static_cast<Integer>(sch.Fracht(FRACHT_SPRIT) - e);
            sch.Fracht(FRACHT_SUPERSPRIT) = 0;
            sch.Ladung = sch.Fracht(FRACHT_SPRIT);
        }
        return Ausgang::Ende;
    }
    TEXT_AUSGEBEN(s, "Welche Waren? (Lagerplatz: " + std::to_string(st.Laderaum - st.Ladung) + "t)", 15, 50, 660, WEISS);
    Liste l(22);
    l.setzen(1, "Alle Waren  ");
    for (int g = 1; g <= 20; ++g)
        if (sch.Fracht(g) > 0) l.setzen(g + 1, s.WarenName(g));
    if (sch.Fracht(FRACHT_GERAETE) > 0) l.setzen(22, T("Geräte      "));
    const int wahl = Waehlen(s, l, 70, 690, 1);
    if (wahl < 1) return Ausgang::Ende;
    auto umladen = [&](int g) {
        const int f = sch.Fracht(g), r = st.Laderaum - st.Ladung;
        if (f > r) {  // what does not fit stays aboard
            sch.Fracht(g) = static_cast<Integer>(f - r);
            sch.Ladung = static_cast<Integer>(sch.Ladung - r);
            st.Fracht(g) = static_cast<Integer>(st.Fracht(g) + r);
            st.Ladung = st.Laderaum;
        } else {
            sch.Fracht(g) = 0;
            sch.Ladung = static_cast<Integer>(sch.Ladung - f);
            st.Fracht(g) = static_cast<Integer>(st.Fracht(g) + f);
            st.Ladung = static_cast<Integer>(st.Ladung + f);
        }
    };
    if (wahl == 1) {
        for (int g = 1; g <= 20; ++g) umladen(g);
    } else if (wahl == 22) {
        do {
            sch.Fracht(FRACHT_GERAETE) = static_cast<Integer>(sch.Fracht(FRACHT_GERAETE) - 1);
            sch.Ladung = static_cast<Integer>(sch.Ladung - 2);
            st.Fracht(FRACHT_GERAETE) = static_cast<Integer>(st.Fracht(FRACHT_GERAETE) + 1);
            st.Ladung = static_cast<Integer>(st.Ladung + 2);
        } while (sch.Fracht(FRACHT_GERAETE) != 0 && st.Ladung + 2 <= st.Laderaum);
    } else {
        umladen(wahl - 1);
    }
    return Ausgang::Ende;
}

Ausgang ANKOPPELN(Spiel& s, int nr) {
    Schiff& st = s.Schiffe(nr);
    auto kandidat = [&](int c) {
        const Schiff& f = s.Schiffe(c);
        return f.Typ == TYP_FRACHTER && f.Besitzer == s.AktSpieler && f.Zustand == ZUSTAND_RUHT && f.Planet == st.Planet && f.Ladung == 0 &&
               f.Partner == 0;
    };
    int c = NAECHSTES_SCHIFF(1, 1, s.HoechstesSchiff, kandidat);
    if (!c) return Ausgang::Ende;
    SCHIFF_ANZEIGEN(s, c);
    TEXT_AUSGEBEN(s, T("Bitte Frachter wählen!"), 15, 50, 630, WEISS);
    SchiffWahl wahl;
    wahl.passt = kandidat;
    wahl.zeigen = [&s](int n) { SCHIFF_ANZEIGEN(s, n); };
    wahl.grenze = s.HoechstesSchiff;
    c = SCHIFF_WAEHLEN(s, c, wahl).schiff;
    if (!c) return Ausgang::Ende;
    s.Schiffe(c).Partner = static_cast<Integer>(nr);
    st.Partner = static_cast<Integer>(c);
    st.Zustand = ZUSTAND_GEKOPPELT;
    return Ausgang::Ende;
}

Ausgang TRENNEN(Spiel& s, int nr) {
    Schiff& st = s.Schiffe(nr);
    if (st.Partner >= 1 && st.Partner <= MAX_SCHIFFE) {
        st.Planet = s.Schiffe(st.Partner).Planet;
        s.Schiffe(st.Partner).Partner = 0;
    }
    st.Partner = 0;
    st.Zustand = ZUSTAND_RUHT;
    return Ausgang::Ende;
}
