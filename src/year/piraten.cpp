// The pirates' year: arriving and raiding in the ship pass, looking for a
// victim or wandering on, fleeing a stronger ship, and new pirates while
// their headquarters stands.
#include <cmath>

#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/kampf.h"
#include "year/meldung.h"

namespace {

// A planet drawn from the whole galaxy, as pirates pick their places.
Integer PlanetAusGalaxie(Spiel& s) {
    const int p = static_cast<int>(std::floor(Rnd(s) * static_cast<float>(s.AnzahlPlaneten))) + 11;
    return static_cast<Integer>(p < MAX_PLANETEN ? p : MAX_PLANETEN);
}

// What has piled up on the planet of arrival is taken, all of it.
void Ueberfall(Spiel& s, const Schiff& pirat) {
    if (!PlanetNummerGueltig(pirat.Planet)) return;
    Planet& pl = s.Dokument(pirat.Planet);
    if (pl.Bestand < 100) return;
    const long t = pl.Bestand / 100;
    const std::string ware = pl.Ware >= 1 && pl.Ware <= ANZAHL_WAREN ? s.WarenName(pl.Ware) : std::string();
    MELDUNG_NEU(s, T("Überfall! Piraten erbeuten ") + std::to_string(t) + "t ", ROT, pirat.Planet);
    MELDUNG_NEU(s, "     " + ware + " auf " + PlanetenName(s, pirat.Planet), ROT, pirat.Planet);
    EINSTATISTIK(s, EST_GERAUBT, t);
    pl.Bestand = 0;
}

// The first ship of a player resting or fighting on the pirate's planet.
int OpferSuchen(const Spiel& s, const Schiff& pirat) {
    for (int k = 1; k <= s.HoechstesSchiff; ++k) {
        const Schiff& o = s.Schiffe(k);
        if (IstFrei(o) || o.Besitzer >= BESITZER_PIRATEN || o.Planet != pirat.Planet) continue;
        if (o.Zustand == ZUSTAND_RUHT || o.Zustand == ZUSTAND_ANGRIFF) return k;
    }
    return 0;
}

// A hop to another planet of the same system, drawn towards the richest
// stock; in a system still mostly unknown the pirate goes anywhere in it.
void HopfenImSystem(Spiel& s, Schiff& pirat) {
    pirat.StartPlanet = pirat.Planet;
    const int b = 10 * ((pirat.Planet - 1) / 10);
    do pirat.Planet = static_cast<Integer>(b + 1 + ZufallGanz(s, 0, 9));
    while (pirat.Planet == pirat.StartPlanet);
    for (int l = b + 1; l <= b + 10; ++l)
        if (l != pirat.StartPlanet && s.Dokument(l).Bestand > s.Dokument(pirat.Planet).Bestand && Rnd(s) > 0.2f)
            pirat.Planet = static_cast<Integer>(l);
    int unbekannt = 0;
    for (int l = b + 1; l <= b + 10; ++l)
        if (s.Dokument(l).Produktion == 0) ++unbekannt;
    if (unbekannt > 3) pirat.Planet = static_cast<Integer>(b + 1 + ZufallGanz(s, 0, 9));
    pirat.Zustand = ZUSTAND_FLIEGT;
    pirat.Dauer = ENTFERNUNG(s, pirat.Planet, pirat.StartPlanet);
}

// A long hop anywhere in the galaxy, given up when it would go too far.
void WeiterHopfen(Spiel& s, Schiff& pirat) {
    pirat.StartPlanet = pirat.Planet;
    pirat.Planet = PlanetAusGalaxie(s);
    const int d = ENTFERNUNG(s, pirat.Planet, pirat.StartPlanet);
    if (d >= 31 || pirat.Planet == pirat.StartPlanet) {
        pirat.Planet = pirat.StartPlanet;
        return;
    }
    pirat.Zustand = ZUSTAND_FLIEGT;
    pirat.Dauer = static_cast<Integer>(d);
}

// Away from a stronger victim, to a neighbouring planet of the system.
void Fliehen(Spiel& s, Schiff& pirat) {
    pirat.StartPlanet = pirat.Planet;
    const int k = pirat.Planet % 10;
    if (k == 0) pirat.Planet = static_cast<Integer>(pirat.Planet - 1);
    else if (k == 1) pirat.Planet = static_cast<Integer>(pirat.Planet + 1);
    else pirat.Planet = static_cast<Integer>(Rnd(s) < 0.5f ? pirat.Planet + 1 : pirat.Planet - 1);
    pirat.Zustand = ZUSTAND_FLIEGT;
    pirat.Partner = 0;
    pirat.Dauer = ENTFERNUNG(s, pirat.Planet, pirat.StartPlanet);
}

}  // namespace

void PIRAT_IM_SCHIFFSDURCHLAUF(Spiel& s, int i) {
    Schiff& pirat = s.Schiffe(i);
    if (pirat.Zustand == ZUSTAND_FLIEGT) {
        pirat.Dauer = static_cast<Integer>(pirat.Dauer - 1);
        if (pirat.Dauer > 0) return;
        pirat.Zustand = ZUSTAND_RUHT;
        Ueberfall(s, pirat);
    } else if (pirat.Zustand == ZUSTAND_ANGRIFF) {
        ANGRIFFSBERICHT(s, i);
    }
}

void PIRATEN_ZIEHEN(Spiel& s) {
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& pirat = s.Schiffe(i);
        if (!IstPirat(pirat) || !PlanetNummerGueltig(pirat.Planet)) continue;
        if (pirat.Zustand == ZUSTAND_RUHT) {
            if (const int k = OpferSuchen(s, pirat)) {
                pirat.Zustand = ZUSTAND_ANGRIFF;
                pirat.Partner = static_cast<Integer>(k);
            } else if (Rnd(s) < 0.05f) {
                HopfenImSystem(s, pirat);
            } else if (Rnd(s) > 0.9f) {
                WeiterHopfen(s, pirat);
            }
        } else if (pirat.Zustand == ZUSTAND_ANGRIFF && SchiffNummerGueltig(pirat.Partner) &&
                   pirat.Bewaffnung < s.Schiffe(pirat.Partner).Bewaffnung && Rnd(s) < 0.1f) {
            Fliehen(s, pirat);
        }
    }
}

void NEUE_PIRATEN(Spiel& s) {
    if (!(Rnd(s) < 0.2f)) return;
    int n = 0;
    for (int i = 1; i <= s.HoechstesSchiff; ++i)
        if (IstPirat(s.Schiffe(i))) ++n;
    // With no pirate left the quotient has no value: the way stays open.
    if (n > 0 && !(static_cast<float>(s.AnzahlPlaneten) / static_cast<float>(n) > Rnd(s) * 700.0f)) return;
    const bool dritte = Rnd(s) < 0.05f;
    if (!dritte && s.Schiffe(PIRATEN_HQ).Planet <= 0) return;
    int k = 1;
    while (k < SCHIFF_GRENZE && !s.Schiffe(k).Name.empty()) ++k;
    if (k >= SCHIFF_GRENZE) return;
    Schiff& pirat = s.Schiffe(k);
    pirat.Besitzer = BESITZER_PIRATEN;
    pirat.Typ = TYP_KREUZER;
    pirat.Zustand = ZUSTAND_RUHT;
    pirat.Bewaffnung = static_cast<Integer>(ZufallGanz(s, 4, 12));
    pirat.Planet = PlanetAusGalaxie(s);
    pirat.Schaden = pirat.Ladung = pirat.Laderaum = 0;
    pirat.Name = PIRAT_NAME;
}
