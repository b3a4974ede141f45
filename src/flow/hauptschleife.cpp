// The turn loop: the main menu of each player, the end of a turn and of a
// year, sitting out, saving and quitting.
#include "flow/hauptschleife.h"

#include "economy/forschung.h"
#include "economy/kredit.h"
#include "economy/markt.h"
#include "economy/schiffe.h"
#include "economy/spacedocks.h"
#include "flow/programm.h"
#include "orders/anweisen.h"
#include "screen/ausgabe.h"
#include "screen/eingabe.h"
#include "screen/musik.h"
#include "state/text.h"
#include "views/lagerbestand.h"
#include "views/status.h"
#include "views/sternkarte.h"
#include "views/sternlist.h"
#include "year/jahr.h"
#include "year/meldung.h"

namespace {

const std::string MENUE_JAHR = T("Weiter zum nächsten Jahr   ");
const std::string MENUE_SPIELER = T("Weiter zum nächsten Spieler");

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
    if (s.haken.ZugEndet) s.haken.ZugEndet(s);
    if (s.AktSpieler == s.AnzahlSpieler) {
        if (s.AnzahlSpieler > 1) s.MenueText(1) = MENUE_SPIELER;
        s.ImZug = false;
        for (int i = 0; i < s.AussetzenJahre; ++i) RUNDE_AUSFUEHREN(s);
        s.AussetzenJahre = 0;
        RUNDE_AUSFUEHREN(s);
        s.ImZug = true;
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
    s.ImZug = true;

    Long zugJahr = -1;
    Integer zugSpieler = 0;
    for (;;) {
        s.Bildschirm = "UNBEKANNT";
        if (zugJahr != s.Jahr || zugSpieler != s.AktSpieler) {
            zugJahr = s.Jahr;
            zugSpieler = s.AktSpieler;
            if (s.haken.ZugBeginnt) s.haken.ZugBeginnt(s);
        }
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

