// The star list through the driver: walking the map with the keys, clicks on
// stars and on a news line, and the panel of every kind of planet.

#include "hilfe.h"

namespace {

// The texts printed in the panel's magenta at (x, y), in the order of the trace.
std::vector<std::string> Tafel(const std::string& spur, int x, int y) {
    std::vector<std::string> r;
    for (const std::string& z : Gedruckt(spur, x, y))
        if (z.rfind("16711935 ", 0) == 0) r.push_back(z.substr(9));
    return r;
}

// Names of planets and goods; numerals and goods are no part of a saved game.
std::string Name(const Spiel& s, int planet) { return Utf8(s.Dokument(planet).Name + Tafeln().RoemZahl(planet % 10)); }
std::string Ware(int g) { return Utf8(Tafeln().WarenName(g)); }

// A star with no other within 8 map units: a click near it is its own.
int EinsamerStern(const Spiel& s, int abSystem) {
    const auto& d = s.Dokument;
    for (int k = abSystem; k <= s.AnzahlPlaneten / 10; ++k) {
        bool frei = std::hypot(d(10 * k + 1).X, d(10 * k + 1).Y) > 8;
        for (int j = 1; frei && j <= s.AnzahlPlaneten / 10; ++j)
            frei = j == k || std::hypot(d(10 * k + 1).X - d(10 * j + 1).X, d(10 * k + 1).Y - d(10 * j + 1).Y) > 8;
        if (frei) return 10 * k + 1;
    }
    return 0;
}

}  // namespace

TEST(Sternliste, TastenUndKlicksWandernUeberDieKarte) {
    const std::string start = NeuesSpielSkript(1, 5000, {"Anna"});
    const TreiberLauf ohne = Treiber(start);
    const Spiel s = ZustandAus(ohne);
    // The letter of star 61: the search from system 2 lands on the first star after it with that letter.
    const char buchstabe = s.Dokument(61).Name[0];
    int b = 31;
    while (s.Dokument(b).Name[0] != buchstabe) b += 10;
    const int rechts = RICHTUNGSSUCHE(s, b, Taste::Rechts), runter = RICHTUNGSSUCHE(s, SOL_III, Taste::Runter);
    const int stern = EinsamerStern(s, 5);
    ASSERT_GT(stern, 0);
    const TreiberLauf lauf = Treiber(start + "key L\nkey ENTER\nkey UP\nkey UP\nkey LEFT\nkey TAB\nkey " + buchstabe +
                                     "\nkey SPACE\nkey RIGHT\nkey PERIOD\nkey DOWN\nkey SPACE\nkey RIGHT\nkey PERIOD\n"
                                     "key DOWN\n" + Klick(KarteX(s, stern) + 2, KarteY(s, stern) - 1) +
                                     Klick(995, 735) + "key ENTER\n");
    const std::string spur = lauf.trace.substr(lauf.trace.find("print 50 600 15 16777215 Liste der"));
    // Left does nothing in mode 0, Blank shows nothing, Down from Sol III goes to the last planet;
    // the click far from any star draws nothing, Enter draws the panel once more and leaves.
    const std::vector<std::string> soll = {
        Name(s, 3), Name(s, 11), Name(s, 12), Name(s, 12), Name(s, 21), Name(s, b), Name(s, b), Name(s, rechts),
        Name(s, 3), Name(s, runter), Name(s, runter), Name(s, runter), Name(s, 3), Name(s, s.AnzahlPlaneten + 10),
        Name(s, stern), Name(s, stern)};
    EXPECT_EQ(Tafel(spur, 30, 120), soll);
    // The cursor: radius 3 on Sol III at the start, radius 2 there after the period key.
    const std::string start3 = "circle 750 490 3 16777215";
    EXPECT_EQ(spur.find(start3) + start3.size(), spur.find(" outline"));
    EXPECT_EQ(spur.find(start3, spur.find(start3) + 1), std::string::npos);
    EXPECT_NE(spur.find("circle 750 490 2 16777215 outline"), std::string::npos);
    // Leaving gives the main screen back, and nothing in the game has changed.
    EXPECT_NE(lauf.screen.find("LAGERBESTAND"), std::string::npos);
    EXPECT_TRUE(lauf.state == ohne.state);
}

TEST(Sternliste, TafelnVonNachrichtUndSternen) {
    Spiel s = NeuesSpielZustand(1, 5000);
    const int hq = EinsamerStern(s, 3), wild = EinsamerStern(s, hq / 10 + 1), a = 23;
    ASSERT_GT(wild, 0);
    s.Schiffe(PIRATEN_HQ).Planet = static_cast<Integer>(hq);
    s.Dokument(hq).Produktion = 120;
    s.Dokument(wild).Portal = -1;  // a portal where nobody has landed: not shown
    Planet& p = s.Dokument(a);
    p.Produktion = 250;
    p.Bestand = 750;  // the year makes it 10 t, and the news tell it
    p.Portal = -1;
    const char* typen[] = {"SST ", " XS ", "TSR ", "FSS ", "XXL "};
    const Integer zustand[] = {0, 1, 0, 0, 10};  // the scout under way and the towed ship are not listed
    for (int i = 0; i < 5; ++i) {
        Schiff& sch = SchiffSetzen(s, i + 2, typen[i], i == 3 ? BESITZER_PIRATEN : 1, a);
        sch.Zustand = zustand[i], sch.Dauer = zustand[i] == 1 ? 40 : 0;
    }
    Schiff& h = s.Schiffe(HAENDLER_ERSTES + 1);
    h.Planet = static_cast<Integer>(a), h.Zustand = 1;
    h.Dauer = 1;  // lands in the year of the load

    const std::string png = TempOrdner("sternlist-png") + "/tafel.png";
    const TreiberLauf lauf = GeladenSpielen(
        s, "key L\nkey ENTER\n" + Klick(KarteX(s, hq), KarteY(s, hq)) + Klick(KarteX(s, wild) - 2, KarteY(s, wild) + 2) +
               "key ESC\n" + Klick(700, 265) + "wait 100\nkey SPACE\n", "tafeln", "--seed 7 --png " + png);
    ASSERT_EQ(ZustandAus(lauf).Dokument(a).Bestand, 1000);
    const std::string spur = lauf.trace.substr(lauf.trace.find("print 50 600 15 16777215 Liste der"));
    // Clicks on the headquarters and on the unexplored star, Esc, then the news line of planet a.
    EXPECT_EQ(Tafel(spur, 30, 120), (std::vector<std::string>{Name(s, 3), Name(s, hq), Name(s, wild), Name(s, wild),
                                                                 Name(s, a), Name(s, a)}));
    const std::string u = "-- noch unerforscht --", w = "Ware:         " + Ware(p.Ware);
    EXPECT_EQ(Tafel(spur, 40, 150), (std::vector<std::string>{"Ware:         " + Ware(s.Dokument(hq).Ware), u, u, w, w}));
    EXPECT_EQ(Tafel(spur, 40, 180), (std::vector<std::string>{"Piratenhauptquartier", "Lagerbestand: 10", "Lagerbestand: 10"}));
    EXPECT_EQ(Tafel(spur, 40, 210), (std::vector<std::string>{"Produktion:   2,5", "Produktion:   2,5"}));
    // The news line opened the list with the cursor on its planet's star.
    const size_t kreis = spur.rfind("circle", spur.find("print 30 120 15 16711935 " + Name(s, a)));
    EXPECT_EQ(spur.substr(kreis, spur.find('\n', kreis) - kreis),
              "circle " + std::to_string(KarteX(s, a)) + " " + std::to_string(KarteY(s, a)) + " 2 16777215 outline");
    const char* schiffe[] = {"SST    2 (Eigent. Spieler1)", "TSR    4 (Eigent. Spieler1)", "FSS    5 (Eigent. Piraten)",
                             "HSZ    3 (Eigent. Händler)"};
    for (int i = 0; i < 4; ++i)
        EXPECT_NE(lauf.screen.find("text\t40\t" + std::to_string(242 + 22 * i) + "\t15\t16711935\t" + schiffe[i] + "\n"),
                  std::string::npos) << schiffe[i];
    EXPECT_EQ(lauf.screen.find("XXL"), std::string::npos);
    for (const char* bild : {"picture\t400\t236\tFrachterKlein", "picture\t440\t258\tRaumstationKlein",
                             "picture\t400\t280\tPiratenKlein", "picture\t440\t302\tHändlerKlein",
                             "picture\t380\t165\tPortalKlein"})
        EXPECT_NE(lauf.screen.find(bild), std::string::npos) << bild;
    WieGolden(png, "sternliste");
}
