// A saved game whose numbers point outside the tables is refused whole: the
// player reads why, the new-game dialog follows, and the file stays as it was.
#include <unistd.h>

#include <cmath>

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
