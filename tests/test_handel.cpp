// A whole trade through the headless driver, seen in the saved state: fly
// out, land first, buy with M, fly home, unload, sell; and the storage view.
#include "hilfe.h"

TEST(Handel, HinKaufenHeimVerkaufen) {
    const std::string start = NeuesSpielSkript(1, 5000, {"Anna"});
    const Spiel s0 = ZustandAus(Treiber(start));
    // The nearest star that Tab can reach and a full tank can fly there and back.
    int ziel = 0, tabs = 0, weg = 99;
    for (int k = 1; k < s0.AnzahlPlaneten / 10; ++k) {
        const int p = 10 * k + 1;
        const int e = ENTFERNUNG(s0, SOL_III, p);
        if (e >= 3 && e <= 14 && e < weg && p != s0.Schiffe(PIRATEN_HQ).Planet) ziel = p, tabs = k, weg = e;
    }
    ASSERT_GT(ziel, 0) << "no star near enough for this seed";
    // Out: the order, then one year per distance unit.
    const std::string hin = start + "key R\nkey ENTER\nkey ENTER\nkey ENTER\n" + Mal("key TAB\n", tabs) + "key ENTER\n";
    const Spiel s1 = ZustandAus(Treiber(hin));
    EXPECT_EQ(s1.Schiffe(1).Zustand, 1);
    EXPECT_EQ(s1.Schiffe(1).StartPlanet, SOL_III);
    EXPECT_EQ(s1.Schiffe(1).Planet, ziel);
    EXPECT_EQ(s1.Schiffe(1).Dauer, weg);

    const std::string gelandet = hin + Mal("key W\nkey ENTER\n", weg);
    const TreiberLauf l2 = Treiber(gelandet);
    const Spiel s2 = ZustandAus(l2);
    const Planet& p = s2.Dokument(ziel);
    EXPECT_EQ(s2.Schiffe(1).Zustand, 0);
    EXPECT_EQ(s2.Bargeld(1), 5000 + 2 * weg) << "the first-landing prize";
    EXPECT_GE(p.Produktion, 5);
    EXPECT_LE(p.Produktion, 14);
    EXPECT_EQ(p.Bestand % 100, 0);
    EXPECT_EQ(p.Preis >= 3 * p.Ware - 2 && p.Preis <= 3 * p.Ware + 3, true);
    EXPECT_NE(l2.screen.find(Utf8(T("Erstlandungsprämie: ")) + std::to_string(2 * weg)), std::string::npos) << l2.screen;
    // Buy with M: as much as the stock, the hold and the cash allow.
    const std::string gekauft = gelandet + "key R\nkey ENTER\nkey ENTER\nkey B\nkey ENTER\nkey M\nkey ENTER\n";
    const Spiel s3 = ZustandAus(Treiber(gekauft));
    const int g = p.Ware;
    const int m = std::min<int>(p.Bestand / 100, 10);
    EXPECT_EQ(s3.Schiffe(1).Fracht(g), m);
    EXPECT_EQ(s3.Schiffe(1).Ladung, m);
    EXPECT_EQ(s3.Bargeld(1), s2.Bargeld(1) - m * p.Preis);
    EXPECT_EQ(s3.Dokument(ziel).Bestand, p.Bestand - 100 * m);
    // Home with the period key, unloaded into the storage on landing.
    const std::string heim = gekauft + "key R\nkey ENTER\nkey ENTER\nkey ENTER\nkey PERIOD\nkey ENTER\n" + Mal("key W\nkey ENTER\n", weg);
    const Spiel s4 = ZustandAus(Treiber(heim));
    EXPECT_EQ(s4.Lager(g, 1), m);
    EXPECT_EQ(s4.Schiffe(1).Fracht(g), 0);
    EXPECT_EQ(s4.Schiffe(1).Planet, SOL_III);
    EXPECT_GE(s4.Schiffe(1).Treibstoff, 0.0f);
    // Sold: cash, storage, statistics, demand and the board.
    const TreiberLauf l5 = Treiber(heim + "key V\nkey ENTER\nkey ENTER\nkey ENTER\n");
    const Spiel s5 = ZustandAus(l5);
    EXPECT_EQ(s5.Lager(g, 1), 0);
    EXPECT_EQ(s5.Statistik(g, 1), m);
    EXPECT_EQ(s5.Bargeld(1), s4.Bargeld(1) + m * s4.Preis(g));
    EXPECT_EQ(s5.AltPreis(g), s4.Preis(g));
    EXPECT_LT(s5.Bedarf(g), s4.Bedarf(g));
    const int c = g / 11;
    const std::string zeile = "text\t" + std::to_string(640 + 247 * c) + "\t" + std::to_string(20 + 18 * g - 180 * c) + "\t12\t65535\t";
    EXPECT_NE(l5.screen.find(zeile), std::string::npos) << l5.screen;
    EXPECT_NE(l5.screen.find("SST 1 (Anna) gelandet auf Sol III"), std::string::npos);
}

TEST(Lagerbestand, ZeilenBilderUndKredit) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.AnzahlSpieler = 2, s.AktSpieler = 2, s.Bargeld(2) = 7300, s.Kredit(2) = 500;
    const int menge[] = {1, 0, 3, 4, 8, 9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 399, 400};
    for (int g = 1; g <= 20; ++g) s.Lager(g, 2) = static_cast<Integer>(menge[g - 1]);
    s.Lager(2, 1) = 50;  // the other player's storage is not shown
    t.p->spurAufzeichnen(true);
    t.laufen([](Spiel& sp) { LAGERBESTAND(sp); });
    EXPECT_EQ(t.textBei(50, 105), "LAGERBESTAND");
    EXPECT_EQ(t.textBei(30, 130), Utf8(T("Vermögen:  7300"))) << "the cash alone, the debt not taken off";
    EXPECT_EQ(t.textBei(300, 130), "Kredit:  500");
    EXPECT_NE(t.bildschirm().find("text\t50\t183\t12\t65280\tGetreide      :    1\n"), std::string::npos);
    EXPECT_EQ(t.textBei(50, 201), "") << "a good without stock leaves its row empty";
    EXPECT_EQ(t.textBei(50, 525), "Golgo-Pelze   :  400");
    EXPECT_EQ(t.textBei(50, 190), "");
    auto bilder = [&](int g) {
        int n = 0;
        const std::string spur = t.p->spur() + "\n";
        const std::string kopf = " " + std::to_string(165 + 18 * g) + " " + Utf8(s.WarenName(g)) + "\n";
        for (int k = 1; k <= 25; ++k) n += spur.find("picture " + std::to_string(260 + 10 * k) + kopf) != std::string::npos;
        return n;
    };
    const int erwartet[] = {1, 0, 1, 2, 2, 3};
    for (int g = 1; g <= 6; ++g) EXPECT_EQ(bilder(g), erwartet[g - 1]) << "good " << g;
    EXPECT_EQ(bilder(19), 19);
    EXPECT_EQ(bilder(20), 20) << "never more than twenty";

    s.Kredit(2) = 0;
    for (int g = 1; g <= 20; ++g) s.Lager(g, 2) = 0;
    t.laufen([](Spiel& sp) { LAGERBESTAND(sp); });
    EXPECT_EQ(t.textBei(50, 190), "- Lager ist leer! -");
    EXPECT_EQ(t.textBei(300, 130), "");
    EXPECT_EQ(t.textBei(50, 183), "");
}
