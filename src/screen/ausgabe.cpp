#include "screen/ausgabe.h"

#include <algorithm>
#include <cmath>

#include "flow/programm.h"
#include "flow/routinen.h"
#include "screen/musik.h"
#include "state/text.h"

namespace {

Plattform& P(Spiel& s) { return *s.plattform; }

// The map exists once a galaxy is made (new game) or loaded.
bool KarteDa(const Spiel& s) { return s.Dokument(11).Ware != 0; }

// The character a key code denotes, as the menus compare it: letters upper
// case, digits of the main block.
std::string TastenZeichenVon(int code) {
    if ((code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9')) return std::string(1, static_cast<char>(code));
    return std::string(1, '\x01');  // matches nothing
}

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
                if (!abbrechen) PROGRAMM_BEENDEN(s, 0);
                break;
            }
        }
    }
    long long jetzt = p.uhrMs();
    if (s.tmrStartAn && jetzt >= s.tmrStartFaellig) {
        s.tmrStartFaellig = jetzt + 100;
        tmrStart_Timer(s);
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

// --- prompts -------------------------------------------------------------------

void JA_NEIN(Spiel& s, Integer& wert, int x, int y, int groesse, Farbe farbe) {
    auto zeigen = [&] { TEXT_AUSGEBEN(s, wert == -1 ? "  ja" : "nein", groesse, x, y, farbe); };
    zeigen();
    s.TasteDa = 0;
    for (;;) {
        Abfragen(s);
        if (s.TasteDa == 0) continue;
        switch (s.TastenCode) {
            case Taste::Enter: s.Eingabe = wert == -1 ? 1 : 2; return;
            case Taste::Esc: s.Eingabe = -1; return;
            case Taste::Hoch:
            case Taste::Runter: wert = wert == -1 ? 0 : -1; zeigen(); break;
            case 'N': wert = 0; zeigen(); break;
            case 'J': wert = -1; zeigen(); break;
            default: break;
        }
        s.TasteDa = 0;
    }
}

void AUSWAHL(Spiel& s, const std::vector<std::string>& texte, int von, int bis, int x, int y, int groesse,
             Farbe farbe, Long& vorgabe, const std::vector<std::string>& tasten) {
    auto text = [&](long i) -> const std::string& {
        static const std::string leer;
        return i >= 0 && static_cast<size_t>(i) < texte.size() ? texte[static_cast<size_t>(i)] : leer;
    };
    auto loeschen = [&] { TEXT_AUSGEBEN(s, Space(static_cast<int>(text(s.Eingabe).size())), groesse, x, y, farbe); };
    auto zeigen = [&] { TEXT_AUSGEBEN(s, text(s.Eingabe), groesse, x, y, farbe); };
    auto setzen = [&](long i) {
        loeschen();
        s.Eingabe = i;
        zeigen();
    };

    s.Eingabe = vorgabe - 1;
    do {
        s.Eingabe = std::min<long>(s.Eingabe + 1, bis);
    } while (text(s.Eingabe).empty() && s.Eingabe < bis);
    zeigen();
    s.TasteDa = 0;

    for (;;) {
        Abfragen(s);
        if (s.TasteDa == 0) {
            if (s.MausTreffer == 0) continue;
            // A click on a ship or planet row chooses the entry with "R" or "L"
            // and confirms it at once.
            const char* gesucht = s.MausSchiff >= 1 ? "R" : (s.MausPlanet >= 1 ? "L" : nullptr);
            if (gesucht) {
                for (size_t i = 1; i < tasten.size(); ++i) {
                    if (tasten[i] == gesucht) {
                        setzen(static_cast<long>(i));
                        break;
                    }
                }
                vorgabe = s.MausSchiff >= 1 ? 2 : 5;
                s.TasteDa = -1;
            }
            s.MausTreffer = 0;
            if (s.TasteDa != 0) return;  // as if confirmed
            continue;
        }
        int code = s.TastenCode;
        if (code == Taste::Enter) return;
        if (code == Taste::Esc) {
            s.Eingabe = -1;
            return;
        }
        if (code == Taste::Hoch || code == Taste::Runter) {
            int schritt = code == Taste::Hoch ? 1 : -1;
            loeschen();
            do {
                s.Eingabe += schritt;
                if (s.Eingabe > bis) s.Eingabe = bis;
                if (s.Eingabe < von) s.Eingabe = von;
            } while (text(s.Eingabe).empty() && s.Eingabe != (schritt > 0 ? bis : von));
            zeigen();
        } else {
            std::string zeichen = TastenZeichenVon(code);
            if (tasten.size() > 1 && tasten[1] == "*") {
                long i = s.Eingabe;
                for (;;) {
                    i = i >= bis ? von : i + 1;
                    if (i == s.Eingabe) break;
                    std::string t = Trim(text(i));
                    std::string erstes = t.empty() ? T("§") : UCase(t.substr(0, 1));
                    if (erstes == zeichen) {
                        setzen(i);
                        break;
                    }
                }
            } else {
                for (size_t i = 1; i < tasten.size(); ++i) {
                    if (tasten[i] == zeichen) {
                        setzen(static_cast<long>(i));
                        break;
                    }
                }
            }
        }
        s.TasteDa = 0;
    }
}

long MAXIMALE_LADUNG(Spiel& s, int schiff) {
    const Schiff& sch = s.Schiffe(schiff);
    const Planet& pl = s.Dokument(sch.Planet);
    long m = pl.Bestand / 100;
    if (sch.Ladung + m > sch.Laderaum) m = sch.Laderaum - sch.Ladung;
    if (pl.Preis > 0 && static_cast<long long>(s.Bargeld(s.AktSpieler)) < static_cast<long long>(pl.Preis) * m)
        m = s.Bargeld(s.AktSpieler) / pl.Preis;
    return m;
}

void ZAHL_EINGEBEN(Spiel& s, long long min, long long max, int x, int y, int groesse, Farbe farbe, int breite,
                   int vorgabe, int schiff) {
    auto zeigen = [&] { TEXT_AUSGEBEN(s, Rechtsbuendig(s.Eingabe, breite), groesse, x, y, farbe); };
    s.Eingabe = static_cast<Long>(vorgabe > 0 ? vorgabe : min);
    bool ersteZiffer = true;
    zeigen();
    s.TasteDa = 0;
    for (;;) {
        Abfragen(s);
        if (s.TasteDa == 0) continue;
        int code = s.TastenCode;
        if (code == Taste::Enter) return;
        if (code == Taste::Esc) {
            s.Eingabe = -1;
            return;
        }
        if (code == Taste::Hoch) {
            if (s.Eingabe < max) ++s.Eingabe;
            ersteZiffer = true;
            zeigen();
        } else if (code == Taste::Runter) {
            if (s.Eingabe > min) --s.Eingabe;
            ersteZiffer = true;
            zeigen();
        } else if (code >= '0' && code <= '9') {
            long long ziffer = code - '0';
            long long kandidat = ersteZiffer ? ziffer : static_cast<long long>(s.Eingabe) * 10 + ziffer;
            if (kandidat >= min && kandidat <= max) {
                s.Eingabe = static_cast<Long>(kandidat);
                ersteZiffer = false;
                zeigen();
            }
        } else if (code == Taste::Leer) {
            s.Eingabe = 0;
            zeigen();
        } else if (code == Taste::Backspace) {
            s.Eingabe /= 10;
            zeigen();
        } else if (code == 'M' && schiff >= 1) {
            s.Eingabe = static_cast<Long>(MAXIMALE_LADUNG(s, schiff));
            zeigen();
        }
        s.TasteDa = 0;
    }
}

// --- events ----------------------------------------------------------------------

void Form_KeyDown(Spiel& s, int code) {
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
        MELDUNG(s);
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
    } else if (s.Bildschirm == "STERNLIST") {
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
    TEXT_AUSGEBEN(s, Rechtsbuendig(s.ZeitRest, 4), 15, 370, 50, GELB);
}
