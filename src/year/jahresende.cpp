// The turn of the year, before a single ship moves: the guild weighs every
// player and hands out ranks, medals and the millionaire's greeting, then the
// countdown events fall due, and research and the hidden components have
// their say.
#include "year/jahresende.h"

#include "economy/forschung.h"
#include "screen/ausgabe.h"
#include "screen/musik.h"
#include "state/codes.h"
#include "state/text.h"
#include "year/erfindungen.h"
#include "year/katastrophen.h"
#include "year/meldung.h"

namespace {

constexpr int RANG_HOECHSTER = 9;
constexpr int MEDAILLE_HOECHSTE = 4;
constexpr int ERFINDUNGSSPALTEN = 12;  // research counts columns 1 to 12

// The year's music, as SoundEreignis numbers it.
constexpr Integer KLANG_ERNENNUNG = 3;
constexpr Integer KLANG_ORDEN = 4;
constexpr Integer KLANG_MILLIONAER = 5;

// x / 100 to the nearest whole number, a half to the even one.
long long HundertstelRunden(long long x) {
    long long q = x / 100, r = x % 100;
    if (r < 0) r += 100, --q;
    if (r > 50 || (r == 50 && (q & 1) != 0)) ++q;
    return q;
}

// A hull's worth when whole; damage takes its share off.
long long Rumpfwert(const Schiff& sch) {
    if (IstFrachter(sch)) return 900 + 10LL * sch.Laderaum + 50LL * sch.Bewaffnung;
    if (IstTanker(sch)) return 800 + 10LL * sch.Laderaum + 50LL * sch.Bewaffnung;
    if (IstKreuzer(sch)) return 470 + 70LL * sch.Bewaffnung;
    if (IstStation(sch)) return 2000 + 50LL * sch.Bewaffnung;
    return 400;  // scouts, and great freighters too
}

// Cargo at market prices; fuel at 30 a unit. A great freighter's hold is not
// valued.
long long Frachtwert(const Spiel& s, const Schiff& sch) {
    long long w = 0;
    if (IstFrachter(sch) || IstStation(sch))
        for (int g = 1; g <= ANZAHL_WAREN; ++g) w += static_cast<long long>(s.Preis(g)) * sch.Fracht(g);
    if (IstTanker(sch) || IstStation(sch)) w += 30LL * sch.Fracht(FRACHT_SPRIT);
    return w;
}

void RANG_PRUEFEN(Spiel& s, int p) {
    if (s.Rang(p) >= RANG_HOECHSTER || s.Rang(p) < 1) return;
    if (s.RangSchwelle(s.Rang(p) + 1) > BEWERTUNG(s, p)) return;
    s.Rang(p) = static_cast<Integer>(s.Rang(p) + 1);
    const std::string anfang = "Die Gilde ernennt " + s.SpielerName(p) + " zum ";
    const std::string& titel = s.RangName(s.Rang(p));
    if ((anfang + titel).size() < 40) {
        MELDUNG_NEU(s, anfang + titel + "!", GELB);
    } else {
        MELDUNG_NEU(s, anfang, GELB);
        MELDUNG_NEU(s, "   " + titel + "!", GELB);
    }
    s.SoundEreignis = KLANG_ERNENNUNG;
}

// Tonnes sold that the next medal asks for, to be passed in every good the
// level lists; KEINE: that good is not asked for.
constexpr Long KEINE = -1;
constexpr Long MEDAILLEN_GRENZE[ANZAHL_WAREN][MEDAILLE_HOECHSTE] = {
    //  Bronze  Silber   Gold    Sen
    {3000,  6000,  10000, 15000},  // Getreide
    {1000,  2000,  5000,  8000},   // Seidenstoffe
    {1000,  2000,  5000,  8000},   // G-Stahl
    {1000,  2000,  5000,  8000},   // Gewürze
    {1000,  2000,  5000,  8000},   // Fluritid
    {700,   1500,  4000,  6000},   // Alkarkotica
    {400,   1000,  3000,  6000},   // Damast
    {KEINE, 300,   1500,  3000},   // Silizium
    {KEINE, 300,   1500,  3000},   // Platinholz
    {KEINE, 300,   1500,  3000},   // Mirellen
    {KEINE, 300,   1000,  2000},   // Fossilien
    {KEINE, 100,   1000,  2000},   // Griflinge
    {KEINE, 100,   700,   2000},   // Sen-Wurzel
    {KEINE, KEINE, 300,   1000},   // Antimaterie
    {KEINE, KEINE, 300,   1000},   // Zimol-Lampen
    {KEINE, KEINE, 100,   700},    // Flopse
    {KEINE, KEINE, 100,   700},    // Histarin
    {KEINE, KEINE, KEINE, 700},    // Stellariten
    {KEINE, KEINE, KEINE, 700},    // Diamitrin
    {KEINE, KEINE, KEINE, 700},    // Golgo-Pelze
};
const char* const MEDAILLEN_ZEILE[MEDAILLE_HOECHSTE] = {
    "Versorgungsmedaille in Bronze!", "Versorgungsmedaille in Silber!",
    "Versorgungsmedaille in Gold!", "Versorgungsmedaille in Sen!"};

// Only the next level is tested: one medal a year at most.
void MEDAILLE_PRUEFEN(Spiel& s, int p) {
    const int stufe = s.Medaille(p);  // index of the next level
    if (stufe < 0 || stufe >= MEDAILLE_HOECHSTE) return;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) {
        const Long grenze = MEDAILLEN_GRENZE[g - 1][stufe];
        if (grenze != KEINE && s.Statistik(g, p) <= grenze) return;
    }
    s.Medaille(p) = static_cast<Integer>(stufe + 1);
    MELDUNG_NEU(s, "Die Gilde verleiht " + s.SpielerName(p) + " die ", GELB);
    MELDUNG_NEU(s, MEDAILLEN_ZEILE[stufe], GELB);
    s.SoundEreignis = KLANG_ORDEN;
}

// Cash alone counts, and the greeting comes once in a game.
void MILLIONAER_PRUEFEN(Spiel& s, int p) {
    if (s.Bargeld(p) <= 999999 || s.Forschung(FORSCHUNG_MILLIONAER, p) != 0) return;
    MELDUNG_NEU(s, T("Herzlichen Glückwunsch ") + s.SpielerName(p) + "!", GELB);
    MELDUNG_NEU(s, T("   Sie sind Millionär!"), GELB);
    s.SoundEreignis = KLANG_MILLIONAER;
    s.Forschung(FORSCHUNG_MILLIONAER, p) = -1;
}

// The countdowns run down together; an event that falls due sets its own
// anew. A counter that a damaged save left at zero or below is due at once
// rather than never again.
void EREIGNISSE(Spiel& s) {
    for (int e = EREIGNIS_STEUER; e <= EREIGNIS_STREIK; ++e) s.EreignisJahre(e) = static_cast<Integer>(s.EreignisJahre(e) - 1);
    if (s.EreignisJahre(EREIGNIS_STEUER) <= 0) STEUER(s);
    if (s.EreignisJahre(EREIGNIS_HAFENGEBUEHR) <= 0) HAFENGEBUEHR(s);
    if (s.EreignisJahre(EREIGNIS_METEORSTURM) <= 0) METEORSTURM(s);
    if (s.EreignisJahre(EREIGNIS_LAGERBRAND) <= 0) LAGERBRAND(s);
    if (s.EreignisJahre(EREIGNIS_STREIK) <= 0) STREIK(s);
}

int Spieler(const Spiel& s) { return s.AnzahlSpieler < SPIELER_MAX ? s.AnzahlSpieler : SPIELER_MAX; }

}  // namespace

Long BEWERTUNG(const Spiel& s, int p, bool ohneKredit) {
    if (p < 1 || p > SPIELER_MAX) return 0;
    long long w = s.Bargeld(p) - (ohneKredit ? 0 : s.Kredit(p));
    const int bis = s.HoechstesSchiff < SCHIFF_GRENZE ? s.HoechstesSchiff : SCHIFF_GRENZE - 1;
    for (int i = 1; i <= bis; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch) || sch.Besitzer != p) continue;
        // In hundredths, so that the running total rounds exactly after the hull.
        w = HundertstelRunden(100 * w + (100LL - sch.Schaden) * Rumpfwert(sch));
        w += Frachtwert(s, sch);
    }
    for (int g = 1; g <= ANZAHL_WAREN; ++g) w += static_cast<long long>(s.Lager(g, p)) * s.Preis(g);
    long long n = 0;
    for (int k = 1; k <= ERFINDUNGSSPALTEN; ++k)
        if (s.Forschung(k, p) == -1) ++n;
    w += 2500 * n * n;
    return static_cast<Long>(w);
}

void JAHRESENDE(Spiel& s) {
    for (int p = 1; p <= Spieler(s); ++p) RANG_PRUEFEN(s, p);
    for (int p = 1; p <= Spieler(s); ++p) MEDAILLE_PRUEFEN(s, p);
    for (int p = 1; p <= Spieler(s); ++p) MILLIONAER_PRUEFEN(s, p);
    EREIGNISSE(s);
    ERFINDUNG_PRUEFEN(s);
    KOMPONENTEN_PRUEFEN(s);
    MCI_Stop(s);
}
