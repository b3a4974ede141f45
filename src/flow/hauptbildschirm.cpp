// The main screen: market frame, news frame, head, storage, action box.
#include "flow/hauptschleife.h"

#include "screen/ausgabe.h"
#include "state/text.h"
#include "views/lagerbestand.h"
#include "year/meldung.h"

void KOPFZEILE(Spiel& s, bool mitLeerzeichen) {
    // Trailing blanks wipe the tail of a longer name or title before it.
    const int r = s.Rang(s.AktSpieler) >= 1 && s.Rang(s.AktSpieler) <= 9 ? s.Rang(s.AktSpieler) : 1;
    TEXT_AUSGEBEN(s, s.RangName(r) + "  " + s.SpielerName(s.AktSpieler) + Space(mitLeerzeichen ? 10 : 0), 15, 30, 28,
                  GELB);
}

void AKTIONSZEILE(Spiel& s) {
    TEXT_AUSGEBEN(s, "Aktion:" + Space(14) + "Bargeld:", 15, 30, 570, WEISS);
    const std::string geld = std::to_string(s.Bargeld(s.AktSpieler));
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
    // Below the frames, where nothing else stands: the keys a newcomer needs first.
    TEXT_AUSGEBEN(s, "F1 Hilfe   F6 Verlauf", 12, 790, 745, HINWEIS_GRAU);
    DoEvents(s);
}

