#include "screen/dialog.h"

#include <exception>

#include "screen/ausgabe.h"
#include "state/text.h"

int TASTE_ABWARTEN(Spiel& s) {
    AUF_TASTE_WARTEN(s);
    s.TasteDa = 0;
    return s.TastenCode;
}

Ausgang ABLEHNEN(Spiel& s, const std::string& text, int y, Ausgang danach) {
    TEXT_AUSGEBEN(s, text, 15, 50, y, WEISS);
    DoEvents(s);
    Warten(s, 1000);
    if (danach == Ausgang::ZumMenue) BOX(s, 50, 660, 480, 720, SCHWARZ);
    return danach;
}

long NUMMER_EINGEBEN(Spiel& s, int y, long bis) {
    long n = 0;
    auto zeigen = [&] {
        TEXT_AUSGEBEN(s, "Nummer: " + Space(4 - static_cast<int>(Str(n).size())) + std::to_string(n), 15, 50, y, ROT);
    };
    zeigen();
    for (;;) {
        const int k = TASTE_ABWARTEN(s);
        if (k == Taste::Enter) break;
        if (k == Taste::Esc) return -1;
        if (k >= '0' && k <= '9' && n * 10 + (k - '0') <= bis) n = n * 10 + (k - '0');
        else if (k == Taste::Backspace) n /= 10;
        zeigen();
    }
    TEXT_AUSGEBEN(s, Space(13), 15, 50, y, WEISS);
    return n;
}

int NAECHSTES_SCHIFF(int n, int schritt, int grenze, const std::function<bool(int)>& passt) {
    for (int versuch = 0; versuch <= grenze + 1; ++versuch) {
        if (n > grenze) n = 1;
        if (n < 1) n = grenze;
        if (passt(n)) return n;
        n += schritt;
    }
    return 0;
}

Gewaehlt SCHIFF_WAEHLEN(Spiel& s, int start, const SchiffWahl& w) {
    int nr = start;
    auto schritt = [&](int von, int richtung) {
        const int n = NAECHSTES_SCHIFF(von, richtung, w.grenze, w.passt);
        if (n) nr = n;
        w.zeigen(nr);
    };
    s.TasteDa = 0;
    for (;;) {
        s.plattform->schlafen(5);
        DoEvents(s);
        if (w.maus && s.MausSchiff > 0) {
            nr = static_cast<int>(s.MausSchiff);
            s.MausSchiff = -1;
            w.zeigen(nr);
            return {nr, true};
        }
        if (s.TasteDa == 0) continue;
        const int c = s.TastenCode;
        s.TasteDa = 0;
        const int h = w.grenze;
        switch (c) {
            case Taste::Enter: return {nr, false};
            case Taste::Esc: return {0, false};
            case Taste::Hoch: schritt(nr + 1, 1); break;
            case Taste::Runter: schritt(nr - 1, -1); break;
            case Taste::BildAuf:
                if (w.blaettern) schritt(nr + 11 > h ? 1 : nr + 11, 1);
                break;
            case Taste::BildAb:
                if (w.blaettern) schritt(nr - 11 < 1 ? h : nr - 11, -1);
                break;
            case Taste::Leer: {
                if (w.nummerY == 0) break;
                long n = NUMMER_EINGEBEN(s, w.nummerY, w.nummerBis);
                if (n < 0) return {0, false};
                if (n == 0) n = 1;
                const int gefunden = NAECHSTES_SCHIFF(static_cast<int>(n), 1, w.nummerGrenze ? w.nummerGrenze : h, w.passt);
                if (gefunden) nr = gefunden;
                w.zeigen(nr);
                break;
            }
            default: break;
        }
    }
}

Ueberlagerung::Ueberlagerung(Spiel& s)
    : s_(s),
      bild_(s.plattform->bildSichern()),
      tasteDa_(s.TasteDa),
      tastenCode_(s.TastenCode),
      mausTreffer_(s.MausTreffer),
      tastenZeichen_(s.TastenZeichen),
      bildschirm_(s.Bildschirm),
      mausSchiff_(s.MausSchiff),
      mausPlanet_(s.MausPlanet),
      mausStern_(s.MausStern),
      linienbreite_(s.Linienbreite) {
    s.Ueberlagert = true;
    s.Bildschirm = "UEBERLAGERUNG";  // clicks reach nothing underneath
}

Ueberlagerung::~Ueberlagerung() {
    s_.Ueberlagert = false;
    // When the program ends while it stands, it stays as the last picture.
    if (std::uncaught_exceptions() > 0) return;
    s_.plattform->bildZurueck(bild_);
    s_.TasteDa = tasteDa_;
    s_.TastenCode = tastenCode_;
    s_.MausTreffer = mausTreffer_;
    s_.TastenZeichen = tastenZeichen_;
    s_.Bildschirm = bildschirm_;
    s_.MausSchiff = mausSchiff_;
    s_.MausPlanet = mausPlanet_;
    s_.MausStern = mausStern_;
    s_.Linienbreite = linienbreite_;
    s_.Ueberlagert = false;
    // The clock of a timed turn went on underneath; it shows its time again.
    if (s_.Zeitlimit == -1 && s_.ImZug) TEXT_AUSGEBEN(s_, Rechtsbuendig(s_.ZeitRest, 4), 15, 370, 50, GELB);
}

int Ueberlagerung::taste() { return TASTE_ABWARTEN(s_); }

void UEBERLAGERUNG_RAHMEN(Spiel& s, int x1, int y1, int x2, int y2, const std::string& titel, Farbe farbe) {
    BOX(s, x1, y1, x2, y2, SCHWARZ);
    const int breite = s.Linienbreite;
    s.Linienbreite = 2;
    RAHMEN(s, x1, y1, x2, y2, farbe);
    s.Linienbreite = breite;
    TEXT_AUSGEBEN(s, titel, 15, x1 + 20, y1 + 10, GELB);
}
