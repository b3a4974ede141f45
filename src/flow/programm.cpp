#include "flow/programm.h"

#include <cstdio>

#include "flow/routinen.h"
#include "screen/ausgabe.h"
#include "screen/musik.h"
#include "state/text.h"

namespace {

const std::string MENUE_JAHR = T("Weiter zum nächsten Jahr   ");
const std::string MENUE_SPIELER = T("Weiter zum nächsten Spieler");

void Form_Load(Spiel& s) {
    s.plattform->leeren();
    s.Titel = "Quorvant    V" + std::to_string(QUORVANT_VERSION_MAJOR) + "." +
              std::to_string(QUORVANT_VERSION_MINOR) + ".0." + std::to_string(QUORVANT_VERSION_REVISION);
    s.plattform->titelSetzen(s.Titel);
    s.tmrStartAn = true;
    s.tmrStartFaellig = s.plattform->uhrMs() + 100;
}

void ZeitAnzeigen(Spiel& s) {
    s.tmrZeitAn = true;
    s.tmrZeitFaellig = s.plattform->uhrMs() + 1000;
    TEXT_AUSGEBEN(s, "Zeit:", 15, 300, 50, GELB);
    TEXT_AUSGEBEN(s, Rechtsbuendig(s.ZeitRest, 4), 15, 370, 50, GELB);
}

std::vector<std::string> Liste(const Feld<std::string, 1, 12>& f) {
    std::vector<std::string> v(1);
    for (int i = 1; i <= 12; ++i) v.push_back(f(i));
    return v;
}

void ZugBeenden(Spiel& s) {
    s.tmrZeitAn = false;
    if (s.AktSpieler == s.AnzahlSpieler) {
        if (s.AnzahlSpieler > 1) s.MenueText(1) = MENUE_SPIELER;
        for (int i = 0; i < s.AussetzenJahre; ++i) RUNDE_AUSFUEHREN(s);
        s.AussetzenJahre = 0;
        RUNDE_AUSFUEHREN(s);
        s.AktSpieler = 1;
        KOPFZEILE(s);
    } else {
        s.AktSpieler = static_cast<Integer>(s.AktSpieler + 1);
        s.MenueText(1) = s.AktSpieler == s.AnzahlSpieler ? MENUE_JAHR : MENUE_SPIELER;
        KOPFZEILE(s);
        LAGERBESTAND(s);
    }
    if (s.Zeitlimit == -1) {
        s.ZeitRest = static_cast<Integer>(110 - 10 * s.Rang(s.AktSpieler));
        ZeitAnzeigen(s);
    }
    s.Eingabe = 1;
    s.LetztesSchiff = 0;
}

void SpielBeendenDialog(Spiel& s) {
    Integer wert = -1;
    JA_NEIN(s, wert, 320, 600, 15, WEISS);
    if (s.Eingabe != 1) {
        s.BeendenNachSichern = 0;
    } else {
        s.BeendenNachSichern = -1;
        TEXT_AUSGEBEN(s, "Spielstand speichern?", 15, 50, 630, WEISS);
        wert = -1;
        JA_NEIN(s, wert, 320, 630, 15, WEISS);
        if (s.Eingabe == 1) {
            s.SichernAmRundenende = -1;
            TEXT_AUSGEBEN(s, "Am Ende der Runde wird gespeichert.", 15, 50, 690, WEISS);
            DoEvents(s);
            Warten(s, 2000);
        } else {
            s.SichernAmRundenende = 0;
        }
    }
    if (s.Eingabe != -1 && s.BeendenNachSichern != 0 && s.SichernAmRundenende == 0) {
        MCI_Stop(s);
        TEXT_AUSGEBEN(s, "Auf Wiedersehen!", 15, 50, 660, WEISS);
        DoEvents(s);
        Warten(s, 2000);
        PROGRAMM_BEENDEN(s, 0);
    }
}

}  // namespace

void KOPFZEILE(Spiel& s, bool mitLeerzeichen) {
    // Trailing blanks wipe the tail of a longer name or title before it.
    const int r = s.Rang(s.AktSpieler) >= 1 && s.Rang(s.AktSpieler) <= 9 ? s.Rang(s.AktSpieler) : 1;
    TEXT_AUSGEBEN(s, s.RangName(r) + "  " + s.SpielerName(s.AktSpieler) + Space(mitLeerzeichen ? 10 : 0), 15, 30, 28,
                  GELB);
}

void AKTIONSZEILE(Spiel& s) {
    TEXT_AUSGEBEN(s, "Aktion:" + Space(14) + "Bargeld:", 15, 30, 570, WEISS);
    const std::string geld = std::to_string(s.Bargeld(s.AktSpieler)) + " SD";
    int w = 0, h = 0;
    s.plattform->textMessen(geld, 15, w, h);
    TEXT_AUSGEBEN(s, geld, 15, 470 - w, 570, WEISS);
}

void HAUPTBILDSCHIRM(Spiel& s, bool mitMeldungUndLager) {
    s.Linienbreite = 2;
    RAHMEN(s, 500, 20, 1000, 230, GRUEN);
    TEXT_AUSGEBEN(s, T("$$$  M A R K T - B Ö R S E  $$$"), 15, 550, 11, GRUEN);
    RAHMEN(s, 500, 240, 1000, 740, MAGENTA);
    TEXT_AUSGEBEN(s, "* * * * * * * * * * * * * * *", 15, 570, 232, MAGENTA);
    if (mitMeldungUndLager) MELDUNG(s);
    RAHMEN(s, 20, 20, 490, 80, BLAU);
    KOPFZEILE(s, false);
    TEXT_AUSGEBEN(s, "Jahr    " + std::to_string(s.Jahr), 15, 30, 50, GELB);
    RAHMEN(s, 20, 90, 490, 550, BLAU);
    if (mitMeldungUndLager) LAGERBESTAND(s);
    RAHMEN(s, 20, 560, 490, 740, BLAU);
    AKTIONSZEILE(s);
    DoEvents(s);
}

void AUSSETZEN(Spiel& s) {
    TEXT_AUSGEBEN(s, "Wie oft?", 15, 50, 630, WEISS);
    ZAHL_EINGEBEN(s, 0, 1000, 150, 630, 15, WEISS, 5, 0, 0);
    if (s.Eingabe > 0) s.AussetzenJahre = static_cast<Integer>(s.Eingabe);
}

void SPIELSCHLEIFE(Spiel& s) {
    if (s.SoundAn == 0) BILD(s, "Sound", 472, 22);
    if (s.ProduktionAn == 0) BILD(s, "Produktion", 454, 22);
    if (s.Zeitlimit == -1) {
        s.ZeitRest = 100;
        ZeitAnzeigen(s);
    }
    if (s.AnzahlSpieler == 1) s.MenueText(1) = MENUE_JAHR;
    s.Eingabe = 1;

    for (;;) {
        s.Bildschirm = "UNBEKANNT";
        if (s.Zeitlimit == -1 && s.ZeitRest == 0) {
            s.Eingabe = 1;
            TEXT_AUSGEBEN(s, "Zeit ist abgelaufen!", 15, 50, 630, WEISS);
            DoEvents(s);
            Warten(s, 1000);
        } else {
            s.Bildschirm = "HAUPT";
            Long start = s.Eingabe;
            AUSWAHL(s, Liste(s.MenueText), 1, 12, 50, 600, 15, WEISS, start, Liste(s.MenueTasten));
            s.Bildschirm = "UNBEKANNT";
        }
        const Long wahl = s.Eingabe;
        switch (wahl) {
            case 1: ZugBeenden(s); s.Eingabe = 1; break;
            case 2: SCHIFFE_ANWEISEN(s); break;
            case 3: SPACEDOCKS(s); break;
            case 4: WAREN_VERKAUFEN(s); break;
            case 5: STERNKARTE(s); STERNLIST(s); break;
            case 6: FORSCHUNG_FINANZIEREN(s); break;
            case 7: KREDIT(s); break;
            case 8: STATUS(s); break;
            case 9: SCHIFF_VERKAUFEN(s); break;
            case 10: AUSSETZEN(s); break;
            case 11:
                s.SichernAmRundenende = -1;
                TEXT_AUSGEBEN(s, "Am Ende der Runde wird gespeichert.", 15, 50, 660, WEISS);
                DoEvents(s);
                Warten(s, 1000);
                break;
            case 12: SpielBeendenDialog(s); break;
            default: break;
        }
        // The cursor stays on the item last used; Esc and the quit dialog go back to the first.
        s.Eingabe = (wahl >= 2 && wahl <= 11) ? wahl : 1;
        LAGERBESTAND(s);
        BOX(s, 22, 562, 488, 732, SCHWARZ);
        AKTIONSZEILE(s);
        MELDUNG(s);
    }
}

void PROGRAMM_BEENDEN(Spiel& s, int status) {
    if (s.plattform) s.plattform->musikStoppen();
    throw ProgrammEnde{status};
}

int PROGRAMM_AUSFUEHREN(Spiel& s, Plattform& p) {
    s.plattform = &p;
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
