// Goods and equipment into and out of ships: from planets and stations, the
// equipment bought on Sol III, cargo unloaded into a station, stations coupled.
#include "orders/fracht.h"

#include "orders/fracht_dialog.h"

using namespace fracht;

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
