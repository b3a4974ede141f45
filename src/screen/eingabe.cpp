// The three prompts: yes or no, a choice from a list, a number.
#include "screen/eingabe.h"

#include <algorithm>

#include "screen/ausgabe.h"
#include "state/text.h"

namespace {

Plattform& P(Spiel& s) { return *s.plattform; }

// The character a key code denotes, as the menus compare it: letters upper
// case, digits of the main block.
std::string TastenZeichenVon(int code) {
    if ((code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9')) return std::string(1, static_cast<char>(code));
    return std::string(1, '\x01');  // matches nothing
}

// One poll of a waiting prompt: 5 ms, then the queue.
void Abfragen(Spiel& s) {
    P(s).schlafen(5);
    DoEvents(s);
}

}  // namespace

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
            // Held at Max even where Blank, Backspace or M left the value beyond it.
            s.Eingabe = static_cast<Long>(std::min<long long>(static_cast<long long>(s.Eingabe) + 1, max));
            ersteZiffer = true;
            zeigen();
        } else if (code == Taste::Runter) {
            s.Eingabe = static_cast<Long>(std::max<long long>(static_cast<long long>(s.Eingabe) - 1, min));
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

