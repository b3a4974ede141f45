// The status screens: the fleet list filtered and sorted with the mouse, a
// click that opens a ship, the evaluation page and the one-player figures.

#include "hilfe.h"

namespace {

// Every drawing of the list in the trace, as the slots of its lines.
std::vector<std::vector<int>> Listen(const std::string& spur) {
    std::vector<std::vector<int>> r;
    std::istringstream ein(spur);
    bool liste = false;
    int y = 0, farbe = 0, slot = 0;
    char typ[4];
    for (std::string z; std::getline(ein, z);) {
        if (z == "box 505 285 998 738 0") r.emplace_back(), liste = true;
        if (z == "box 502 232 998 738 0") liste = false;  // the list is left
        if (liste && std::sscanf(z.c_str(), "print 510 %d 15 %d %3c%4d", &y, &farbe, typ, &slot) == 4 && y >= 285)
            r.back().push_back(slot);
    }
    return r;
}

// A heading by its first column (12 pixels a character); a tab by the
// characters before it on the tab line (10 pixels a character at size 12).
std::string Kopf(int spalte) { return Klick(516 + 12 * spalte, 270); }
std::string Tab(int zeichen) { return Klick(655 + 10 * zeichen, 240); }

Schiff& Eigenes(Spiel& s, int nr, const char* typ, int planet, int zustand = 0, int dauer = 0, int laderaum = 0,
                int bewaffnung = 0, int schaden = 0, int partner = 0) {
    Schiff& sch = SchiffSetzen(s, nr, typ, 1, planet, bewaffnung);
    sch.Zustand = static_cast<Integer>(zustand), sch.Dauer = static_cast<Integer>(dauer);
    sch.Laderaum = static_cast<Integer>(laderaum), sch.Schaden = static_cast<Integer>(schaden);
    sch.Partner = static_cast<Integer>(partner);
    return sch;
}

// Four types: freighters, cruisers, a scout in the yard and a station towed
// by a freighter under way; and a pirate, which is not the player's.
Spiel Flotte() {
    Spiel s = NeuesSpielZustand(1, 5000);
    //        slot  Typ   Planet   Zustand            Dauer Ldr Bew Sch Partner
    Eigenes(s, 2, "FSS ", 23,      0,                 0,    0,  4,  20);
    Eigenes(s, 3, " XS ", SOL_III, ZUSTAND_WERFT_BAU, 3);
    Eigenes(s, 4, "SST ", 31,      ZUSTAND_FLIEGT,    40,   10, 0,  20, 6).StartPlanet = SOL_III;
    Eigenes(s, 5, "FSS ", SOL_III, 0,                 0,    0,  4);
    Eigenes(s, 6, "TSR ", 31,      ZUSTAND_GEKOPPELT, 0,    90, 0,  0,  4);
    Eigenes(s, 7, "FSS ", 41).Besitzer = BESITZER_PIRATEN;
    s.Schiffe(4).Ladung = s.Schiffe(4).Fracht(1) = 5;
    s.DockSchiffe(1, 1) = 3, s.HoechstesSchiff = 7;
    return s;
}

}  // namespace

TEST(Status, FlotteGefiltertUndNachJederSpalteSortiert) {
    // Ziel twice, Ent twice, Ldg, Ldr, Bew twice, Sch, Schiff four times round; the tab
    // shown (nothing happens), the cruisers' tab, Schiff, Ent; a click on the first line.
    const std::string klicks = Kopf(8) + Kopf(8) + Kopf(21) + Kopf(21) + Kopf(25) + Kopf(29) + Kopf(33) + Kopf(33) +
                               Kopf(37) + Kopf(0) + Kopf(0) + Kopf(0) + Kopf(0) + Tab(0) + Tab(5) + Kopf(0) +
                               Kopf(21) + Klick(600, 290) + "wait 100\nkey ESC\n";
    const TreiberLauf lauf = GeladenSpielen(Flotte(), "key S\nkey ENTER\n" + klicks, "flotte");
    const Spiel n = ZustandAus(lauf);
    ASSERT_TRUE(InWerft(n.Schiffe(3)) && n.Schiffe(6).Zustand == ZUSTAND_GEKOPPELT && n.Schiffe(4).Dauer > 2);
    // The order by a value, up or down; ties by the lower slot either way.
    auto nach = [&](auto wert, bool ab) {
        std::vector<int> v = {1, 2, 3, 4, 5, 6};
        std::stable_sort(v.begin(), v.end(), [&](int a, int b) { return ab ? wert(a) > wert(b) : wert(a) < wert(b); });
        return v;
    };
    auto ort = [&](int i) { return InWerft(n.Schiffe(i)) ? std::string("in der Werft") : n.Dokument(n.Schiffe(i).Planet).Name; };
    auto rest = [&](int i) { return static_cast<long>(n.Schiffe(i == 6 ? 4 : i).Dauer); };
    auto typ = [&](int i) { return Trim(n.Schiffe(i).Typ); };
    auto feld = [&](Integer Schiff::*f) { return [&n, f](int i) { return static_cast<long>(n.Schiffe(i).*f); }; };
    const std::vector<int> alle = {1, 2, 3, 4, 5, 6};
    const std::vector<std::vector<int>> soll = {
        alle, nach(ort, false), nach(ort, true), nach(rest, false), nach(rest, true), nach(feld(&Schiff::Ladung), false),
        nach(feld(&Schiff::Laderaum), false), {1, 3, 4, 6, 2, 5}, {2, 5, 1, 3, 4, 6} /* Bew: ties by slot */,
        nach(feld(&Schiff::Schaden), false), alle, nach(typ, false), nach(typ, true), alle,
        {2, 5} /* the cruisers */, {5, 2} /* by slot, down */, {2, 5} /* Ent: a tie */};
    EXPECT_EQ(Listen(lauf.trace), soll);
    // The lines: the colour of the type, the place, the rest of the way (the carrier's for the station).
    const std::string erste = lauf.trace.substr(lauf.trace.find("box 505 285 998 738 0"));
    EXPECT_EQ(Gedruckt(erste, 510, 285).at(0), "16776960 SST   1 Sol III      ---   0  10   0   0");
    EXPECT_EQ(Gedruckt(erste, 510, 335).at(0), "65535  XS   3 in der Werft   2   0   0   0   0");
    const std::string station = Gedruckt(erste, 510, 410).at(0);
    EXPECT_EQ(station.substr(0, 26), "16777215 TSR   6 " + Utf8(n.Dokument(31).Name).substr(0, 9));
    EXPECT_EQ(station.substr(30, 3), Rechtsbuendig(n.Schiffe(4).Dauer, 3));
    EXPECT_EQ(Gedruckt(erste, 510, 310).at(0).substr(0, 9), "255 FSS  ");
    EXPECT_EQ(Gedruckt(lauf.trace, 560, 232).at(0), "16711935  Filter: Alle FSS SST TSR XS ");
    // The click on a line leaves the status and opens that ship's orders.
    const std::string danach = lauf.trace.substr(lauf.trace.rfind("print 570 232 15 16711935 * * *"));
    EXPECT_NE(danach.find("print 50 600 15 16777215 Raumschiffe anweisen"), std::string::npos);
    EXPECT_NE(danach.find("print 30 110 15 16711935 Schiff   FSS  2"), std::string::npos);
}

TEST(Status, AuswertungUndWeitereInformationenEinesSpielers) {
    Spiel s = Flotte();
    s.Bargeld(1) = 4000;
    s.Kredit(1) = 6000;  // the wealth goes below zero
    s.Statistik(1, 1) = 1234, s.Statistik(14, 1) = 5, s.Statistik(STAT_PIRATEN_BESIEGT, 1) = 3;
    s.Komponenten = 5;  // the DTW filter's lines show
    const long zaehler[22] = {0, 123456, 23456, 3456, 456, 199, 7000, 1000, 2000, 1500, 2000, 500,
                              333, 2, 44, 55, 395, 49, 100, 33, 16, 1};
    for (int c = 1; c <= 21; ++c) s.Statistik(c, 2) = static_cast<Long>(zaehler[c]);
    const std::string png = TempOrdner("status-png") + "/status.png";
    // The freighters' tab, on to the evaluation and the third page, back twice, a click on Bew.
    const TreiberLauf lauf = GeladenSpielen(s, "key S\nkey ENTER\n" + Tab(9) + "key SPACE\nkey SPACE\nkey PGUP\nkey PGUP\n" +
                                                   Kopf(33), "auswertung", "--seed 7 --png " + png);
    const Spiel n = ZustandAus(lauf);
    // The year of the load: the docks offered 5 more place-years, the scout kept one busy.
    ASSERT_EQ(n.Statistik(EST_DOCK_ANGEBOTEN, 2), 400);
    ASSERT_EQ(n.Statistik(EST_DOCK_BELEGT, 2), 200);
    ASSERT_EQ(n.Statistik(EST_BELEGT_BAU, 2), 50);
    // The bank took its 30 of repayment and 60 of interest in that year.
    ASSERT_EQ(n.Bargeld(1) - n.Kredit(1), -2060);

    const size_t w = lauf.trace.find("print 510 250 15 255 Weitere Informationen:");
    const size_t w2 = lauf.trace.find("box 502 245 998 738 0", w);
    ASSERT_NE(w2, std::string::npos);
    const std::string dritte = lauf.trace.substr(w, w2 - w);
    // The evaluation page twice: after the filtered list, and again after PageUp.
    for (const std::string& seite : {lauf.trace.substr(0, w), lauf.trace.substr(w2)}) {
        auto zeile = [&](int x, int y) {
            const auto v = Gedruckt(seite, x, y);
            return v.size() == 1 ? v[0] : "(" + std::to_string(v.size()) + " lines)";
        };
        EXPECT_EQ(zeile(510, 250), Utf8("255 " + T("Vermögen:       ")) + "     -2060");
        EXPECT_EQ(zeile(510, 275).substr(0, 20), "255 Bewertung:      ");
        EXPECT_EQ(zeile(510, 300), "255 Anzahl Schiffe:          2");
        EXPECT_EQ(zeile(541, 348), "255 Getreide:" + std::string(15, ' ') + "1234");
        EXPECT_EQ(zeile(541, 582), "255 Antimaterie:" + std::string(15, ' ') + "5");
        EXPECT_EQ(zeile(510, 710), "255 Piraten besiegt:         3");
    }
    // The third page and what it makes of the counters: amounts in 9 places, shares in per cent.
    const char* zeilen[] = {
        "Gesamterlös aus Verkauf:       123456 SD", "Zahlungen für Wareneinkauf:     23456 SD",
        "Steuerzahlungen:                 3456 SD", "Gebühren für Raumfahrthafen:      456 SD",
        "Zahlungen an die Spacedocks:     7000 SD", "  davon für Bau:                 1000 SD",
        "  davon für Laderaum:            2000 SD", "  davon für Bewaffnung:          1500 SD",
        "  davon für Reperatur:           2000 SD", "  davon für DTW-Filter:           500 SD",
        "Auslastung der Spacedocks:       50,0 %", "  davon am Bau:                  25,0 %",
        "  davon am Laderaum:             50,0 %", "  davon an der Bewaffnung:       16,5 %",
        "  davon an der Reperatur:         8,0 %", "  davon am DTW-Filter:            0,5 %",
        "Gekaufte Tankeinheiten:           333 TE", "Anzahl abgebrannter Waren:         44 t",
        "Anzahl verlorener Schiffe:          2", "Anzahl geraubter Waren:            55 t"};
    const int ys[] = {275, 300, 325, 350, 375, 396, 417, 438, 459, 480, 505, 526, 547, 568, 589, 610, 635, 660, 685, 710};
    for (int i = 0; i < 20; ++i) EXPECT_EQ(Gedruckt(dritte, 510, ys[i]), std::vector<std::string>{"255 " + std::string(zeilen[i])});
    // PageUp twice: the full list again, on its first page; then sorted by Bew.
    EXPECT_EQ(Listen(lauf.trace), (std::vector<std::vector<int>>{{1, 2, 3, 4, 5, 6}, {1, 4}, {1, 2, 3, 4, 5, 6},
                                                                 {1, 3, 4, 6, 2, 5}}));
    WieGolden(png, "status");
}

TEST(Status, NeunzehnSchiffeAufZweiSeitenUndOhneDocksKeineAuslastung) {
    TestSpiel t("key SPACE\nkey PGUP\nkey SPACE\nkey SPACE\nkey SPACE\nkey ENTER\n");
    Spiel& s = *t.s;
    s.Dokument(3).Name = "Sol ";
    s.Bargeld(1) = 1000, s.Kredit(1) = 700;  // the wealth counts the debt, the Bewertung does not
    for (int nr = 1; nr <= 19; ++nr) Eigenes(s, nr, " XS ", SOL_III);  // 19 x 400
    Eigenes(s, 1, "FSS ", SOL_III, 0, 0, 0, 0, 25);  // 352.5: a half, and the running total 1352.5 rounds to the even 1352
    Eigenes(s, 20, "SST ", SOL_III).Besitzer = 2;   // not his
    s.Forschung(FORSCHUNG_MILLIONAER, 1) = -1;      // no invention
    s.Statistik(EST_TANKEINHEITEN, 2) = 77;
    t.p->spurAufzeichnen(true);
    ASSERT_TRUE(t.laufen([](Spiel& sp) { STATUS(sp); }));
    const std::string& spur = t.p->spur();
    // Eighteen lines a page: the nineteenth alone on the second, PageUp back to the first.
    std::vector<int> erste(18);
    for (int i = 0; i < 18; ++i) erste[static_cast<size_t>(i)] = i + 1;
    EXPECT_EQ(Listen(spur), (std::vector<std::vector<int>>{erste, {19}, erste, {19}}));
    EXPECT_EQ(Gedruckt(spur, 510, 250).at(0), Utf8("255 " + T("Vermögen:       ") + "       300"));
    EXPECT_EQ(Gedruckt(spur, 510, 275).at(0), "255 Bewertung:            8552");
    EXPECT_EQ(Gedruckt(spur, 510, 300).at(0), "255 Anzahl Schiffe:         19");
    // The third page stops after the payments while the docks have never been busy.
    const std::string dritte = spur.substr(spur.find("Weitere Informationen:"));
    EXPECT_EQ(Gedruckt(dritte, 510, 459).back(), Utf8("255 " + T("  davon für Reperatur:      ") + "        0 SD"));
    EXPECT_TRUE(Gedruckt(dritte, 510, 480).empty()) << "no DTW line before the fifth component";
    EXPECT_TRUE(Gedruckt(dritte, 510, 635).empty()) << "no tank units before the docks worked";
}
