// Ships: the new game's fleet, building, value, sale and the ship panel.

#include "hilfe.h"

TEST(NeuesSpiel, FrachterJeSpielerPiratenHauptbildschirmUndDialoggrenzen) {
    // The main screen of this new game is also the golden picture of it.
    const std::string png = TempOrdner("golden") + "/haupt.png";
    TreiberLauf lauf = Treiber(NeuesSpielSkript(2, 5000, {"Anna", "Björn"}), "--seed 7 --png " + png);
    ASSERT_EQ(lauf.status, 0) << lauf.fehler;
    WieGolden(png, "hauptbildschirm");
    Spiel s = ZustandAus(lauf);
    EXPECT_EQ(s.SpielerName(2), T("Björn"));
    EXPECT_EQ(s.HoechstesSchiff, 7);
    for (int p = 1; p <= 2; ++p) {
        const Schiff& f = s.Schiffe(p);
        EXPECT_TRUE(f.Typ == "SST " && f.Besitzer == p && f.Zustand == 0 && f.Planet == 3 && f.Laderaum == 10 &&
                    f.Treibstoff == 30.0f && s.Bargeld(p) == 5000 && s.Rang(p) == 1) << "ready at once on Sol III: " << p;
    }
    for (int i = 3; i <= 7; ++i) {
        const Schiff& pirat = s.Schiffe(i);
        EXPECT_TRUE(pirat.Besitzer == 7 && pirat.Typ == "FSS " && pirat.Bewaffnung >= 4 && pirat.Bewaffnung <= 12 &&
                    pirat.Planet >= 11 && pirat.Planet <= 1010) << i;
    }
    EXPECT_TRUE(s.Schiffe(8).Name.empty());
    EXPECT_EQ(s.Statistik(6, 2), 0) << "the dock counters of row 2 are kept only with one player";
    s = ZustandAus(Treiber(NeuesSpielSkript(1, 300)));
    EXPECT_EQ(s.Bargeld(1) * 10000 + s.Statistik(6, 2), 3001000) << "the gift Frachter stands in the one player's dock payments";
    // Esc at the questions asks again; 99999 is cut to 9999, 1000 takes only a 0 more.
    const std::string skript =
        "key SPACE\nwait 200\nkey ESC\nkey ESC\nkey 3\nkey ENTER\nkey ESC\nkey 1\nkey ENTER\nkey ESC\nkey M\nkey ENTER\n"
        "key ESC\nkey J\nkey ENTER\ntype 99999\nkey ESC\nkey ENTER\nkey ENTER\nkey ENTER\nkey ENTER\n";
    lauf = Treiber(skript);
    s = ZustandAus(lauf);
    EXPECT_TRUE(s.AnzahlSpieler == 3 && s.AnzahlPlaneten == 1200 && s.Nachfrage == 2 && s.Zeitlimit == -1);
    EXPECT_TRUE(s.Bargeld(1) == 9999 && s.SpielerName(1).empty());
    EXPECT_NE(lauf.screen.find("text\t300\t50\t15\t65535\tZeit:"), std::string::npos);
    EXPECT_EQ(ZustandAus(Treiber(NeuesSpielSkript(1, 100005))).Bargeld(1), 10000);
}

TEST(SchiffNeu, FreierPlatzDockListeUndBauzeit) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.Bargeld(1) = 50000;
    for (int i : {1, 2, 4, 5, 6}) s.Schiffe(i).Name = "x";
    s.DockSchiffe(1, 1) = 4;  // 4 and 9 are in the docks
    s.DockSchiffe(2, 1) = 9;
    t.laufen([](Spiel& sp) { SCHIFF_NEU(sp, 6); });
    const Schiff& x = s.Schiffe(3);
    EXPECT_TRUE(x.Typ == "XXL " && x.Dauer == 25 && x.Zustand == -1 && x.Laderaum == 200) << "the lowest free slot";
    EXPECT_EQ(s.DockSchiffe(1, 1) * 10000 + s.DockSchiffe(2, 1) * 100 + s.DockSchiffe(3, 1), 30409) << "3, 4, 9: ascending";
    EXPECT_EQ(s.HoechstesSchiff, 6) << "it never goes down";
    EXPECT_TRUE(s.Bargeld(1) == 50000 - 10000 && s.Statistik(6, 2) == 10000);

    s.Statistik(16, 1) = 1;  // Flopse sold: the yards take a fifth longer
    for (int i = 7; i <= 20; ++i) s.Schiffe(i).Name = i == 15 ? "" : "x";
    t.laufen([](Spiel& sp) { SCHIFF_NEU(sp, 1); });
    EXPECT_EQ(s.Schiffe(15).Dauer, 12);
    EXPECT_TRUE(s.DockSchiffe(4, 1) == 15 && s.HoechstesSchiff == 15) << "behind the last filled place";

    for (int i = 1; i <= 999; ++i) s.Schiffe(i).Name = "x";
    t.p->spurAufzeichnen(true);
    t.laufen([](Spiel& sp) { SCHIFF_NEU(sp, 3); });
    EXPECT_TRUE(s.Bargeld(1) == 40000 - 1000 && t.p->spur().find("Zu viele Schiffe!") != std::string::npos);
}

TEST(SchiffVerkaufen, WertNachTypUndSchaden) {
    Spiel s;
    auto wert = [&](const char* typ, Integer laderaum, Integer waffen, Integer schaden) {
        Schiff& sch = s.Schiffe(1);
        sch.Typ = typ, sch.Laderaum = laderaum, sch.Bewaffnung = waffen, sch.Schaden = schaden;
        return SCHIFF_WERT(s, 1);
    };
    EXPECT_EQ(wert("SST ", 10, 0, 0), 800);
    EXPECT_EQ(wert("SST ", 10, 0, 50), 400);
    EXPECT_EQ(wert("SST ", 20, 1, 0), 846) << "0.8 x (1000 + 7 + 50) = 845.6, rounded";
    EXPECT_EQ(wert("TST ", 10, 0, 0), 720);
    EXPECT_EQ(wert("FSS ", 0, 4, 0), 600);
    EXPECT_EQ(wert("TSR ", 90, 0, 0), 1600);
    EXPECT_EQ(wert("XXL ", 200, 0, 0), 320);
}

TEST(SchiffVerkaufen, NurFreieSchiffeAufSolIII) {
    // 1 and 4 may be sold: 2 is coupled to 5, 3 in the yard, 6 somebody else's.
    struct Fall { const char* skript; int letztes, verkauft; Long bargeld; int letztesDanach; };
    const Fall faelle[] = {
        {"key ENTER", 0, 1, 5800, -1},            {"key UP\nkey UP\nkey ENTER", 0, 1, 5800, -1},
        {"key DOWN\nkey ENTER", 4, 4, 5320, 5},   {"key SPACE\nkey 2\nkey ENTER\nkey ENTER", 0, 4, 5320, -1},
        {"key SPACE\nkey 9\nkey ESC", 0, 0, 5000, 0},
    };
    for (const Fall& f : faelle) {
        TestSpiel t(f.skript);
        Spiel& s = *t.s;
        const char* typen[] = {"SST ", "SST ", "FSS ", " XS ", "TSR ", "SST "};
        for (int i = 1; i <= 6; ++i) {
            Schiff& sch = s.Schiffe(i);
            sch.Typ = typen[i - 1], sch.Name = "Schiff", sch.Besitzer = 1, sch.Planet = 3, sch.Laderaum = 10;
            sch.Bewaffnung = sch.Typ == "FSS " ? 4 : 0;
        }
        s.Schiffe(2).Partner = 5, s.Schiffe(5).Partner = 2, s.Schiffe(3).Zustand = -1, s.Schiffe(6).Besitzer = 2;
        s.LetztesSchiff = static_cast<Integer>(f.letztes);
        t.laufen([](Spiel& sp) { SCHIFF_VERKAUFEN(sp); });
        SCOPED_TRACE(f.skript);
        for (int i = 1; i <= 6; ++i) EXPECT_EQ(s.Schiffe(i).Typ.empty(), i == f.verkauft) << i;
        EXPECT_EQ(s.Bargeld(1), f.bargeld);
        if (f.verkauft) {
            EXPECT_EQ(s.Schiffe(f.verkauft).Besitzer, 0);
            EXPECT_TRUE(f.letztesDanach < 0 || s.LetztesSchiff == f.letztesDanach) << "the next ship of the player";
        } else {
            EXPECT_EQ(t.textBei(50, 690), "Nummer:   0") << "9 is above HoechstesSchiff and refused";
        }
    }
}

// The panel of every type at rest is a golden picture; these are the states it does not show.
TEST(SchiffAnzeigen, LadungReiseKopplungUndSchaden) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.Dokument(57).Name = "Wega ";
    Schiff& f = s.Schiffe(1);
    f.Typ = "SST ", f.Name = "Frachter   ", f.Planet = 57, f.Laderaum = 41;
    f.Fracht(3) = 2, f.Fracht(24) = 1, f.Ladung = 4;
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 1); });
    std::string b = t.bildschirm();
    // Devices first, then the goods; a row holds 40 tonnes.
    for (const std::string& bild : {Utf8(T("50\t350\tGeräte")), std::string("70\t350\tG-Stahl"), std::string("80\t350\tG-Stahl"),
                                   std::string("50\t370\tLeer")})
        EXPECT_NE(b.find("picture\t" + bild), std::string::npos) << bild;
    f.Partner = 5;
    s.Schiffe(5).Typ = "TSR ";
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 1); });
    EXPECT_NE(t.bildschirm().find("picture\t330\t120\tRaumstation"), std::string::npos);
    EXPECT_EQ(t.textBei(30, 320), "Gekoppelt mit TSR 5");

    Schiff& scout = s.Schiffe(4);
    scout.Typ = " XS ", scout.Name = "Scout       ", scout.Zustand = 1, scout.Planet = 57;
    scout.StartPlanet = 3, scout.Dauer = 3, scout.Schaden = 12;
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 4); });
    EXPECT_EQ(t.textBei(30, 110) + "|" + t.textBei(30, 140) + "|" + t.textBei(30, 200) + "|" + t.textBei(30, 260),
              "Scout           XS  4|Ziel: Wega VII|Dauer:      2|Schaden:  12%");
}

TEST(SchiffAnzeigen, TankbalkenDesGrossfrachtersUndRestjahre) {
    TestSpiel t;
    Spiel& s = *t.s;
    Schiff& x = s.Schiffe(6);
    x.Typ = "XXL ", x.Name = T("Großfrachter"), x.Tankgroesse = 30, x.Planet = 3;
    t.p->spurAufzeichnen(true);
    x.Treibstoff = 10;  // a third: upper bar partly, lower bar white
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 6); });
    EXPECT_NE(t.p->spur().find("box 200 228 333 238 16711935\nbox 334 228 400 238 16777215\nbox 200 242 400 252 16777215"),
              std::string::npos);
    x.Treibstoff = 15, x.Supersprit = -1;
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 6); });
    EXPECT_NE(t.p->spur().find("box 200 228 400 238 65280\nbox 200 242 400 252 16777215"), std::string::npos);

    Schiff f;
    f.Typ = "SST ", f.Dauer = 2, f.Supersprit = -1;
    // Supersprit, two units left, in an even and an odd year; seven units; a scout with and without.
    s.Jahr = 2002;
    const int a = RESTJAHRE(s, f);
    s.Jahr = 2003;
    const int b = RESTJAHRE(s, f);
    f.Dauer = 7;
    const int c = RESTJAHRE(s, f);
    f.Typ = " XS ";
    const int d = RESTJAHRE(s, f);
    f.Supersprit = 0;
    EXPECT_EQ(std::vector<int>({a, b, c, d, RESTJAHRE(s, f)}), std::vector<int>({1, 2, 5, 3, 4}));
}
