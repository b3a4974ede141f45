// The spacedocks: each type built through the driver, a ship enlarged, armed,
// repaired and given the filter with the news of the year each job ends, the
// full docks, what the inventions open, and the one-player counters.
#include "economy/spacedocks.h"
#include "hilfe.h"
#include "state/codes.h"
#include "state/text.h"

namespace {

std::string Mal(const std::string& zeile, int n) {
    std::string r;
    for (int i = 0; i < n; ++i) r += zeile;
    return r;
}

const std::string DOCKS = "key D\nkey ENTER\n";  // main menu: radio the docks
const std::string JAHR = "key W\nkey ENTER\n";   // end the turn, the year runs

// The text at (x, y) in a driver's screen file, "" if none.
std::string TextBei(const std::string& screen, int x, int y) {
    const std::string kopf = "text\t" + std::to_string(x) + "\t" + std::to_string(y) + "\t";
    std::string r;
    for (size_t a = 0; (a = screen.find(kopf, a)) != std::string::npos; a += kopf.size()) {
        if (a > 0 && screen[a - 1] != '\n') continue;
        const size_t t = screen.find('\t', screen.find('\t', a + kopf.size()) + 1) + 1;
        r = screen.substr(t, screen.find('\n', t) - t);
    }
    return r;
}

// Anna's new game with money and no event due for a while.
Spiel Vorbereitet(Long bargeld) {
    Spiel s = NeuesSpielZustand(1, 5000);
    s.SpielerName(1) = "Anna";
    s.Bargeld(1) = bargeld;
    for (int e = 1; e <= 5; ++e) s.EreignisJahre(e) = 50;
    return s;
}

// A finished ship of the player at rest on Sol III.
Schiff& Heim(Spiel& s, int n, const char* typ, int spieler = 1) {
    Schiff& sch = s.Schiffe(n);
    sch = Schiff{};
    sch.Typ = typ;
    sch.Name = "x";
    sch.Besitzer = static_cast<Integer>(spieler);
    sch.Planet = SOL_III;
    sch.Tankgroesse = 30;
    sch.Treibstoff = 30;
    if (n > s.HoechstesSchiff) s.HoechstesSchiff = static_cast<Integer>(n);
    return sch;
}

}  // namespace

TEST(Spacedocks, JederTypWirdGebautBisDieDocksAusgelastetSind) {
    Spiel s = Vorbereitet(20000);
    s.Forschung(ERF_GROSSFRACHTER, 1) = -1;
    s.Forschung(ERF_DOCKS, 1) = -1;
    std::string k;
    for (int typ = 1; typ <= 6; ++typ) k += DOCKS + "key ENTER\n" + Mal("key UP\n", typ - 1) + "key ENTER\nkey ENTER\n";
    const TreiberLauf lauf = GeladenSpielen(s, k + DOCKS + "key ENTER\nkey ENTER\nkey ENTER\n" + DOCKS, "bau");
    const Spiel g = ZustandAus(lauf);
    const int erster = s.HoechstesSchiff + 1;  // the pirates took the slots behind Anna's first ship
    // The last radio call: the list of seven in a frame for seven, then the refusal.
    const std::string letzte = lauf.trace.substr(lauf.trace.rfind("frame 510 260 990 490 65535"));
    const int jahre[] = {10, 10, 16, 16, 19, 25};
    for (int typ = 1; typ <= 6; ++typ) {
        const int n = erster + typ - 1;
        const Schiff& sch = g.Schiffe(n);
        EXPECT_EQ(sch.Typ, TypCode(typ));
        EXPECT_EQ(sch.Zustand, ZUSTAND_WERFT_BAU);
        EXPECT_EQ(sch.Dauer, jahre[typ - 1]);
        EXPECT_EQ(g.DockSchiffe(typ, 1), n);
        EXPECT_NE(letzte.find("print 520 " + std::to_string(245 + 30 * typ) + " 15 65535 " + sch.Typ + std::to_string(n) + ": " +
                              std::to_string(jahre[typ - 1]) + " Runden,  in Bau"),
                  std::string::npos);
    }
    EXPECT_EQ(g.DockSchiffe(7, 1), erster + 6) << "the seventh Frachter takes the last place";
    const long preise = 1000 + 900 + 750 + 400 + 2000 + 10000 + 1000;
    EXPECT_EQ(g.Bargeld(1), 20000 - preise);
    EXPECT_EQ(g.Statistik(EST_DOCK_ZAHLUNGEN, 2) - s.Statistik(EST_DOCK_ZAHLUNGEN, 2), preise);
    EXPECT_EQ(g.Statistik(EST_DOCK_BAU, 2) - s.Statistik(EST_DOCK_BAU, 2), preise);
    const size_t zeile7 = letzte.find("print 520 455 15 65535 SST " + std::to_string(erster + 6) + ": 10 Runden,  in Bau");
    EXPECT_NE(zeile7, std::string::npos) << letzte;
    EXPECT_GT(letzte.find("print 50 630 15 16777215 Spacedocks sind ausgelastet!"), zeile7);
    EXPECT_EQ(letzte.find("Bauen"), std::string::npos) << "a full dock offers no jobs";
}

TEST(Spacedocks, VierAuftraegeUndIhreMeldungenImJahrIhresEndes) {
    Spiel s = Vorbereitet(5000);
    s.Komponenten = 5;
    const int k = s.HoechstesSchiff + 1;  // Kreuzer, Tanker, Scout behind the pirates
    Heim(s, k, TYP_KREUZER).Bewaffnung = 4;
    Heim(s, k + 1, TYP_TANKER).Schaden = 10;
    Heim(s, k + 2, TYP_SCOUT).Schaden = 3;
    const TreiberLauf basis = GeladenSpielen(s, "", "basis");
    const Spiel b = ZustandAus(basis);
    // Hold +5 on the Frachter, one weapons level on the Kreuzer, the Scout
    // repaired (Up, Down, Up leaf past the Tanker), the filter in the Tanker.
    const std::string zug = DOCKS + "key L\nkey ENTER\nkey ENTER\ntype 5\nkey ENTER\n" +  // Laderaum
                            DOCKS + "key B\nkey ENTER\nkey ENTER\ntype 1\nkey ENTER\n" +            // Bewaffnung
                            DOCKS + "key R\nkey ENTER\nkey UP\nkey DOWN\nkey UP\nkey ENTER\nkey ENTER\n" +
                            DOCKS + "key D\nkey ENTER\nkey ENTER\nkey ENTER\n";
    const Spiel g = ZustandAus(GeladenSpielen(s, zug, "auftraege"));
    EXPECT_EQ(g.Bargeld(1), b.Bargeld(1) - 50 - 85 - 10 - 200);
    EXPECT_EQ(g.Schiffe(1).Laderaum, 15);
    EXPECT_EQ(g.Schiffe(k).Bewaffnung, 5);
    EXPECT_EQ(g.Schiffe(k + 2).Schaden, 0);
    EXPECT_EQ(g.Schiffe(k + 1).Tankgroesse, 40);
    EXPECT_EQ(g.Schiffe(k + 1).Treibstoff, 40.0f);
    EXPECT_EQ(g.Schiffe(k + 1).Schaden, 10);
    const int zustand[] = {ZUSTAND_WERFT_LADERAUM, ZUSTAND_WERFT_WAFFEN, ZUSTAND_WERFT_DTW, ZUSTAND_WERFT_REPARATUR};
    const int dauer[] = {1, 2, 3, 1};
    for (int i = 0; i < 4; ++i) {
        const int n = i == 0 ? 1 : k + i - 1;
        EXPECT_EQ(g.Schiffe(n).Zustand, zustand[i]) << n;
        EXPECT_EQ(g.Schiffe(n).Dauer, dauer[i]) << n;
        EXPECT_EQ(g.DockSchiffe(i + 1, 1), n);
    }
    const long zahl[] = {50, 85, 10, 200};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(g.Statistik(EST_DOCK_LADERAUM + i, 2) - b.Statistik(EST_DOCK_LADERAUM + i, 2), zahl[i]);
    EXPECT_EQ(g.Statistik(EST_DOCK_ZAHLUNGEN, 2) - b.Statistik(EST_DOCK_ZAHLUNGEN, 2), 345);

    // Each job ends with its own line in the year its countdown runs out.
    const std::string K = std::to_string(k), T1 = std::to_string(k + 1), S = std::to_string(k + 2);
    const std::string j1 = GeladenSpielen(s, zug + JAHR, "jahr1").screen;
    EXPECT_NE(j1.find("SST 1 (Anna) hat neuen Laderaum!"), std::string::npos) << j1;
    EXPECT_NE(j1.find(" XS " + S + " (Anna) wurde repariert!"), std::string::npos);
    EXPECT_EQ(j1.find("FSS " + K + " (Anna)"), std::string::npos);
    const TreiberLauf j2 = GeladenSpielen(s, zug + JAHR + JAHR, "jahr2");
    EXPECT_NE(j2.screen.find("FSS " + K + " (Anna) hat neue Bewaffnung!"), std::string::npos) << j2.screen;
    EXPECT_EQ(j2.screen.find("TST " + T1 + " (Anna)"), std::string::npos);
    const TreiberLauf j3 = GeladenSpielen(s, zug + JAHR + JAHR + JAHR + DOCKS, "jahr3");
    const std::string jahr3 = j3.trace.substr(j3.trace.rfind("RUNDE"));
    EXPECT_NE(jahr3.find("TST " + T1 + " (Anna) hat den DTW-Filter!"), std::string::npos) << jahr3;
    EXPECT_EQ(TextBei(j3.screen, 550, 275), "Spacedocks sind unbeschäftigt");

    // Place-years: offered 5 a year; busy 4 + 2 + 1 by job.
    const Spiel g3 = ZustandAus(j3);
    auto mehr = [&](int c) { return g3.Statistik(c, 2) - b.Statistik(c, 2); };
    EXPECT_EQ(mehr(EST_DOCK_ANGEBOTEN), 15);
    EXPECT_EQ(mehr(EST_DOCK_BELEGT), 7);
    EXPECT_EQ(mehr(EST_BELEGT_LADERAUM), 1);
    EXPECT_EQ(mehr(EST_BELEGT_BEWAFFNUNG), 2);
    EXPECT_EQ(mehr(EST_BELEGT_REPARATUR), 1);
    EXPECT_EQ(mehr(EST_BELEGT_DTW), 3);
    EXPECT_EQ(g3.Schiffe(k + 1).Zustand, ZUSTAND_RUHT);
}
