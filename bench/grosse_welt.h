#pragma once
// The largest world the game knows: 400 systems, six players and pirates in
// 999 ships, travelling, resting, in the yard, stations on planets.
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
