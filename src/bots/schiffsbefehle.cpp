// The orders of a computer player's ships, type by type: freighters trade
// on tours and carry equipment, cruisers hunt pirates, scouts explore,
// tankers fill the stations that freighters tow out.
#include <algorithm>
#include <string>

#include "bots/computerspieler.h"
#include "bots/strategie_intern.h"
#include "state/codes.h"
#include "state/sterne.h"

using namespace bots;

bool Computerspieler::handelsschiff(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int p = s_.AktSpieler;
    const int hier = sch.Planet;
    const Long geld = s_.Bargeld(p);
    if (sch.Zustand == ZUSTAND_FLIEGT) {
        // Called back when the pirates' headquarters stands at the target.
        if (Da(l, P_NOTRUF) && hier == s_.Schiffe(PIRATEN_HQ).Planet) {
            befehl(nr, l, P_NOTRUF);
            return true;
        }
        return false;
    }
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (Da(l, P_TANKEN_SOL)) {
            befehl(nr, l, P_TANKEN_SOL);
            taste("ENTER");
            taste("ENTER");
            return true;
        }
        if (Da(l, P_AUSRUESTUNG) && sch.Partner == 0) {
            // The equipment list: repair set, devices, portal.
            std::vector<std::string> a(4);
            if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s_, ERF_REPARATURSET, p)) a[1].push_back('R');
            if (sch.Ladung + 1 < sch.Laderaum && Erfunden(s_, ERF_GERAETE, p)) a[2].push_back('G');
            if (Erfunden(s_, ERF_PORTAL, p) && sch.Ladung == 0 && sch.Laderaum >= 100) a[3].push_back('P');
            int portale = 0;
            for (int i = 1; i <= s_.HoechstesSchiff; ++i) portale += s_.Schiffe(i).Besitzer == p && s_.Schiffe(i).Fracht(FRACHT_PORTAL) == 1;
            int wahl = 0;
            if (!a[3].empty() && geld > 150000 && portale == 0) wahl = 3;
            else if (!a[1].empty() && geld > 8000) wahl = 1;
            else if (!a[2].empty() && sch.Fracht(FRACHT_GERAETE) == 0 && geld > 3000) wahl = 2;
            if (wahl) {
                int von = 1;
                while (a[static_cast<size_t>(von)].empty()) ++von;
                befehl(nr, l, P_AUSRUESTUNG);
                auswahlGehen(a, von, wahl);
                taste("ENTER");
                if (wahl == 2) tippen(std::to_string(std::min<long>(5, (sch.Laderaum - sch.Ladung) / 2)));
                taste("ENTER");
                return true;
            }
        }
        if (!Da(l, P_START)) return false;
        int ziel = sch.Fracht(FRACHT_PORTAL) == 1 ? 0 : handelsziel(nr, SOL_III);
        if (ziel == 0 || wuerfel(4) == 0) {
            const int neu = erkundungsziel(nr, SOL_III);
            if (neu) ziel = neu;
        }
        if (ziel == 0 && sch.Fracht(FRACHT_PORTAL) == 1) {
            // A portal goes to the farthest planet in reach that has none.
            for (auto it = nah_.rbegin(); it != nah_.rend() && !ziel; ++it)
                if (s_.Dokument(*it).Portal == 0 && erreichbar(nr, SOL_III, *it, true)) ziel = *it;
        }
        if (ziel == 0) return false;
        ziele_.insert(ziel);
        befehl(nr, l, P_START);
        zielTasten(nr, ziel);
        return true;
    }
    // Away from home; a towed station is set down first.
    if (sch.Partner != 0) return false;
    const Planet& pl = s_.Dokument(hier);
    if (Da(l, P_PORTAL)) {
        befehl(nr, l, P_PORTAL);
        taste("ENTER");
        return true;
    }
    if (Da(l, P_GERAET) && pl.Produktion < 30) {
        befehl(nr, l, P_GERAET);
        taste("ENTER");
        return true;
    }
    if (Da(l, P_REPARATUR)) {
        befehl(nr, l, P_REPARATUR);
        taste("ENTER");
        return true;
    }
    const long waren = sch.Ladung - 2L * sch.Fracht(FRACHT_GERAETE);
    if (Da(l, P_HANDELN) && waren > 0 && wuerfel(2) == 0) {
        befehl(nr, l, P_HANDELN);
        taste("ENTER");
        return true;
    }
    const bool lohnt = Lohnend(s_, pl.Ware, pl.Preis);
    const std::string geladen = std::string("lade").append(std::to_string(nr));
    if (Da(l, P_VOM_PLANETEN) && lohnt && geld >= 10L * pl.Preis + 60 && !erledigt_.count(geladen)) {
        erledigt_.insert(geladen);
        angewiesen_.erase(nr);  // and then on its way
        befehl(nr, l, P_VOM_PLANETEN);
        taste("M");
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START) && !Da(l, P_TELEPORT)) return false;
    if (Da(l, P_START) && sch.Ladung + 2 < sch.Laderaum && sch.Fracht(FRACHT_PORTAL) == 0) {
        // A tour through the system: the next planet to discover or with stock to buy.
        const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
        int ziel = 0;
        long weg = 1000000;
        for (int t = System(hier) * 10 + 1; t <= System(hier) * 10 + 10; ++t) {
            const Planet& z = s_.Dokument(t);
            if (t == hier || t == hq || t > s_.AnzahlPlaneten + 10 || ziele_.count(t)) continue;
            const bool neu = z.Produktion == 0;
            const bool ware = z.Bestand >= 300 && Lohnend(s_, z.Ware, z.Preis);
            if (!neu && !ware) continue;
            const long d = ENTFERNUNG(s_, hier, t);
            if (d < weg && erreichbar(nr, hier, t, true)) {
                weg = d;
                ziel = t;
            }
        }
        if (ziel) {
            ziele_.insert(ziel);
            befehl(nr, l, P_START);
            zielTasten(nr, ziel);
            return true;
        }
    }
    if (waren <= 0 && sch.Fracht(FRACHT_PORTAL) == 0) {
        int ziel = handelsziel(nr, hier);
        if (ziel == 0) ziel = erkundungsziel(nr, hier);
        if (ziel && Da(l, P_START)) {
            ziele_.insert(ziel);
            befehl(nr, l, P_START);
            zielTasten(nr, ziel);
            return true;
        }
    }
    if (Da(l, P_TELEPORT) && waren > 0 && wuerfel(3) == 0) {
        befehl(nr, l, P_TELEPORT);
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START) || !erreichbar(nr, hier, SOL_III, false)) return false;
    befehl(nr, l, P_START);
    zielTasten(nr, SOL_III);
    return true;
}

bool Computerspieler::kreuzer(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hier = sch.Planet;
    if (sch.Zustand == ZUSTAND_ANGRIFF) {
        if (Da(l, P_ANGRIFF_ENDE) && sch.Schaden > 60) {
            befehl(nr, l, P_ANGRIFF_ENDE);
            return true;
        }
        return false;
    }
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (Da(l, P_TANKEN_SOL)) {
            befehl(nr, l, P_TANKEN_SOL);
            taste("ENTER");
            taste("ENTER");
            return true;
        }
        if (sch.Bewaffnung == 0 || sch.Schaden >= 25 || !Da(l, P_START)) return false;
        const int ziel = piratenziel(nr, SOL_III);
        if (!ziel) return false;
        befehl(nr, l, P_START);
        zielTasten(nr, ziel);
        return true;
    }
    // Only pirates and their headquarters are fought, never another house.
    bool pirat = hier == s_.Schiffe(PIRATEN_HQ).Planet;
    for (int i = 1; i <= s_.HoechstesSchiff && !pirat; ++i) {
        const Schiff& o = s_.Schiffe(i);
        pirat = !IstFrei(o) && IstPirat(o) && o.Planet == hier && (o.Zustand == ZUSTAND_RUHT || o.Zustand == ZUSTAND_ANGRIFF);
    }
    if (Da(l, P_ANGRIFF) && pirat && sch.Bewaffnung > 0 && sch.Schaden < 50) {
        befehl(nr, l, P_ANGRIFF);
        if (hier == s_.Schiffe(PIRATEN_HQ).Planet) {
            taste("ENTER");  // ja
        } else {
            tasteBis("UP", 70, 660, "Piraten", 12);  // a pirate among the ships here
            taste("ENTER");
        }
        return true;
    }
    if (Da(l, P_REPARATUR)) {
        befehl(nr, l, P_REPARATUR);
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START)) return false;
    int ziel = sch.Schaden < 40 ? piratenziel(nr, hier) : 0;
    if (ziel == hier) ziel = 0;
    if (!ziel) {
        if (!erreichbar(nr, hier, SOL_III, false)) return false;
        ziel = SOL_III;
    }
    befehl(nr, l, P_START);
    zielTasten(nr, ziel);
    return true;
}

bool Computerspieler::scout(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hier = sch.Planet;
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III && Da(l, P_TANKEN_SOL)) {
        befehl(nr, l, P_TANKEN_SOL);
        // Supersprit for the fast ship when there are Mirellen in store.
        if (Erfunden(s_, ERF_SUPERSPRIT, s_.AktSpieler) && s_.Lager(WARE_MIRELLEN, s_.AktSpieler) > 0) taste("UP");
        taste("ENTER");
        taste("ENTER");
        return true;
    }
    if (!Da(l, P_START)) return false;
    int ziel = erkundungsziel(nr, hier);
    if (!ziel && hier != SOL_III && erreichbar(nr, hier, SOL_III, false)) ziel = SOL_III;
    if (!ziel) return false;
    ziele_.insert(ziel);
    befehl(nr, l, P_START);
    zielTasten(nr, ziel);
    return true;
}

bool Computerspieler::tanker(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int p = s_.AktSpieler;
    const int hier = sch.Planet;
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (Da(l, P_TANKEN_SOL)) {
            befehl(nr, l, P_TANKEN_SOL);
            taste("ENTER");
            taste("ENTER");
            return true;
        }
        if (Da(l, P_TANKER) && sch.Ladung < sch.Laderaum && s_.Bargeld(p) > 3000) {
            befehl(nr, l, P_TANKER);
            if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s_, ERF_REPARATURSET, p)) taste("ENTER");  // Tankeinheiten
            if (Erfunden(s_, ERF_SUPERSPRIT, p)) {
                taste("DOWN");  // normal fuel
                taste("ENTER");
            }
            taste("ENTER");
            return true;
        }
        if (sch.Ladung == 0 || !Da(l, P_START)) return false;
        // To a station of the house out in space.
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& st = s_.Schiffe(i);
            if (st.Besitzer != p || !IstStation(st) || st.Zustand != ZUSTAND_RUHT || st.Planet == SOL_III) continue;
            if (st.Ladung >= st.Laderaum || !erreichbar(nr, SOL_III, st.Planet, true)) continue;
            befehl(nr, l, P_START);
            zielTasten(nr, st.Planet);
            return true;
        }
        return false;
    }
    if (Da(l, P_ENTLADEN)) {
        befehl(nr, l, P_ENTLADEN);
        taste("ENTER");  // the station
        taste("ENTER");  // all of it
        return true;
    }
    if (!Da(l, P_START) || !erreichbar(nr, hier, SOL_III, false)) return false;
    befehl(nr, l, P_START);
    zielTasten(nr, SOL_III);
    return true;
}

bool Computerspieler::station(int nr, const std::vector<std::string>& l) {
    const Schiff& st = s_.Schiffe(nr);
    if (Da(l, P_ANKOPPELN) && st.Planet == SOL_III) {
        befehl(nr, l, P_ANKOPPELN);
        taste("ENTER");  // the first empty freighter
        return true;
    }
    if (Da(l, P_TRENNEN) && st.Partner > 0 && s_.Schiffe(st.Partner).Planet != SOL_III) {
        befehl(nr, l, P_TRENNEN);
        return true;
    }
    if (Da(l, P_TANKEN_SOL) && st.Planet == SOL_III) {
        befehl(nr, l, P_TANKEN_SOL);
        taste("ENTER");
        taste("ENTER");
        return true;
    }
    return false;
}
