#include "flow/routinen.h"
#include "screen/ausgabe.h"
#include "screen/musik.h"
#include "state/text.h"

// The year. So far it saves what was ordered, counts the year and tells that
// nothing happened; the world's own year (market, planets, ships, pirates)
// joins this list as it is built.
void RUNDE_AUSFUEHREN(Spiel& s) {
    MCI_Stop(s);
    if (s.SichernAmRundenende != 0) {
        SPIEL_SICHERN(s);
        s.SichernAmRundenende = 0;
    }
    s.Jahr += 1;
    TEXT_AUSGEBEN(s, "Jahr    " + std::to_string(s.Jahr), 15, 30, 50, GELB);
    s.MeldungAnzahl = 1;
    s.MeldungSeite = 1;
    s.MeldungText(1) = "    -- keine aktuellen Meldungen --    ";
    s.MeldungFarbe(1) = ROT;
    s.MeldungPlanet(1) = -1;
    s.SoundEreignis = 0;
}
