// A saved game whose numbers point outside the tables is refused whole: the
// player reads why, the new-game dialog follows, and the file stays as it was.
#include <unistd.h>

#include <cmath>

#include "flow/begleitdatei.h"
#include "hilfe.h"

namespace {

std::string Datei(const std::string& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

}  // namespace

TEST(SpielstandPruefen, WerteAusserhalbDerTabellenWerdenAbgelehnt) {
    const Spiel gut = NeuesSpielZustand(2, 1000);
    std::string wo;
    EXPECT_TRUE(SPIELSTAND_PRUEFEN(gut, wo)) << wo;

    struct Fall {
        const char* erwartet;
        void (*verderben)(Spiel&);
    };
    const Fall faelle[] = {
        {"Schiffe(1).Planet = 9999", [](Spiel& s) { s.Schiffe(1).Planet = 9999; }},
        {"Schiffe(2).Partner = 1200", [](Spiel& s) { s.Schiffe(2).Partner = 1200; }},
        {"Schiffe(1).Besitzer = 9", [](Spiel& s) { s.Schiffe(1).Besitzer = 9; }},
        {"AnzahlSpieler = 7", [](Spiel& s) { s.AnzahlSpieler = 7; }},
        {"AnzahlPlaneten = 4010", [](Spiel& s) { s.AnzahlPlaneten = 4010; }},
        {"HoechstesSchiff = 1000", [](Spiel& s) { s.HoechstesSchiff = 1000; }},
        {"Dokument(11).Ware = 21", [](Spiel& s) { s.Dokument(11).Ware = 21; }},
        {"DockSchiffe(1, 2) = 999", [](Spiel& s) { s.DockSchiffe(1, 2) = 999; }},
        {"KomponentenPlanet(3) = 1020", [](Spiel& s) { s.KomponentenPlanet(3) = 1020; }},
        {"Komponenten = 6", [](Spiel& s) { s.Komponenten = 6; }},
        {"Schiffe(1011).Planet = 2", [](Spiel& s) { s.Schiffe(PIRATEN_HQ).Planet = 2; }},
        {"Schiffe(1007).Planet = 0", [](Spiel& s) { s.Schiffe(1007).Planet = 0; }},
        // Values that pick no table entry but that no game can have, and that
        // the year would turn into overflows or false owners.
        {"Schiffe(2).Besitzer = 3", [](Spiel& s) { s.Schiffe(2).Besitzer = 3; }},
        {"Schiffe(1).Zustand = 7", [](Spiel& s) { s.Schiffe(1).Zustand = 7; }},
        {"Schiffe(4).Treibstoff = 0", [](Spiel& s) { s.Schiffe(4).Treibstoff = std::nanf(""); }},
        {"Dokument(20).Ware = 0", [](Spiel& s) { s.Dokument(20).Ware = 0; }},
        {"Jahr = 2147483647", [](Spiel& s) { s.Jahr = 2147483647; }},
        {"Dokument(31).X = 30000", [](Spiel& s) { s.Dokument(31).X = 30000; }},
        {"Schiffe(1).Laderaum = 32000", [](Spiel& s) { s.Schiffe(1).Laderaum = 32000; }},
        {"Bargeld(2) = -2147483648", [](Spiel& s) { s.Bargeld(2) = -2147483647 - 1; }},
        {"Kredit(1) = -5", [](Spiel& s) { s.Kredit(1) = -5; }},
    };
    for (const Fall& f : faelle) {
        Spiel s = gut;
        f.verderben(s);
        EXPECT_FALSE(SPIELSTAND_PRUEFEN(s, wo)) << f.erwartet;
        EXPECT_EQ(wo, f.erwartet);
    }
}

TEST(SpielstandPruefen, AbgelehnterSpielstandBleibtUnberuehrt) {
    Spiel s = NeuesSpielZustand(1, 1000);
    s.Schiffe(1).Planet = 9999;  // a ship on a planet no galaxy has
    const TreiberLauf lauf = GeladenSpielen(s, "", "kaputt");
    EXPECT_NE(lauf.fehler.find("Schiffe(1).Planet = 9999"), std::string::npos) << lauf.fehler;
    EXPECT_NE(lauf.screen.find(Utf8(T("Wie viele Spieler (1-6)?"))), std::string::npos)
        << "the new-game dialog follows the refusal\n" << lauf.screen;
    EXPECT_NE(lauf.trace.find(Utf8(T("Der Spielstand ist beschädigt und kann nicht geladen werden."))),
              std::string::npos);
    // The copy of the data folder that GeladenSpielen made for this test.
    const auto pfad = std::filesystem::temp_directory_path() /
                      ("quorvant-test-" + std::to_string(::getpid()) + "-kaputt") / "Daten" / "kaputt.qvt";
    const std::vector<uint8_t> b = SPIELSTAND_BYTES(s);
    EXPECT_EQ(Datei(pfad.string()), std::string(b.begin(), b.end())) << "the refused file is left as it was";
}

// The companion file beside a saved game: who plays each house travels in
// it; damage to it refuses the load like damage to the game, and both files
// stay as they were.
TEST(SpielstandPruefen, ZusatzdateiTraegtDieRollenUndWirdBeiSchadenAbgelehnt) {
    Spiel s = NeuesSpielZustand(3, 1000);
    s.Computer(2) = -1;
    const std::vector<uint8_t> spiel = SPIELSTAND_BYTES(s);
    const std::vector<uint8_t> zusatz = BEGLEIT_BYTES(s, spiel);
    std::string fehler;
    Spiel t = s;
    t.Computer = {};
    ASSERT_TRUE(BEGLEIT_LESEN(t, zusatz, spiel, fehler)) << fehler;
    EXPECT_TRUE(t.Computer(1) == 0 && t.Computer(2) == -1 && t.Computer(3) == 0);

    t.Computer = {};
    std::vector<uint8_t> anderes = spiel;
    anderes[10] ^= 1;
    EXPECT_TRUE(BEGLEIT_LESEN(t, zusatz, anderes, fehler)) << "written with another save: left aside";
    EXPECT_EQ(t.Computer(2), 0);

    auto beschaedigt = [&](std::vector<uint8_t> b) {
        fehler.clear();
        EXPECT_FALSE(BEGLEIT_LESEN(t, b, spiel, fehler));
        return Utf8(fehler);
    };
    std::vector<uint8_t> b = zusatz;
    b[16] ^= 0x40;
    EXPECT_EQ(beschaedigt(b), "Die Zusatzdatei zum Spielstand ist beschädigt (Prüfsumme falsch).");
    b.assign(zusatz.begin(), zusatz.begin() + 9);
    EXPECT_NE(beschaedigt(b).find("keine Quorvant-Zusatzdatei"), std::string::npos);
    Spiel vier = s;
    vier.Computer(4) = -1;  // a house the game does not have
    EXPECT_NE(beschaedigt(BEGLEIT_BYTES(vier, spiel)).find("Rollen"), std::string::npos);
    EXPECT_EQ(t.Computer(2), 0) << "a refused companion changes nothing";

    // Through the load dialog: refused, the new-game dialog follows, both files untouched.
    const std::string daten = DatenKopie("zusatz");
    std::filesystem::create_directories(daten + "/Daten");
    const std::string pfad = daten + "/Daten/zusatz.qvt";
    ASSERT_TRUE(SPIELSTAND_DATEI_SCHREIBEN(s, pfad, fehler)) << fehler;
    const std::string qvz = BEGLEIT_PFAD(pfad);
    EXPECT_EQ(qvz, daten + "/Daten/zusatz.qvz");
    std::string kaputt = Datei(qvz);
    kaputt[12] ^= 0x01;
    std::ofstream(qvz, std::ios::binary) << kaputt;
    const TreiberLauf lauf = Treiber(LadeSkript(), "--seed 7", daten);
    EXPECT_NE(lauf.trace.find("beschädigt (Prüfsumme falsch)"), std::string::npos) << lauf.fehler;
    EXPECT_NE(lauf.screen.find(Utf8(T("Wie viele Spieler (1-6)?"))), std::string::npos) << lauf.screen;
    EXPECT_EQ(Datei(qvz), kaputt);
    EXPECT_EQ(Datei(pfad), std::string(spiel.begin(), spiel.end()));

    // Without its companion the game loads, its houses played by persons.
    std::filesystem::remove(qvz);
    const TreiberLauf ohne = Treiber(LadeSkript(), "--seed 7", daten);
    EXPECT_EQ(ohne.state.size() > 0 ? ZustandAus(ohne).Jahr : 0, s.Jahr + 1) << ohne.fehler;
}
