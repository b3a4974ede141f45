// The ship pass of the year: planets produce, ships fly and land, stations
// fill their holds, yard jobs end, wear strikes; and the merchants sail.
#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/jahr.h"
#include "year/meldung.h"

void SCHIFF_ENTFERNEN(Spiel& s, int schiff) {
    Schiff& sch = s.Schiffe(schiff);
    SCHIFF_SLOT_LEEREN(sch);
    sch.Planet = 0;
}

namespace {
void Verlust(Spiel& s) { EINSTATISTIK(s, EST_VERLORENE_SCHIFFE, 1); }
}  // namespace


// --- planets ----------------------------------------------------------------

void PLANETEN_PRODUKTION(Spiel& s) {
    for (int i = 10; i <= s.AnzahlPlaneten + 10; ++i) {
        Planet& p = s.Dokument(i);
        p.Bestand += p.Produktion;
        if (p.Bestand > 9500) p.Bestand = 9500;
        if (s.ProduktionAn == -1 && p.Bestand > 900 && (p.Bestand - p.Produktion) / 1000 < p.Bestand / 1000) {
            const std::string ware = p.Ware >= 1 && p.Ware <= 20 ? s.WarenName(p.Ware) : std::string();
            MELDUNG_NEU(s, PlanetenName(s, i) + " meldet " + std::to_string(p.Bestand / 100) + "t " + ware, WEISS, i);
        }
    }
}

// --- ships ------------------------------------------------------------------

void SCHIFF_FLUG(Spiel& s, int i) {
    Schiff& sch = s.Schiffe(i);
    const int j = static_cast<int>(s.Jahr % 2);
    const bool xxl = sch.Typ == TYP_GROSSFRACHTER;
    if (sch.Supersprit == 0) {
        sch.Treibstoff -= xxl ? 0.5f : 1.0f;
        sch.Dauer = static_cast<Integer>(sch.Dauer - (sch.Typ == TYP_SCOUT ? 2 : 1));
    } else {
        if (sch.Dauer == 1) sch.Treibstoff -= xxl ? 0.5f : 1.0f;
        else sch.Treibstoff -= xxl ? 0.5f + j / 2.0f : 1.0f + j;
        sch.Dauer = static_cast<Integer>(sch.Dauer - (sch.Typ == TYP_SCOUT ? 3 : 1 + j));
    }
    if (sch.Treibstoff < 0) {
        MELDUNG_NEU(s, LABEL(s, i) + " ist verloren: Treibstoffmangel", ROT);
        Verlust(s);
        const int partner = sch.Partner;
        SCHIFF_ENTFERNEN(s, i);
        if (partner > 0 && partner <= MAX_SCHIFFE) {
            MELDUNG_NEU(s, LABEL(s, partner) + " ist ebenfalls verloren!", ROT);
            Verlust(s);
            SCHIFF_ENTFERNEN(s, partner);
        }
    }
    if (sch.Dauer < 1 && IstSpielerBesitz(sch)) SCHIFF_LANDUNG(s, i);
}

void SCHIFF_LANDUNG(Spiel& s, int i) {
    Schiff& sch = s.Schiffe(i);
    sch.Dauer = sch.Zustand = sch.StartPlanet = 0;
    Schiff* partner = sch.Partner > 0 && sch.Partner <= MAX_SCHIFFE ? &s.Schiffe(sch.Partner) : nullptr;
    if (partner) {
        partner->Planet = sch.Planet;
        partner->StartPlanet = 0;
    }
    MELDUNG_NEU(s, (LABEL(s, i) + " (" + s.SpielerName(sch.Besitzer) + ") gelandet auf " + PlanetenName(s, sch.Planet)).substr(0, 40),
                CYAN);
    if ((sch.Typ == TYP_FRACHTER || sch.Typ == TYP_GROSSFRACHTER) && sch.Planet == SOL_III) {
        // Home: the goods go into the storage; a portal and devices stay aboard.
        auto entladen = [&](Schiff& f) {
            for (int g = 1; g <= 20; ++g) {
                const int neu = s.Lager(g, sch.Besitzer) + f.Fracht(g);
                s.Lager(g, sch.Besitzer) = static_cast<Integer>(neu > 32767 ? 32767 : neu);
                f.Fracht(g) = 0;
            }
            f.Ladung = static_cast<Integer>(f.Laderaum * f.Fracht(FRACHT_PORTAL) + 2 * f.Fracht(FRACHT_GERAETE));
        };
        entladen(sch);
        if (partner) entladen(*partner);
    } else if (sch.Planet > SOL_III && s.Dokument(sch.Planet).Produktion == 0) {
        const int e = ENTFERNUNG(s, SOL_III, sch.Planet);
        MELDUNG_NEU(s, T("    Erstlandungsprämie: ") + std::to_string(2 * e), CYAN);
        s.Bargeld(sch.Besitzer) += 2 * e;
        Planet& p = s.Dokument(sch.Planet);
        p.Produktion = static_cast<Integer>(ZufallGanz(s, 5, 14));
        p.Bestand = 100 * ZufallGanz(s, 4, 9);
        p.Preis = static_cast<Integer>(ZufallGanz(s, 0, 5) + 3 * p.Ware - 2);
    }
}

void STATION_JAHR(Spiel& s, int i) {
    Schiff& st = s.Schiffe(i);
    st.Treibstoff -= 0.25f;
    if (st.Treibstoff < 0) {
        MELDUNG_NEU(s, "TSR " + std::to_string(i) + T(" abgestürzt!"), ROT);
        Verlust(s);
        SCHIFF_ENTFERNEN(s, i);
        st.Partner = 0;
        st.Planet = SOL_III;
        return;
    }
    if (st.Treibstoff < 1) MELDUNG_NEU(s, "TSR " + std::to_string(i) + ": Absturz droht!", CYAN);
    Planet& p = s.Dokument(st.Planet);
    if (p.Bestand < 100 || p.Ware < 1 || p.Ware > 20) return;
    const int t = p.Bestand / 100;
    if (t + st.Ladung <= st.Laderaum) {
        st.Ladung = static_cast<Integer>(st.Ladung + t);
        st.Fracht(p.Ware) = static_cast<Integer>(st.Fracht(p.Ware) + t);
        s.Bargeld(st.Besitzer) -= t * p.Preis;
        EINSTATISTIK(s, EST_WARENEINKAUF, t * p.Preis);
        p.Bestand %= 100;
    } else {
        MELDUNG_NEU(s, "TSR " + std::to_string(i) + T(" ist übervoll!"), CYAN);
        const int r = st.Laderaum - st.Ladung;
        st.Fracht(p.Ware) = static_cast<Integer>(st.Fracht(p.Ware) + r);
        s.Bargeld(st.Besitzer) -= r * p.Preis;
        p.Bestand -= 100 * r;
        st.Ladung = st.Laderaum;
    }
}

void WERFT_JAHR(Spiel& s, int i) {
    Schiff& sch = s.Schiffe(i);
    sch.Dauer = static_cast<Integer>(sch.Dauer - 1);
    const int auftrag = sch.Zustand >= ZUSTAND_WERFT_DTW && sch.Zustand <= ZUSTAND_WERFT_BAU ? -sch.Zustand : 5;
    EINSTATISTIK(s, EST_DOCK_BELEGT, 1);
    EINSTATISTIK(s, EST_BELEGT_BAU + (auftrag - 1), 1);  // by job, from building on
    if (sch.Dauer != 0) return;
    const int p = sch.Besitzer;
    if (p < 1 || p > 6) return;
    const int m = DockPlaetze(s, p);
    for (int k = 1; k <= m; ++k)
        if (s.DockSchiffe(k, p) == i) s.DockSchiffe(k, p) = 0;
    static const char* const ENDE[] = {"", ") wurde fertig gebaut!", ") hat neuen Laderaum!", ") hat neue Bewaffnung!",
                                       ") wurde repariert!", ") hat den DTW-Filter!"};
    MELDUNG_NEU(s, LABEL(s, i) + " (" + s.SpielerName(p) + ENDE[auftrag], CYAN);
    sch.Zustand = ZUSTAND_RUHT;
    for (int k = 1; k <= m - 1; ++k)
        if (s.DockSchiffe(k, p) == 0) {
            s.DockSchiffe(k, p) = s.DockSchiffe(k + 1, p);
            s.DockSchiffe(k + 1, p) = 0;
        }
}

void ABNUTZUNG(Spiel& s, int i) {
    Schiff& sch = s.Schiffe(i);
    if (sch.Besitzer <= 0) return;
    if (!(Rnd(s) < 0.01f)) return;
    if (sch.Besitzer == BESITZER_PIRATEN) {
        if (!(Rnd(s) > 0.7f)) return;
    } else if (InWerft(sch)) {
        return;
    }
    MELDUNG_NEU(s, LABEL(s, i) + " : Leichter Abnutzungsschaden", CYAN);
    sch.Schaden = static_cast<Integer>(sch.Schaden + ZufallGanz(s, 5, 9));
}

void HAENDLER_JAHR(Spiel& s) {
    for (int i = HAENDLER_ERSTES; i <= HAENDLER_LETZTES; ++i) {
        Schiff& h = s.Schiffe(i);
        if (h.Zustand == ZUSTAND_FLIEGT) {
            h.Dauer = static_cast<Integer>(h.Dauer - 1);
            if (h.Dauer == 0) h.Zustand = ZUSTAND_RUHT;
            continue;
        }
        if (!(Rnd(s) < 0.2f) || s.AnzahlPlaneten <= 0) continue;
        // A merchant with no planet near enough stays where it is this year.
        int z = 0, d = 0, zuege = 0;
        do {
            z = static_cast<int>(Rnd(s) * s.AnzahlPlaneten + 11);
            d = ENTFERNUNG(s, h.Planet, z);
        } while (!(d < 31 && z != h.Planet) && ++zuege < HAENDLER_ZUEGE);
        if (zuege == HAENDLER_ZUEGE) continue;
        h.Zustand = ZUSTAND_FLIEGT;
        h.Dauer = static_cast<Integer>(d);
        h.Planet = static_cast<Integer>(z);
    }
}

