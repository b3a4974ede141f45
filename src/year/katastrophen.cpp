// The guild's demands and the disasters whose countdown ends this year. All
// of them reach the players as red news lines.
#include "year/katastrophen.h"

#include <cmath>

#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/meldung.h"

namespace {

constexpr Integer KLANG_METEOR = 1;
constexpr Integer KLANG_LAGERBRAND = 2;

const char* const SCHIFFE_BESCHAEDIGT = "Es wurden Schiffe beschädigt!";

int Spieler(const Spiel& s) { return s.AnzahlSpieler < SPIELER_MAX ? s.AnzahlSpieler : SPIELER_MAX; }
int Schiffsgrenze(const Spiel& s) { return s.HoechstesSchiff < SCHIFF_GRENZE ? s.HoechstesSchiff : SCHIFF_GRENZE - 1; }

// The system of a planet number; negative numbers (a teleport's start) and 0
// lie below every system.
int System(int planet) { return planet >= 1 ? (planet - 1) / 10 : -1; }

// Int(x x 0.9) for whole x, without the float.
long long Neunzehntel(long long x) {
    const long long z = 9 * x;
    return z >= 0 ? z / 10 : -((-z + 9) / 10);
}

bool EndetMit(const std::string& t, const std::string& ende) {
    return t.size() >= ende.size() && t.compare(t.size() - ende.size(), ende.size(), ende) == 0;
}

const std::string& LetzteZeile(const Spiel& s) {
    static const std::string leer;
    return s.MeldungAnzahl >= 1 && s.MeldungAnzahl <= MELDUNGEN_MAX ? s.MeldungText(s.MeldungAnzahl) : leer;
}

std::string BrandKopf(const Spiel& s, int p) { return "Lagerbrand bei " + s.SpielerName(p) + ": "; }

void Verbrennen(Spiel& s, int g, int p) {
    EINSTATISTIK(s, EST_ABGEBRANNT, s.Lager(g, p));
    s.Lager(g, p) = 0;
}

// One hit of the fire on good g. A fire already being told takes the good
// into its line while that line is short; past 25 characters the flames
// spare it.
void Brandtreffer(Spiel& s, int p, int g, bool ersterTreffer) {
    if (s.Lager(g, p) <= 0) return;
    const bool wirdBerichtet = s.MeldungAnzahl >= 2 && s.MeldungAnzahl <= MELDUNGEN_MAX &&
                               s.MeldungText(s.MeldungAnzahl - 1).rfind("Lagerb", 0) == 0;
    if (!ersterTreffer && wirdBerichtet) {
        std::string& zeile = s.MeldungText(s.MeldungAnzahl);
        if (zeile.size() >= 25) return;
        zeile = zeile.substr(0, zeile.size() >= 4 ? zeile.size() - 4 : 0) + " und " + s.WarenName(g) + " weg!";
    } else {
        MELDUNG_NEU(s, BrandKopf(s, p), ROT);
        MELDUNG_NEU(s, "   " + s.WarenName(g) + " weg!", ROT);
    }
    Verbrennen(s, g, p);
}

}  // namespace

void STEUER(Spiel& s) {
    EINSTATISTIK(s, EST_STEUERN, s.Bargeld(1) - Neunzehntel(s.Bargeld(1)));
    // Debts are not taxed and do not lower the tax.
    for (int p = 1; p <= Spieler(s); ++p)
        if (s.Bargeld(p) > 0) s.Bargeld(p) = static_cast<Long>(Neunzehntel(s.Bargeld(p)));
    MELDUNG_NEU(s, "Es waren wieder 10% Steuern auf das", ROT);
    MELDUNG_NEU(s, T("Barvermögen fällig!"), ROT);
    s.EreignisJahre(EREIGNIS_STEUER) = 20;
}

void HAFENGEBUEHR(Spiel& s) {
    // Every ship counts, in flight and in the yard too; cash may go below zero.
    for (int i = 1; i <= Schiffsgrenze(s); ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch) || !IstSpielerBesitz(sch)) continue;
        s.Bargeld(sch.Besitzer) -= 20;
        EINSTATISTIK(s, EST_HAFENGEBUEHREN, 20);
    }
    MELDUNG_NEU(s, T("Die Gilde verlangt 20 pro Schiff für "), ROT);
    MELDUNG_NEU(s, "die Nutzung des Raumfahrthafens!", ROT);
    s.EreignisJahre(EREIGNIS_HAFENGEBUEHR) = static_cast<Integer>(ZufallGanz(s, 18, 24));
}

void METEORSTURM(Spiel& s) {
    // Sol's system 0 lies outside the draw.
    const int z = static_cast<int>(ZufallGanz(s, 11, s.AnzahlPlaneten + 10L)) / 10;
    int getroffen = 0;
    for (int n = 10 * z + 1; n <= 10 * z + 10 && n <= MAX_PLANETEN; ++n)
        if (s.Dokument(n).Produktion > 0) {
            getroffen = n;
            break;
        }
    // Where nobody has landed the storm passes unseen.
    if (getroffen > 0) {
        MELDUNG_NEU(s, "Meteorsturm auf " + s.Dokument(10 * z + 1).Name, ROT);
        Planet& pl = s.Dokument(getroffen);
        pl.Bestand = pl.Bestand > 1000 ? pl.Bestand - 1000 : 0;
        for (int i = 1; i <= Schiffsgrenze(s); ++i) {
            Schiff& sch = s.Schiffe(i);
            if (IstFrei(sch)) continue;
            long schaden;
            if (System(sch.Planet) == z && sch.Zustand == ZUSTAND_RUHT) schaden = ZufallGanz(s, 20, 40);
            else if (System(sch.Planet) == z || System(sch.StartPlanet) == z) schaden = ZufallGanz(s, 10, 20);  // at work there, or on the way
            else continue;
            sch.Schaden = static_cast<Integer>(sch.Schaden + schaden);
            if (s.SoundEreignis == 0) s.SoundEreignis = KLANG_METEOR;
            if (LetzteZeile(s) != T(SCHIFFE_BESCHAEDIGT)) MELDUNG_NEU(s, T(SCHIFFE_BESCHAEDIGT), ROT);
        }
    }
    s.EreignisJahre(EREIGNIS_METEORSTURM) = static_cast<Integer>(ZufallGanz(s, 5, 34));
}

void LAGERBRAND(Spiel& s) {
    const int n = Spieler(s) >= 1 ? Spieler(s) : 1;
    const int p = static_cast<int>(ZufallGanz(s, 1, n));
    // The draw is made in any case; fire protection keeps about two fires in
    // three away.
    const float wurf = Rnd(s);
    if (!Erfunden(s, ERF_BRANDSCHUTZ, p) || wurf > 0.65f) {
        if (s.SoundEreignis < KLANG_LAGERBRAND) s.SoundEreignis = KLANG_LAGERBRAND;
        // Histarin in store: everything goes up.
        if (s.Lager(WARE_HISTARIN, p) > 0) {
            MELDUNG_NEU(s, BrandKopf(s, p), ROT);
            MELDUNG_NEU(s, "   Lagerbestand komplett abgebrannt!", ROT);
            for (int g = 1; g <= ANZAHL_WAREN; ++g) Verbrennen(s, g, p);
        }
        for (int treffer = 1; treffer <= 5; ++treffer)
            Brandtreffer(s, p, static_cast<int>(ZufallGanz(s, 1, ANZAHL_WAREN)), treffer == 1);
        const std::string& letzte = LetzteZeile(s);
        if (s.MeldungAnzahl == 0 || !(EndetMit(letzte, "weg!") || EndetMit(letzte, "nnt!"))) {
            MELDUNG_NEU(s, BrandKopf(s, p), ROT);
            MELDUNG_NEU(s, T("   keine Schäden!"), ROT);
        }
    }
    // The more players, the sooner the next fire.
    s.EreignisJahre(EREIGNIS_LAGERBRAND) = static_cast<Integer>(std::floor(Rnd(s) * 40.0f / static_cast<float>(n)) + 1);
}

void STREIK(Spiel& s) {
    int q = 0;
    for (int versuch = 1; versuch <= 5 && q == 0; ++versuch) {
        const int kandidat = static_cast<int>(ZufallGanz(s, 11, s.AnzahlPlaneten + 10L));
        if (PlanetNummerGueltig(kandidat) && s.Dokument(kandidat).Produktion > 0) q = kandidat;
    }
    if (q > 0) {
        Planet& pl = s.Dokument(q);
        const int grenze = 4 * pl.Ware + 5;
        if (pl.Preis < grenze) {
            const int neu = pl.Preis + 2 + static_cast<int>(std::floor(static_cast<float>(pl.Ware) * Rnd(s) / 2.0f));
            pl.Preis = static_cast<Integer>(neu < grenze ? neu : grenze);
            MELDUNG_NEU(s, "Streik auf " + PlanetenName(s, q), ROT);
            MELDUNG_NEU(s, "   Arbeiter fordern " + std::to_string(pl.Preis) + "SD pro Tonne!", ROT);
        }
    }
    s.EreignisJahre(EREIGNIS_STREIK) = static_cast<Integer>(ZufallGanz(s, 5, 15));
}
