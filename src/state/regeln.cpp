// The game's vocabulary and its starting values.
#include "state/regeln.h"

#include <algorithm>
#include <iterator>

#include "state/text.h"
#include "state/zufall.h"
#include "state/codes.h"

namespace {

// Jobs of the spacedocks, padded to the width of their menu.
const char* const DOCK_AUFTRAEGE[] = {
    /* 1 */ "Bauen               ",
    /* 2 */ "Laderaum erweitern  ",
    /* 3 */ "Bessere Bewaffnung  ",
    /* 4 */ "Reparatur           ",
    /* 5 */ "DTW-Filter-Einbau   ",
};
static_assert(std::size(DOCK_AUFTRAEGE) == decltype(Spiel::DockAuftrag)::anzahl);

struct SchiffTyp {
    const char* klasse;
    const char* kuerzel;
    Long preis;  // SD
};
const SchiffTyp SCHIFF_TYPEN[] = {
    /* 1 */ {"Frachter   ",   "SST",  1000},
    /* 2 */ {"Tanker      ",  "TST",   900},
    /* 3 */ {"Kreuzer     ",  "FSS",   750},
    /* 4 */ {"Scout       ",  "XS",    400},
    /* 5 */ {"Raumstation ",  "TSR",  2000},
    /* 6 */ {"Großfrachter",  "XXL", 10000},
};
static_assert(std::size(SCHIFF_TYPEN) == decltype(Spiel::SchiffKlasse)::anzahl);
static_assert(std::size(SCHIFF_TYPEN) == decltype(Spiel::SchiffKuerzel)::anzahl);
static_assert(std::size(SCHIFF_TYPEN) == decltype(Spiel::SchiffPreis)::anzahl);

struct RangStufe {
    const char* name;
    Long schwelle;  // wealth in SD
};
const RangStufe RAENGE[] = {
    /* 1 */ {"Spieler",          10000},
    /* 2 */ {"Handelstreiber",   30000},
    /* 3 */ {"Kaufmann",         70000},
    /* 4 */ {"Organisator",     120000},
    /* 5 */ {"Handelsherr",     200000},
    /* 6 */ {"Großherr",        300000},
    /* 7 */ {"Quorvant",        500000},
    /* 8 */ {"Erzquorvant",    1000000},
    /* 9 */ {"Gott",           3000000},
};
static_assert(std::size(RAENGE) == decltype(Spiel::RangName)::anzahl);
static_assert(std::size(RAENGE) == decltype(Spiel::RangSchwelle)::anzahl);

// Goods by rising price: the far stars produce the dear ones.
struct Ware {
    const char* name;
    Integer grundPreis;  // SD per t
};
const Ware WAREN[] = {
    /*  1 */ {"Getreide",       10},
    /*  2 */ {"Seidenstoffe",   15},
    /*  3 */ {"G-Stahl",        18},
    /*  4 */ {"Gewürze",        22},
    /*  5 */ {"Fluritid",       38},
    /*  6 */ {"Alkarkotica",    40},
    /*  7 */ {"Damast",         45},
    /*  8 */ {"Silizium",       60},
    /*  9 */ {"Platinholz",     65},
    /* 10 */ {"Mirellen",       80},
    /* 11 */ {"Fossilien",      90},
    /* 12 */ {"Griflinge",      95},
    /* 13 */ {"Sen-Wurzel",    105},
    /* 14 */ {"Antimaterie",   115},
    /* 15 */ {"Zimol-Lampen",  130},
    /* 16 */ {"Flopse",        135},
    /* 17 */ {"Histarin",      145},
    /* 18 */ {"Stellariten",   155},
    /* 19 */ {"Diamitrin",     160},
    /* 20 */ {"Golgo-Pelze",   170},
};
static_assert(std::size(WAREN) == decltype(Spiel::WarenName)::anzahl);
static_assert(std::size(WAREN) == decltype(Spiel::GrundPreis)::anzahl);

// The main menu; all entries as wide as the first.
struct MenuePunkt {
    const char* text;
    const char* taste;
};
const MenuePunkt MENUE[] = {
    /*  1 */ {"Weiter zum nächsten Spieler", "W"},
    /*  2 */ {"Raumschiffe anweisen       ", "R"},
    /*  3 */ {"Spacedocks anfunken        ", "D"},
    /*  4 */ {"Waren verkaufen            ", "V"},
    /*  5 */ {"Liste der Sternensysteme   ", "L"},
    /*  6 */ {"Forschung finanzieren      ", "F"},
    /*  7 */ {"Kredit aufnehmen/abzahlen  ", "K"},
    /*  8 */ {"Status anzeigen            ", "S"},
    /*  9 */ {"Schiff verkaufen           ", "U"},
    /* 10 */ {"Aussetzen                  ", "A"},
    /* 11 */ {"Spiel sichern              ", "I"},
    /* 12 */ {"Spiel beenden              ", "E"},
};
static_assert(std::size(MENUE) == decltype(Spiel::MenueText)::anzahl);
static_assert(std::size(MENUE) == decltype(Spiel::MenueTasten)::anzahl);

// By planet number modulo 10: the tenth planet of a system ends in 0.
const char* const ROEM_ZAHLEN[] = {
    /* 0 */ "X",
    /* 1 */ "I",
    /* 2 */ "II",
    /* 3 */ "III",
    /* 4 */ "IV",
    /* 5 */ "V",
    /* 6 */ "VI",
    /* 7 */ "VII",
    /* 8 */ "VIII",
    /* 9 */ "IX",
};
static_assert(std::size(ROEM_ZAHLEN) == decltype(Spiel::RoemZahl)::anzahl);

// Years until the first tax, port fee, meteor storm, storage fire, strike:
// a whole number drawn evenly from von to bis (a fixed start: von == bis).
struct Ereignis {
    long von, bis;
};
const Ereignis EREIGNISSE[] = {
    /* 1 tax          */ {19, 19},
    /* 2 port fee     */ {17, 23},
    /* 3 meteor storm */ { 5, 16},
    /* 4 storage fire */ { 5, 20},
    /* 5 strike       */ { 5, 15},
};
static_assert(std::size(EREIGNISSE) == decltype(Spiel::EreignisJahre)::anzahl);

// Hidden cost of the eleven inventions in SD, drawn evenly from von to bis.
struct Erfindung {
    long von, bis;
};
const Erfindung ERFINDUNGEN[] = {
    /*  1 */ {  8000,   27999},
    /*  2 */ {  8000,   37999},
    /*  3 */ { 10000,   59999},
    /*  4 */ { 10000,   79999},
    /*  5 */ { 15000,  114999},
    /*  6 */ { 70000,  149999},
    /*  7 */ { 70000,  149999},
    /*  8 */ { 70000,  199999},
    /*  9 */ { 70000,  139999},
    /* 10 */ {200000,  599999},
    /* 11 */ {600000, 1399999},
};
static_assert(std::size(ERFINDUNGEN) == 11);
static_assert(std::size(ERFINDUNGEN) <= decltype(Spiel::ForschungsKosten)::anzahl);

}  // namespace

void VORBELEGUNG_VARIABLEN(Spiel& s) {
    // 1. the mouse and the status pages
    s.MausTreffer = 0;
    s.MausSchiff = -1;
    s.MausPlanet = -1;
    s.MausStern = -1;
    s.StatusSpalte = 10;
    s.StatusFolge = 0;

    // 2. docks, ships, ranks, goods
    for (int i = 1; i <= static_cast<int>(std::size(DOCK_AUFTRAEGE)); ++i)
        s.DockAuftrag(i) = DOCK_AUFTRAEGE[i - 1];
    for (int i = 1; i <= static_cast<int>(std::size(SCHIFF_TYPEN)); ++i) {
        s.SchiffKlasse(i) = T(SCHIFF_TYPEN[i - 1].klasse);
        s.SchiffKuerzel(i) = SCHIFF_TYPEN[i - 1].kuerzel;
        s.SchiffPreis(i) = SCHIFF_TYPEN[i - 1].preis;
    }
    for (int i = 1; i <= static_cast<int>(std::size(RAENGE)); ++i) {
        s.RangName(i) = T(RAENGE[i - 1].name);
        s.RangSchwelle(i) = RAENGE[i - 1].schwelle;
    }
    for (int g = 1; g <= static_cast<int>(std::size(WAREN)); ++g) {
        s.WarenName(g) = T(WAREN[g - 1].name);
        s.GrundPreis(g) = WAREN[g - 1].grundPreis;
    }

    // 3. the market before the first sale
    for (int g = 1; g <= static_cast<int>(std::size(WAREN)); ++g) {
        s.Preis(g) = s.GrundPreis(g);
        s.Bedarf(g) = 0;
        s.AltPreis(g) = -1;
    }

    // 4. main menu and numerals
    for (int i = 1; i <= static_cast<int>(std::size(MENUE)); ++i) {
        s.MenueText(i) = T(MENUE[i - 1].text);
        s.MenueTasten(i) = MENUE[i - 1].taste;
    }
    for (int i = 0; i <= 9; ++i) s.RoemZahl(i) = ROEM_ZAHLEN[i];

    // 5. the first year, the pirates and their headquarters
    s.Jahr = 2000;
    s.SpielerName(BESITZER_PIRATEN) = "Piraten";
    s.Schiffe(PIRATEN_HQ).Besitzer = BESITZER_PIRATEN;

    // 6. the news
    s.MeldungText(1) = "    -- keine aktuellen Meldungen --    ";
    s.MeldungFarbe(1) = 255;
    s.MeldungAnzahl = 1;

    // 7.
    s.SichernAmRundenende = 0;
    s.BeendenNachSichern = 0;
    s.Komponenten = 0;

    // 8. the yearly events; the tax comes at a fixed year and draws nothing
    s.EreignisJahre(1) = static_cast<Integer>(EREIGNISSE[0].von);
    for (int i = 2; i <= static_cast<int>(std::size(EREIGNISSE)); ++i)
        s.EreignisJahre(i) = static_cast<Integer>(ZufallGanz(s, EREIGNISSE[i - 1].von, EREIGNISSE[i - 1].bis));

    // 9. what the inventions cost
    for (int k = 1; k <= static_cast<int>(std::size(ERFINDUNGEN)); ++k)
        s.ForschungsKosten(k) = static_cast<Long>(ZufallGanz(s, ERFINDUNGEN[k - 1].von, ERFINDUNGEN[k - 1].bis));

    // 10. the first invention takes the cheapest of the first five
    Long rest = s.ForschungsKosten(1);
    for (int k = 2; k <= 5; ++k) rest = std::min(rest, s.ForschungsKosten(k));
    s.ForschungsRest(1) = rest;
    const int spieler = std::min<int>(s.AnzahlSpieler, decltype(Spiel::ForschungsRest)::bis);
    for (int p = 2; p <= spieler; ++p) s.ForschungsRest(p) = rest;

    // The choice lists of the prompts: entry 1 is "*" from the start on.
    if (s.AuswahlTasten.size() < 2) s.AuswahlTasten.resize(2);
    s.AuswahlTasten[1] = "*";
}
