// One year of the world, for everybody at once, step by step.
#include "year/jahr.h"

#include "economy/kredit.h"
#include "economy/markt.h"
#include "screen/ausgabe.h"
#include "screen/musik.h"
#include "year/jahresende.h"
#include "year/kampf.h"
#include "year/meldung.h"
#include "year/verlauf.h"
#include "state/codes.h"
#include "state/text.h"


void RUNDE_AUSFUEHREN(Spiel& s) {
    EINSTATISTIK(s, EST_DOCK_ANGEBOTEN, DockPlaetze(s, 1));
    MCI_Stop(s);
    if (s.SichernAmRundenende == -1) {
        if (s.haken.Sichern) s.haken.Sichern(s);
        s.SichernAmRundenende = 0;
    }
    // The state before the year, as an ordered save holds it, in case of a crash.
    const bool autoGesichert = !s.haken.Autosichern || s.haken.Autosichern(s);
    s.SoundEreignis = 0;
    s.Jahr += 1;
    TEXT_AUSGEBEN(s, "RUNDE   " + std::to_string(s.Jahr), 15, 30, 50, GELB);
    for (int i = 1; i <= s.MeldungAnzahl && i <= MELDUNGEN_MAX; ++i) {
        s.MeldungText(i).clear();
        s.MeldungPlanet(i) = -1;
    }
    s.MeldungAnzahl = 0;
    s.MeldungenAusgelassen = 0;
    s.MeldungSeite = 1;
    if (!autoGesichert)
        MELDUNG_NEU(s, "Automatische Sicherung fehlgeschlagen!", ROT);

    JAHRESENDE(s);
    MARKT_FORTSCHREIBEN(s);
    KREDIT_VERBUCHEN(s);
    PLANETEN_PRODUKTION(s);
    ANGRIFFE(s);
    for (int i = 1; i <= s.HoechstesSchiff; ++i) {
        Schiff& sch = s.Schiffe(i);
        if (sch.Typ.empty()) continue;
        if (sch.Besitzer == BESITZER_PIRATEN) PIRAT_IM_SCHIFFSDURCHLAUF(s, i);
        else if (sch.Typ == TYP_STATION && sch.Zustand == ZUSTAND_RUHT) STATION_JAHR(s, i);
        else if (sch.Zustand == ZUSTAND_FLIEGT) SCHIFF_FLUG(s, i);
        else if (sch.Zustand == ZUSTAND_ANGRIFF) ANGRIFFSBERICHT(s, i);
        else if (InWerft(sch)) WERFT_JAHR(s, i);
        HAUPTQUARTIER_FEUER(s, i);
        ABNUTZUNG(s, i);
        SCHIFF_BESCHAEDIGEN(s, i);
    }
    PARTNER_PRUEFEN(s);
    ZERSTOERTE_ENTFERNEN(s);
    PIRATEN_ZIEHEN(s);
    NEUE_PIRATEN(s);
    HAENDLER_JAHR(s);
    if (s.MeldungAnzahl == 0) MELDUNG_NEU(s, "    -- keine aktuellen Meldungen --    ", ROT);
    s.MeldungSeite = 1;
    if (s.AussetzenJahre != 0) {
        s.SoundEreignis = 0;
    } else {
        MARKT_ANZEIGEN(s);
        JAHRES_KLANG(s);
    }
    VERLAUF_FORTSCHREIBEN(s);
    if (s.haken.NachDemJahr) s.haken.NachDemJahr(s);
}

