// The star list: the map on the right with a cursor the player walks, and on
// the left what he knows of the planet under it. Nothing changes here.
#include "views/sternlist.h"

#include <charconv>

#include "screen/ausgabe.h"
#include "state/codes.h"
#include "state/sterne.h"
#include "state/text.h"
#include "views/sternkarte.h"

namespace {

// A ring of radius 2 on the planet's own star position, also on Sol III:
// where a news line opened the list, and where the period key sends it.
void KleinerCursor(Spiel& s, int z) { s.plattform->kreis(KarteX(s, z), KarteY(s, z), 2, WEISS, false, s.Linienbreite); }

// Tonnes from hundredths, in the shortest form that gives the number back,
// with the comma a German player writes: 12,5 and 95, not 12.50 or 95.0.
std::string Tonnen(long hundertstel) {
    const float wert = static_cast<float>(hundertstel) / 100.0f;
    char puffer[48];
    const auto r = std::to_chars(puffer, puffer + sizeof puffer, wert, std::chars_format::fixed);
    std::string t(puffer, r.ptr);
    for (char& c : t)
        if (c == '.') c = ',';
    return t;
}

// The small picture of a ship at rest on a planet.
std::string KleinesBild(const Schiff& sch) {
    if (IstFrachter(sch) || IstTanker(sch)) return "FrachterKlein";
    if (IstKreuzer(sch)) return IstPirat(sch) ? "PiratenKlein" : "KreuzerKlein";
    if (IstScout(sch)) return "ScoutKlein";
    if (IstStation(sch)) return "RaumstationKlein";
    return T("GroßfrachterKlein");
}

// The pictures stand in turn at x 400 and x 440, beside their lines.
void SchiffsZeile(Spiel& s, int y, const std::string& text, const std::string& bild) {
    TEXT_AUSGEBEN(s, text, 15, 40, y, MAGENTA);
    BILD(s, bild, 440 - 20 * (y % 4), y - 6);
}

void Tafel(Spiel& s, int z) {
    BOX(s, 22, 92, 488, 548, SCHWARZ);
    TEXT_AUSGEBEN(s, PlanetenName(s, z), 15, 30, 120, MAGENTA);
    TEXT_AUSGEBEN(s, "Entf.:" + Rechtsbuendig(ENTFERNUNG(s, SOL_III, z), 4), 15, 340, 120, MAGENTA);
    if (z == SOL_III) return;
    const Planet& pl = s.Dokument(z);
    if (pl.Produktion <= 0) {
        TEXT_AUSGEBEN(s, "-- noch unerforscht --", 15, 40, 150, MAGENTA);
        return;
    }
    const std::string ware = pl.Ware >= 1 && pl.Ware <= ANZAHL_WAREN ? s.WarenName(pl.Ware) : std::string();
    TEXT_AUSGEBEN(s, "Ware:         " + ware, 15, 40, 150, MAGENTA);
    if (z == s.Schiffe(PIRATEN_HQ).Planet) {
        TEXT_AUSGEBEN(s, "Piratenhauptquartier", 15, 40, 180, MAGENTA);
    } else {
        TEXT_AUSGEBEN(s, "Lagerbestand: " + Tonnen(pl.Bestand), 15, 40, 180, MAGENTA);
        TEXT_AUSGEBEN(s, "Produktion:   " + Tonnen(pl.Produktion), 15, 40, 210, MAGENTA);
    }
    // Ships at rest or attacking here; travellers, ships in the yard and
    // towed stations are not.
    int y = 220;
    for (int n = 1; n <= s.HoechstesSchiff && n < SCHIFF_GRENZE; ++n) {
        const Schiff& sch = s.Schiffe(n);
        if (IstFrei(sch) || sch.Planet != z) continue;
        if (sch.Zustand != ZUSTAND_RUHT && sch.Zustand != ZUSTAND_ANGRIFF) continue;
        const std::string eigner = sch.Besitzer >= 1 && sch.Besitzer <= BESITZER_PIRATEN ? s.SpielerName(sch.Besitzer) : std::string();
        y += 22;
        SchiffsZeile(s, y, sch.Typ + Rechtsbuendig(n, 4) + " (Eigent. " + eigner + ")", KleinesBild(sch));
    }
    for (int n = HAENDLER_ERSTES; n <= HAENDLER_LETZTES; ++n) {
        const Schiff& sch = s.Schiffe(n);
        if (sch.Planet != z || sch.Zustand != ZUSTAND_RUHT) continue;
        y += 22;
        // The merchants are told as HSZ 2 to HSZ 7.
        SchiffsZeile(s, y, "HSZ   " + Str(n - HAENDLER_ERSTES + 2) + T(" (Eigent. Händler)"), T("HändlerKlein"));
    }
    if (pl.Portal == -1) BILD(s, "PortalKlein", 380, 165);
}

bool Planetennummer(const Spiel& s, long z) {
    return z == SOL_III || (z >= 11 && z <= s.AnzahlPlaneten + 10 && z <= MAX_PLANETEN);
}

}  // namespace

void STERNLIST(Spiel& s) {
    int z = SOL_III;
    bool richtung = false;
    if (s.MausPlanet > 0 && Planetennummer(s, s.MausPlanet)) {
        // Opened from a news line: on that planet, the panel follows at once.
        z = static_cast<int>(s.MausPlanet);
        KleinerCursor(s, z);
    } else {
        s.MausPlanet = -1;
        KARTEN_CURSOR(s, SOL_III, WEISS);
        BOX(s, 22, 92, 488, 548, SCHWARZ);
        TEXT_AUSGEBEN(s, PlanetenName(s, SOL_III), 15, 30, 120, MAGENTA);
        TEXT_AUSGEBEN(s, "Entf.:   0", 15, 340, 120, MAGENTA);
    }
    s.TasteDa = 0;
    s.Bildschirm = "STERNLIST";
    for (;;) {
        s.plattform->schlafen(5);
        DoEvents(s);
        if (s.MausPlanet > 0) {
        } else if (s.MausStern > 0 && Planetennummer(s, s.MausStern)) {
            KARTEN_CURSOR(s, z, SCHWARZ);
            z = static_cast<int>(s.MausStern);
            KARTEN_CURSOR(s, z, WEISS);
            s.MausStern = -1;
        } else if (s.TasteDa != 0) {
            const int taste = s.TastenCode;
            const int neu = KARTEN_TASTE(s, z, taste, richtung);
            if (neu != z || taste == Taste::Punkt) {
                KARTEN_CURSOR(s, z, SCHWARZ);
                z = neu;
                if (taste == Taste::Punkt) KleinerCursor(s, z);
                else KARTEN_CURSOR(s, z, WEISS);
            }
        } else {
            continue;
        }
        Tafel(s, z);
        s.MausPlanet = -1;
        DoEvents(s);
        if (s.TasteDa != 0 && (s.TastenCode == Taste::Esc || s.TastenCode == Taste::Enter)) break;
        s.TasteDa = 0;
    }
    s.Bildschirm = "UNKNOWN";
}
