// The orders of a computer player's ships, type by type: freighters explore,
// trade on tours, deal with merchants, tow stations out and carry equipment;
// cruisers hunt pirates and besiege the headquarters; scouts explore far;
// tankers keep the stations filled.
#include <algorithm>
#include <string>

#include "bots/computerspieler.h"
#include "bots/strategie_intern.h"
#include "state/codes.h"
#include "state/sterne.h"

using namespace bots;

namespace {

// The first station here with goods, and whether it is the house's own.
int StationMitWaren(const Spiel& s, int planet) {
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        const Schiff& st = s.Schiffe(i);
        if (IstStation(st) && st.Zustand == ZUSTAND_RUHT && st.Planet == planet && st.Ladung > 0) return i;
    }
    return 0;
}

}  // namespace

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
    if (sch.Partner > 0) {  // a station in tow: out to its place, where the station lets go
        auto it = schlepp_.find(sch.Partner);
        const int ort = it != schlepp_.end() ? it->second : 0;
        if (ort == 0 || ort == hier) return false;
        return fliegen(nr, l, ort, 0);  // and waits there for the tanker
    }
    const long waren = sch.Ladung - 2L * sch.Fracht(FRACHT_GERAETE) - (sch.Fracht(FRACHT_PORTAL) ? sch.Laderaum : 0);
    // Past half damage a freighter loses every year what it carries: home to the docks first.
    if (sch.Schaden >= 50 && !Da(l, P_REPARATUR)) return hier == SOL_III ? tanken(nr, l) : heimwaerts(nr, l);
    if (hier == SOL_III) {
        if (tanken(nr, l)) return true;
        if (Da(l, P_AUSRUESTUNG)) {
            // The equipment list: repair set, devices, portal.
            std::vector<std::string> a(4);
            if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s_, ERF_REPARATURSET, p)) a[1].push_back('R');
            if (sch.Ladung + 1 < sch.Laderaum && Erfunden(s_, ERF_GERAETE, p)) a[2].push_back('G');
            if (Erfunden(s_, ERF_PORTAL, p) && sch.Ladung == 0 && sch.Laderaum >= 100) a[3].push_back('P');
            int portale = 0;
            for (int t = 11; t <= s_.AnzahlPlaneten + 10; ++t) portale += s_.Dokument(t).Portal != 0;
            int wahl = 0;
            if (!a[3].empty() && geld > 130000 && portale < 3) wahl = 3;
            else if (!a[1].empty() && geld > 6000) wahl = 1;
            else if (!a[2].empty() && sch.Fracht(FRACHT_GERAETE) == 0 && geld > 1500) wahl = 2;
            if (wahl) {
                int von = 1;
                while (a[static_cast<size_t>(von)].empty()) ++von;
                befehl(nr, l, P_AUSRUESTUNG);
                auswahlGehen(a, von, wahl);
                taste("ENTER");
                if (wahl == 2) tippen(std::to_string(std::min<long>(4, (sch.Laderaum - sch.Ladung) / 2)));
                taste("ENTER");
                angewiesen_.erase(nr);
                return true;
            }
        }
        if (sch.Fracht(FRACHT_PORTAL) == 1) {
            // A portal goes to the far end of the network, where the goods are dear.
            const auto& k = karte(weite(sch, sch.Tankgroesse));
            int ziel = 0;
            for (int t = 11; t <= s_.AnzahlPlaneten + 10; ++t)
                if (k[static_cast<size_t>(t)] < (1L << 40) && s_.Dokument(t).Portal == 0 && t != s_.Schiffe(PIRATEN_HQ).Planet &&
                    (ziel == 0 || k[static_cast<size_t>(t)] > k[static_cast<size_t>(ziel)]))
                    ziel = t;
            return fliegen(nr, l, ziel, rueckweg(ziel));
        }
        int ziel = handelsziel(nr);
        if (ziel == 0 || wuerfel(3) == 0) {
            const int neu = erkundungsziel(nr);
            if (neu) ziel = neu;
        }
        return fliegen(nr, l, ziel, rueckweg(ziel));
    }
    // Away from home.
    const Planet& pl = s_.Dokument(hier);
    if (Da(l, P_PORTAL)) {
        befehl(nr, l, P_PORTAL);
        taste("ENTER");
        return true;
    }
    if (Da(l, P_GERAET) && pl.Produktion < 30) {
        befehl(nr, l, P_GERAET);
        taste("ENTER");
        angewiesen_.erase(nr);
        return true;
    }
    if (Da(l, P_REPARATUR) && sch.Schaden >= 30) {
        befehl(nr, l, P_REPARATUR);
        taste("ENTER");
        angewiesen_.erase(nr);
        return true;
    }
    const std::string geladen = std::string("lade").append(std::to_string(nr));
    if (Da(l, P_HANDELN) && haendlerziel(nr) == hier && erledigt_.insert(geladen + "h").second) {
        befehl(nr, l, P_HANDELN);
        taste("ENTER");
        angewiesen_.erase(nr);
        return true;
    }
    const int station = StationMitWaren(s_, hier);
    if (Da(l, P_VON_STATION) && station && s_.Schiffe(station).Besitzer == p && s_.Schiffe(station).Fracht(FRACHT_GERAETE) == 0 &&
        erledigt_.insert(geladen + "s").second) {
        befehl(nr, l, P_VON_STATION);
        taste("ENTER");  // the station
        taste("ENTER");  // all goods
        taste("ENTER");  // as much as fits
        angewiesen_.erase(nr);
        return true;
    }
    const bool lohnt = Lohnend(s_, pl.Ware, pl.Preis);
    if (Da(l, P_VOM_PLANETEN) && lohnt && geld >= 10L * pl.Preis + 60 && erledigt_.insert(geladen).second) {
        angewiesen_.erase(nr);  // and then on its way
        befehl(nr, l, P_VOM_PLANETEN);
        taste("M");
        taste("ENTER");
        return true;
    }
    if (tanken(nr, l)) return true;
    if (!Da(l, P_START) && !Da(l, P_TELEPORT)) return false;
    if (waren > 0) {
        // A merchant gives a tonne of his good for any tonne: the dearest good of the market
        // for cheap cargo beats any tour.
        const int haendler = haendlerziel(nr);
        if (haendler && haendler != hier && fliegen(nr, l, haendler, rueckweg(haendler))) return true;
    }
    if (Da(l, P_START) && sch.Ladung + 2 < sch.Laderaum && sch.Fracht(FRACHT_PORTAL) == 0) {
        // A tour through the system: the next planet to discover or with stock to buy.
        const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
        int ziel = 0;
        long weg = 1000000;
        for (int t = System(hier) * 10 + 1; t <= System(hier) * 10 + 10; ++t) {
            const Planet& z = s_.Dokument(t);
            if (t == hier || t == hq || t > s_.AnzahlPlaneten + 10 || t <= SOL_III || ziele_.count(t)) continue;
            const bool neu = z.Produktion == 0;
            const bool ware = z.Bestand >= 300 && Lohnend(s_, z.Ware, z.Preis);
            if (!neu && !ware) continue;
            const long d = ENTFERNUNG(s_, hier, t);
            if (d < weg && direkt(nr, t)) {
                weg = d;
                ziel = t;
            }
        }
        if (ziel) return fliegen(nr, l, ziel, rueckweg(ziel));
    }
    if (waren <= 0 && sch.Fracht(FRACHT_PORTAL) == 0 && sch.Fracht(FRACHT_GERAETE) == 0) {
        int ziel = handelsziel(nr);
        if (ziel == 0) ziel = erkundungsziel(nr);
        if (ziel && fliegen(nr, l, ziel, rueckweg(ziel))) return true;
    }
    if (Da(l, P_TELEPORT) && waren > 0) {
        befehl(nr, l, P_TELEPORT);
        taste("ENTER");  // the first portal is Sol III's
        return true;
    }
    return heimwaerts(nr, l);
}

bool Computerspieler::kreuzer(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hier = sch.Planet;
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    if (sch.Zustand == ZUSTAND_ANGRIFF) {
        // Off before the weapons go: at 80 the cruiser loses them.
        if (Da(l, P_ANGRIFF_ENDE) && sch.Schaden > 55) {
            befehl(nr, l, P_ANGRIFF_ENDE);
            angewiesen_.erase(nr);
            return true;
        }
        return false;
    }
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (tanken(nr, l)) return true;
        // A repair set lets the cruiser mend itself at the headquarters and fight on.
        if (Da(l, P_AUSRUESTUNG) && sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s_, ERF_REPARATURSET, s_.AktSpieler) &&
            s_.Bargeld(s_.AktSpieler) > 1000 + 2 * RESERVE) {
            befehl(nr, l, P_AUSRUESTUNG);
            taste("ENTER");  // Reparaturset, the only thing a cruiser carries
            taste("ENTER");
            angewiesen_.erase(nr);
            return true;
        }
        if (sch.Bewaffnung == 0 || sch.Schaden >= 25) return false;
        const int ziel = piratenziel(nr);
        return ziel && fliegen(nr, l, ziel, rueckweg(ziel));
    }
    // Only pirates and their headquarters are fought, never another house.
    bool pirat = hier == hq;
    for (int i = 1; i <= s_.HoechstesSchiff && !pirat; ++i) {
        const Schiff& o = s_.Schiffe(i);
        pirat = !IstFrei(o) && IstPirat(o) && o.Planet == hier && (o.Zustand == ZUSTAND_RUHT || o.Zustand == ZUSTAND_ANGRIFF);
    }
    if (Da(l, P_ANGRIFF) && pirat && sch.Bewaffnung > 0 && sch.Schaden < 45) {
        befehl(nr, l, P_ANGRIFF);
        if (hier == hq) {
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
        angewiesen_.erase(nr);
        return true;
    }
    if (tanken(nr, l)) return true;
    if (sch.Schaden < 40 && sch.Bewaffnung > 0) {
        const int ziel = piratenziel(nr);
        if (ziel && ziel != hier && fliegen(nr, l, ziel, rueckweg(ziel))) return true;
    }
    return heimwaerts(nr, l);
}

bool Computerspieler::scout(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int hier = sch.Planet;
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III && Da(l, P_TANKEN_SOL) && !getankt_.count(nr) && sch.Treibstoff < sch.Tankgroesse) {
        befehl(nr, l, P_TANKEN_SOL);
        // Supersprit for the fast ship when there are Mirellen in store.
        if (Erfunden(s_, ERF_SUPERSPRIT, s_.AktSpieler) && s_.Lager(WARE_MIRELLEN, s_.AktSpieler) > 0) taste("UP");
        taste("ENTER");
        taste("ENTER");
        getankt_.insert(nr);
        angewiesen_.erase(nr);
        return true;
    }
    const int ziel = erkundungsziel(nr);
    if (ziel && fliegen(nr, l, ziel, rueckweg(ziel))) return true;
    return hier != SOL_III && heimwaerts(nr, l);
}

bool Computerspieler::tanker(int nr, const std::vector<std::string>& l) {
    const Schiff& sch = s_.Schiffe(nr);
    const int p = s_.AktSpieler;
    const int hier = sch.Planet;
    if (sch.Zustand != ZUSTAND_RUHT) return false;
    if (hier == SOL_III) {
        if (tanken(nr, l)) return true;
        // As many tank units as the purse allows beyond a reserve, at least ten.
        const long einheiten = std::min<long>(sch.Laderaum - sch.Ladung, (s_.Bargeld(p) - 400) / 30);
        if (Da(l, P_TANKER) && einheiten >= std::min<long>(10, sch.Laderaum - sch.Ladung) && einheiten > 0) {
            befehl(nr, l, P_TANKER);
            if (sch.Fracht(FRACHT_REPARATURSET) == 0 && Erfunden(s_, ERF_REPARATURSET, p)) taste("ENTER");  // Tankeinheiten
            if (Erfunden(s_, ERF_SUPERSPRIT, p)) {
                taste("DOWN");  // normal fuel
                taste("ENTER");
            }
            tippen(std::to_string(einheiten));
            taste("ENTER");
            angewiesen_.erase(nr);
            return true;
        }
    }
    if (Da(l, P_ENTLADEN) && sch.Ladung > 0 && hier != SOL_III) {
        befehl(nr, l, P_ENTLADEN);
        taste("ENTER");  // the station
        taste("ENTER");  // all of it
        angewiesen_.erase(nr);
        return true;
    }
    if (sch.Ladung > 0) {
        // To the station of the house that has the least fuel left.
        int ziel = 0;
        long wenig = 40;
        for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
            const Schiff& st = s_.Schiffe(i);
            if (st.Besitzer != p || !IstStation(st) || st.Zustand != ZUSTAND_RUHT || st.Planet <= SOL_III) continue;
            const long vorrat = st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT);
            if (vorrat < wenig && st.Ladung < st.Laderaum && st.Planet != hier && halt(nr, st.Planet, 0)) {
                wenig = vorrat;
                ziel = st.Planet;
            }
        }
        if (ziel) return fliegen(nr, l, ziel, 0);
        if (hier == SOL_III) return false;
    }
    return heimwaerts(nr, l);
}

bool Computerspieler::station(int nr, const std::vector<std::string>& l) {
    const Schiff& st = s_.Schiffe(nr);
    if (st.Planet == SOL_III && st.Partner == 0) {
        if (tanken(nr, l)) return true;
        // The game couples the first empty freighter here; it fills its tank before it leaves,
        // so a house without the money for that waits.
        int traeger = 0;
        for (int i = 1; i <= s_.HoechstesSchiff && !traeger; ++i) {
            const Schiff& f = s_.Schiffe(i);
            if (IstFrachter(f) && f.Besitzer == s_.AktSpieler && f.Zustand == ZUSTAND_RUHT && f.Planet == st.Planet && f.Ladung == 0 && f.Partner == 0)
                traeger = i;
        }
        const bool voll = traeger && (s_.Schiffe(traeger).Treibstoff >= s_.Schiffe(traeger).Tankgroesse || s_.Bargeld(s_.AktSpieler) >= 30);
        const int ort = voll ? standort() : 0;
        if (Da(l, P_ANKOPPELN) && ort) {
            schlepp_[nr] = ort;
            befehl(nr, l, P_ANKOPPELN);
            taste("ENTER");  // the first empty freighter
            return true;
        }
        return false;
    }
    if (Da(l, P_TRENNEN) && st.Partner > 0) {
        auto it = schlepp_.find(nr);
        const int ort = it != schlepp_.end() ? it->second : 0;
        const int hier = s_.Schiffe(st.Partner).Planet;
        // Let go at its place, or at home when no way leads there any more.
        const bool amOrt = hier != SOL_III && (ort == 0 || hier == ort);
        const bool keinWeg = hier == SOL_III && (ort == 0 || !halt(st.Partner, ort, 0));
        if (amOrt || keinWeg) {
            schlepp_.erase(nr);
            befehl(nr, l, P_TRENNEN);
            return true;
        }
        return false;
    }
    // A station feeds its own tank from its store before it would fall.
    if (st.Treibstoff < 8 && Da(l, P_TANKEN_STATION) && !getankt_.count(nr)) {
        getankt_.insert(nr);
        befehl(nr, l, P_TANKEN_STATION);
        taste("ENTER");
        return true;
    }
    return false;
}
