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
    bool liste = false;
    while (std::getline(ein, zeile)) {
        if (zeile == "box 505 285 998 738 0") r.emplace_back(), liste = true;
        if (zeile == "box 502 232 998 738 0") liste = false;  // the list is left
        int y = 0;
        if (liste && zeile.rfind("print 510 ", 0) == 0 && std::sscanf(zeile.c_str(), "print 510 %d", &y) == 1 && y >= 285) {
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

TEST(Status, AuswertungUndWeitereInformationenEinesSpielers) {
    Spiel s = Flotte();
    s.Bargeld(1) = 4000;
    s.Kredit(1) = 6000;  // the wealth goes below zero
    s.Statistik(1, 1) = 1234;
    s.Statistik(14, 1) = 5;
    s.Statistik(STAT_PIRATEN_BESIEGT, 1) = 3;
    s.Komponenten = 5;  // the DTW filter's lines show
    const long zaehler[22] = {0, 123456, 23456, 3456, 456, 199, 7000, 1000, 2000, 1500, 2000, 500,
                              333, 2, 44, 55, 395, 49, 100, 33, 16, 1};
    for (int c = 1; c <= 21; ++c) s.Statistik(c, 2) = static_cast<Long>(zaehler[c]);
    const std::string png = TempOrdner("status-png") + "/status.png";
    const std::string weiter = "key S\nkey ENTER\n" + Klick(TabMitte("Alle FSS ", "SST"), 240) +
                               "key SPACE\nkey SPACE\nkey PGUP\nkey PGUP\n" + Klick(Spalte(33) + 3, 270);
    const TreiberLauf lauf = GeladenSpielen(s, weiter, "auswertung", "--seed 7 --png " + png);
    const Spiel n = ZustandAus(lauf);
    // The year of the load: the docks offered 5 more place-years, the scout kept one busy.
    ASSERT_EQ(n.Statistik(EST_DOCK_ANGEBOTEN, 2), 400);
    ASSERT_EQ(n.Statistik(EST_DOCK_BELEGT, 2), 200);
    ASSERT_EQ(n.Statistik(EST_BELEGT_BAU, 2), 50);

    auto rot = [&](const std::string& spur, int x, int y) {
        std::vector<std::string> r;
        for (const std::string& t : Gedruckt(spur, x, y))
            if (t.rfind("255 ", 0) == 0) r.push_back(t.substr(4));
        return r;
    };
    const size_t w = lauf.trace.find("print 510 250 15 255 Weitere Informationen:");
    ASSERT_NE(w, std::string::npos);
    const size_t w2 = lauf.trace.find("box 502 245 998 738 0", w);
    const std::string auswertung1 = lauf.trace.substr(0, w), dritte = lauf.trace.substr(w, w2 - w),
                      auswertung2 = lauf.trace.substr(w2);
    // The evaluation page twice: after the filtered list, and again after PageUp.
    for (const std::string& seite : {auswertung1, auswertung2}) {
        EXPECT_EQ(rot(seite, 510, 250), (std::vector<std::string>{Utf8(T("Vermögen:       ")) + "     -2000"}));
        ASSERT_EQ(rot(seite, 510, 275).size(), 1u);
        EXPECT_EQ(rot(seite, 510, 275)[0].substr(0, 16), "Bewertung:      ");
        EXPECT_EQ(rot(seite, 510, 300), (std::vector<std::string>{"Anzahl Schiffe:          2"}));
        EXPECT_EQ(rot(seite, 541, 348), (std::vector<std::string>{"Getreide:" + std::string(15, ' ') + "1234"}));
        EXPECT_EQ(rot(seite, 541, 582), (std::vector<std::string>{"Antimaterie:" + std::string(15, ' ') + "5"}));
        EXPECT_TRUE(rot(seite, 541, 366).empty());
        EXPECT_EQ(rot(seite, 510, 710), (std::vector<std::string>{"Piraten besiegt:         3"}));
    }
    EXPECT_EQ(n.Bargeld(1) - n.Kredit(1), -2000);

    // The third page, and what it makes of the counters.
    auto sd = [](const char* label, long v, const char* einheit) { return Utf8(T(label)) + Rechtsbuendig(v, 9) + einheit; };
    auto pr = [](const char* label, const char* prozent) {
        return std::string(label) + std::string(12 - std::string(prozent).size(), ' ') + prozent;
    };
    const std::vector<std::pair<int, std::string>> zeilen = {
        {275, sd("Gesamterlös aus Verkauf:    ", 123456, " SD")}, {300, sd("Zahlungen für Wareneinkauf: ", 23456, " SD")},
        {325, sd("Steuerzahlungen:            ", 3456, " SD")}, {350, sd("Gebühren für Raumfahrthafen:", 456, " SD")},
        {375, sd("Zahlungen an die Spacedocks:", 7000, " SD")}, {396, sd("  davon für Bau:            ", 1000, " SD")},
        {417, sd("  davon für Laderaum:       ", 2000, " SD")}, {438, sd("  davon für Bewaffnung:     ", 1500, " SD")},
        {459, sd("  davon für Reperatur:      ", 2000, " SD")}, {480, sd("  davon für DTW-Filter:     ", 500, " SD")},
        {505, pr("Auslastung der Spacedocks: ", "50,0 %")}, {526, pr("  davon am Bau:            ", "25,0 %")},
        {547, pr("  davon am Laderaum:       ", "50,0 %")}, {568, pr("  davon an der Bewaffnung: ", "16,5 %")},
        {589, pr("  davon an der Reperatur:  ", "8,0 %")}, {610, pr("  davon am DTW-Filter:     ", "0,5 %")},
        {635, sd("Gekaufte Tankeinheiten:     ", 333, " TE")}, {660, sd("Anzahl abgebrannter Waren:  ", 44, " t")},
        {685, sd("Anzahl verlorener Schiffe:  ", 2, "")}, {710, sd("Anzahl geraubter Waren:     ", 55, " t")}};
    for (const auto& [y, text] : zeilen) EXPECT_EQ(rot(dritte, 510, y), std::vector<std::string>{text}) << y;

    // PageUp twice: the full list again, on its first page, then sorted by a click.
    const auto listen = Listen(lauf.trace);
    ASSERT_GE(listen.size(), 4u);
    EXPECT_EQ(listen[0], (std::vector<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(listen[1], (std::vector<int>{1, 4}));
    EXPECT_EQ(listen[2], (std::vector<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(listen.back(), (std::vector<int>{1, 3, 4, 6, 2, 5}));
    WieGolden(png, "status");
}

namespace {

Schiff& Eigenes(Spiel& s, int nr, const char* typ, int laderaum, int bewaffnung, int schaden) {
    Schiff& sch = s.Schiffe(nr);
    sch.Typ = typ;
    sch.Name = "Schiff";
    sch.Besitzer = 1;
    sch.Planet = SOL_III;
    sch.Laderaum = static_cast<Integer>(laderaum);
    sch.Bewaffnung = static_cast<Integer>(bewaffnung);
    sch.Schaden = static_cast<Integer>(schaden);
    return sch;
}

}  // namespace

TEST(Status, BewertungOhneKreditUndOhneDocksKeineAuslastung) {
    TestSpiel t("key SPACE\nkey SPACE\nkey ENTER\n");
    Spiel& s = *t.s;
    s.Dokument(3).Name = "Sol ";
    s.Bargeld(1) = 1000;
    s.Kredit(1) = 700;  // Vermögen counts the debt, the Bewertung here does not
    // The first hull is 352.5: a half, and the running total 1352.5 rounds to the even 1352.
    Eigenes(s, 1, "FSS ", 0, 0, 25);
    Eigenes(s, 2, "SST ", 10, 1, 0).Fracht(2) = 3;                      // 1050 + 3 x 40
    Eigenes(s, 3, "TST ", 0, 0, 0).Fracht(FRACHT_SPRIT) = 4;            // 800 + 4 x 30
    Schiff& st = Eigenes(s, 4, "TSR ", 0, 0, 0);                        // 2000 + 40 + 30
    st.Fracht(2) = 1;
    st.Fracht(FRACHT_SPRIT) = 1;
    Eigenes(s, 5, "XXL ", 200, 0, 0).Fracht(1) = 50;                    // 400, the cargo not counted
    Eigenes(s, 6, " XS ", 0, 0, 50);                                    // 200
    Eigenes(s, 7, "SST ", 10, 0, 0).Besitzer = 2;                       // not his
    s.HoechstesSchiff = 7;
    s.Preis(1) = 30;
    s.Preis(2) = 40;
    s.Preis(3) = 50;
    s.Lager(3, 1) = 10;                                                 // 500
    s.Forschung(1, 1) = s.Forschung(5, 1) = -1;                         // 2500 x 2 x 2
    s.Forschung(FORSCHUNG_MILLIONAER, 1) = -1;                          // no invention
    s.Statistik(EST_TANKEINHEITEN, 2) = 77;
    t.p->spurAufzeichnen(true);
    ASSERT_TRUE(t.laufen([](Spiel& sp) { STATUS(sp); }));
    const std::string& spur = t.p->spur();
    EXPECT_EQ(Gedruckt(spur, 510, 250).at(0), Utf8("255 " + T("Vermögen:       ") + "       300"));
    EXPECT_EQ(Gedruckt(spur, 510, 275).at(0), "255 Bewertung:           16612");
    EXPECT_EQ(Gedruckt(spur, 510, 300).at(0), "255 Anzahl Schiffe:          6");
    // The third page stops after the payments while the docks have never been busy.
    EXPECT_EQ(Gedruckt(spur, 510, 459).back(), Utf8("255 " + T("  davon für Reperatur:      ") + "        0 SD"));
    EXPECT_TRUE(Gedruckt(spur, 510, 480).empty()) << "no DTW line before the fifth component";
    EXPECT_TRUE(Gedruckt(spur, 510, 635).empty()) << "no tank units before the docks worked";
}

TEST(Status, AchtzehnZeilenJeSeite) {
    for (const int anzahl : {18, 19}) {
        TestSpiel t("key SPACE\nkey PGUP\nkey SPACE\nkey SPACE\nkey ESC\nkey ESC\n");
        Spiel& s = *t.s;
        s.Dokument(3).Name = "Sol ";
        for (int nr = 1; nr <= anzahl; ++nr) Eigenes(s, nr, " XS ", 0, 0, 0);
        s.HoechstesSchiff = static_cast<Integer>(anzahl);
        t.p->spurAufzeichnen(true);
        ASSERT_TRUE(t.laufen([](Spiel& sp) { STATUS(sp); }));
        std::vector<int> erste(18), zweite;
        for (int i = 0; i < 18; ++i) erste[static_cast<size_t>(i)] = i + 1;
        if (anzahl == 19) zweite = {19};
        // With 18 ships the second page is empty; PageUp goes back to the first.
        EXPECT_EQ(Listen(t.p->spur()), (std::vector<std::vector<int>>{erste, zweite, erste, zweite})) << anzahl;
        EXPECT_EQ(Gedruckt(t.p->spur(), 510, 300).at(0), "255 Anzahl Schiffe: " + Rechtsbuendig(anzahl, 10));
    }
}
