// The star list through the driver: walking the map with the keys, clicks on
// stars and on a news line, and the panel of every kind of planet.
#include <png.h>

#include <cmath>
#include <filesystem>
#include <sstream>

#include "hilfe.h"
#include "orders/reisen.h"
#include "screen/plattform.h"
#include "state/codes.h"
#include "state/regeln.h"
#include "state/text.h"

namespace {

// The texts printed in the panel's magenta at (x, y), in the order of the trace.
std::vector<std::string> Gedruckt(const std::string& spur, int x, int y) {
    std::vector<std::string> r;
    std::istringstream ein(spur);
    const std::string kopf = "print " + std::to_string(x) + " " + std::to_string(y) + " 15 16711935 ";
    for (std::string zeile; std::getline(ein, zeile);)
        if (zeile.rfind(kopf, 0) == 0) r.push_back(zeile.substr(kopf.size()));
    return r;
}

// Names of planets and goods; numerals and goods are no part of a saved game.
std::string Name(const Spiel& s, int planet) {
    static const char* const ROEM[] = {"X", "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX"};
    return Utf8(s.Dokument(planet).Name) + ROEM[planet % 10];
}
std::string Ware(int g) {
    static const Spiel tabellen = [] {
        Spiel s;
        VORBELEGUNG_VARIABLEN(s);
        return s;
    }();
    return Utf8(tabellen.WarenName(g));
}

std::string Klick(int x, int y) { return "click " + std::to_string(x) + " " + std::to_string(y) + "\n"; }

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

// The driver's picture against the golden one (a few glyph-edge shades may
// differ); QUORVANT_GOLDEN_SCHREIBEN=1 keeps the new picture instead.
void WieGolden(const std::string& png, const std::string& name) {
    const std::string golden = std::string(QUORVANT_TESTDATEN) + "/golden/" + name + ".png";
    if (std::getenv("QUORVANT_GOLDEN_SCHREIBEN"))
        std::filesystem::copy_file(png, golden, std::filesystem::copy_options::overwrite_existing);
    std::vector<uint8_t> pix[2];
    for (int i = 0; i < 2; ++i) {
        png_image b{};
        b.version = PNG_IMAGE_VERSION;
        ASSERT_TRUE(png_image_begin_read_from_file(&b, (i ? golden : png).c_str())) << (i ? golden : png);
        b.format = PNG_FORMAT_RGB;
        pix[i].resize(PNG_IMAGE_SIZE(b));
        ASSERT_TRUE(png_image_finish_read(&b, nullptr, pix[i].data(), 0, nullptr));
    }
    ASSERT_EQ(pix[0].size(), pix[1].size());
    int anders = 0;  // colour values, about three to a differing pixel
    for (size_t i = 0; i < pix[0].size(); ++i) anders += std::abs(pix[0][i] - pix[1][i]) > 64;
    EXPECT_LE(anders, 1200) << name;
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
    EXPECT_EQ(Gedruckt(spur, 30, 120), soll);
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
        Schiff& sch = s.Schiffe(i + 2);
        sch.Typ = typen[i];
        sch.Name = "Schiff";
        sch.Besitzer = static_cast<Integer>(i == 3 ? BESITZER_PIRATEN : 1);
        sch.Planet = static_cast<Integer>(a);
        sch.Zustand = zustand[i];
        sch.Dauer = zustand[i] == 1 ? 40 : 0;
        sch.Treibstoff = 30;
    }
    s.HoechstesSchiff = 6;
    Schiff& h = s.Schiffe(HAENDLER_ERSTES + 1);
    h.Planet = static_cast<Integer>(a);
    h.Zustand = 1;
    h.Dauer = 1;  // lands in the year of the load

    const std::string png = TempOrdner("sternlist-png") + "/tafel.png";
    const TreiberLauf lauf = GeladenSpielen(
        s, "key L\nkey ENTER\n" + Klick(KarteX(s, hq), KarteY(s, hq)) + Klick(KarteX(s, wild) - 2, KarteY(s, wild) + 2) +
               "key ESC\n" + Klick(700, 265) + "wait 100\nkey SPACE\n", "tafeln", "--seed 7 --png " + png);
    ASSERT_EQ(ZustandAus(lauf).Dokument(a).Bestand, 1000);
    const std::string spur = lauf.trace.substr(lauf.trace.find("print 50 600 15 16777215 Liste der"));
    // Clicks on the headquarters and on the unexplored star, Esc, then the news line of planet a.
    EXPECT_EQ(Gedruckt(spur, 30, 120), (std::vector<std::string>{Name(s, 3), Name(s, hq), Name(s, wild), Name(s, wild),
                                                                 Name(s, a), Name(s, a)}));
    const std::string u = "-- noch unerforscht --", w = "Ware:         " + Ware(p.Ware);
    EXPECT_EQ(Gedruckt(spur, 40, 150), (std::vector<std::string>{"Ware:         " + Ware(s.Dokument(hq).Ware), u, u, w, w}));
    EXPECT_EQ(Gedruckt(spur, 40, 180), (std::vector<std::string>{"Piratenhauptquartier", "Lagerbestand: 10", "Lagerbestand: 10"}));
    EXPECT_EQ(Gedruckt(spur, 40, 210), (std::vector<std::string>{"Produktion:   2,5", "Produktion:   2,5"}));
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
