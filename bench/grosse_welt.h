#pragma once
// The largest world the game knows: 400 systems, six players and pirates in
// 999 ships, travelling, resting, in the yard, stations on planets.
#include <vector>

#include "state/codes.h"
#include "state/regeln.h"
#include "state/spiel.h"
#include "state/sterne.h"
#include "state/zufall.h"

inline bool GrosseWeltBauen(Spiel& s, uint32_t saat) {
    Randomize(s, saat);
    s.AnzahlSpieler = 6;
    VORBELEGUNG_VARIABLEN(s);
    s.AnzahlPlaneten = 4000;
    if (!STERNE_NEU(s)) return false;
    s.ProduktionAn = -1;
    s.Nachfrage = 2;
    for (int p = 1; p <= 6; ++p) {
        s.SpielerName(p) = "Spieler" + std::to_string(p);
        s.Rang(p) = 1;
        s.Bargeld(p) = 50000;
    }
    for (int g = 1; g <= 20; ++g) s.AltPreis(g) = s.Preis(g);  // every good on the board
    static const char* const TYPEN[] = {"SST ", "TST ", "FSS ", " XS ", "TSR ", "XXL "};
    for (int i = 1; i <= 999; ++i) {
        Schiff& sch = s.Schiffe(i);
        const bool pirat = i % 7 == 0;
        sch.Typ = pirat ? "FSS " : TYPEN[i % 6];
        sch.Name = pirat ? "Kreuzer    " : "Schiff";
        sch.Besitzer = static_cast<Integer>(pirat ? 7 : 1 + i % 6);
        sch.Tankgroesse = 30;
        sch.Treibstoff = static_cast<Single>(5 + ZufallGanz(s, 0, 25));
        sch.Laderaum = sch.Typ == "TSR " ? 90 : 10;
        sch.Planet = static_cast<Integer>(ZufallGanz(s, 11, 4010));
        switch (i % 4) {
            case 0:
            case 1:
                if (sch.Typ != "TSR ") {
                    sch.Zustand = 1;
                    sch.StartPlanet = static_cast<Integer>(ZufallGanz(s, 11, 4010));
                    sch.Dauer = static_cast<Integer>(ENTFERNUNG(s, sch.StartPlanet, sch.Planet));
                }
                break;
            case 2:
                if (i % 3 == 0 && !pirat) {
                    sch.Zustand = -1;
                    sch.Dauer = 10;
                    sch.Planet = SOL_III;
                }
                break;
            default: break;
        }
    }
    s.HoechstesSchiff = 999;
    return true;
}

// The same world at war: armed cruisers, players' cruisers at the pirates and
// at the headquarters, damaged ships, freighters with goods and coupled
// stations, yard ships in their owners' docks, and planets with stock to rob.
inline void GrosseWeltRuesten(Spiel& s) {
    for (int n = 11; n <= s.AnzahlPlaneten + 10; n += 3) {
        Planet& p = s.Dokument(n);
        p.Produktion = static_cast<Integer>(ZufallGanz(s, 5, 14));
        p.Bestand = 100 * ZufallGanz(s, 4, 60);
        p.Preis = static_cast<Integer>(ZufallGanz(s, 0, 5) + 3 * p.Ware - 2);
    }
    std::vector<int> piraten;
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& sch = s.Schiffe(i);
        if (IstKreuzer(sch)) sch.Bewaffnung = static_cast<Integer>(IstPirat(sch) ? ZufallGanz(s, 4, 12) : ZufallGanz(s, 2, 15));
        if (IstFrachter(sch)) {
            sch.Bewaffnung = static_cast<Integer>(ZufallGanz(s, 0, 2));
            sch.Laderaum = 50;
            sch.Fracht(1 + i % ANZAHL_WAREN) = 30;
            sch.Ladung = 30;
        }
        if (i % 5 == 0) sch.Schaden = static_cast<Integer>(ZufallGanz(s, 40, 95));
        if (IstPirat(sch) && sch.Zustand == ZUSTAND_RUHT) piraten.push_back(i);
    }
    // Every player's cruiser at rest goes to war: most against a pirate at
    // rest, every fourth against the headquarters.
    const int hq = s.Schiffe(PIRATEN_HQ).Planet;
    size_t naechster = 0;
    int kreuzer = 0;
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& sch = s.Schiffe(i);
        if (!IstKreuzer(sch) || IstPirat(sch) || sch.Zustand != ZUSTAND_RUHT) continue;
        if (++kreuzer % 4 == 0 && hq > 0) {
            sch.Planet = static_cast<Integer>(hq);
            sch.Zustand = ZUSTAND_ANGRIFF;
            sch.Partner = PIRATEN_HQ;
        } else if (!piraten.empty()) {
            const int p = piraten[naechster++ % piraten.size()];
            sch.Planet = s.Schiffe(p).Planet;
            sch.Zustand = ZUSTAND_ANGRIFF;
            sch.Partner = static_cast<Integer>(p);
        }
    }
    // Stations coupled to freighters, at rest and in flight.
    int station = 1;
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& f = s.Schiffe(i);
        if (!IstFrachter(f) || f.Zustand < 0 || i % 2 != 0) continue;
        while (station <= s.HoechstesSchiff &&
               !(IstStation(s.Schiffe(station)) && s.Schiffe(station).Zustand == ZUSTAND_RUHT && s.Schiffe(station).Partner == 0))
            ++station;
        if (station > s.HoechstesSchiff) break;
        Schiff& st = s.Schiffe(station);
        st.Besitzer = f.Besitzer;
        st.Zustand = ZUSTAND_GEKOPPELT;
        st.Planet = f.Planet;
        st.Partner = static_cast<Integer>(i);
        f.Partner = static_cast<Integer>(station);
    }
    // The yard: as many ships as each owner has places, in his dock list.
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& sch = s.Schiffe(i);
        if (!InWerft(sch)) continue;
        const int p = sch.Besitzer;
        int platz = 1;
        while (platz <= DockPlaetze(s, p) && s.DockSchiffe(platz, p) != 0) ++platz;
        if (platz <= DockPlaetze(s, p)) {
            s.DockSchiffe(platz, p) = static_cast<Integer>(i);
        } else {
            sch.Zustand = ZUSTAND_RUHT;
            sch.Dauer = 0;
        }
    }
}
