// A game of one player, played through the driver from a prepared start for
// twenty years: goods sold, research paid, years run. It must reach a rank,
// a medal and an invention, and end exactly in the state kept beside the
// tests; a difference is named by table, record and field.
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
    for (int j = 0; j < 20; ++j) k += "key W\nkey ENTER\nkey SPACE\n";  // a story screen takes the blank
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
