// The year on prepared states: flight, fuel, landing, stations, yard, market.
#include "hilfe.h"

namespace {

// Anna's ships in the small world: 10 t of hold, a full tank.
struct Welt {
    Spiel s = KleineWelt();
    Schiff& schiff(int nr, const char* typ, int zustand = 0, int planet = 3) {
        Schiff& sch = SchiffSetzen(s, nr, typ, 1, planet);
        sch.Zustand = static_cast<Integer>(zustand), sch.Laderaum = 10;
        return sch;
    }
    std::string meldungen() const {
        std::string r;
        for (const std::string& z : Meldungen(s)) r += z + "\n";
        return r;
    }
};

}  // namespace

TEST(Flug, TreibstoffUndLandung) {
    Welt w;
    Schiff& a = w.schiff(1, "SST ", 1, 23);
    a.StartPlanet = 3, a.Dauer = 1;
    a.Treibstoff = 1;  // exactly 0 after the year: still enough
    SCHIFF_FLUG(w.s, 1);
    EXPECT_TRUE(a.Zustand == 0 && a.Treibstoff == 0.0f && a.StartPlanet == 0);
    EXPECT_NE(w.meldungen().find("SST 1 (Anna) gelandet auf Wega III"), std::string::npos) << w.meldungen();

    Schiff& b = w.schiff(2, "SST ", 1, 24);
    b.Dauer = 1, b.Treibstoff = 0.5f, b.Partner = 5;
    w.schiff(5, "TSR ", 10, 24).Partner = 2;
    SCHIFF_FLUG(w.s, 2);
    EXPECT_TRUE(b.Typ.empty() && w.s.Schiffe(5).Typ.empty()) << "fuel before landing; the coupled station is lost too";
    EXPECT_NE(w.meldungen().find("SST 2 ist verloren: Treibstoffmangel\nTSR 5 ist ebenfalls verloren!"), std::string::npos);
    EXPECT_EQ(w.s.Statistik(13, 2), 2);
}

TEST(Flug, SchritteNachTypUndSupersprit) {
    struct Fall { const char* typ; int super; long jahr; int dauer; float tank; int dauerDanach; };
    const Fall faelle[] = {
        {"SST ", 0, 2001, 9, 29.0f, 8},   {"XXL ", 0, 2001, 9, 29.5f, 8},  {" XS ", 0, 2001, 9, 29.0f, 7},
        {"SST ", -1, 2001, 9, 28.0f, 7},  {"SST ", -1, 2002, 9, 29.0f, 8}, {"XXL ", -1, 2001, 9, 29.0f, 7},
        {" XS ", -1, 2002, 9, 29.0f, 6},  {"SST ", -1, 2001, 1, 29.0f, -1}, {" XS ", -1, 2001, 1, 29.0f, -2},
    };
    for (const Fall& f : faelle) {
        Welt w;
        w.s.Jahr = f.jahr;
        Schiff& sch = w.schiff(1, f.typ, 1, 23);
        sch.Supersprit = static_cast<Integer>(f.super), sch.Dauer = static_cast<Integer>(f.dauer);
        sch.StartPlanet = 3;
        SCHIFF_FLUG(w.s, 1);
        SCOPED_TRACE(std::string(f.typ) + " super " + std::to_string(f.super) + " " + std::to_string(f.jahr));
        EXPECT_EQ(sch.Treibstoff, f.tank);
        if (f.dauerDanach >= 1) EXPECT_EQ(sch.Dauer, f.dauerDanach);
        else EXPECT_EQ(sch.Zustand, 0) << "landed";
    }
}

TEST(Landung, HeimkehrUndErstlandung) {
    Welt w;
    Schiff& f = w.schiff(1, "SST ", 1, 3);
    f.Dauer = 1, f.Fracht(4) = 7, f.Fracht(24) = 1, f.Fracht(22) = 1, f.Ladung = 9;
    w.s.Lager(4, 1) = 32765;
    SCHIFF_FLUG(w.s, 1);
    EXPECT_EQ(w.s.Lager(4, 1), 32767) << "the storage stops at its width";
    EXPECT_TRUE(f.Fracht(4) == 0 && f.Ladung == 2) << "devices stay aboard; the repair set takes no room";

    Schiff& k = w.schiff(2, "FSS ", 1, 3);
    k.Dauer = 1, k.Fracht(4) = 3;
    SCHIFF_FLUG(w.s, 2);
    EXPECT_EQ(k.Fracht(4), 3) << "a cruiser unloads nothing";

    Schiff& e = w.schiff(3, "SST ", 1, 35);
    e.Dauer = 1;
    RndFolge(w.s, {0.0f, 0.99f, 0.5f});
    const Long vorher = w.s.Bargeld(1);
    const int abstand = ENTFERNUNG(w.s, 3, 35);
    SCHIFF_FLUG(w.s, 3);
    EXPECT_EQ(w.s.Bargeld(1), vorher + 2 * abstand);
    EXPECT_NE(w.meldungen().find("    Erstlandungsprämie: " + std::to_string(2 * abstand)), std::string::npos);
    const Planet& p = w.s.Dokument(35);
    EXPECT_TRUE(p.Produktion == 5 && p.Bestand == 900 && p.Preis == 3 + 3 * 4 - 2);

    Schiff& z = w.schiff(4, "SST ", 1, 35);
    z.Dauer = 1;
    const Long danach = w.s.Bargeld(1);
    SCHIFF_FLUG(w.s, 4);
    EXPECT_EQ(w.s.Bargeld(1), danach) << "a planet is discovered once";
}

TEST(Station, KauftWirdVollUndStuerztAb) {
    Welt w;
    Schiff& st = w.schiff(1, "TSR ", 0, 44);
    st.Laderaum = 90, st.Treibstoff = 1.0f;
    w.s.Dokument(44).Bestand = 1234, w.s.Dokument(44).Preis = 10;
    STATION_JAHR(w.s, 1);
    EXPECT_TRUE(st.Treibstoff == 0.75f && st.Fracht(4) == 12 && st.Ladung == 12 && w.s.Dokument(44).Bestand == 34);
    EXPECT_TRUE(w.s.Bargeld(1) == 1000 - 120 && w.s.Statistik(2, 2) == 120);
    EXPECT_NE(w.meldungen().find("TSR 1: Absturz droht!"), std::string::npos);

    st.Ladung = 85;
    w.s.Dokument(44).Bestand = 1000;
    STATION_JAHR(w.s, 1);
    EXPECT_TRUE(st.Ladung == 90 && w.s.Dokument(44).Bestand == 500);
    EXPECT_NE(w.meldungen().find("TSR 1 ist übervoll!"), std::string::npos);
    EXPECT_EQ(w.s.Statistik(2, 2), 120) << "an overfull station books no purchase";

    st.Treibstoff = 0.2f;
    STATION_JAHR(w.s, 1);
    EXPECT_TRUE(st.Typ.empty() && st.Planet == 3);
    EXPECT_NE(w.meldungen().find("TSR 1 abgestürzt!"), std::string::npos);
}

TEST(Werft, CountdownUndDockListe) {
    Welt w;
    Schiff& a = w.schiff(4, "SST ", -1);
    a.Dauer = 2;
    w.schiff(7, "FSS ", -3).Dauer = 5;
    w.s.DockSchiffe(1, 1) = 4, w.s.DockSchiffe(2, 1) = 7;
    WERFT_JAHR(w.s, 4);
    EXPECT_EQ(a.Zustand, -1);
    WERFT_JAHR(w.s, 4);
    EXPECT_EQ(a.Zustand, 0);
    EXPECT_TRUE(w.s.DockSchiffe(1, 1) == 7 && w.s.DockSchiffe(2, 1) == 0) << "the gap closes";
    EXPECT_NE(w.meldungen().find("SST 4 (Anna) wurde fertig gebaut!"), std::string::npos);
    EXPECT_TRUE(w.s.Statistik(5, 2) == 2 && w.s.Statistik(17, 2) == 2);
}

TEST(Markt, JahresschrittMitVorgegebenenZiehungen) {
    Welt w;
    w.s.Nachfrage = 3, w.s.AltPreis(1) = 10, w.s.Preis(1) = 1, w.s.Bedarf(1) = -200;
    w.s.AltPreis(5) = 38, w.s.Preis(5) = 40, w.s.Bedarf(5) = 445;
    // Good 1: r 0.95 (no rise), r2 0.0 -> 1 - 2 - 2 + 0 = -3, clamped to 0.
    // Good 5: r 0.1 -> Bedarf 475, r2 0.99 -> 4 + 40 - 2 + 4 = 46.
    RndFolge(w.s, {0.95f, 0.0f, 0.1f, 0.99f, 0.5f});
    MARKT_FORTSCHREIBEN(w.s);
    EXPECT_TRUE(w.s.Preis(1) == 0 && w.s.AltPreis(1) == 1 && w.s.Bedarf(1) == -200);
    EXPECT_TRUE(w.s.Bedarf(5) == 475 && w.s.Preis(5) == 46 && w.s.AltPreis(5) == 40);
    EXPECT_EQ(w.s.Preis(2), 15) << "goods not on the market keep their price";
    EXPECT_EQ(Rnd(w.s), 0.5f) << "two draws per good on the market, none for the others";
}

TEST(Markt, VerkaufUndTafel) {
    TestSpiel t("key ENTER\nkey 6\nkey 6\nkey ENTER");
    Spiel& s = *t.s;
    s.Lager(1, 1) = 100, s.Bedarf(1) = 479;
    t.laufen([](Spiel& sp) { WAREN_VERKAUFEN(sp); });
    EXPECT_TRUE(s.Lager(1, 1) == 34 && s.Bedarf(1) == 479 - 660 && s.Bargeld(1) == 5000 + 66 * 10 && s.Statistik(1, 1) == 66);
    EXPECT_EQ(s.AltPreis(1), 10) << "the good comes onto the market";
    EXPECT_EQ(t.textBei(640, 38), " 10 (<- 10)");
    EXPECT_NE(t.bildschirm().find("picture\t505\t38\tGetreide"), std::string::npos);

    TestSpiel u("key ENTER\nkey ENTER");
    u.s->Lager(12, 1) = 80;
    u.laufen([](Spiel& sp) { WAREN_VERKAUFEN(sp); });
    EXPECT_TRUE(u.s->Lager(12, 1) == 0 && u.s->Bedarf(12) == -200) << "Enter alone sells everything";
    EXPECT_EQ(u.textBei(887, 56), " 95 (<- 95)");

    TestSpiel leer("");
    leer.p->spurAufzeichnen(true);
    leer.laufen([](Spiel& sp) { WAREN_VERKAUFEN(sp); });
    EXPECT_NE(leer.p->spur().find("Keine Waren auf Lager!"), std::string::npos);
}
