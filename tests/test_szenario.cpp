// A game of one player, played through the driver from a prepared start for
// twenty years: goods sold, research paid, work for the docks, years run. It
// must reach a rank, a medal and an invention, show on the status screen's
// third page the counters that the year and the dialogs booked, and end
// exactly in the state kept beside the tests; a difference is named by
// table, record and field.
#include <cstdlib>
#include <fstream>

#include "flow/spielstand.h"
#include "hilfe.h"
#include "vergleich.h"

namespace {

const int BRONZE[] = {0, 3000, 1000, 1000, 1000, 1000, 700, 400};  // goods 1 to 7

Spiel Anfang() {
    Spiel s = NeuesSpielZustand(1, 10000);
    s.Bargeld(1) = 60000;
    // Just short of the bronze medal: 5 t of Getreide still to sell.
    for (int g = 1; g <= 7; ++g) s.Statistik(g, 1) = BRONZE[g] + (g == 1 ? 0 : 1);
    s.Lager(1, 1) = 5;
    s.Lager(12, 1) = 50;
    return s;
}

std::string Skript(const Spiel& s) {
    std::string k;
    // Menu entry, good, amount: all the Getreide, then all the Griflinge.
    k += "key V\nkey ENTER\nkey ENTER\nkey ENTER\n";
    k += "key V\nkey ENTER\nkey ENTER\nkey ENTER\n";
    k += "key F\nkey ENTER\ntype " + std::to_string(s.ForschungsRest(1) + 1) + "\nkey ENTER\n";
    // The docks: five more tonnes for the freighter, then a new freighter.
    k += "key D\nkey ENTER\nkey L\nkey ENTER\nkey ENTER\ntype 5\nkey ENTER\n";
    k += "key D\nkey ENTER\nkey B\nkey ENTER\nkey ENTER\nkey ENTER\n";
    for (int j = 0; j < 20; ++j) k += "key W\nkey ENTER\nkey SPACE\n";  // a story screen takes the blank
    // The status screen, on to its third page, where the run ends.
    k += "key S\nkey ENTER\nkey SPACE\nkey SPACE\n";
    return k;
}

}  // namespace

TEST(Szenario, EinzelspielerErreichtRangOrdenUndErfindung) {
    const Spiel anfang = Anfang();
    const TreiberLauf lauf = GeladenSpielen(anfang, Skript(anfang), "einzelspieler");
    ASSERT_EQ(lauf.status, 0) << lauf.fehler;
    const Spiel ende = ZustandAus(lauf);

    EXPECT_GE(ende.Rang(1), 2);
    EXPECT_GE(ende.Medaille(1), 1);
    int erfindungen = 0;
    for (int k = 1; k <= 11; ++k) erfindungen += ende.Forschung(k, 1) == -1;
    EXPECT_GE(erfindungen, 1);
    EXPECT_GT(ende.Jahr, anfang.Jahr + 15);
    EXPECT_GT(ende.HoechstesSchiff, anfang.HoechstesSchiff) << "the new freighter";
    EXPECT_EQ(ende.Schiffe(1).Laderaum, anfang.Schiffe(1).Laderaum + 5);

    // The third page reads the counters the other dialogs and the year booked.
    struct Zaehler {
        int y, spalte;
        const char* label;
    };
    const Zaehler zaehler[] = {{275, EST_VERKAUFSERLOES, "Gesamterlös aus Verkauf:    "},
                               {325, EST_STEUERN, "Steuerzahlungen:            "},
                               {375, EST_DOCK_ZAHLUNGEN, "Zahlungen an die Spacedocks:"},
                               {396, EST_DOCK_BAU, "  davon für Bau:            "},
                               {417, EST_DOCK_LADERAUM, "  davon für Laderaum:       "}};
    for (const Zaehler& z : zaehler) {
        EXPECT_GT(ende.Statistik(z.spalte, 2), 0) << z.label;
        const std::string zeile = "text\t510\t" + std::to_string(z.y) + "\t15\t255\t" +
                                  Utf8(T(z.label) + Rechtsbuendig(ende.Statistik(z.spalte, 2), 9) + " SD");
        EXPECT_NE(lauf.screen.find(zeile), std::string::npos) << zeile << "\n" << lauf.screen;
    }
    // The docks' load in per mille, printed as per cent with a comma.
    const std::string v = std::to_string(ende.Statistik(EST_DOCK_BELEGT, 2) * 1000 / ende.Statistik(EST_DOCK_ANGEBOTEN, 2));
    const std::string prozent = (v.size() == 1 ? "0," + v : v.substr(0, v.size() - 1) + "," + v.back()) + " %";
    EXPECT_NE(lauf.screen.find("Auslastung der Spacedocks: " + Space(12 - static_cast<int>(prozent.size())) + prozent),
              std::string::npos) << prozent;

    const std::string pfad = std::string(QUORVANT_TESTDATEN) + "/golden/einzelspieler.qvt";
    if (std::getenv("QUORVANT_GOLDEN_SCHREIBEN")) {
        std::ofstream(pfad, std::ios::binary).write(reinterpret_cast<const char*>(lauf.state.data()),
                                                    static_cast<std::streamsize>(lauf.state.size()));
    }
    std::ifstream ein(pfad, std::ios::binary);
    ASSERT_TRUE(ein) << "golden state missing: " << pfad;
    const std::vector<uint8_t> b((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
    Spiel soll;
    std::string fehler;
    ASSERT_TRUE(SPIELSTAND_LESEN(soll, b, fehler)) << fehler;
    EXPECT_EQ(ERSTER_UNTERSCHIED(ende, soll), "");
}
