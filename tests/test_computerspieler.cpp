// The computer players of the headless driver: the invariants they check
// after every year catch a broken table, and a run through the driver plays
// the years, saves through the menu and comes out the same for the same seed.
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>

#include "bots/computerspieler.h"
#include "flow/spielstand.h"
#include "hilfe.h"
#include "state/codes.h"

namespace {

struct Lauf {
    int status = -1;
    std::string ausgabe;
};

// The driver with these options; its standard output.
Lauf Bots(const std::string& optionen) {
    Lauf l;
    const std::string befehl = std::string(QUORVANT_HEADLESS_PROGRAMM) + " " + optionen + " 2>/dev/null";
    FILE* f = popen(befehl.c_str(), "r");
    if (!f) return l;
    char puffer[512];
    while (fgets(puffer, sizeof puffer, f)) l.ausgabe += puffer;
    const int st = pclose(f);
    l.status = WIFEXITED(st) ? WEXITSTATUS(st) : -1;
    return l;
}

std::string Lesen(const std::string& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    std::stringstream ss;
    ss << ein.rdbuf();
    return ss.str();
}

std::string LetzteZeile(const std::string& text) {
    std::string t = text;
    while (!t.empty() && t.back() == '\n') t.pop_back();
    return t.substr(t.rfind('\n') == std::string::npos ? 0 : t.rfind('\n') + 1);
}

}  // namespace

TEST(Computerspieler, InvariantenFindenDenBruch) {
    const auto gut = std::make_unique<Spiel>(NeuesSpielZustand(2, 5000));
    EXPECT_EQ(INVARIANTEN_PRUEFEN(*gut), "");

    struct Fall {
        const char* erwartet;
        void (*verderben)(Spiel&);
    };
    const Fall faelle[] = {
        {"Schiffe(1).Partner = 40", [](Spiel& s) { s.Schiffe(1).Partner = 40; }},
        {"Schiffe(1).Ladung = 7", [](Spiel& s) { s.Schiffe(1).Ladung = 7; }},
        {"Schiffe(2).Fracht = -32768", [](Spiel& s) { s.Schiffe(2).Fracht(3) = -32768; }},
        {"Lager(4) = -5", [](Spiel& s) { s.Lager(4, 2) = -5; }},
        {"Schiffe(1005).Besitzer = 7", [](Spiel& s) {
             s.Schiffe(HAENDLER_ERSTES).Typ = TYP_KREUZER;
             s.Schiffe(HAENDLER_ERSTES).Besitzer = BESITZER_PIRATEN;
         }},
        {"DockSchiffe(2, 1) = 2", [](Spiel& s) {
             s.DockSchiffe(2, 1) = 2;  // a gap in front of it
             s.Schiffe(2).Zustand = ZUSTAND_WERFT_BAU;
         }},
        {"Schiffe(12).Typ (above HoechstesSchiff) = 12", [](Spiel& s) {
             s.Schiffe(12) = s.Schiffe(1);
         }},
        {"Kredit(2) = -3", [](Spiel& s) { s.Kredit(2) = -3; }},
        {"Schiffe(1).Zustand = 0", [](Spiel& s) { s.DockSchiffe(1, 1) = 1; }},
    };
    for (const Fall& f : faelle) {
        auto s = std::make_unique<Spiel>(*gut);
        f.verderben(*s);
        EXPECT_EQ(INVARIANTEN_PRUEFEN(*s), f.erwartet);
    }
}

TEST(Computerspieler, SpielenSichernUndGleichesSpielBeiGleicherSaat) {
    const std::string ordner = TempOrdner("bots");
    const std::string optionen = "--bots 2 --years 60 --systems 50 --seed 5 --check";
    const Lauf a = Bots(optionen + " --report " + ordner + "/a.csv --state " + ordner + "/a.bin");
    EXPECT_EQ(a.status, 0) << a.ausgabe;
    EXPECT_EQ(LetzteZeile(a.ausgabe), "60 Jahre, 2 Spieler: in Ordnung");
    // The report: a heading and one row a year, from 2001 on.
    const std::string bericht = Lesen(ordner + "/a.csv");
    EXPECT_EQ(std::count(bericht.begin(), bericht.end(), '\n'), 61);
    EXPECT_EQ(bericht.rfind("jahr,bargeld1,bewertung1,", 0), 0u);
    EXPECT_NE(bericht.find("\n2001,"), std::string::npos);
    EXPECT_NE(bericht.find("\n2060,"), std::string::npos);

    const Lauf b = Bots(optionen + " --state " + ordner + "/b.bin");
    EXPECT_EQ(b.status, 0) << b.ausgabe;
    const std::string zustand = Lesen(ordner + "/a.bin");
    EXPECT_GT(zustand.size(), 100000u);
    EXPECT_EQ(zustand, Lesen(ordner + "/b.bin"));
    const auto s = std::make_unique<Spiel>();
    std::string fehler;
    ASSERT_TRUE(SPIELSTAND_LESEN(*s, std::vector<uint8_t>(zustand.begin(), zustand.end()), fehler)) << fehler;
    EXPECT_EQ(s->Jahr, 2060);
    EXPECT_EQ(s->AnzahlSpieler, 2);
    EXPECT_EQ(s->AnzahlPlaneten, 500);
    EXPECT_EQ(s->SpielerName(2), "Computer2");
    int schiffe = 0;
    for (int i = 1; i <= s->HoechstesSchiff; ++i) schiffe += IstSpielerBesitz(s->Schiffe(i)) && !IstFrei(s->Schiffe(i));
    EXPECT_GT(schiffe, 2) << "the houses have built ships";
}

// Stations towed out and kept filled by tankers carry the houses beyond the
// reach of one tank from Sol III.
TEST(Computerspieler, StationenTragenDieSchiffeWeiterAlsEinTank) {
    const std::string ordner = TempOrdner("bots-netz");
    const Lauf a = Bots("--bots 2 --years 150 --systems 50 --seed 2 --check --report " + ordner + "/n.csv --state " + ordner + "/n.bin");
    ASSERT_EQ(a.status, 0) << a.ausgabe;
    const std::string zustand = Lesen(ordner + "/n.bin");
    const auto s = std::make_unique<Spiel>();
    std::string fehler;
    ASSERT_TRUE(SPIELSTAND_LESEN(*s, std::vector<uint8_t>(zustand.begin(), zustand.end()), fehler)) << fehler;
    int gefuellt = 0, fern = 0;
    for (int i = 1; i <= s->HoechstesSchiff; ++i) {
        const Schiff& sch = s->Schiffe(i);
        if (IstFrei(sch) || !IstSpielerBesitz(sch)) continue;
        if (IstStation(sch) && sch.Planet > SOL_III && sch.Fracht(FRACHT_SPRIT) > 0) ++gefuellt;
    }
    // Out and home again on one tank a scout reaches 29 units; beyond that only over a station.
    for (int t = 11; t <= s->AnzahlPlaneten + 10; ++t) fern += s->Dokument(t).Produktion != 0 && ENTFERNUNG(*s, SOL_III, t) > 30;
    EXPECT_GE(gefuellt, 1) << "a station out in space with tank units";
    const std::string bericht = Lesen(ordner + "/n.csv");
    EXPECT_NE(bericht.find(",stationen_draussen,handel,geraete,portale,erstlandungen,"), std::string::npos);
    EXPECT_GE(fern, 1) << "a planet discovered beyond the reach of Sol III";
}

// A column of the report's last row, by its name in the heading.
long Spalte(const std::string& bericht, const std::string& name) {
    std::istringstream ein(bericht);
    std::string kopf, zeile, z;
    std::getline(ein, kopf);
    while (std::getline(ein, z))
        if (!z.empty()) zeile = z;
    std::istringstream k(kopf), w(zeile);
    std::string n, v;
    while (std::getline(k, n, ',') && std::getline(w, v, ','))
        if (n == name) return std::stol(v);
    return -1;
}

// The late game, which a house reaches only after centuries: played on from a
// saved game in which house 1 owns every invention and a fortune, every good
// is on the market, and a merchant and the pirates' headquarters stand near Sol III. The houses go on through the menus as ever.
TEST(Computerspieler, EinReichesHausNutztDasSpaeteSpiel) {
    const std::string ordner = TempOrdner("bots-reich");
    ASSERT_EQ(Bots("--bots 2 --years 40 --systems 50 --seed 5 --state " + ordner + "/40.bin").status, 0);
    const std::string bytes = Lesen(ordner + "/40.bin");
    auto s = std::make_unique<Spiel>();
    std::string fehler;
    ASSERT_TRUE(SPIELSTAND_LESEN(*s, std::vector<uint8_t>(bytes.begin(), bytes.end()), fehler)) << fehler;
    for (int k = 1; k <= ANZAHL_ERFINDUNGEN; ++k) s->Forschung(k, 1) = -1;
    s->ForschungsRest(1) = 1;
    s->Bargeld(1) = 600000;
    for (int g = 1; g <= ANZAHL_WAREN; ++g) s->AltPreis(g) = s->Preis(g);  // every good known on the market
    // The merchants at the nearest planets of Sol III's neighbours, the headquarters in the next system.
    std::vector<std::pair<long, int>> nah;
    for (int t = 11; t <= s->AnzahlPlaneten + 10; ++t) nah.emplace_back(ENTFERNUNG(*s, SOL_III, t), t);
    std::sort(nah.begin(), nah.end());
    for (int h = 0; h < 6; ++h) {
        s->Schiffe(HAENDLER_ERSTES + h).Planet = nah[static_cast<size_t>(h)].second;
        s->Schiffe(HAENDLER_ERSTES + h).Zustand = ZUSTAND_RUHT;
    }
    for (const auto& [d, t] : nah)
        if ((t - 1) / 10 != (nah[0].second - 1) / 10 && (t - 1) / 10 != (nah[5].second - 1) / 10) {
            s->Schiffe(PIRATEN_HQ).Planet = t;
            break;
        }
    const std::vector<uint8_t> reich = SPIELSTAND_BYTES(*s);
    {
        std::ofstream aus(ordner + "/reich.qvt", std::ios::binary);
        aus.write(reinterpret_cast<const char*>(reich.data()), static_cast<std::streamsize>(reich.size()));
    }
    EXPECT_EQ(Bots("--bots 3 --years 5 --load " + ordner + "/reich.qvt").status, 2) << "the file has two houses";

    const Lauf a = Bots("--bots 2 --years 120 --check --load " + ordner + "/reich.qvt --report " + ordner + "/r.csv");
    ASSERT_EQ(a.status, 0) << a.ausgabe;
    EXPECT_EQ(LetzteZeile(a.ausgabe), "120 Jahre, 2 Spieler: in Ordnung");
    const std::string bericht = Lesen(ordner + "/r.csv");
    EXPECT_GE(Spalte(bericht, "gebaut_XXL"), 1) << "a great freighter from the docks";
    EXPECT_GE(Spalte(bericht, "geraete"), 1) << "production devices delivered";
    EXPECT_GE(Spalte(bericht, "portale"), 1) << "a portal installed";
    EXPECT_GE(Spalte(bericht, "handel"), 1) << "a trade with the merchant";
    EXPECT_EQ(Spalte(bericht, "erfindungen1"), ANZAHL_ERFINDUNGEN);
    EXPECT_EQ(Spalte(bericht, "hq_planet"), 0) << "the cruisers brought the headquarters down";
    EXPECT_EQ(Lesen(ordner + "/reich.qvt").size(), reich.size()) << "the saved game is left as it was";
}

TEST(Computerspieler, FalscheAngabenWerdenAbgewiesen) {
    EXPECT_EQ(Bots("--bots 7 --years 1").status, 2);
    EXPECT_EQ(Bots("--bots 2").status, 2);
    EXPECT_EQ(Bots("--bots 2 --years 5 --systems 90").status, 2);
    EXPECT_EQ(Bots("--bots 2 --years 5 --capital 10001").status, 2);
}
