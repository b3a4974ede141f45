// The status screens: the fleet list filtered and sorted with the mouse, a
// click that opens a ship, the evaluation page and the one-player figures.
#include <png.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <sstream>

#include "hilfe.h"
#include "screen/leinwand.h"
#include "state/codes.h"
#include "state/text.h"
#include "views/status.h"

namespace {

// Every drawing of the list in the trace, as the slots of its lines.
std::vector<std::vector<int>> Listen(const std::string& spur) {
    std::vector<std::vector<int>> r;
    std::istringstream ein(spur);
    std::string zeile;
    while (std::getline(ein, zeile)) {
        if (zeile == "box 505 285 998 738 0") r.emplace_back();
        int y = 0;
        if (!r.empty() && zeile.rfind("print 510 ", 0) == 0 && std::sscanf(zeile.c_str(), "print 510 %d", &y) == 1 && y >= 285) {
            const size_t text = zeile.find(' ', zeile.find(' ', zeile.find(' ', 10) + 1) + 1) + 1;
            r.back().push_back(std::atoi(zeile.substr(text + 3, 4).c_str()));
        }
    }
    return r;
}

// The colours and texts printed at (x, y), in the order of the trace.
std::vector<std::string> Gedruckt(const std::string& spur, int x, int y) {
    std::vector<std::string> r;
    std::istringstream ein(spur);
    std::string zeile;
    const std::string kopf = "print " + std::to_string(x) + " " + std::to_string(y) + " ";
    while (std::getline(ein, zeile))
        if (zeile.rfind(kopf, 0) == 0) r.push_back(zeile.substr(zeile.find(' ', kopf.size()) + 1));
    return r;
}

std::string Klick(int x, int y) { return "click " + std::to_string(x) + " " + std::to_string(y) + "\n"; }

// The middle of a heading and of a tab, from the character cells of the
// two sizes (12 pixels at size 15).
int Spalte(int ersteZelle) { return 510 + 12 * ersteZelle + 6; }
int TabMitte(const std::string& vorher, const std::string& tab) {
    Leinwand l;
    int b = 0, h = 0;
    l.textMessen(" ", 12, b, h);
    return 649 + b * static_cast<int>(vorher.size()) + b * static_cast<int>(tab.size()) / 2;
}

// A player with four types: freighters, cruisers, a scout in the yard and a
// station towed by a freighter under way; one pirate that is not his.
Spiel Flotte() {
    Spiel s = NeuesSpielZustand(1, 5000);
    auto schiff = [&](int nr, const char* typ, int planet, int zustand, int dauer) -> Schiff& {
        Schiff& sch = s.Schiffe(nr);
        sch = Schiff{};
        sch.Typ = typ;
        sch.Name = "Schiff";
        sch.Besitzer = 1;
        sch.Planet = static_cast<Integer>(planet);
        sch.Zustand = static_cast<Integer>(zustand);
        sch.Dauer = static_cast<Integer>(dauer);
        sch.Treibstoff = 30;
        sch.Tankgroesse = 30;
        return sch;
    };
    schiff(2, "FSS ", 23, 0, 0).Bewaffnung = 4;
    s.Schiffe(2).Schaden = 20;
    schiff(3, " XS ", 3, ZUSTAND_WERFT_BAU, 3);
    s.DockSchiffe(1, 1) = 3;
    Schiff& f = schiff(4, "SST ", 31, 1, 40);
    f.StartPlanet = 3;
    f.Ladung = 5;
    f.Fracht(1) = 5;
    f.Laderaum = 10;
    f.Schaden = 20;
    f.Partner = 6;
    schiff(5, "FSS ", 3, 0, 0).Bewaffnung = 4;
    schiff(6, "TSR ", 31, ZUSTAND_GEKOPPELT, 0).Partner = 4;
    s.Schiffe(6).Laderaum = 90;
    schiff(7, "FSS ", 41, 0, 0).Besitzer = BESITZER_PIRATEN;
    s.HoechstesSchiff = 7;
    return s;
}

}  // namespace

TEST(Status, FlotteGefiltertUndNachJederSpalteSortiert) {
    const std::string s = "key S\nkey ENTER\n";
    const int schiff = Spalte(0), ziel = Spalte(8), ent = Spalte(21), ldg = Spalte(25), ldr = Spalte(29),
              bew = Spalte(33), sch = Spalte(37);
    const std::string klicks = Klick(ziel, 270) + Klick(ziel, 270) + Klick(ent, 270) + Klick(ent, 270) +
                               Klick(ldg, 270) + Klick(ldr, 270) + Klick(bew, 270) + Klick(bew, 270) +
                               Klick(sch, 270) + Klick(schiff, 270) + Klick(schiff, 270) + Klick(schiff, 270) + Klick(schiff, 270) +
                               Klick(TabMitte("", "Alle"), 240) /* the tab shown: nothing */ +
                               Klick(TabMitte("Alle ", "FSS"), 240) + Klick(schiff, 270) + Klick(ent, 270) +
                               Klick(600, 290) /* the first line: the ship opens */ + "wait 100\nkey ESC\n";
    const TreiberLauf lauf = GeladenSpielen(Flotte(), s + klicks, "flotte");
    const Spiel n = ZustandAus(lauf);
    ASSERT_EQ(n.Schiffe(3).Zustand, ZUSTAND_WERFT_BAU);
    ASSERT_EQ(n.Schiffe(6).Zustand, ZUSTAND_GEKOPPELT);
    ASSERT_GT(n.Schiffe(4).Dauer, 2);

    // The expected order: by a value, up or down, ties by the lower slot.
    const std::vector<int> alle = {1, 2, 3, 4, 5, 6};
    auto nach = [&](std::function<std::string(int)> wert, bool ab, std::vector<int> v = {1, 2, 3, 4, 5, 6}) {
        std::stable_sort(v.begin(), v.end(), [&](int a, int b) { return ab ? wert(a) > wert(b) : wert(a) < wert(b); });
        return v;
    };
    auto zahl = [](long w) {
        char t[16];
        std::snprintf(t, sizeof t, "%08ld", w);
        return std::string(t);
    };
    auto ort = [&](int i) { return InWerft(n.Schiffe(i)) ? std::string("in der Werft") : n.Dokument(n.Schiffe(i).Planet).Name; };
    auto rest = [&](int i) { return zahl(i == 6 ? n.Schiffe(4).Dauer : n.Schiffe(i).Dauer); };
    auto typ = [&](int i) { return Trim(n.Schiffe(i).Typ); };
    const std::vector<std::vector<int>> soll = {
        alle,
        nach(ort, false), nach(ort, true), nach(rest, false), nach(rest, true),
        nach([&](int i) { return zahl(n.Schiffe(i).Ladung); }, false),
        nach([&](int i) { return zahl(n.Schiffe(i).Laderaum); }, false),
        nach([&](int i) { return zahl(n.Schiffe(i).Bewaffnung); }, false),
        nach([&](int i) { return zahl(n.Schiffe(i).Bewaffnung); }, true),
        nach([&](int i) { return zahl(n.Schiffe(i).Schaden); }, false),
        alle, nach(typ, false), nach(typ, true), alle,
        {2, 5} /* the cruisers' tab */, {5, 2} /* by slot, down */, {2, 5} /* by Ent: a tie */};
    EXPECT_EQ(Listen(lauf.trace), soll);
    EXPECT_EQ(soll[7], (std::vector<int>{1, 3, 4, 6, 2, 5})) << "ties by slot";
    EXPECT_EQ(soll[8], (std::vector<int>{2, 5, 1, 3, 4, 6})) << "ties by slot, also going down";

    // The lines: place, the rest of the way (the carrier's for the station), the yard.
    const std::string ersteListe = lauf.trace.substr(lauf.trace.find("box 505 285 998 738 0"));
    auto linie = [&](int i) { return Gedruckt(ersteListe, 510, 260 + 25 * i).at(0); };
    EXPECT_EQ(linie(1), "16776960 SST   1 Sol III      ---   0  10   0   0");
    EXPECT_EQ(linie(3), "65535  XS   3 in der Werft   2   0   0   0   0");
    EXPECT_EQ(linie(6).substr(0, 26), "16777215 TSR   6 " + Utf8(n.Dokument(31).Name).substr(0, 9));
    EXPECT_EQ(linie(6).substr(30, 3), Rechtsbuendig(n.Schiffe(4).Dauer, 3));
    EXPECT_EQ(linie(2).substr(0, 9), "255 FSS  ");
    EXPECT_EQ(Gedruckt(lauf.trace, 560, 232).at(0), "16711935  Filter: Alle FSS SST TSR XS ");

    // The click on a line leaves the status and opens that ship's orders.
    const std::string danach = lauf.trace.substr(lauf.trace.rfind("print 570 232 15 16711935 * * *"));
    EXPECT_NE(danach.find("print 50 600 15 16777215 Raumschiffe anweisen"), std::string::npos);
    EXPECT_NE(danach.find("print 30 110 15 16711935 Schiff   FSS  2"), std::string::npos);
}
