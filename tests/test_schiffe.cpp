// Ships: the new game's fleet, building, value, sale and the ship panel.
#include <cstring>
#include <sstream>

#include "flow/spielstand.h"
#include "hilfe.h"
#include "orders/schiffe.h"
#include "screen/ausgabe.h"
#include "state/text.h"
#include "views/schiff_anzeigen.h"

TEST(NeuesSpiel, FrachterJeSpielerPiratenUndDialoggrenzen) {
    TreiberLauf lauf = Treiber(NeuesSpielSkript(2, 5000, {"Anna", "Björn"}));
    ASSERT_EQ(lauf.status, 0) << lauf.fehler;
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
    EXPECT_NE(lauf.trace.find("music play"), std::string::npos);
    s = ZustandAus(Treiber(NeuesSpielSkript(1, 300)));
    EXPECT_EQ(s.Bargeld(1), 300);
    EXPECT_EQ(s.Statistik(6, 2), 1000) << "the gift Frachter stands in the one player's dock payments";

    // Esc at the questions asks again; 99999 is cut to 9999, 1000 takes only a 0 more.
    const std::string skript =
        "key SPACE\nwait 200\nkey ESC\nkey ESC\nkey 3\nkey ENTER\nkey ESC\nkey 1\nkey ENTER\nkey ESC\nkey M\nkey ENTER\n"
        "key ESC\nkey J\nkey ENTER\ntype 99999\nkey ESC\nkey ENTER\nkey ENTER\nkey ENTER\nkey ENTER\n";
    lauf = Treiber(skript);
    s = ZustandAus(lauf);
    EXPECT_EQ(s.AnzahlSpieler, 3);
    EXPECT_EQ(s.AnzahlPlaneten, 1200);
    EXPECT_EQ(s.Nachfrage, 2);
    EXPECT_EQ(s.Zeitlimit, -1);
    EXPECT_EQ(s.Bargeld(1), 9999);
    EXPECT_EQ(s.SpielerName(1), "");
    EXPECT_NE(lauf.screen.find("text\t300\t50\t15\t65535\tZeit:"), std::string::npos);
    EXPECT_EQ(ZustandAus(Treiber(NeuesSpielSkript(1, 100005))).Bargeld(1), 10000);
}

TEST(SchiffNeu, FreierPlatzDockListeUndBauzeit) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.AktSpieler = 1;
    s.Bargeld(1) = 50000;
    s.Schiffe(1).Name = "x";
    s.Schiffe(2).Name = "x";
    s.Schiffe(5).Name = "x";
    s.DockSchiffe(1, 1) = 4;  // pretend 4 and 9 are in the docks
    s.DockSchiffe(2, 1) = 9;
    t.laufen([](Spiel& sp) { SCHIFF_NEU(sp, 1); });
    EXPECT_EQ(s.Schiffe(3).Typ, "SST ") << "the lowest free slot";
    s.Schiffe(4).Name = "x";
    s.DockSchiffe(1, 1) = 4;
    s.DockSchiffe(2, 1) = 9;
    s.DockSchiffe(3, 1) = 0;
    for (int i = 6; i <= 6; ++i) s.Schiffe(i).Name = "x";
    t.laufen([](Spiel& sp) { SCHIFF_NEU(sp, 6); });
    EXPECT_EQ(s.Schiffe(7).Typ, "XXL ");
    EXPECT_EQ(s.DockSchiffe(1, 1), 4);
    EXPECT_EQ(s.DockSchiffe(2, 1), 7);
    EXPECT_EQ(s.DockSchiffe(3, 1), 9);
    EXPECT_EQ(s.HoechstesSchiff, 7);
    EXPECT_EQ(s.Schiffe(7).Dauer, 25);
    EXPECT_EQ(s.Schiffe(7).Zustand, -1);
    EXPECT_EQ(s.Schiffe(7).Laderaum, 200);
    EXPECT_EQ(s.Bargeld(1), 50000 - 1000 - 10000);
    EXPECT_EQ(s.Statistik(6, 2), 11000);

    s.Statistik(16, 1) = 1;  // Flopse sold: the yards take a fifth longer
    for (int i = 8; i <= 20; ++i) s.Schiffe(i).Name = "x";
    s.Schiffe(15).Name.clear();
    t.laufen([](Spiel& sp) { SCHIFF_NEU(sp, 1); });
    EXPECT_EQ(s.Schiffe(15).Dauer, 12);
    EXPECT_EQ(s.DockSchiffe(4, 1), 15) << "behind the last filled place";
    EXPECT_EQ(s.HoechstesSchiff, 15);

    for (int i = 1; i <= 999; ++i) s.Schiffe(i).Name = "x";
    const Long vorher = s.Bargeld(1);
    t.p->spurAufzeichnen(true);
    t.laufen([](Spiel& sp) { SCHIFF_NEU(sp, 3); });
    EXPECT_EQ(s.Bargeld(1), vorher);
    EXPECT_NE(t.p->spur().find("Zu viele Schiffe!"), std::string::npos);
}

TEST(SchiffVerkaufen, WertNachTypUndSchaden) {
    Spiel s;
    auto wert = [&](const char* typ, Integer laderaum, Integer waffen, Integer schaden) {
        s.Schiffe(1).Typ = typ;
        s.Schiffe(1).Laderaum = laderaum;
        s.Schiffe(1).Bewaffnung = waffen;
        s.Schiffe(1).Schaden = schaden;
        return SCHIFF_WERT(s, 1);
    };
    EXPECT_EQ(wert("SST ", 10, 0, 0), 800);
    EXPECT_EQ(wert("SST ", 10, 0, 50), 400);
    EXPECT_EQ(wert("SST ", 20, 1, 0), 846) << "0.8 x (1000 + 7 + 50) = 845.6, rounded";
    EXPECT_EQ(wert("TST ", 10, 0, 0), 720);
    EXPECT_EQ(wert("FSS ", 0, 4, 0), 600);
    EXPECT_EQ(wert("TSR ", 90, 0, 0), 1600);
    EXPECT_EQ(wert(" XS ", 0, 0, 0), 320);
    EXPECT_EQ(wert("XXL ", 200, 0, 0), 320);
}

TEST(SchiffVerkaufen, NurFreieSchiffeAufSolIII) {
    auto aufbau = [](const std::string& skript) {
        auto t = std::make_unique<TestSpiel>(skript);
        Spiel& s = *t->s;
        s.HoechstesSchiff = 6;
        const char* typen[] = {"SST ", "SST ", "FSS ", " XS ", "TSR ", "SST "};
        for (int i = 1; i <= 6; ++i) {
            Schiff& sch = s.Schiffe(i);
            sch.Typ = typen[i - 1];
            sch.Name = "Schiff";
            sch.Besitzer = 1;
            sch.Planet = 3;
            sch.Bewaffnung = sch.Typ == "FSS " ? 4 : 0;
            sch.Laderaum = 10;
        }
        s.Schiffe(2).Partner = 5;  // coupled
        s.Schiffe(5).Partner = 2;
        s.Schiffe(3).Zustand = -1;  // in the yard
        s.Schiffe(6).Besitzer = 2;  // somebody else's
        return t;
    };
    auto t = aufbau("key ENTER");
    t->laufen([](Spiel& s) { SCHIFF_VERKAUFEN(s); });
    EXPECT_TRUE(t->s->Schiffe(1).Typ.empty()) << "the first sellable ship is offered first";
    EXPECT_EQ(t->s->Bargeld(1), 5800);
    EXPECT_EQ(t->s->Schiffe(1).Besitzer, 0);

    auto u = aufbau("key UP\nkey UP\nkey ENTER");
    u->laufen([](Spiel& s) { SCHIFF_VERKAUFEN(s); });
    EXPECT_TRUE(u->s->Schiffe(1).Typ.empty()) << "only 1 and 4 are sellable; Up twice comes round to 1";
    auto v = aufbau("key DOWN\nkey ENTER");
    v->s->LetztesSchiff = 4;
    v->laufen([](Spiel& s) { SCHIFF_VERKAUFEN(s); });
    EXPECT_TRUE(v->s->Schiffe(4).Typ.empty());
    EXPECT_EQ(v->s->Bargeld(1), 5320);
    EXPECT_EQ(v->s->LetztesSchiff, 5) << "the next ship of the player";

    auto w = aufbau("key SPACE\nkey 2\nkey ENTER\nkey ENTER");
    w->laufen([](Spiel& s) { SCHIFF_VERKAUFEN(s); });
    EXPECT_FALSE(w->s->Schiffe(2).Typ.empty()) << "a coupled ship is never sold";
    EXPECT_TRUE(w->s->Schiffe(4).Typ.empty()) << "the entry leads to the next sellable ship";

    auto x = aufbau("key SPACE\nkey 9\nkey ESC");
    x->laufen([](Spiel& s) { SCHIFF_VERKAUFEN(s); });
    EXPECT_EQ(x->s->Bargeld(1), 5000);
    EXPECT_EQ(x->textBei(50, 690), "Nummer:   0") << "9 is above HoechstesSchiff and refused";
}

// The panel of every type at rest is a golden picture; these are the states it does not show.
TEST(SchiffAnzeigen, LadungReiseKopplungUndSchaden) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.Dokument(57).Name = "Wega ";
    Schiff& f = s.Schiffe(1);
    f.Typ = "SST ";
    f.Name = "Frachter   ";
    f.Planet = 57;
    f.Laderaum = 41;
    f.Fracht(3) = 2;
    f.Fracht(24) = 1;
    f.Ladung = 4;
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 1); });
    std::string b = t.bildschirm();
    // Devices first, then the goods; a row holds 40 tonnes.
    EXPECT_NE(b.find(Utf8(T("picture\t50\t350\tGeräte"))), std::string::npos) << b;
    EXPECT_NE(b.find("picture\t70\t350\tG-Stahl"), std::string::npos);
    EXPECT_NE(b.find("picture\t80\t350\tG-Stahl"), std::string::npos);
    EXPECT_NE(b.find("picture\t50\t370\tLeer"), std::string::npos);
    f.Partner = 5;
    s.Schiffe(5).Typ = "TSR ";
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 1); });
    EXPECT_NE(t.bildschirm().find("picture\t330\t120\tRaumstation"), std::string::npos);
    EXPECT_EQ(t.textBei(30, 320), "Gekoppelt mit TSR 5");

    Schiff& scout = s.Schiffe(4);
    scout.Typ = " XS ";
    scout.Name = "Scout       ";
    scout.Zustand = 1;
    scout.Planet = 57;
    scout.StartPlanet = 3;
    scout.Dauer = 3;
    scout.Schaden = 12;
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 4); });
    EXPECT_EQ(t.textBei(30, 110), "Scout           XS  4");
    EXPECT_EQ(t.textBei(30, 200), "Dauer:      2");
    EXPECT_EQ(t.textBei(30, 140), "Ziel: Wega VII");
    EXPECT_EQ(t.textBei(30, 260), "Schaden:  12%");
}

TEST(SchiffAnzeigen, TankbalkenDesGrossfrachtersUndRestjahre) {
    TestSpiel t;
    Spiel& s = *t.s;
    Schiff& x = s.Schiffe(6);
    x.Typ = "XXL ";
    x.Name = T("Großfrachter");
    x.Tankgroesse = 30;
    x.Planet = 3;
    t.p->spurAufzeichnen(true);
    x.Treibstoff = 10;  // a third: upper bar partly, lower bar white
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 6); });
    EXPECT_NE(t.p->spur().find("box 200 228 333 238 16711935"), std::string::npos);
    EXPECT_NE(t.p->spur().find("box 334 228 400 238 16777215"), std::string::npos);
    EXPECT_NE(t.p->spur().find("box 200 242 400 252 16777215"), std::string::npos);
    x.Treibstoff = 15;
    x.Supersprit = -1;
    t.laufen([](Spiel& sp) { SCHIFF_ANZEIGEN(sp, 6); });
    EXPECT_NE(t.p->spur().find("box 200 228 400 238 65280\nbox 200 242 400 252 16777215"), std::string::npos);

    Schiff f;
    f.Typ = "SST ";
    f.Dauer = 2;
    f.Supersprit = -1;
    s.Jahr = 2002;
    EXPECT_EQ(RESTJAHRE(s, f), 1) << "Supersprit, even year, two units left";
    s.Jahr = 2003;
    EXPECT_EQ(RESTJAHRE(s, f), 2);
    f.Dauer = 7;
    EXPECT_EQ(RESTJAHRE(s, f), 5);
    f.Typ = " XS ";
    EXPECT_EQ(RESTJAHRE(s, f), 3);
    f.Supersprit = 0;
    EXPECT_EQ(RESTJAHRE(s, f), 4);
}
