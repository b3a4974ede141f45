#pragma once
// Computer players for the headless driver: they play every player's turn
// through the same keys a person presses, watch the tables after every year
// and write a line of figures per year.
#include <cstdint>
#include <deque>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "bots/computerplattform.h"
#include "screen/headless/headless_plattform.h"
#include "state/spiel.h"

struct BotAuftrag {
    int spieler = 1;       // 1 to 6
    long jahre = 1;        // years to play
    int systeme = 400;     // a size the new-game dialog offers
    int kapital = 5000;    // 0 to 10000
    uint32_t saat = 1;
    bool pruefen = false;  // the invariants after every year
    std::string bericht;   // CSV file, one row a year; "" none
    std::string laden;     // a saved game the houses play on from; "" a new game
    std::string behalten;  // where the game is saved (with its companion) when the run ends; "" nowhere
    // Playing beside persons in the window: the houses never order a save or
    // sit out years (that would be the persons' business), and a house that
    // cannot get on in a dialog ends its turn instead of the run.
    bool nebenMenschen = false;
};

// The sizes of the galaxy the new-game dialog offers, in its order.
bool SYSTEME_ERLAUBT(int systeme);

// What is wrong with the tables, as "table(record).field = value", or "".
std::string INVARIANTEN_PRUEFEN(const Spiel& s);

// The figures of one year for the report.
std::string BERICHT_KOPF(int spieler);
std::string BERICHT_ZEILE(const Spiel& s, const std::vector<long>& gebaut, const std::map<std::string, long>& aktionen);

class Computerspieler {
public:
    Computerspieler(Spiel& s, ComputerPlattform& p, const BotAuftrag& a);

    // The inputs of the intro and the new-game dialog.
    std::string startSkript() const;
    // The next script line(s) the game gets when it waits for input.
    std::string eingabe();
    // Called behind every year's processing.
    void jahrBeendet();

    bool fehlgeschlagen() const { return fehler_; }
    long gespielteJahre() const { return jahreGespielt_; }
    const std::vector<long>& gebaut() const { return gebaut_; }
    long sicherungen() const { return sicherungen_; }
    // How often each menu item and each order was planned.
    const std::map<std::string, long>& aktionenGezaehlt() const { return aktionenGezaehlt_; }

private:
    struct Schritt {
        std::string zeile;   // a script line
        bool haupt = false;  // given at the main menu
        // When set: the line is repeated until the text at (x, y) holds `bis`,
        // at most `max` times; failing that the plan is given up.
        std::string bis;
        int x = 0, y = 0, max = 0;
    };

    // --- the plan and its keys ---
    void menue(const char* taste);  // a main menu item
    void taste(const std::string& name);
    void tippen(const std::string& text);
    void tasteBis(const std::string& name, int x, int y, const std::string& text, int max);
    void auswahlGehen(const std::vector<std::string>& liste, int von, int nach);
    void schiffWaehlen(int nr);
    void dockAuftrag(int auftrag, int schiff);
    void zielTasten(int schiff, int ziel);

    // --- the strategy ---
    void zugPlanen();
    bool verkaufen();
    bool kreditRegeln();
    bool forschen();
    bool docks();
    bool schiffAnweisen();
    bool schiffVerkaufen();
    bool ansehen();
    bool anweisen(int nr);
    bool handelsschiff(int nr, const std::vector<std::string>& l);
    bool kreuzer(int nr, const std::vector<std::string>& l);
    bool scout(int nr, const std::vector<std::string>& l);
    bool tanker(int nr, const std::vector<std::string>& l);
    bool station(int nr, const std::vector<std::string>& l);
    void befehl(int nr, const std::vector<std::string>& l, int platz);
    bool tanken(int nr, const std::vector<std::string>& l);
    bool fliegen(int nr, const std::vector<std::string>& l, int ziel, long rueck);
    bool heimwaerts(int nr, const std::vector<std::string>& l);
    int erkundungsziel(int nr);
    int handelsziel(int nr);
    int haendlerziel(int nr);
    int piratenziel(int nr);
    bool direkt(int nr, int ziel) const;
    int anzahl(int p, const char* typ) const;

    // --- the fuel network (Sol III and the stations holding tank units) ---
    long weite(const Schiff& sch, double sprit) const;
    void netzAufbauen();
    bool tankstelle(int planet) const;
    long rueckweg(int planet) const;
    int halt(int nr, int ziel, long rueck) const;
    const std::vector<long>& karte(long reichweite);
    int standort();
    uint32_t wuerfel(uint32_t n);

    // --- watching ---
    void sichernPruefen();
    void baueZaehlen();
    [[noreturn]] void abbrechen(const std::string& text);

    Spiel& s_;
    ComputerPlattform& p_;
    BotAuftrag a_;
    std::deque<Schritt> plan_;
    uint64_t zufall_;
    bool spur_ = false;  // every key on standard error
    long startJahr_ = 0;
    long jahreGespielt_ = 0;
    long eingabenImJahr_ = 0;
    bool fehler_ = false;
    std::ofstream bericht_;

    // the turn now being played
    long zugJahr_ = -1;
    int zugSpieler_ = -1;
    int aktionen_ = 0;
    std::set<std::string> erledigt_;  // kinds of action done this turn
    std::set<int> angewiesen_;        // ships given an order (or passed over) this turn
    std::set<int> ziele_;             // planets some ship flies to, or was sent to this turn
    std::set<int> getankt_;           // ships filled this turn
    std::vector<long> vonSol_;        // distance of each planet from Sol III

    // the fuel network of this turn, and for each reach the way to every planet
    std::vector<int> knoten_;
    std::vector<long> abstaende_;
    std::map<long, std::vector<long>> karten_;
    std::map<int, int> schlepp_;  // a coupled station and the planet it is towed to

    // a ship ordered from the docks, counted once it is there
    int bauTyp_ = 0;
    int bauVorher_ = 0;
    std::vector<long> gebaut_ = std::vector<long>(7, 0);

    // the save through the menu
    bool sichernBestellt_ = false;
    std::vector<uint8_t> gesichert_;
    long sicherungen_ = 0;  // saves read back and compared
    std::map<std::string, long> aktionenGezaehlt_;
};

// The number of houses in the saved game at `pfad`, or 0 with `fehler` set.
int BOTS_SPIELSTAND_PRUEFEN(const std::string& pfad, std::string& fehler);

// The driver's run: a new game of computer players, or the saved game a.laden, for a.jahre years.
// Returns the exit status; prints the last line.
int COMPUTERSPIEL(const BotAuftrag& a, const std::string& daten, HeadlessPlattform& p, Spiel& s);
