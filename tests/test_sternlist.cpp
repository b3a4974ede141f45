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
#include "state/regeln.h"
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

// The name of a good; the constant tables are no part of a saved game.
std::string Ware(int g) {
    static const Spiel tabellen = [] {
        Spiel s;
        s.AnzahlSpieler = 1;
        VORBELEGUNG_VARIABLEN(s);
        return s;
    }();
    return Utf8(tabellen.WarenName(g));
}

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

namespace {

bool PngLesen(const std::string& pfad, std::vector<uint32_t>& pix, int& b, int& h) {
    png_image bild{};
    bild.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&bild, pfad.c_str())) return false;
    bild.format = PNG_FORMAT_BGRA;
    b = static_cast<int>(bild.width);
    h = static_cast<int>(bild.height);
    pix.assign(static_cast<size_t>(b) * h, 0);
    const bool gut = png_image_finish_read(&bild, nullptr, pix.data(), 0, nullptr) != 0;
    png_image_free(&bild);
    return gut;
}

// The driver's picture against the golden one; a few glyph-edge shades may
// differ. QUORVANT_GOLDEN_SCHREIBEN=1 keeps the new picture instead.
void WieGolden(const std::string& png, const std::string& name) {
    const std::string golden = std::string(QUORVANT_TESTDATEN) + "/golden/" + name + ".png";
    std::vector<uint32_t> ist, soll;
    int b = 0, h = 0;
    ASSERT_TRUE(PngLesen(png, ist, b, h));
    if (std::getenv("QUORVANT_GOLDEN_SCHREIBEN")) {
        Leinwand l;
        l.zurueckholen(ist);
        std::string fehler;
        ASSERT_TRUE(l.pngSchreiben(golden, fehler)) << fehler;
        return;
    }
    ASSERT_TRUE(PngLesen(golden, soll, b, h)) << "golden picture missing: " << golden;
    ASSERT_EQ(ist.size(), soll.size());
    int anders = 0;
    for (size_t i = 0; i < ist.size(); ++i) {
        int d = 0;
        for (int k = 0; k < 24; k += 8)
            d = std::max(d, std::abs(static_cast<int>((ist[i] >> k) & 255) - static_cast<int>((soll[i] >> k) & 255)));
        if (d > 64) ++anders;
    }
    EXPECT_LE(anders, 400) << name << ": " << anders << " pixels differ";
}

}  // namespace

TEST(Sternliste, TafelnVonNachrichtUndSternen) {
    Spiel s = NeuesSpielZustand(1, 5000);
    const int hq = EinsamerStern(s, 3);
    const int wild = EinsamerStern(s, hq / 10 + 1);
    const int a = 23;  // the news line's planet, far from both
    ASSERT_GT(wild, 0);
    s.Schiffe(PIRATEN_HQ).Planet = static_cast<Integer>(hq);
    s.Dokument(hq).Produktion = 120;
    s.Dokument(hq).Bestand = 3000;
    s.Dokument(wild).Portal = -1;  // a portal, but nobody has landed: nothing shown
    Planet& p = s.Dokument(a);
    p.Produktion = 250;
    p.Bestand = 750;  // a year makes it 10 t, and the news tells it
    p.Preis = 9;
    p.Portal = -1;
    auto schiff = [&](int nr, const char* typ, int besitzer, Integer zustand) {
        Schiff& sch = s.Schiffe(nr);
        sch.Typ = typ;
        sch.Name = "Schiff";
        sch.Besitzer = static_cast<Integer>(besitzer);
        sch.Planet = static_cast<Integer>(a);
        sch.Zustand = zustand;
        sch.Treibstoff = 30;
        sch.Tankgroesse = 30;
        sch.Dauer = zustand == 1 ? 40 : 0;
        sch.StartPlanet = zustand == 1 ? 3 : 0;
    };
    schiff(2, "SST ", 1, 0);
    schiff(3, " XS ", 1, 1);   // still on its way: not listed
    schiff(4, "TSR ", 1, 0);
    schiff(5, "FSS ", 7, 0);   // a pirate
    schiff(6, "XXL ", 1, 10);  // towed: not listed
    s.HoechstesSchiff = 6;
    Schiff& h = s.Schiffe(HAENDLER_ERSTES + 1);
    h.Planet = static_cast<Integer>(a);
    h.Zustand = 1;
    h.Dauer = 1;  // lands in the year of the load

    const std::string png = TempOrdner("sternlist-png") + "/tafel.png";
    const std::string weiter = "key L\nkey ENTER\n" + Klick(KarteX(s, hq), KarteY(s, hq)) +
                               Klick(KarteX(s, wild) - 2, KarteY(s, wild) + 2) + "key ESC\n" + Klick(700, 265) + "wait 100\nkey SPACE\n";
    const TreiberLauf lauf = GeladenSpielen(s, weiter, "tafeln", "--seed 7 --png " + png);
    const Spiel nach = ZustandAus(lauf);
    ASSERT_EQ(nach.Dokument(a).Bestand, 1000);
    ASSERT_EQ(nach.Schiffe(HAENDLER_ERSTES + 1).Zustand, 0);
    const std::string spur = lauf.trace.substr(lauf.trace.find("print 50 600 15 16777215 Liste der Sternensysteme"));

    // The headquarters shows its good but neither stock nor production.
    const std::vector<std::string> namen = {Name(s, 3), Name(s, hq), Name(s, wild), Name(s, wild) /* Esc */,
                                            Name(s, a), Name(s, a) /* Blank */};
    EXPECT_EQ(Gedruckt(spur, 30, 120), namen);
    const std::string unerforscht = "-- noch unerforscht --", ware = "Ware:         " + Ware(p.Ware);
    const std::vector<std::string> zeile150 = {"Ware:         " + Ware(s.Dokument(hq).Ware), unerforscht, unerforscht,
                                               ware, ware};
    EXPECT_EQ(Gedruckt(spur, 40, 150), zeile150);
    EXPECT_EQ(Gedruckt(spur, 40, 180), (std::vector<std::string>{"Piratenhauptquartier", "Lagerbestand: 10", "Lagerbestand: 10"}));
    EXPECT_EQ(Gedruckt(spur, 40, 210), (std::vector<std::string>{"Produktion:   2,5", "Produktion:   2,5"}));

    // The news line opened the list on its planet: the cursor on that star.
    const size_t klick = lauf.trace.rfind("circle", lauf.trace.find("print 30 120" + std::string(MAGENTA_PANEL) + Name(s, a)));
    EXPECT_EQ(lauf.trace.substr(klick, lauf.trace.find('\n', klick) - klick),
              "circle " + std::to_string(KarteX(s, a)) + " " + std::to_string(KarteY(s, a)) + " 2 16777215 outline");
    const std::string bildschirm = lauf.screen;
    auto steht = [&](int y, const std::string& text) {
        return bildschirm.find("text\t40\t" + std::to_string(y) + "\t15\t16711935\t" + text + "\n") != std::string::npos;
    };
    EXPECT_TRUE(steht(242, "SST    2 (Eigent. Spieler1)"));
    EXPECT_TRUE(steht(264, "TSR    4 (Eigent. Spieler1)"));
    EXPECT_TRUE(steht(286, "FSS    5 (Eigent. Piraten)"));
    EXPECT_TRUE(steht(308, "HSZ    3 (Eigent. Händler)"));
    for (const char* bild : {"picture\t400\t236\tFrachterKlein", "picture\t440\t258\tRaumstationKlein",
                             "picture\t400\t280\tPiratenKlein", "picture\t440\t302\tHändlerKlein",
                             "picture\t380\t165\tPortalKlein"})
        EXPECT_NE(bildschirm.find(bild), std::string::npos) << bild << "\n" << bildschirm;
    EXPECT_EQ(bildschirm.find("XS    3"), std::string::npos);
    EXPECT_EQ(bildschirm.find("XXL"), std::string::npos);
    WieGolden(png, "sternliste");
}
