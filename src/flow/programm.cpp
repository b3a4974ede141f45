// The program from the window's start to its end, and the hooks that let
// the screen and the year call back into the game.
#include "flow/programm.h"

#include "flow/autosicherung.h"
#include "flow/sichern.h"
#include "views/hilfe.h"
#include "views/verlaufsgrafik.h"
#include "screen/ausgabe.h"
#include "year/meldung.h"

namespace {

void Form_Load(Spiel& s) {
    s.plattform->leeren();
    s.Titel = "Quorvant    V" + std::to_string(QUORVANT_VERSION_MAJOR) + "." +
              std::to_string(QUORVANT_VERSION_MINOR) + ".0." + std::to_string(QUORVANT_VERSION_REVISION);
    s.plattform->titelSetzen(s.Titel);
    s.tmrStartAn = true;
    s.tmrStartFaellig = s.plattform->uhrMs() + 100;
}

}  // namespace

void HAKEN_SETZEN(Spiel& s) {
    s.haken.Start = tmrStart_Timer;
    s.haken.MeldungenZeigen = MELDUNG;
    s.haken.Beenden = PROGRAMM_BEENDEN;
    s.haken.Sichern = SPIEL_SICHERN;
    s.haken.Autosichern = AUTOSICHERUNG;
    s.haken.Hilfe = HILFE;
    s.haken.VerlaufZeigen = VERLAUF_ZEIGEN;
}

void PROGRAMM_BEENDEN(Spiel& s, int status) {
    if (s.plattform) s.plattform->musikStoppen();
    throw ProgrammEnde{status};
}

int PROGRAMM_AUSFUEHREN(Spiel& s, Plattform& p) {
    s.plattform = &p;
    HAKEN_SETZEN(s);
    try {
        Form_Load(s);
        // The window waits for its start timer; nothing else happens before it.
        for (;;) {
            p.schlafen(100);
            DoEvents(s);
        }
    } catch (const ProgrammEnde& e) {
        return e.status;
    }
}
