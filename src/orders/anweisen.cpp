#include "orders/anweisen.h"

#include "orders/angriff.h"
#include "orders/fracht.h"
#include "orders/reisen.h"
#include "orders/sonder.h"
#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"
#include "state/codes.h"

namespace {

enum Platz {
    P_START = 1, P_TELEPORTIEREN, P_BELADEN_STATION, P_BELADEN_PLANET, P_BELADEN_AUSRUESTUNG, P_BELADEN_TANKER,
    P_BETANKEN_SOL, P_BETANKEN_STATION, P_ENTLADEN, P_ANKOPPELN, P_TRENNEN, P_ANGRIFF, P_ANGRIFF_BEENDEN, P_NOTRUF,
    P_HANDELN, P_REPARATUR, P_GERAET_AUSLIEFERN, P_PORTAL_INSTALLIEREN
};

bool Erfunden(const Spiel& s, int k) { return ::Erfunden(s, k, s.AktSpieler); }

// A station of any owner at rest on planet p, meeting the test.
template <class F>
bool StationHier(const Spiel& s, int p, F test) {
    for (int t = 1; t <= s.HoechstesSchiff; ++t) {
        const Schiff& st = s.Schiffe(t);
        if (st.Typ == TYP_STATION && st.Zustand == ZUSTAND_RUHT && st.Planet == p && test(st)) return true;
    }
    return false;
}

bool Eigenes(const Spiel& s, int schiff) {
    return schiff >= 1 && schiff <= s.HoechstesSchiff && s.Schiffe(schiff).Besitzer == s.AktSpieler &&
           !s.Schiffe(schiff).Typ.empty();
}

}  // namespace

std::vector<std::string> ANWEISUNGEN(const Spiel& s, int nr) {
    std::vector<std::string> l(19);
    const Schiff& sch = s.Schiffe(nr);
    const int p = sch.Planet;
    const Planet& pl = s.Dokument(p >= 1 && p <= MAX_PLANETEN ? p : SOL_III);
    const std::string& typ = sch.Typ;
    const bool haendler = typ == TYP_FRACHTER || typ == TYP_GROSSFRACHTER;

    if (typ != TYP_STATION && sch.Zustand == ZUSTAND_RUHT) l[P_START] = "Start              ";
    if (sch.Zustand == ZUSTAND_RUHT && pl.Portal == -1 && typ != TYP_STATION) l[P_TELEPORTIEREN] = "Teleportieren      ";
    const bool a = haendler && sch.Zustand == ZUSTAND_RUHT && p > SOL_III && sch.Ladung < sch.Laderaum && sch.Partner == 0 &&
                   p != s.Schiffe(PIRATEN_HQ).Planet;
    if (a) {
        if (StationHier(s, p, [](const Schiff& st) { return st.Ladung > 0; })) l[P_BELADEN_STATION] = "Beladen            ";
        if (pl.Bestand >= 100) l[P_BELADEN_PLANET] = "Beladen            ";
    }
    // Equipment on Sol III: larger holds, the great tank, the repair set.
    const bool ersteDrei = haendler && sch.Zustand == ZUSTAND_RUHT && p > SOL_III;
    if (haendler && !ersteDrei && sch.Partner == 0 && p == SOL_III && sch.Zustand == ZUSTAND_RUHT) {
        if (sch.Ladung + 1 < sch.Laderaum && Erfunden(s, ERF_GERAETE)) l[P_BELADEN_AUSRUESTUNG] = "Beladen           ";
        else if (Erfunden(s, ERF_PORTAL) && sch.Ladung == 0 && sch.Laderaum >= 100) l[P_BELADEN_AUSRUESTUNG] = "Beladen            ";
    }
    if (typ != TYP_TANKER && p == SOL_III && (sch.Zustand == ZUSTAND_RUHT || sch.Zustand == ZUSTAND_GEKOPPELT) && Erfunden(s, ERF_REPARATURSET) && sch.Fracht(FRACHT_REPARATURSET) == 0)
        l[P_BELADEN_AUSRUESTUNG] = "Beladen           ";
    if (typ == TYP_TANKER && sch.Zustand == ZUSTAND_RUHT) {
        const bool stationMitTank =
            StationHier(s, p, [](const Schiff& st) { return st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT) > 0; });
        if ((p == SOL_III && sch.Ladung < sch.Laderaum) || (p == SOL_III && sch.Fracht(FRACHT_REPARATURSET) == 0) ||
            (sch.Ladung < sch.Laderaum && stationMitTank))
            l[P_BELADEN_TANKER] = "Beladen           ";
    }
    if (sch.Treibstoff < sch.Tankgroesse && sch.Zustand == ZUSTAND_RUHT && p == SOL_III) l[P_BETANKEN_SOL] = "Betanken          ";
    if (sch.Treibstoff < sch.Tankgroesse && sch.Zustand == ZUSTAND_RUHT && p != SOL_III &&
        StationHier(s, p, [](const Schiff& st) { return st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT) > 0; }))
        l[P_BETANKEN_STATION] = "Betanken           ";
    if (typ != TYP_STATION && sch.Fracht(FRACHT_PORTAL) == 0 && sch.Zustand == ZUSTAND_RUHT && sch.Ladung > 0 &&
        StationHier(s, p, [](const Schiff& st) { return st.Ladung < st.Laderaum; }))
        l[P_ENTLADEN] = "Entladen          ";
    if (typ == TYP_STATION && sch.Zustand == ZUSTAND_RUHT) {
        for (int t = 1; t <= s.HoechstesSchiff; ++t) {
            const Schiff& f = s.Schiffe(t);
            if (f.Besitzer == s.AktSpieler && f.Typ == TYP_FRACHTER && f.Zustand == ZUSTAND_RUHT && f.Planet == p && f.Ladung == 0 &&
                f.Partner == 0) {
                l[P_ANKOPPELN] = "Ankoppeln          ";
                break;
            }
        }
    }
    if (typ == TYP_STATION && sch.Zustand == ZUSTAND_GEKOPPELT && sch.Partner >= 1 && sch.Partner <= MAX_SCHIFFE &&
        s.Schiffe(sch.Partner).Zustand == ZUSTAND_RUHT)
        l[P_TRENNEN] = "Trennen            ";
    if (typ == TYP_KREUZER && sch.Zustand == ZUSTAND_RUHT && p > SOL_III) {
        bool ziel = p == s.Schiffe(PIRATEN_HQ).Planet;
        for (int t = 1; t <= s.HoechstesSchiff && !ziel; ++t) {
            const Schiff& g = s.Schiffe(t);
            if (g.Planet != p || g.Besitzer == sch.Besitzer || g.Typ.empty()) continue;
            const bool partnerRuht = g.Partner >= 1 && g.Partner <= MAX_SCHIFFE && s.Schiffe(g.Partner).Zustand == ZUSTAND_RUHT;
            ziel = g.Zustand == ZUSTAND_RUHT || g.Zustand == ZUSTAND_ANGRIFF || (g.Zustand == ZUSTAND_GEKOPPELT && partnerRuht);
        }
        if (ziel) l[P_ANGRIFF] = p == s.Schiffe(PIRATEN_HQ).Planet ? "Angriff           " : "Angriff            ";
    }
    if (sch.Zustand == ZUSTAND_ANGRIFF) l[P_ANGRIFF_BEENDEN] = "Angriff beenden    ";
    if (sch.Zustand == ZUSTAND_FLIEGT && sch.StartPlanet >= 0) l[P_NOTRUF] = "Notruf             ";
    if (sch.Zustand == ZUSTAND_RUHT && sch.Partner == 0 && haendler) {
        for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h)
            if (s.Schiffe(h).Planet == p && s.Schiffe(h).Zustand == ZUSTAND_RUHT) {
                l[P_HANDELN] = "Handeln            ";
                break;
            }
    }
    if (sch.Fracht(FRACHT_REPARATURSET) == 1 && sch.Schaden > 0 && sch.Zustand == ZUSTAND_RUHT) l[P_REPARATUR] = "Reparatur          ";
    if (sch.Fracht(FRACHT_GERAETE) > 0 && sch.Zustand == ZUSTAND_RUHT && p > SOL_III) l[P_GERAET_AUSLIEFERN] = T("Gerät ausliefern   ");
    if (sch.Fracht(FRACHT_PORTAL) == 1 && sch.Zustand == ZUSTAND_RUHT && p > SOL_III && pl.Portal == 0) l[P_PORTAL_INSTALLIEREN] = "Portal installieren";
    return l;
}

void SCHIFFE_ANWEISEN(Spiel& s) {
    int nr = s.LetztesSchiff;
    if (nr == 0) {
        nr = NAECHSTES_SCHIFF(1, 1, s.HoechstesSchiff, [&s](int n) { return Eigenes(s, n); });
        if (nr == 0) return;
    }
    SCHIFF_ANZEIGEN(s, nr);
    TEXT_AUSGEBEN(s, T("Bitte Raumschiff wählen!"), 15, 50, 630, WEISS);

    std::vector<std::string> liste;
    int von = 0, bis = 0;
    SchiffWahl wahl;
    wahl.passt = [&s](int n) { return Eigenes(s, n); };
    wahl.zeigen = [&s](int n) { SCHIFF_ANZEIGEN(s, n); };
    wahl.grenze = s.HoechstesSchiff;
    wahl.nummerY = 660;
    wahl.nummerBis = 999;
    wahl.nummerGrenze = 999;
    wahl.blaettern = true;
    wahl.maus = true;
    for (;;) {
        const Gewaehlt g = SCHIFF_WAEHLEN(s, nr, wahl);
        if (g.schiff == 0) return;
        nr = g.schiff;
        const bool klick = g.klick;
        if (InWerft(s.Schiffe(nr))) {
            if (klick) continue;
            ABLEHNEN(s, "Raumschiff ist in der Werft!", 660);
            return;
        }
        s.LetztesSchiff = static_cast<Integer>(nr);
        liste = ANWEISUNGEN(s, nr);
        von = bis = 0;
        for (int i = 1; i <= 18; ++i)
            if (!liste[static_cast<size_t>(i)].empty()) {
                if (von == 0) von = i;
                bis = i;
            }
        if (von == 0) {
            if (klick) continue;
            ABLEHNEN(s, T("Keine Anweisung möglich!"), 660);
            return;
        }
        break;
    }

    TEXT_AUSGEBEN(s, "Anweisung:                         ", 15, 50, 630, WEISS);
    if (s.AuswahlTasten.size() < 2) s.AuswahlTasten = {"", "*"};
    for (;;) {
        Long vorgabe = 1;
        AUSWAHL(s, liste, von, bis, 200, 630, 15, WEISS, vorgabe, s.AuswahlTasten);
        Ausgang a = Ausgang::Ende;
        switch (s.Eingabe) {
            case P_START: ORDER_START(s, nr); break;
            case P_TELEPORTIEREN: ORDER_TELEPORTIEREN(s, nr); break;
            case P_BELADEN_STATION: a = BELADEN_VON_STATION(s, nr); break;
            case P_BELADEN_PLANET: a = BELADEN_VOM_PLANETEN(s, nr); break;
            case P_BELADEN_AUSRUESTUNG: a = BELADEN_AUSRUESTUNG(s, nr); break;
            case P_BELADEN_TANKER: a = BELADEN_TANKER(s, nr); break;
            case P_BETANKEN_SOL: a = BETANKEN_SOL(s, nr); break;
            case P_BETANKEN_STATION: a = BETANKEN_STATION(s, nr); break;
            case P_ENTLADEN: a = ENTLADEN(s, nr); break;
            case P_ANKOPPELN: a = ANKOPPELN(s, nr); break;
            case P_TRENNEN: a = TRENNEN(s, nr); break;
            case P_ANGRIFF: ORDER_ANGRIFF(s, nr); break;
            case P_ANGRIFF_BEENDEN: ORDER_ANGRIFF_BEENDEN(s, nr); break;
            case P_NOTRUF: ORDER_NOTRUF(s, nr); break;
            case P_HANDELN: ORDER_HANDELN(s, nr); break;
            case P_REPARATUR: ORDER_REPARATUR(s, nr); break;
            case P_GERAET_AUSLIEFERN: ORDER_GERAET_AUSLIEFERN(s, nr); break;
            case P_PORTAL_INSTALLIEREN: ORDER_PORTAL_INSTALLIEREN(s, nr); break;
            default: break;
        }
        if (a == Ausgang::Ende) return;
    }
}
