#pragma once
// The whole game in one record: every table, record and game-wide number.
// Texts are held one byte per character in Windows-1252, as the game counts
// them ("ä" is one character) and as saved games store them.
#include <string>
#include <vector>

#include "state/felder.h"
#include "state/verlauf.h"

constexpr int MAX_SCHIFFE = 1011;
constexpr int MAX_PLANETEN = 4010;
constexpr int SCHIFF_GRENZE = 1000;      // never given out
constexpr int HAENDLER_ERSTES = 1005;    // merchant ships 1005..1010
constexpr int HAENDLER_LETZTES = 1010;
constexpr int PIRATEN_HQ = 1011;         // the pirates' headquarters
constexpr int SOL_III = 3;
constexpr int MELDUNGEN_MAX = 200;
constexpr int KLICK_ZEILEN = 20;

struct Schiff {
    Integer Zustand = 0;
    Integer Bewaffnung = 0;
    Single Treibstoff = 0;
    Integer Tankgroesse = 0;
    Integer Schaden = 0;
    std::string Name;
    std::string Typ;
    Feld<Integer, 1, 25> Fracht;
    Integer Ladung = 0;
    Integer Laderaum = 0;
    Integer Partner = 0;
    Integer Planet = 0;
    Integer StartPlanet = 0;
    Integer Dauer = 0;
    Integer Besitzer = 0;
    Integer Supersprit = 0;
    bool operator==(const Schiff&) const = default;
};

struct Planet {
    std::string Name;
    Integer Abstand = 0;
    Integer X = 0;
    Integer Y = 0;
    Long Bestand = 0;
    Integer Produktion = 0;
    Integer Ware = 0;
    Integer Preis = 0;
    Integer Portal = 0;
    bool operator==(const Planet&) const = default;
};

struct KlickFeld {
    Single X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    Long Schiff = 0;
    Long Planet = 0;
};

struct StatusFeld {
    Single X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    std::string Text;
};

// The one generator of the game (see state/zufall.h); its state lives here
// so that a test can reset or feed it.
struct Zufall {
    uint32_t zustand = 0x50000u;
    std::vector<float> folge;  // draws handed in by a test, used first
    size_t folgePos = 0;
};

struct Plattform;
struct Spiel;

// Where the screen's handlers and the year must call the game above them,
// the program hands them these at its start.
struct Haken {
    void (*Start)(Spiel&) = nullptr;               // the start timer fires: the game runs
    void (*MeldungenZeigen)(Spiel&) = nullptr;     // F3: the news, page by page
    void (*Beenden)(Spiel&, int) = nullptr;        // the window closes: the program ends
    void (*Sichern)(Spiel&) = nullptr;             // the save ordered for the start of a year
    void (*NachDemJahr)(Spiel&) = nullptr;         // a year is done (the computer players watch it)
    void (*ZugBeginnt)(Spiel&) = nullptr;          // a player's turn begins, at its first main menu
    void (*ZugEndet)(Spiel&) = nullptr;            // a player ends his turn, before the next one or the year
    bool (*Autosichern)(Spiel&) = nullptr;         // the autosave at the start of a year; false: not written
    void (*Hilfe)(Spiel&) = nullptr;               // F1: the help, laid over whatever is on the screen
    void (*VerlaufZeigen)(Spiel&) = nullptr;       // F6: the graphs of the houses' history
};

struct Spiel {
    // --- the world -------------------------------------------------------
    Feld<Schiff, 1, MAX_SCHIFFE> Schiffe;
    Feld<Planet, 1, MAX_PLANETEN> Dokument;

    // --- per player ------------------------------------------------------
    Feld<std::string, 1, 7> SpielerName;
    Feld<Long, 1, 6> Bargeld;
    Feld<Integer, 1, 6> Kredit;
    Feld<Integer, 1, 6> Rang;
    Feld<Integer, 1, 6> Medaille;
    Feld<Long, 1, 6> ForschungsRest;
    Feld2<Integer, 15, 6> Forschung;
    Feld2<Long, 21, 6> Statistik;
    Feld2<Integer, 20, 6> Lager;
    Feld2<Integer, 7, 6> DockSchiffe;  // (slot, player): a player's slots together

    // --- market and world ------------------------------------------------
    Feld<std::string, 1, 20> WarenName;
    Feld<Integer, 1, 20> GrundPreis;
    Feld<Integer, 1, 20> Preis;
    Feld<Integer, 1, 20> AltPreis;
    Feld<Integer, 1, 20> Bedarf;
    Feld<Integer, 1, 5> KomponentenPlanet;
    Feld<Integer, 1, 5> EreignisJahre;
    Feld<Long, 1, 15> ForschungsKosten;

    // --- game-wide numbers ----------------------------------------------
    Integer AnzahlSpieler = 0;
    Integer AktSpieler = 1;
    Integer AnzahlPlaneten = 0;
    Integer HoechstesSchiff = 0;
    Integer LetztesSchiff = 0;
    Long Jahr = 2000;
    Integer Nachfrage = 0;
    Integer Zeitlimit = 0;
    Integer ZeitRest = 100;
    Integer AussetzenJahre = 0;
    Integer SichernAmRundenende = 0;
    Integer BeendenNachSichern = 0;
    Integer Komponenten = 0;
    Integer SoundEreignis = 0;
    Single Zufallswert = 0;

    // --- constant tables --------------------------------------------------
    Feld<std::string, 1, 6> SchiffKlasse;
    Feld<std::string, 1, 6> SchiffKuerzel;
    Feld<Long, 1, 6> SchiffPreis;
    Feld<std::string, 1, 9> RangName;
    Feld<Long, 1, 9> RangSchwelle;
    Feld<std::string, 1, 5> DockAuftrag;
    Feld<std::string, 1, 12> MenueText;
    Feld<std::string, 1, 12> MenueTasten;
    Feld<std::string, 0, 9> RoemZahl;

    // --- screen and prompts (not saved) ---------------------------------
    Integer TasteDa = 0;
    Integer TastenCode = 0;
    std::string TastenZeichen;
    Long Eingabe = 0;
    std::string Bildschirm = "UNBEKANNT";
    Integer MausTreffer = 0;
    Long MausSchiff = -1;
    Long MausPlanet = -1;
    Long MausStern = -1;
    Feld<KlickFeld, 1, KLICK_ZEILEN> KlickFelder;
    Feld<StatusFeld, 1, KLICK_ZEILEN> StatusFelder;
    Long StatusSeite = 0;
    Long StatusSpalte = 10;
    Long StatusFolge = 0;
    Integer SoundAn = -1;
    Integer ProduktionAn = -1;
    bool Ueberlagert = false;  // a help page or graph lies over the screen

    Feld<std::string, 1, MELDUNGEN_MAX> MeldungText;
    Feld<Long, 1, MELDUNGEN_MAX> MeldungFarbe;
    Feld<Long, 1, MELDUNGEN_MAX> MeldungPlanet;
    Integer MeldungAnzahl = 0;
    Integer MeldungSeite = 1;
    Long MeldungenAusgelassen = 0;  // lines of this year that did not fit the table

    // Who plays each house: 0 a person, -1 the computer. Not in the saved
    // game itself; it travels in the companion file beside it.
    Feld<Integer, 1, 6> Computer;
    bool ImZug = false;  // a player gives his orders (not the intro, not the year)
    // How the houses stood at the end of each year played (companion file too).
    Verlauf VerlaufJahre;

    Feld<std::string, 1, 100> Dateiliste;
    Integer DateiNummer = 0;

    // Lists that a dialog fills and hands to AUSWAHL; index 0 unused.
    std::vector<std::string> AuswahlText;
    std::vector<std::string> AuswahlTasten;

    // --- the window and its timers ----------------------------------------
    std::string Titel = "Quorvant";
    int Linienbreite = 1;
    bool tmrZeitAn = false;
    bool tmrStartAn = false;
    long long tmrZeitFaellig = 0;   // clock (ms) of the next tick
    long long tmrStartFaellig = 0;

    // --- where the program finds its files ---------------------------------
    std::string ProgrammVerzeichnis = "data";  // Planetenliste.bin, Musik/, pictures, Daten/
    std::string DatenVerzeichnis;              // saved games; empty: ProgrammVerzeichnis/Daten

    Zufall zufall;
    Plattform* plattform = nullptr;  // borrowed; set by whoever runs the game
    Haken haken;
};
