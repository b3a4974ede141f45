#include "orders/anweisen.h"

#include "orders/fracht.h"
#include "orders/reisen.h"
#include "screen/ausgabe.h"
#include "screen/eingabe.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"

namespace {

enum Platz {
    P_START = 1, P_TELEPORTIEREN, P_BELADEN_STATION, P_BELADEN_PLANET, P_BELADEN_AUSRUESTUNG, P_BELADEN_TANKER,
    P_BETANKEN_SOL, P_BETANKEN_STATION, P_ENTLADEN, P_ANKOPPELN, P_TRENNEN, P_ANGRIFF, P_ANGRIFF_BEENDEN, P_NOTRUF,
    P_HANDELN, P_REPARATUR, P_GERAET_AUSLIEFERN, P_PORTAL_INSTALLIEREN
};

bool Erfunden(const Spiel& s, int k) { return s.Forschung(k, s.AktSpieler) == -1; }

// A station of any owner at rest on planet p, meeting the test.
template <class F>
bool StationHier(const Spiel& s, int p, F test) {
    for (int t = 1; t <= s.HoechstesSchiff; ++t) {
        const Schiff& st = s.Schiffe(t);
        if (st.Typ == "TSR " && st.Zustand == 0 && st.Planet == p && test(st)) return true;
    }
    return false;
}

bool Eigenes(const Spiel& s, int schiff) {
    return schiff >= 1 && schiff <= s.HoechstesSchiff && s.Schiffe(schiff).Besitzer == s.AktSpieler &&
           !s.Schiffe(schiff).Typ.empty();
}

// From n on in steps, round the ends, to the next ship of the player.
int Naechstes(const Spiel& s, int n, int schritt, int grenze) {
    for (int versuch = 0; versuch <= grenze + 1; ++versuch) {
        if (n > grenze) n = 1;
        if (n < 1) n = grenze;
        if (Eigenes(s, n)) return n;
        n += schritt;
    }
    return 0;
}

}  // namespace

std::vector<std::string> ANWEISUNGEN(const Spiel& s, int nr) {
    std::vector<std::string> l(19);
    const Schiff& sch = s.Schiffe(nr);
    const int p = sch.Planet;
    const Planet& pl = s.Dokument(p >= 1 && p <= MAX_PLANETEN ? p : SOL_III);
    const std::string& typ = sch.Typ;
    const bool haendler = typ == "SST " || typ == "XXL ";

    if (typ != "TSR " && sch.Zustand == 0) l[P_START] = "Start              ";
    if (sch.Zustand == 0 && pl.Portal == -1 && typ != "TSR ") l[P_TELEPORTIEREN] = "Teleportieren      ";
    const bool a = haendler && sch.Zustand == 0 && p > 3 && sch.Ladung < sch.Laderaum && sch.Partner == 0 &&
                   p != s.Schiffe(PIRATEN_HQ).Planet;
    if (a) {
        if (StationHier(s, p, [](const Schiff& st) { return st.Ladung > 0; })) l[P_BELADEN_STATION] = "Beladen            ";
        if (pl.Bestand >= 100) l[P_BELADEN_PLANET] = "Beladen            ";
    }
    // Equipment on Sol III: larger holds, the great tank, the repair set.
    const bool ersteDrei = haendler && sch.Zustand == 0 && p > 3;
    if (haendler && !ersteDrei && sch.Partner == 0 && p == 3 && sch.Zustand == 0) {
        if (sch.Ladung + 1 < sch.Laderaum && Erfunden(s, 8)) l[P_BELADEN_AUSRUESTUNG] = "Beladen           ";
        else if (Erfunden(s, 11) && sch.Ladung == 0 && sch.Laderaum >= 100) l[P_BELADEN_AUSRUESTUNG] = "Beladen            ";
    }
    if (typ != "TST " && p == 3 && (sch.Zustand == 0 || sch.Zustand == 10) && Erfunden(s, 3) && sch.Fracht(22) == 0)
        l[P_BELADEN_AUSRUESTUNG] = "Beladen           ";
    if (typ == "TST " && sch.Zustand == 0) {
        const bool stationMitTank =
            StationHier(s, p, [](const Schiff& st) { return st.Fracht(21) + st.Fracht(23) > 0; });
        if ((p == 3 && sch.Ladung < sch.Laderaum) || (p == 3 && sch.Fracht(22) == 0) ||
            (sch.Ladung < sch.Laderaum && stationMitTank))
            l[P_BELADEN_TANKER] = "Beladen           ";
    }
    if (sch.Treibstoff < sch.Tankgroesse && sch.Zustand == 0 && p == 3) l[P_BETANKEN_SOL] = "Betanken          ";
    if (sch.Treibstoff < sch.Tankgroesse && sch.Zustand == 0 && p != 3 &&
        StationHier(s, p, [](const Schiff& st) { return st.Fracht(21) + st.Fracht(23) > 0; }))
        l[P_BETANKEN_STATION] = "Betanken           ";
    if (typ != "TSR " && sch.Fracht(25) == 0 && sch.Zustand == 0 && sch.Ladung > 0 &&
        StationHier(s, p, [](const Schiff& st) { return st.Ladung < st.Laderaum; }))
        l[P_ENTLADEN] = "Entladen          ";
    if (typ == "TSR " && sch.Zustand == 0) {
        for (int t = 1; t <= s.HoechstesSchiff; ++t) {
            const Schiff& f = s.Schiffe(t);
            if (f.Besitzer == s.AktSpieler && f.Typ == "SST " && f.Zustand == 0 && f.Planet == p && f.Ladung == 0 &&
                f.Partner == 0) {
                l[P_ANKOPPELN] = "Ankoppeln          ";
                break;
            }
        }
    }
    if (typ == "TSR " && sch.Zustand == 10 && sch.Partner >= 1 && sch.Partner <= MAX_SCHIFFE &&
        s.Schiffe(sch.Partner).Zustand == 0)
        l[P_TRENNEN] = "Trennen            ";
    if (typ == "FSS " && sch.Zustand == 0 && p > 3) {
        bool ziel = p == s.Schiffe(PIRATEN_HQ).Planet;
        for (int t = 1; t <= s.HoechstesSchiff && !ziel; ++t) {
            const Schiff& g = s.Schiffe(t);
            if (g.Planet != p || g.Besitzer == sch.Besitzer || g.Typ.empty()) continue;
            const bool partnerRuht = g.Partner >= 1 && g.Partner <= MAX_SCHIFFE && s.Schiffe(g.Partner).Zustand == 0;
            ziel = g.Zustand == 0 || g.Zustand == 2 || (g.Zustand == 10 && partnerRuht);
        }
        if (ziel) l[P_ANGRIFF] = p == s.Schiffe(PIRATEN_HQ).Planet ? "Angriff           " : "Angriff            ";
    }
    if (sch.Zustand == 2) l[P_ANGRIFF_BEENDEN] = "Angriff beenden    ";
    if (sch.Zustand == 1 && sch.StartPlanet >= 0) l[P_NOTRUF] = "Notruf             ";
    if (sch.Zustand == 0 && sch.Partner == 0 && haendler) {
        for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h)
            if (s.Schiffe(h).Planet == p && s.Schiffe(h).Zustand == 0) {
                l[P_HANDELN] = "Handeln            ";
                break;
            }
    }
    if (sch.Fracht(22) == 1 && sch.Schaden > 0 && sch.Zustand == 0) l[P_REPARATUR] = "Reparatur          ";
    if (sch.Fracht(24) > 0 && sch.Zustand == 0 && p > 3) l[P_GERAET_AUSLIEFERN] = T("Gerät ausliefern   ");
    if (sch.Fracht(25) == 1 && sch.Zustand == 0 && p > 3 && pl.Portal == 0) l[P_PORTAL_INSTALLIEREN] = "Portal installieren";
    return l;
}

void SCHIFFE_ANWEISEN(Spiel& s) {
    int nr = s.LetztesSchiff;
    if (nr == 0) {
        for (int i = 1; i <= s.HoechstesSchiff && nr == 0; ++i)
            if (Eigenes(s, i)) nr = i;
        if (nr == 0) return;
    }
    SCHIFF_ANZEIGEN(s, nr);
    TEXT_AUSGEBEN(s, T("Bitte Raumschiff wählen!"), 15, 50, 630, WEISS);

    std::vector<std::string> liste;
    int von = 0, bis = 0;
    bool klick = false;
    for (;;) {
        // Choosing the ship.
        klick = false;
        s.TasteDa = 0;
        bool gewaehlt = false;
        while (!gewaehlt) {
            s.plattform->schlafen(5);
            DoEvents(s);
            if (s.MausSchiff > 0) {
                nr = static_cast<int>(s.MausSchiff);
                SCHIFF_ANZEIGEN(s, nr);
                s.MausSchiff = -1;
                s.TasteDa = -1;
                s.TastenCode = Taste::Enter;
                klick = true;
            } else if (s.MausSchiff == 0 || s.TasteDa == 0) {
                continue;
            }
            const int c = s.TastenCode;
            const int h = s.HoechstesSchiff;
            switch (c) {
                case Taste::Hoch: nr = Naechstes(s, nr + 1, 1, h); SCHIFF_ANZEIGEN(s, nr); break;
                case Taste::Runter: nr = Naechstes(s, nr - 1, -1, h); SCHIFF_ANZEIGEN(s, nr); break;
                case Taste::BildAuf:
                    nr = Naechstes(s, nr + 11 > h ? 1 : nr + 11, 1, h);
                    SCHIFF_ANZEIGEN(s, nr);
                    break;
                case Taste::BildAb:
                    nr = Naechstes(s, nr - 11 < 1 ? h : nr - 11, -1, h);
                    SCHIFF_ANZEIGEN(s, nr);
                    break;
                case Taste::Esc: return;
                case Taste::Enter: gewaehlt = true; break;
                case Taste::Leer: {
                    long n = 0;
                    auto zeigen = [&] {
                        TEXT_AUSGEBEN(s, "Nummer: " + Space(4 - static_cast<int>(Str(n).size())) + std::to_string(n), 15,
                                      50, 660, ROT);
                    };
                    zeigen();
                    s.TasteDa = 0;
                    for (;;) {
                        s.plattform->schlafen(5);
                        DoEvents(s);
                        if (s.TasteDa == 0) continue;
                        const int k = s.TastenCode;
                        if (k == Taste::Enter) break;
                        s.TasteDa = 0;
                        if (k == Taste::Esc) return;
                        if (k >= '0' && k <= '9' && n * 10 + (k - '0') < 1000) n = n * 10 + (k - '0');
                        else if (k == Taste::Backspace) n /= 10;
                        zeigen();
                    }
                    s.TasteDa = 0;
                    TEXT_AUSGEBEN(s, Space(13), 15, 50, 660, WEISS);
                    if (n == 0) n = 1;
                    const int gefunden = Naechstes(s, static_cast<int>(n), 1, 999);
                    if (gefunden) nr = gefunden;
                    SCHIFF_ANZEIGEN(s, nr);
                    break;
                }
                default: break;
            }
            if (!gewaehlt) s.TasteDa = 0;
        }
        if (s.Schiffe(nr).Zustand < 0) {
            if (klick) continue;
            TEXT_AUSGEBEN(s, "Raumschiff ist in der Werft!", 15, 50, 660, WEISS);
            DoEvents(s);
            Warten(s, 1000);
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
            TEXT_AUSGEBEN(s, T("Keine Anweisung möglich!"), 15, 50, 660, WEISS);
            DoEvents(s);
            Warten(s, 1000);
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
            case P_NOTRUF: ORDER_NOTRUF(s, nr); break;
            default: break;  // attacks and the special orders come with their own work
        }
        if (a == Ausgang::Ende) return;
    }
}
