// The star list through the driver: walking the map with the keys, clicks on
// stars and on a news line, and the panel of every kind of planet.
#include <png.h>

#include <cmath>
#include <cstdlib>
#include <sstream>

#include "hilfe.h"
#include "orders/reisen.h"
#include "screen/leinwand.h"
#include "screen/plattform.h"
#include "state/sterne.h"
#include "state/text.h"

namespace {

constexpr const char* MAGENTA_PANEL = " 15 16711935 ";

// The texts printed at (x, y) in magenta size 15, in the order of the trace.
std::vector<std::string> Gedruckt(const std::string& spur, int x, int y) {
    std::vector<std::string> r;
    std::istringstream ein(spur);
    std::string zeile;
    const std::string kopf = "print " + std::to_string(x) + " " + std::to_string(y) + MAGENTA_PANEL;
    while (std::getline(ein, zeile))
        if (zeile.rfind(kopf, 0) == 0) r.push_back(zeile.substr(kopf.size()));
    return r;
}

// The full name; the numerals are no part of a saved game.
std::string Name(const Spiel& s, int planet) {
    static const char* const ROEM[] = {"X", "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX"};
    return Utf8(s.Dokument(planet).Name) + ROEM[planet % 10];
}

std::string Klick(int x, int y) { return "click " + std::to_string(x) + " " + std::to_string(y) + "\n"; }

// A star with no other star within 8 map units, so a click on it is its own.
int EinsamerStern(const Spiel& s, int abSystem, int ausser = 0) {
    for (int k = abSystem; k <= s.AnzahlPlaneten / 10; ++k) {
        const int c = 10 * k + 1;
        bool frei = c != ausser && std::hypot(s.Dokument(c).X, s.Dokument(c).Y) > 8;
        for (int j = 1; frei && j <= s.AnzahlPlaneten / 10; ++j)
            if (j != k && std::hypot(s.Dokument(c).X - s.Dokument(10 * j + 1).X, s.Dokument(c).Y - s.Dokument(10 * j + 1).Y) <= 8)
                frei = false;
        if (frei) return c;
    }
    return 0;
}

}  // namespace

TEST(Sternliste, TastenUndKlicksWandernUeberDieKarte) {
    const std::string start = NeuesSpielSkript(1, 5000, {"Anna"});
    const TreiberLauf ohne = Treiber(start);
    const Spiel s = ZustandAus(ohne);
    const int letzter = s.AnzahlPlaneten + 10;
    // A letter whose next star after system 2 is not the very next one.
    const int buchstabenZiel = 61;
    const char buchstabe = s.Dokument(buchstabenZiel).Name[0];
    int erwartetBuchstabe = 0;
    for (int k = 3; k <= s.AnzahlPlaneten / 10 && !erwartetBuchstabe; ++k)
        if (s.Dokument(10 * k + 1).Name[0] == buchstabe) erwartetBuchstabe = 10 * k + 1;
    const int rechts = RICHTUNGSSUCHE(s, erwartetBuchstabe, Taste::Rechts);
    const int runter = RICHTUNGSSUCHE(s, SOL_III, Taste::Runter);
    const int stern = EinsamerStern(s, 5);
    ASSERT_GT(stern, 0);

    const std::string tasten =
        "key L\nkey ENTER\n"
        "key UP\nkey UP\nkey LEFT\nkey TAB\nkey " + std::string(1, buchstabe) + "\n"
        "key SPACE\nkey RIGHT\nkey PERIOD\nkey DOWN\nkey SPACE\nkey RIGHT\nkey PERIOD\nkey DOWN\n" +
        Klick(KarteX(s, stern) + 2, KarteY(s, stern) - 1) + Klick(995, 735) + "key ENTER\n";
    const TreiberLauf lauf = Treiber(start + tasten);
    const std::string spur = lauf.trace.substr(lauf.trace.find("print 50 600 15 16777215 Liste der Sternensysteme"));

    const std::vector<std::string> soll = {
        Name(s, 3),  Name(s, 11), Name(s, 12), Name(s, 12) /* Left in mode 0 */, Name(s, 21),
        Name(s, erwartetBuchstabe), Name(s, erwartetBuchstabe) /* Blank */, Name(s, rechts), Name(s, 3),
        Name(s, runter), Name(s, runter), Name(s, runter) /* Right in mode 0 */, Name(s, 3), Name(s, letzter),
        Name(s, stern),
        Name(s, stern) /* Enter: the panel once more, then the list ends */};
    EXPECT_EQ(Gedruckt(spur, 30, 120), soll);
    EXPECT_EQ(Name(s, letzter).substr(Name(s, letzter).size() - 2), " X");

    // The cursor: radius 3 on Sol III at the start, radius 2 after the period key.
    auto anzahl = [&](const std::string& was) {
        int n = 0;
        for (size_t p = spur.find(was); p != std::string::npos; p = spur.find(was, p + 1)) ++n;
        return n;
    };
    const std::string startKreis = "circle 750 490 3 16777215";
    EXPECT_EQ(spur.find(startKreis) + startKreis.size(), spur.find(" outline"));
    EXPECT_EQ(anzahl("circle 750 490 3 16777215 outline"), 1);
    EXPECT_EQ(anzahl("circle 750 490 2 16777215 outline"), 2);

    // Leaving gives the main screen back, and nothing in the game has changed.
    EXPECT_NE(lauf.screen.find("LAGERBESTAND"), std::string::npos);
    EXPECT_EQ(lauf.screen.find(Name(s, stern)), std::string::npos);
    EXPECT_TRUE(lauf.state == ohne.state);
}
