// The news of the year: writing a line, reading a ship back out of one,
// the frame on the right with its pages, and the year's sound.
#include "year/meldung.h"

#include "screen/ausgabe.h"
#include "screen/musik.h"
#include "state/text.h"

Long SCHIFF_IN_MELDUNG(const std::string& zeile, bool mitScout, bool& gefunden) {
    static const char* const CODES[] = {"SST ", "FSS ", "TST ", "XXL ", "TSR ", "XS "};
    gefunden = false;
    for (int c = 0; c < (mitScout ? 6 : 5); ++c) {
        size_t p0 = zeile.find(CODES[c]);
        if (p0 == std::string::npos) continue;
        gefunden = true;
        // The digits follow the label; the blank after them ends the number.
        size_t p = p0 + 1;  // counted from 1, as the lines are read
        size_t q = 0;
        if (p + 4 <= zeile.size()) {
            size_t b = zeile.find(' ', p + 4);  // from position p + 5
            q = b == std::string::npos ? 0 : b + 1;
        }
        std::string stueck = q > 0 && p + 2 < zeile.size() ? zeile.substr(p + 2, q) : "";
        stueck = Trim(stueck);
        long n = 0;
        size_t i = 0;
        bool negativ = false;
        if (i < stueck.size() && (stueck[i] == '-' || stueck[i] == '+')) negativ = stueck[i++] == '-';
        while (i < stueck.size() && stueck[i] >= '0' && stueck[i] <= '9' && n < 100000000) n = n * 10 + (stueck[i++] - '0');
        return static_cast<Long>(negativ ? -n : n);
    }
    return 0;
}

void MELDUNG(Spiel& s) {
    BOX(s, 502, 245, 998, 738, SCHWARZ);
    const bool einzelseite = s.MeldungAnzahl < 20;
    const int zeilen = einzelseite ? 19 : 17;
    const int erste = einzelseite ? 1 : 17 * s.MeldungSeite - 16;
    int r = 1;
    for (; r <= zeilen; ++r) {
        const int n = erste + r - 1;
        const int y = 230 + 25 * r;
        KlickFeld& k = s.KlickFelder(r);
        k = KlickFeld{510, static_cast<Single>(y), 990, static_cast<Single>(y + 20), -1, -1};
        if (n < 1 || n > MELDUNGEN_MAX || n > s.MeldungAnzahl) continue;
        const std::string& text = s.MeldungText(n);
        if (!text.empty()) TEXT_AUSGEBEN(s, text, 15, 510, y, static_cast<Farbe>(s.MeldungFarbe(n)));
        bool gefunden = false;
        Long schiff = SCHIFF_IN_MELDUNG(text, einzelseite, gefunden);
        if (gefunden) k.Schiff = schiff;
        else if (s.MeldungPlanet(n) >= 0) k.Planet = s.MeldungPlanet(n);
    }
    if (!einzelseite) TEXT_AUSGEBEN(s, "< F3: Weitere Meldungen >", 15, 610, 705, GELB);
    for (; r <= KLICK_ZEILEN; ++r) s.KlickFelder(r) = KlickFeld{0, 0, 0, 0, -1, -1};
}

void MELDUNG_NEU(Spiel& s, const std::string& text, Farbe farbe, Long planet) {
    if (s.MeldungAnzahl >= MELDUNGEN_MAX) {
        // The table is full: its last line gives way to a count of what
        // could not be told, itself and every line after it.
        s.MeldungenAusgelassen = s.MeldungenAusgelassen == 0 ? 2 : s.MeldungenAusgelassen + 1;
        s.MeldungAnzahl = MELDUNGEN_MAX;
        s.MeldungText(MELDUNGEN_MAX) = "-- " + std::to_string(s.MeldungenAusgelassen) + " weitere Meldungen fehlen --";
        s.MeldungFarbe(MELDUNGEN_MAX) = ROT;
        s.MeldungPlanet(MELDUNGEN_MAX) = -1;
        return;
    }
    ++s.MeldungAnzahl;
    s.MeldungText(s.MeldungAnzahl) = text;
    s.MeldungFarbe(s.MeldungAnzahl) = static_cast<Long>(farbe);
    s.MeldungPlanet(s.MeldungAnzahl) = planet;
}

std::string LABEL(const Spiel& s, int schiff) { return s.Schiffe(schiff).Typ + std::to_string(schiff); }


void JAHRES_KLANG(Spiel& s) {
    static const char* const STUECKE[] = {"", "MeteorQuorvant.mid", "LagerbrandQuorvant.mid", "ErnennungQuorvant.mid",
                                          "OrdenQuorvant.mid", "DTWQuorvant.mid"};
    if (s.SoundAn == 0) s.SoundEreignis = 0;
    DoEvents(s);
    if (s.SoundEreignis >= 1 && s.SoundEreignis <= 5) MCI_Play(s, STUECKE[s.SoundEreignis]);
    s.SoundEreignis = 0;
}
