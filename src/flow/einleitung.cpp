// The way into the game: the intro with its scroller, the start question,
// loading or the new-game dialog, and the first turn.
#include <cstdio>
#include <string>
#include <vector>

#include "flow/programm.h"
#include "economy/schiffe.h"
#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "screen/musik.h"
#include "state/regeln.h"
#include "state/sterne.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/meldung.h"
#include "year/jahr.h"
#include "views/lagerbestand.h"
#include "flow/sichern.h"
#include "flow/hauptschleife.h"
#include "state/codes.h"

namespace {

const std::string BANNER = "  Q  U  O  R  V  A  N  T  ";

void Einleitung(Spiel& s) {
    s.SoundAn = -1;
    s.ProduktionAn = -1;
    MCI_Play(s, "EinleitungQuorvant.mid");
    const std::string striche(26, '=');
    for (int i = 1; i <= 26; ++i) {
        TEXT_AUSGEBEN(s, BANNER.substr(static_cast<size_t>(i - 1), 1), 20, 288 + 16 * i, 30, GRUEN);
        TEXT_AUSGEBEN(s, striche.substr(static_cast<size_t>(i - 1), 1), 20, 288 + 16 * i, 60, GRUEN);
        DoEvents(s);
        Warten(s, 100);
    }
    const std::string lauftext =
        Space(64) + "2000 Jahre nach Entdeckung des Stellardrives besteht auf der Erde" +
        " eine chronische Nachfrage nach allem, was das Leben so lebenswert " +
        "macht. Steigen Sie ein in den Wettbewerb um die Versorgung der " +
        T("Erdbevölkerung! Bauen Sie ein Handelsnetz auf! Die Regierung von ") + "SOL III subventioniert Ihren Start!" +
        Space(90);
    RAHMEN(s, 120, 150, 900, 190, GRUEN);
    s.TasteDa = 0;
    const int schritte = static_cast<int>(lauftext.size()) - 64;
    for (int i = 1; i <= schritte; ++i) {
        TEXT_AUSGEBEN(s, lauftext.substr(static_cast<size_t>(i - 1), 64), 15, 125, 160, GRUEN);
        DoEvents(s);
        // The pirate flies from right to left above the frame, a pixel at a time.
        for (int k = 0; k < 3; ++k) {
            BILD(s, "Piraten", 1030 - k - 3 * i, 80);
            s.plattform->schlafen(50);
            DoEvents(s);
        }
        if (s.TasteDa != 0) break;
    }
    MCI_Stop(s);
    if (s.AuswahlTasten.size() < 2) s.AuswahlTasten.resize(2);
    s.AuswahlTasten[1] = "*";
}

// An AUSWAHL of the new-game dialog, asked again for as long as Esc comes.
int Frage(Spiel& s, const std::string& text, int y, int x, const std::vector<const char*>& antworten, int start) {
    TEXT_AUSGEBEN(s, text, 15, 30, y, ROT);
    s.AuswahlText.assign(1, "");
    for (const char* a : antworten) s.AuswahlText.push_back(a);
    do {
        Long vorgabe = start;
        AUSWAHL(s, s.AuswahlText, 1, static_cast<int>(antworten.size()), x, y, 15, ROT, vorgabe, s.AuswahlTasten);
    } while (s.Eingabe == -1);
    return static_cast<int>(s.Eingabe);
}

Long Startkapital(Spiel& s) {
    s.Eingabe = 0;
    for (;;) {
        const int c = TASTE_ABWARTEN(s);
        if (c == Taste::Enter) return s.Eingabe;
        if (c >= '0' && c <= '9') {
            if (s.Eingabe >= 1001 || (s.Eingabe == 1000 && c != '0')) continue;
            s.Eingabe = s.Eingabe * 10 + (c - '0');  // 10000 at most
        } else if (c == Taste::Leer) {
            s.Eingabe = 0;
        } else if (c == Taste::Backspace) {
            s.Eingabe /= 10;
        } else {
            continue;
        }
        TEXT_AUSGEBEN(s, Rechtsbuendig(s.Eingabe, 6), 15, 438, 280, ROT);
    }
}

// Beside the name: whether the computer plays this house (F2 toggles it).
void ComputerZeigen(Spiel& s, int p, int y) {
    TEXT_AUSGEBEN(s, s.Computer(p) == -1 ? "Computer" : "        ", 15, 666, y, CYAN);
}

std::string NameEingeben(Spiel& s, int y, int p) {
    std::string name;
    s.TastenZeichen.clear();
    for (;;) {
        s.TasteDa = 0;
        while (s.TasteDa == 0 && s.TastenZeichen.empty()) {
            s.plattform->schlafen(5);
            DoEvents(s);
        }
        const int c = s.TasteDa ? s.TastenCode : 0;
        if (c == Taste::Enter) return name.empty() && s.Computer(p) == -1 ? "Computer" + std::to_string(p) : name;
        if (c == Taste::F2) {
            s.Computer(p) = s.Computer(p) == -1 ? 0 : -1;
            ComputerZeigen(s, p, y);
        }
        if (c == Taste::Backspace) {
            if (!name.empty()) name.pop_back();
            TEXT_AUSGEBEN(s, name + " ", 15, 518, y, ROT);
        } else if (!s.TastenZeichen.empty()) {
            if (name.size() < 10) {
                name += s.TastenZeichen;
                TEXT_AUSGEBEN(s, name, 15, 518, y, ROT);
            }
        }
        s.TastenZeichen.clear();
    }
}

void NeuesSpiel(Spiel& s) {
    s.plattform->leeren();
    TEXT_AUSGEBEN(s, BANNER, 20, 304, 30, GRUEN);
    s.AnzahlSpieler = static_cast<Integer>(Frage(s, "Wie viele Spieler (1-6)? ", 90, 350, {"1", "2", "3", "4", "5", "6"}, 1));
    const int groesse = Frage(s, T("Über wie viele Sternensysteme wollen Sie ihr Handelsimperium ausdehnen? "), 130, 895,
                              {" 50", " 80", "100", "120", "150", "200", "300", "400"}, 3);
    static const int SYSTEME[] = {50, 80, 100, 120, 150, 200, 300, 400};
    s.AnzahlPlaneten = static_cast<Integer>(10 * SYSTEME[groesse - 1]);
    s.Nachfrage = static_cast<Integer>(Frage(s, "Wie stark soll die Produktnachfrage sein? ", 170, 550,
                                             {"gering", "mittel", " stark"}, 1));
    TEXT_AUSGEBEN(s, T("Wollen Sie eine Zeitbeschränkung?"), 15, 30, 210, ROT);
    do {
        Integer wert = 0;
        JA_NEIN(s, wert, 460, 210, 15, ROT);
    } while (s.Eingabe == -1);
    s.Zeitlimit = s.Eingabe == 1 ? -1 : 0;
    TEXT_AUSGEBEN(s, "Die Regierung stellt Ihnen zwischen 0 und 10000 Sternendollar Startkapital", 15, 30, 250, ROT);
    TEXT_AUSGEBEN(s, T("zu Verfügung. Wie viel wollen Sie?     0 SD"), 15, 30, 280, ROT);
    s.Bargeld(1) = Startkapital(s);

    Randomize(s, s.plattform->saat());
    VORBELEGUNG_VARIABLEN(s);

    s.Computer = {};
    s.VerlaufJahre.clear();
    TEXT_AUSGEBEN(s, T("F2: diesen Spieler vom Computer spielen lassen (noch einmal F2: selbst spielen)"), 15, 30,
                  600, GELB);
    for (int p = 1; p <= s.AnzahlSpieler; ++p) {
        s.AktSpieler = static_cast<Integer>(p);
        const int y = 280 + 40 * p;
        TEXT_AUSGEBEN(s, "Name des " + std::to_string(p) + ". Spielers (max. 10 Zeichen):", 15, 30, y, ROT);
        s.SpielerName(p) = NameEingeben(s, y, p);
        s.Bargeld(p) = s.Bargeld(1) + 1000;  // the first Frachter is a gift
        s.Rang(p) = 1;
        for (int g = 1; g <= 10; ++g) s.Lager(g, p) = 0;
        SCHIFF_NEU(s, 1);
        s.DockSchiffe(1, p) = 0;  // ready at once, not in the yard
        s.Schiffe(p).Zustand = ZUSTAND_RUHT;
        s.Schiffe(p).Dauer = 0;
    }

    for (int i = 1; i <= 5; ++i) {
        Schiff& pirat = s.Schiffe(s.AnzahlSpieler + i);
        pirat.Besitzer = BESITZER_PIRATEN;
        pirat.Typ = TYP_KREUZER;
        pirat.Zustand = ZUSTAND_RUHT;
        pirat.Bewaffnung = static_cast<Integer>(ZufallGanz(s, 4, 12));
        pirat.Planet = static_cast<Integer>(ZufallGanz(s, 11, s.AnzahlPlaneten + 10));
        pirat.Schaden = 0;
        pirat.Name = "Kreuzer    ";
    }
    s.HoechstesSchiff = static_cast<Integer>(s.AnzahlSpieler + 5);
    s.plattform->leeren();
    std::string fehler;
    if (!STERNE_NEU(s, fehler)) {
        TEXT_AUSGEBEN(s, fehler, 15, 50, 300, ROT);
        std::fprintf(stderr, "%s\n", Utf8(fehler).c_str());
        Warten(s, 3000);
        PROGRAMM_BEENDEN(s, 1);
    }
    s.AktSpieler = 1;
    HAUPTBILDSCHIRM(s, true);
}

}  // namespace

void tmrStart_Timer(Spiel& s) {
    s.tmrStartAn = false;
    Einleitung(s);
    TEXT_AUSGEBEN(s, "Neues Spiel?", 15, 120, 230, ROT);
    Integer wert = -1;
    JA_NEIN(s, wert, 300, 230, 15, ROT);
    bool geladen = false;
    if (s.Eingabe == 2) {
        SPIEL_LADEN(s);
        geladen = s.Eingabe != -1;
    }
    if (geladen) {
        // A saved game is the state at the start of a year: that year runs first.
        RUNDE_AUSFUEHREN(s);
        MELDUNG(s);
        LAGERBESTAND(s);
        KOPFZEILE(s);
    } else {
        NeuesSpiel(s);
    }
    SPIELSCHLEIFE(s);
}
