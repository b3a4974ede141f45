#include "screen/ausgabe.h"

#include <algorithm>
#include <cmath>

#include "screen/ereignisse.h"
#include "state/text.h"

namespace {

Plattform& P(Spiel& s) { return *s.plattform; }

// One poll of a waiting routine: 5 ms, then the queue.
void Abfragen(Spiel& s) {
    P(s).schlafen(5);
    DoEvents(s);
}

}  // namespace

// --- drawing -----------------------------------------------------------------

void LINIE(Spiel& s, int x1, int y1, int x2, int y2, Farbe f) { P(s).linie(x1, y1, x2, y2, f, s.Linienbreite); }
void RAHMEN(Spiel& s, int x1, int y1, int x2, int y2, Farbe f) { P(s).rahmen(x1, y1, x2, y2, f, s.Linienbreite); }
void BOX(Spiel& s, int x1, int y1, int x2, int y2, Farbe f) { P(s).box(x1, y1, x2, y2, f); }
void BILD(Spiel& s, const std::string& schluessel, int x, int y) { P(s).bild(schluessel, x, y); }

void TEXT_AUSGEBEN(Spiel& s, const std::string& text, int groesse, int x, int y, Farbe farbe) {
    int w = 0, h = 0;
    P(s).textMessen(text, groesse, w, h);
    if (w > 0) P(s).box(x, y, x + w, y + h, SCHWARZ);
    DoEvents(s);
    P(s).text(text, groesse, x, y, farbe);
}

void TEXT_MIT_HINTERGRUND(Spiel& s, const std::string& text, int groesse, int x, int y, Farbe hintergrund,
                          Farbe farbe) {
    int w = 0, h = 0;
    P(s).textMessen(text, groesse, w, h);
    P(s).box(x - 1, y + 2, x + w + 1, y + h - 1, hintergrund);
    DoEvents(s);
    P(s).text(text, groesse, x, y, farbe);
}

// --- the queue -----------------------------------------------------------------

void DoEvents(Spiel& s) {
    Plattform& p = P(s);
    p.pumpen();
    Ereignis e;
    while (p.ereignisHolen(e)) {
        switch (e.art) {
            case EreignisArt::KeyDown: Form_KeyDown(s, e.code); break;
            case EreignisArt::KeyPress: Form_KeyPress(s, e.code); break;
            case EreignisArt::MouseUp: Form_MouseUp(s, e.knopf, e.x, e.y); break;
            case EreignisArt::Schliessen: {
                bool abbrechen = false;
                Form_QueryUnload(s, abbrechen);
                if (!abbrechen) {
                    if (s.haken.Beenden) s.haken.Beenden(s, 0);
                    P(s).musikStoppen();
                    throw ProgrammEnde{0};
                }
                break;
            }
        }
    }
    long long jetzt = p.uhrMs();
    if (s.tmrStartAn && jetzt >= s.tmrStartFaellig) {
        s.tmrStartFaellig = jetzt + 100;
        if (s.haken.Start) s.haken.Start(s);
    }
    if (s.tmrZeitAn && jetzt >= s.tmrZeitFaellig) {
        s.tmrZeitFaellig += 1000;
        if (s.tmrZeitFaellig <= jetzt) s.tmrZeitFaellig = jetzt + 1000;  // no catching up after a long pause
        tmrZeit_Timer(s);
    }
}


void Warten(Spiel& s, int ms) { P(s).schlafen(ms); }

void AUF_TASTE_WARTEN(Spiel& s) {
    s.TasteDa = 0;
    while (s.TasteDa == 0) Abfragen(s);
}
