#pragma once
// The game's codes by name: ship types, ship states, cargo slots, owners,
// reserved slots, inventions, events and the counters of the one-player
// statistics. The stored values are the ones saved games hold; they never
// change.
#include <string>

#include "state/spiel.h"

// --- ship types: the four characters stored in Typ, and the type numbers of
// the class tables (SchiffKlasse, SchiffPreis, SCHIFF_NEU) ----------------------
inline constexpr const char* TYP_FRACHTER = "SST ";
inline constexpr const char* TYP_TANKER = "TST ";
inline constexpr const char* TYP_KREUZER = "FSS ";
inline constexpr const char* TYP_SCOUT = " XS ";
inline constexpr const char* TYP_STATION = "TSR ";
inline constexpr const char* TYP_GROSSFRACHTER = "XXL ";

enum SchiffTypNr : int {
    NR_FRACHTER = 1,
    NR_TANKER = 2,
    NR_KREUZER = 3,
    NR_SCOUT = 4,
    NR_STATION = 5,
    NR_GROSSFRACHTER = 6,
};
inline constexpr int ANZAHL_SCHIFFSTYPEN = 6;

// Typ of type number 1..6.
inline const char* TypCode(int nr) {
    static constexpr const char* CODES[ANZAHL_SCHIFFSTYPEN + 1] = {"", TYP_FRACHTER, TYP_TANKER, TYP_KREUZER,
                                                              TYP_SCOUT, TYP_STATION, TYP_GROSSFRACHTER};
    return nr >= 1 && nr <= ANZAHL_SCHIFFSTYPEN ? CODES[nr] : "";
}

// Type number 1..6 of a Typ, 0 for none.
inline int TypNummer(const std::string& typ) {
    for (int nr = 1; nr <= ANZAHL_SCHIFFSTYPEN; ++nr)
        if (typ == TypCode(nr)) return nr;
    return 0;
}

// --- Zustand -------------------------------------------------------------------
inline constexpr Integer ZUSTAND_RUHT = 0;          // landed, or in orbit for a station
inline constexpr Integer ZUSTAND_FLIEGT = 1;        // Planet is the destination
inline constexpr Integer ZUSTAND_ANGRIFF = 2;       // Partner is the victim
inline constexpr Integer ZUSTAND_GEKOPPELT = 10;    // a station towed by its freighter
// In the yard, -1 to -5: the dock job's number, negative.
inline constexpr Integer ZUSTAND_WERFT_BAU = -1;
inline constexpr Integer ZUSTAND_WERFT_LADERAUM = -2;
inline constexpr Integer ZUSTAND_WERFT_WAFFEN = -3;
inline constexpr Integer ZUSTAND_WERFT_REPARATUR = -4;
inline constexpr Integer ZUSTAND_WERFT_DTW = -5;

// --- the dock jobs, as DockAuftrag numbers them ----------------------------------
enum DockAuftragNr : int {
    AUFTRAG_BAUEN = 1,
    AUFTRAG_LADERAUM = 2,
    AUFTRAG_BEWAFFNUNG = 3,
    AUFTRAG_REPARATUR = 4,
    AUFTRAG_DTW_FILTER = 5,
};

// --- cargo slots beyond the twenty goods -----------------------------------------
inline constexpr int FRACHT_SPRIT = 21;         // normal fuel, tank units
inline constexpr int FRACHT_REPARATURSET = 22;  // 0 or 1
inline constexpr int FRACHT_SUPERSPRIT = 23;    // tank units
inline constexpr int FRACHT_GERAETE = 24;       // production devices, 2 t each
inline constexpr int FRACHT_PORTAL = 25;        // 0 or 1; fills the whole hold
inline constexpr int ANZAHL_WAREN = 20;

// Goods that rules name.
inline constexpr int WARE_MIRELLEN = 10;   // Supersprit is brewed from them
inline constexpr int WARE_FLOPSE = 16;     // selling them slows the yards
inline constexpr int WARE_HISTARIN = 17;   // makes a storage fire total

// --- owners ------------------------------------------------------------------------
inline constexpr Integer NIEMAND = 0;
inline constexpr Integer BESITZER_PIRATEN = 7;
// The class name a pirate carries: one blank shorter than a player's cruiser.
inline constexpr const char* PIRAT_NAME = "Kreuzer    ";
inline constexpr int SPIELER_MAX = 6;

// A merchant ship is called HSZ 2 to HSZ 7: its slot minus 1003.
inline int HaendlerNummer(int slot) { return slot - (HAENDLER_ERSTES - 2); }
// Draws a merchant makes for a planet near enough before it stays where it
// is: far more than any star map needs, but a map without a near planet
// cannot hold the year up.
inline constexpr int HAENDLER_ZUEGE = 100000;

// --- inventions: the columns of Forschung ---------------------------------------------
enum ErfindungNr : int {
    ERF_LADERAUM = 1,        // holds of freighters and tankers up to 120 t
    ERF_BRANDSCHUTZ = 2,     // fewer storage fires
    ERF_REPARATURSET = 3,    // repair sets for sale
    ERF_STATIONEN = 4,       // stations up to 150 t
    ERF_WAFFEN = 5,          // cruisers armed up to 15
    ERF_SUPERSPRIT = 6,
    ERF_DOCKS = 7,           // seven places in the docks
    ERF_GERAETE = 8,         // production devices
    ERF_WERBUNG = 9,         // goods sell above the market price
    ERF_GROSSFRACHTER = 10,
    ERF_PORTAL = 11,
};
inline constexpr int ANZAHL_ERFINDUNGEN = 11;
inline constexpr int FORSCHUNG_MILLIONAER = 15;  // column: greeted as a millionaire

// --- the countdown events of EreignisJahre ----------------------------------------------
enum EreignisNr : int {
    EREIGNIS_STEUER = 1,
    EREIGNIS_HAFENGEBUEHR = 2,
    EREIGNIS_METEORSTURM = 3,
    EREIGNIS_LAGERBRAND = 4,
    EREIGNIS_STREIK = 5,
};

// --- Statistik: column 21 of every player, and the counters that a game of one
// player keeps in the row of player 2 -------------------------------------------------------
inline constexpr int STAT_PIRATEN_BESIEGT = 21;
enum Einzelstatistik : int {
    EST_VERKAUFSERLOES = 1,
    EST_WARENEINKAUF = 2,
    EST_STEUERN = 3,
    EST_HAFENGEBUEHREN = 4,
    EST_DOCK_BELEGT = 5,        // busy place-years of the docks
    EST_DOCK_ZAHLUNGEN = 6,
    EST_DOCK_BAU = 7,           // 7..11: payments by job, AUFTRAG_x + 6
    EST_DOCK_LADERAUM = 8,
    EST_DOCK_BEWAFFNUNG = 9,
    EST_DOCK_REPARATUR = 10,
    EST_DOCK_DTW = 11,
    EST_TANKEINHEITEN = 12,
    EST_VERLORENE_SCHIFFE = 13,
    EST_ABGEBRANNT = 14,
    EST_GERAUBT = 15,
    EST_DOCK_ANGEBOTEN = 16,    // place-years the docks offered
    EST_BELEGT_BAU = 17,        // 17..21: busy place-years by job, AUFTRAG_x + 16
    EST_BELEGT_LADERAUM = 18,
    EST_BELEGT_BEWAFFNUNG = 19,
    EST_BELEGT_REPARATUR = 20,
    EST_BELEGT_DTW = 21,
};

// --- the docks -------------------------------------------------------------------------------
inline constexpr int DOCK_PLAETZE = 5;
inline constexpr int DOCK_PLAETZE_ERWEITERT = 7;

// --- predicates ----------------------------------------------------------------------------
inline bool IstFrei(const Schiff& sch) { return sch.Typ.empty(); }
inline bool IstTyp(const Schiff& sch, const char* typ) { return sch.Typ == typ; }
inline bool IstStation(const Schiff& sch) { return sch.Typ == TYP_STATION; }
inline bool IstKreuzer(const Schiff& sch) { return sch.Typ == TYP_KREUZER; }
inline bool IstTanker(const Schiff& sch) { return sch.Typ == TYP_TANKER; }
inline bool IstScout(const Schiff& sch) { return sch.Typ == TYP_SCOUT; }
inline bool IstGrossfrachter(const Schiff& sch) { return sch.Typ == TYP_GROSSFRACHTER; }
// A freighter in the narrow sense: the type that couples stations.
inline bool IstFrachter(const Schiff& sch) { return sch.Typ == TYP_FRACHTER; }
// Freighters and great freighters: the ships that trade goods.
inline bool IstHandelsschiff(const Schiff& sch) { return IstFrachter(sch) || IstGrossfrachter(sch); }
inline bool IstPirat(const Schiff& sch) { return sch.Besitzer == BESITZER_PIRATEN; }
inline bool IstSpielerBesitz(const Schiff& sch) { return sch.Besitzer >= 1 && sch.Besitzer <= SPIELER_MAX; }
inline bool InWerft(const Schiff& sch) { return sch.Zustand < 0; }

// A slot number a Partner may point at.
inline bool SchiffNummerGueltig(int n) { return n >= 1 && n <= MAX_SCHIFFE; }
inline bool PlanetNummerGueltig(int n) { return n >= 1 && n <= MAX_PLANETEN; }

inline bool Erfunden(const Spiel& s, int erfindung, int spieler) {
    return spieler >= 1 && spieler <= SPIELER_MAX && s.Forschung(erfindung, spieler) == -1;
}
// Places in the docks of a player: more with the larger docks.
inline int DockPlaetze(const Spiel& s, int spieler) {
    return Erfunden(s, ERF_DOCKS, spieler) ? DOCK_PLAETZE_ERWEITERT : DOCK_PLAETZE;
}

// A counter of the one-player statistics: kept in the row of player 2, and
// only while one player plays.
inline void EINSTATISTIK(Spiel& s, int spalte, long wert) {
    if (s.AnzahlSpieler == 1) s.Statistik(spalte, 2) += static_cast<Long>(wert);
}

// Empties a slot: the ship is gone (sold or lost). Name and Typ go, owner,
// state and countdown are 0; the other fields keep their old values until the
// slot is used again, so callers set Planet or Partner where a rule says so.
inline void SCHIFF_SLOT_LEEREN(Schiff& sch) {
    sch.Typ.clear();
    sch.Name.clear();
    sch.Besitzer = NIEMAND;
    sch.Zustand = ZUSTAND_RUHT;
    sch.Dauer = 0;
}
