#pragma once
// Shared pieces of the tests: a game on the headless platform fed by a
// script, and a run of the headless driver.
// Every game header the tests use, once.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "economy/forschung.h"
#include "economy/kredit.h"
#include "economy/markt.h"
#include "economy/schiffe.h"
#include "economy/spacedocks.h"
#include "flow/hauptschleife.h"
#include "flow/spielstand.h"
#include "orders/anweisen.h"
#include "orders/fracht.h"
#include "orders/reisen.h"
#include "orders/sonder.h"
#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "screen/eingabe.h"
#include "screen/headless/headless_plattform.h"
#include "screen/leinwand.h"
#include "screen/plattform.h"
#include "state/codes.h"
#include "state/regeln.h"
#include "state/spiel.h"
#include "state/sterne.h"
#include "state/text.h"
#include "state/zufall.h"
#include "views/lagerbestand.h"
#include "views/schiff_anzeigen.h"
#include "views/sternkarte.h"
#include "views/status.h"
#include "year/erfindungen.h"
#include "year/jahr.h"
#include "year/jahresende.h"
#include "year/kampf.h"
#include "year/katastrophen.h"
#include "year/meldung.h"

struct TestSpiel {
    std::unique_ptr<Spiel> s = std::make_unique<Spiel>();
    std::unique_ptr<HeadlessPlattform> p = std::make_unique<HeadlessPlattform>();

    // A game of one player with the tables filled and no galaxy.
    explicit TestSpiel(const std::string& skript = "");
    // Runs f until it returns or the script is used up; true if it returned.
    template <class F>
    bool laufen(F f) {
        try {
            f(*s);
            return true;
        } catch (const ProgrammEnde&) {
            return false;
        }
    }
    std::string bildschirm() const { return p->bildschirm(); }
    // The text printed at (x, y) on the screen now, "" if none.
    std::string textBei(int x, int y) const;
};

struct TreiberLauf {
    int status = -1;
    std::string screen;
    std::string trace;
    std::vector<uint8_t> state;
    std::string fehler;  // standard error
};

// Runs build/.../quorvant-headless with the script and options.
TreiberLauf Treiber(const std::string& skript, const std::string& optionen = "--seed 7",
                    const std::string& datenOrdner = "");

// The inputs from the program start to the first turn: the intro ended by a
// key, "Neues Spiel?" ja, the dialog with its first entries (1 to 6 players,
// 100 systems, low demand, no time limit), the capital and the names.
std::string NeuesSpielSkript(int spieler, int kapital, const std::vector<std::string>& namen = {},
                             bool zeitlimit = false);

// A fresh empty folder below the test's temporary directory.
std::string TempOrdner(const std::string& name);
// A copy of the project's data folder (star list, music, pictures) to play in.
std::string DatenKopie(const std::string& name);

// The game in the state a driver run ended with.
Spiel ZustandAus(const TreiberLauf& lauf);
// A new game made through the dialog (100 systems), as it stands at its first turn.
Spiel NeuesSpielZustand(int spieler, int kapital, const std::string& optionen = "--seed 7");
// The inputs from the program start to a loaded game: the intro ended, "nein"
// at "Neues Spiel?", the first saved game of the folder chosen. Loading runs
// one year before the first turn.
std::string LadeSkript();
// A prepared game, saved into a fresh copy of the data folder as name.qvt and
// loaded through the dialog, then played on with the further inputs.
TreiberLauf GeladenSpielen(const Spiel& s, const std::string& weiter, const std::string& name,
                           const std::string& optionen = "--seed 7");

// --- pieces that many tests share -------------------------------------------------

// Script lines: a click, and one line n times.
std::string Klick(int x, int y);
std::string Mal(const std::string& zeile, int n);
// The constant tables (goods, numerals, ship classes), which saved games do not hold.
const Spiel& Tafeln();
// Players Anna, Bnna, ... with 1000 SD; fifty planets "Wega " of good 4 in five
// systems in a row, ten units apart; Sol III; no news, no headquarters.
Spiel KleineWelt(int spieler = 1);
// Slot nr cleared and made a ship of that type: owner, planet, guns; a full tank
// of 30 (a pirate's empty); HoechstesSchiff raised to it.
Schiff& SchiffSetzen(Spiel& s, int nr, const char* typ, int besitzer, int planet, int waffen = 0);
// The news lines of the game, in UTF-8.
std::vector<std::string> Meldungen(const Spiel& s);
// "colour text" of every print at (x, y) in a trace, in its order.
std::vector<std::string> Gedruckt(const std::string& spur, int x, int y);
// The colour of the first screen line that holds the text, -1 if none does.
long FarbeVon(const TreiberLauf& lauf, const std::string& text);
constexpr long ROT_WERT = 255, CYAN_WERT = 16776960;
// A picture the driver or a canvas wrote, against the golden one kept beside the
// tests (a few glyph-edge shades may differ); QUORVANT_GOLDEN_SCHREIBEN=1 keeps
// the new picture instead.
void WieGolden(const std::string& png, const std::string& name);
// A new game of seed 7 for that many players with 5000 SD each, its countdown
// events that many years away (made once per number of players).
Spiel RuhigesSpiel(int spieler, int ereignisJahre = 500);
