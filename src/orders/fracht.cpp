// Filling and emptying ships: goods, equipment, fuel, stations.
#include "orders/fracht.h"

#include <cmath>
#include <string>
#include <vector>

#include "screen/ausgabe.h"
#include "screen/eingabe.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"

namespace {

Ausgang Ablehnung(Spiel& s, const std::string& text) {
    TEXT_AUSGEBEN(s, text, 15, 50, 690, WEISS);
    DoEvents(s);
    Warten(s, 1000);
    BOX(s, 50, 660, 480, 720, SCHWARZ);
    return Ausgang::ZumMenue;
}

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

bool Erfunden(const Spiel& s, int k) { return s.Forschung(k, s.AktSpieler) == -1; }

void Einstatistik(Spiel& s, int spalte, long wert) {
    if (s.AnzahlSpieler == 1) s.Statistik(spalte, 2) += wert;
}

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
        if (st.Typ == "TSR " && st.Zustand == 0 && st.Planet == p && test(st)) {
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
    if (sch.Typ == "XXL ") {
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
    Einstatistik(s, 2, pl.Preis * e);
    return Ausgang::Ende;
}

Ausgang BELADEN_AUSRUESTUNG(Spiel& s, int nr) {
    Schiff& sch = s.Schiffe(nr);
    Long& geld = s.Bargeld(s.AktSpieler);
    Liste l(3);
    if (sch.Fracht(22) == 0 && Erfunden(s, 3)) l.setzen(1, "Reparaturset     ");
    if (sch.Ladung + 1 < sch.Laderaum && Erfunden(s, 8)) l.setzen(2, T("Produktionsgeräte"));
    if (Erfunden(s, 11) && sch.Ladung == 0 && sch.Laderaum >= 100) l.setzen(3, "Portal           ");
    if (!l.von) return Ausgang::Ende;
    const int wahl = Waehlen(s, l, 50, 660, l.von);
    if (wahl == 1) {
        const bool xxl = sch.Typ == "XXL ";
        TEXT_AUSGEBEN(s, xxl ? "Kosten: 6000 SD     OK?" : "Kosten: 1000 SD     OK?", 15, 50, 690, WEISS);
        Integer wert = -1;
        JA_NEIN(s, wert, 340, 690, 15, WEISS);
        if (s.Eingabe != 1) return Ausgang::Ende;
        if (geld < (xxl ? 6000 : 1000)) return KeinGeld(s);
        geld -= xxl ? 6000 : 1000;
        sch.Fracht(22) = 1;
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
        sch.Fracht(24) = static_cast<Integer>(sch.Fracht(24) + e);
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
        sch.Fracht(25) = 1;
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
    if (st.Fracht(24) > 0) l.setzen(1, T("Geräte        "));
    if (st.Ladung > 2 * st.Fracht(24)) l.setzen(2, "Alle Waren    ");
    for (int g = 20; g >= 1; --g)
        if (st.Fracht(g) > 0) l.setzen(23 - g, s.WarenName(g));
    if (!l.von) return Ausgang::Ende;
    const int wahl = Waehlen(s, l, 300, 660, l.von);
    if (wahl < 1) return Ausgang::Ende;
    const long frei = sch.Laderaum - sch.Ladung;
    if (wahl == 1) {
        long a = st.Fracht(24);
        if (2 * a > frei) a = frei / 2;
        const long e = Zahl(s, 0, a, 50, 690, 4, static_cast<int>(a), 0);
        if (e < 0) return Ausgang::Ende;
        st.Fracht(24) = static_cast<Integer>(st.Fracht(24) - e);
        st.Ladung = static_cast<Integer>(st.Ladung - 2 * e);
        sch.Fracht(24) = static_cast<Integer>(sch.Fracht(24) + e);
        sch.Ladung = static_cast<Integer>(sch.Ladung + 2 * e);
    } else if (wahl == 2) {
        long a = st.Ladung - 2 * st.Fracht(24);
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
    Einstatistik(s, 12, e);
    if (super) s.Lager(10, s.AktSpieler) = static_cast<Integer>(s.Lager(10, s.AktSpieler) - (e + 4) / 5);
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
                                     [](const Schiff& st) { return st.Fracht(21) + st.Fracht(23) > 0; });
        if (!t) return Ausgang::Ende;
        Schiff& st = s.Schiffe(t);
        long a = st.Fracht(21) + st.Fracht(23);
        if (sch.Ladung + a > sch.Laderaum) a = sch.Laderaum - sch.Ladung;
        long e = Zahl(s, 0, a, 300, 660, 4, static_cast<int>(a), 0);
        if (e <= 0) return Ausgang::Ende;
        if (e < st.Fracht(23)) {  // Supersprit goes first
            st.Fracht(23) = static_cast<Integer>(st.Fracht(23) - e);
            sch.Fracht(23) = static_cast<Integer>(sch.Fracht(23) + e);
            sch.Ladung = static_cast<Integer>(sch.Ladung + e);
        } else {
            sch.Fracht(23) = static_cast<Integer>(sch.Fracht(23) + st.Fracht(23));
            sch.Ladung = static_cast<Integer>(sch.Ladung + st.Fracht(23));
            e -= st.Fracht(23);
            st.Fracht(23) = 0;
            st.Fracht(21) = static_cast<Integer>(st.Fracht(21) - e);
            sch.Fracht(21) = static_cast<Integer>(sch.Fracht(21) + e);
            sch.Ladung = static_cast<Integer>(sch.Ladung + e);
        }
        return Ausgang::Ende;
    }
    Liste l(2);
    if (sch.Ladung < sch.Laderaum) l.setzen(1, "Tankeinheiten");
    if (sch.Fracht(22) == 0 && Erfunden(s, 3)) l.setzen(2, "Reperaturset ");
    int wahl = 1;
    if (!l.t[2].empty()) wahl = Waehlen(s, l, 50, 660, l.von);
    if (wahl < 1) return Ausgang::Ende;
    if (wahl == 2) {
        if (s.Bargeld(p) < 1000) return KeinGeld(s);
        s.Bargeld(p) -= 1000;
        sch.Fracht(22) = 1;
        return Kasse(s, nr);
    }
    if (s.Forschung(6, p) == 0) return NormaleTankeinheiten(s, nr, 660);
    Liste art(2);
    art.setzen(1, "Normaler Treibstoff: Kosten 30      ");
    art.setzen(2, "Supersprit: Kosten 30 + 0.2t Mirell.");
    const int sorte = Waehlen(s, art, 50, 660, 2);
    if (sorte < 1) return Ausgang::Ende;
    if (sorte == 1) return NormaleTankeinheiten(s, nr, 690);
    const long lager = s.Lager(10, p);
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
    if (s.Bargeld(p) < 30) {
        TEXT_AUSGEBEN(s, "Nicht genug Geld vorhanden!", 15, 50, 660, WEISS);
        DoEvents(s);
        Warten(s, 1000);
        return Ausgang::Ende;
    }
    bool super = false;
    if (s.Forschung(6, p) == 0) {
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
            if (s.Lager(10, p) == 0) return Ablehnung(s, "Keine Mirellen aus Lager!");
            TEXT_AUSGEBEN(s, "Kosten: 30 + 1t Mirellen   OK?", 15, 50, 690, WEISS);
            if (!JaGesagt(s, 425, 690)) return Ausgang::Ende;
            super = true;
            s.Lager(10, p) = static_cast<Integer>(s.Lager(10, p) - 1);
        }
    }
    TankFuellen(sch);
    sch.Supersprit = super ? -1 : 0;
    s.Bargeld(p) -= 30;
    Einstatistik(s, 12, 1);
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
        if (st.Typ == "TSR " && st.Zustand == 0 && st.Planet == sch.Planet && st.Fracht(21) + st.Fracht(23) > 0) t = i;
    }
    if (!t) return Ausgang::Ende;
    Schiff& st = s.Schiffe(t);
    if (s.Forschung(6, s.AktSpieler) == 0) {
        TEXT_AUSGEBEN(s, "Tanken von TSR " + std::to_string(t) + " (Tankeinh.: " + std::to_string(st.Fracht(21)) + ")", 15,
                      50, 660, WEISS);
        if (!JaGesagt(s, 70, 690)) return Ausgang::Ende;
        TankFuellen(sch);
        st.Fracht(21) = static_cast<Integer>(st.Fracht(21) - 1);
    } else {
        TEXT_AUSGEBEN(s, "Tanken von TSR " + std::to_string(t) + "       ", 15, 50, 630, WEISS);
        TEXT_AUSGEBEN(s, "Normal: " + std::to_string(st.Fracht(21)) + "    Super: " + std::to_string(st.Fracht(23)), 15, 50, 660,
                      WEISS);
        Liste l(2);
        l.t[1] = "Normaler Treibstoff";
        l.t[2] = "Supersprit         ";
        l.von = st.Fracht(21) != 0 ? 1 : 2;
        l.bis = st.Fracht(23) != 0 ? 2 : 1;
        const int wahl = Waehlen(s, l, 50, 690, sch.Typ == "TSR " ? l.von : l.bis);
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
    if (sch.Typ == "TST ") {
        TEXT_AUSGEBEN(s, "Wie viel?      TE", 15, 50, 660, WEISS);
        long e = Zahl(s, 0, sch.Ladung, 180, 660, 4, sch.Ladung, 0);
        if (e < 1) return Ausgang::Ende;
        if (e <= sch.Fracht(23)) {
            st.Fracht(23) = static_cast<Integer>(st.Fracht(23) + e);
            sch.Fracht(23) = static_cast<Integer>(sch.Fracht(23) - e);
            sch.Ladung = static_cast<Integer>(sch.Ladung - e);
        } else {
            st.Fracht(23) = static_cast<Integer>(st.Fracht(23) + sch.Fracht(23));
            e -= sch.Fracht(23);
            st.Fracht(21) = static_cast<Integer>(st.Fracht(21) + e);
            sch.Fracht(21) = static_cast<Integer>(sch.Fracht(21) - e);
            sch.Fracht(23) = 0;
            sch.Ladung = sch.Fracht(21);
        }
        return Ausgang::Ende;
    }
    TEXT_AUSGEBEN(s, "Welche Waren? (Lagerplatz: " + std::to_string(st.Laderaum - st.Ladung) + "t)", 15, 50, 660, WEISS);
    Liste l(22);
    l.setzen(1, "Alle Waren  ");
    for (int g = 1; g <= 20; ++g)
        if (sch.Fracht(g) > 0) l.setzen(g + 1, s.WarenName(g));
    if (sch.Fracht(24) > 0) l.setzen(22, T("Geräte      "));
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
            sch.Fracht(24) = static_cast<Integer>(sch.Fracht(24) - 1);
            sch.Ladung = static_cast<Integer>(sch.Ladung - 2);
            st.Fracht(24) = static_cast<Integer>(st.Fracht(24) + 1);
            st.Ladung = static_cast<Integer>(st.Ladung + 2);
        } while (sch.Fracht(24) != 0 && st.Ladung + 2 <= st.Laderaum);
    } else {
        umladen(wahl - 1);
    }
    return Ausgang::Ende;
}

Ausgang ANKOPPELN(Spiel& s, int nr) {
    Schiff& st = s.Schiffe(nr);
    auto kandidat = [&](int c) {
        const Schiff& f = s.Schiffe(c);
        return f.Typ == "SST " && f.Besitzer == s.AktSpieler && f.Zustand == 0 && f.Planet == st.Planet && f.Ladung == 0 &&
               f.Partner == 0;
    };
    int c = 0;
    for (int i = 1; i <= s.HoechstesSchiff && !c; ++i)
        if (kandidat(i)) c = i;
    if (!c) return Ausgang::Ende;
    SCHIFF_ANZEIGEN(s, c);
    TEXT_AUSGEBEN(s, T("Bitte Frachter wählen!"), 15, 50, 630, WEISS);
    s.TasteDa = 0;
    for (;;) {
        s.plattform->schlafen(5);
        DoEvents(s);
        if (s.TasteDa == 0) continue;
        const int code = s.TastenCode;
        s.TasteDa = 0;
        if (code == Taste::Esc) return Ausgang::Ende;
        if (code == Taste::Enter) break;
        if (code == Taste::Hoch || code == Taste::Runter) {
            const int schritt = code == Taste::Hoch ? 1 : -1;
            int n = c;
            do {
                n += schritt;
                if (n > s.HoechstesSchiff) n = 1;
                if (n < 1) n = s.HoechstesSchiff;
            } while (!kandidat(n) && n != c);
            c = n;
            SCHIFF_ANZEIGEN(s, c);
        }
    }
    s.Schiffe(c).Partner = static_cast<Integer>(nr);
    st.Partner = static_cast<Integer>(c);
    st.Zustand = 10;
    return Ausgang::Ende;
}

Ausgang TRENNEN(Spiel& s, int nr) {
    Schiff& st = s.Schiffe(nr);
    if (st.Partner >= 1 && st.Partner <= MAX_SCHIFFE) {
        st.Planet = s.Schiffe(st.Partner).Planet;
        s.Schiffe(st.Partner).Partner = 0;
    }
    st.Partner = 0;
    st.Zustand = 0;
    return Ausgang::Ende;
}
