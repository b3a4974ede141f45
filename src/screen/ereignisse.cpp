// The handlers of the window: keys, clicks, the close request, the clock of
// a turn. They only leave notes for the routine that waits.
#include "screen/ereignisse.h"

#include <cmath>

#include "screen/ausgabe.h"
#include "screen/musik.h"
#include "state/codes.h"
#include "state/text.h"

namespace {

Plattform& P(Spiel& s) { return *s.plattform; }

// The map exists once a galaxy is made (new game) or loaded.
bool KarteDa(const Spiel& s) { return s.Dokument(11).Ware != 0; }

}  // namespace

// --- events ----------------------------------------------------------------------

void Form_KeyDown(Spiel& s, int code) {
    // The help and the graphs lie over whatever stands on the screen; inside
    // them these keys do nothing more.
    if (code == Taste::F1) {
        if (s.haken.Hilfe && !s.Ueberlagert) s.haken.Hilfe(s);
        return;
    }
    if (code == Taste::F6 && KarteDa(s)) {
        if (s.haken.VerlaufZeigen && !s.Ueberlagert) s.haken.VerlaufZeigen(s);
        return;
    }
    if (code == Taste::F5) {
        if (s.SoundAn == -1) {
            s.SoundAn = 0;
            MCI_Stop(s);
            if (KarteDa(s)) BILD(s, "Sound", 472, 22);
        } else {
            s.SoundAn = -1;
            BOX(s, 472, 22, 488, 40, SCHWARZ);
        }
        return;
    }
    if (code == Taste::F4) {
        if (s.ProduktionAn == -1) {
            s.ProduktionAn = 0;
            if (KarteDa(s)) BILD(s, "Produktion", 454, 22);
        } else {
            s.ProduktionAn = -1;
            BOX(s, 454, 22, 470, 40, SCHWARZ);
        }
        return;
    }
    if (code == Taste::F3 && KarteDa(s)) {
        s.MeldungSeite = static_cast<Integer>(s.MeldungSeite + 1);
        if (s.MeldungAnzahl <= (s.MeldungSeite - 1) * 17) s.MeldungSeite = 1;
        if (s.haken.MeldungenZeigen) s.haken.MeldungenZeigen(s);
        return;
    }
    s.TasteDa = -1;
    s.TastenCode = static_cast<Integer>(code);
}

void Form_KeyPress(Spiel& s, int zeichen) {
    if (zeichen == 9 || zeichen == 8 || zeichen == 13 || zeichen == 27) return;
    s.TastenZeichen = std::string(1, static_cast<char>(zeichen));
}

void Form_MouseUp(Spiel& s, int /*knopf*/, int x, int y) {
    s.MausTreffer = 0;
    s.MausSchiff = s.MausPlanet = s.MausStern = -1;
    auto innen = [&](Single x1, Single y1, Single x2, Single y2) { return x1 < x && x < x2 && y1 < y && y < y2; };

    auto klickFelder = [&]() -> bool {
        for (int i = 1; i <= KLICK_ZEILEN; ++i) {
            const KlickFeld& k = s.KlickFelder(i);
            if (!innen(k.X1, k.Y1, k.X2, k.Y2)) continue;
            if (k.Schiff >= 1) {
                if (k.Schiff <= MAX_SCHIFFE && s.Schiffe(k.Schiff).Planet > 0 &&
                    s.Schiffe(k.Schiff).Besitzer == s.AktSpieler) {
                    s.MausTreffer = -1;
                    s.MausSchiff = k.Schiff;
                    return true;
                }
            } else if (k.Planet > 0) {
                s.MausTreffer = -1;
                s.MausPlanet = k.Planet;
                return true;
            }
        }
        return false;
    };

    if (s.Bildschirm == "STATUS") {
        for (int i = 1; i <= KLICK_ZEILEN; ++i) {
            const StatusFeld& f = s.StatusFelder(i);
            if (f.Text.empty() || !innen(f.X1, f.Y1, f.X2, f.Y2)) continue;
            if (i < 10) {
                if (s.StatusSeite != i) {
                    s.StatusSeite = i;
                    if (i == 1) s.StatusFolge = 0;
                    if (i > 1 && s.StatusFolge == 0) s.StatusFolge = 1;
                }
            } else {
                if (s.StatusSpalte == i) {
                    s.StatusFolge += 1;
                    if (s.StatusFolge <= 2) return;
                }
                s.StatusSpalte = i;
                s.StatusFolge = (i == 10 && s.StatusSeite == 1) ? 0 : 1;
            }
            return;
        }
        if (klickFelder()) {
            // Leave the status screen; the main menu acts on the hit.
            s.TastenCode = Taste::Esc;
            s.Eingabe = -1;
            s.TasteDa = -1;
        }
    } else if (s.Bildschirm == "HAUPT") {
        klickFelder();
    } else if (s.Bildschirm == "STERNLIST" || s.Bildschirm == "ZIEL") {
        Single u = (static_cast<Single>(x) - 750.0f) / 1.25f;
        Single v = (static_cast<Single>(y) - 490.0f) / 1.25f;
        auto abstand = [&](int n) {
            Single dx = u - s.Dokument(n).X, dy = v - s.Dokument(n).Y;
            return std::sqrt(dx * dx + dy * dy);
        };
        Single best = abstand(SOL_III);
        if (best < 4.0f) s.MausStern = SOL_III;
        for (int i = 11; i <= s.AnzahlPlaneten; i += 10) {
            Single d = abstand(i);
            if (d < best) {
                best = d;
                if (d < 4.0f) s.MausStern = i;
            }
        }
    }
}

void Form_QueryUnload(Spiel& s, bool& abbrechen) {
    const std::string titel = "Quorvant beenden";
    if (P(s).frage(titel, "Soll der Spielstand gespeichert werden?")) {
        abbrechen = true;
        s.BeendenNachSichern = -1;
        s.SichernAmRundenende = -1;
        P(s).meldung(titel,
                     "Der Spielstand wird am Ende der Runde gespeichert. Danach wird Quorvant beendet.",
                     BoxArt::Info);
    } else {
        abbrechen = false;
        MCI_Stop(s);
    }
}

void tmrZeit_Timer(Spiel& s) {
    s.ZeitRest = static_cast<Integer>(s.ZeitRest - 1);
    if (s.ZeitRest <= 0) s.tmrZeitAn = false;
    if (s.Ueberlagert) return;  // shown again when the page over the screen goes
    TEXT_AUSGEBEN(s, Rechtsbuendig(s.ZeitRest, 4), 15, 370, 50, GELB);
}
