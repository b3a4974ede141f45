// The turn of the year: the guild's figure, ranks, medals, the millionaire,
// tax and the disasters; with fed draws, and through the driver from
// prepared saved games.
#include "hilfe.h"

namespace {

using Zeilen = std::vector<std::string>;

Schiff& Neu(Spiel& s, int nr, const char* typ, int zustand, int planet, int besitzer = 1) {
    Schiff& sch = SchiffSetzen(s, nr, typ, besitzer, planet);
    sch.Zustand = static_cast<Integer>(zustand);
    return sch;
}

// The news rows on the driver's screen, as "colour<TAB>text", from the row
// that begins with `ab` on; empty if none does.
Zeilen NewsAb(const TreiberLauf& lauf, const std::string& ab) {
    Zeilen r;
    for (int y = 255; y <= 705; y += 25) {
        const std::string kopf = "\ntext\t510\t" + std::to_string(y) + "\t15\t";
        const size_t a = lauf.screen.find(kopf);
        if (a == std::string::npos) continue;
        const std::string zeile = lauf.screen.substr(a + kopf.size(), lauf.screen.find('\n', a + 1) - a - kopf.size());
        if (!r.empty() || zeile.rfind(ab, 0) == 0) r.push_back(zeile);
    }
    return r;
}

}  // namespace

TEST(Bewertung, RundetNachJedemRumpf) {
    Spiel s = KleineWelt();
    s.Bargeld(1) = 1000, s.Kredit(1) = 300, s.Lager(2, 1) = 4;
    Schiff& a = Neu(s, 1, TYP_FRACHTER, 0, 3);           // 0.99 x 950 = 940.5, 3 t at 10
    a.Laderaum = 5, a.Schaden = 1, a.Fracht(1) = 3;
    Schiff& b = Neu(s, 2, TYP_TANKER, 1, 25);            // 0.99 x 950 again, 2 units at 30
    b.Laderaum = 15, b.Schaden = 1, b.Fracht(FRACHT_SPRIT) = 2;
    Neu(s, 3, TYP_GROSSFRACHTER, -1, 3).Fracht(20) = 50;  // 400, cargo not counted
    Neu(s, 4, TYP_KREUZER, 2, 26).Bewaffnung = 1;         // 540
    Schiff& c = Neu(s, 5, TYP_STATION, 0, 27);           // 1000 + 10 + 30
    c.Schaden = 50, c.Fracht(1) = 1, c.Fracht(FRACHT_SPRIT) = 1;
    Neu(s, 6, TYP_KREUZER, 0, 3, 2).Bewaffnung = 9;       // someone else's
    s.Forschung(ERF_LADERAUM, 1) = s.Forschung(ERF_PORTAL, 1) = s.Forschung(FORSCHUNG_MILLIONAER, 1) = -1;
    // 700 + 940.5 -> 1640 (the even one) + 30, + 940.5 -> 2610 ...; stock 60; research 2500 x 2 x 2.
    EXPECT_EQ(BEWERTUNG(s, 1), 14710);
    EXPECT_EQ(BEWERTUNG(s, 1, true), 15010);
}

TEST(Jahresende, EinRangImJahrEinGrussImSpiel) {
    TestSpiel t;
    Spiel& s = *t.s;
    for (int e = 1; e <= 5; ++e) s.EreignisJahre(e) = 30;
    s.MeldungAnzahl = 0, s.Rang(1) = 2, s.Bargeld(1) = 130000;  // past two thresholds
    t.laufen([](Spiel& g) { JAHRESENDE(g); });
    EXPECT_EQ(Meldungen(s), Zeilen{"Die Gilde ernennt Anna zum Kaufmann!"});
    EXPECT_EQ(s.SoundEreignis, 3);
    // Greeted before and at the top rank: the guild has nothing more to say.
    s.MeldungAnzahl = 0, s.Rang(1) = 9, s.Bargeld(1) = 5000000, s.Forschung(FORSCHUNG_MILLIONAER, 1) = -1;
    t.laufen([](Spiel& g) { JAHRESENDE(g); });
    EXPECT_EQ(s.MeldungAnzahl, 0);
}

TEST(Katastrophen, MeteorsturmTrifftEinSystem) {
    Spiel s = KleineWelt();
    s.Dokument(23).Produktion = 5, s.Dokument(23).Bestand = 700;
    s.Dokument(24).Produktion = 5, s.Dokument(24).Bestand = 5000;
    Neu(s, 1, TYP_FRACHTER, ZUSTAND_RUHT, 24);
    Neu(s, 2, TYP_FRACHTER, ZUSTAND_FLIEGT, 25).StartPlanet = 3;
    Neu(s, 3, TYP_FRACHTER, ZUSTAND_FLIEGT, 3).StartPlanet = 22;
    Neu(s, 4, TYP_KREUZER, ZUSTAND_ANGRIFF, 26);
    Neu(s, 5, TYP_STATION, ZUSTAND_GEKOPPELT, 27);
    Neu(s, 6, TYP_KREUZER, ZUSTAND_RUHT, 28, BESITZER_PIRATEN);
    Neu(s, 7, TYP_FRACHTER, ZUSTAND_RUHT, 33);
    s.Schiffe(8).Planet = 24;  // a free slot
    // System 2; 20 + Int(21r) at rest, 10 + Int(11r) on the way or at work; the countdown.
    RndFolge(s, {0.205f, 0.0f, 0.99f, 0.0f, 0.5f, 0.0f, 0.99f, 0.5f});
    METEORSTURM(s);
    const int erwartet[] = {20, 20, 10, 15, 10, 40, 0, 0};
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(s.Schiffe(i).Schaden, erwartet[i - 1]) << i;
    EXPECT_TRUE(s.Dokument(23).Bestand == 0 && s.Dokument(24).Bestand == 5000) << "only the first discovered planet";
    EXPECT_EQ(Meldungen(s), (Zeilen{"Meteorsturm auf Wega ", "Es wurden Schiffe beschädigt!"}));
    EXPECT_TRUE(s.SoundEreignis == 1 && s.EreignisJahre(EREIGNIS_METEORSTURM) == 20);
    // System 3 has a ship but no discovered planet: nothing, and no damage draws.
    s.MeldungAnzahl = 0, s.SoundEreignis = 3;
    RndFolge(s, {0.405f, 0.0f});
    METEORSTURM(s);
    EXPECT_TRUE(s.Schiffe(7).Schaden + s.MeldungAnzahl == 0 && s.SoundEreignis == 3 && s.EreignisJahre(EREIGNIS_METEORSTURM) == 5);
}

TEST(Katastrophen, LagerbrandMitUndOhneBrandschutz) {
    Spiel s = KleineWelt();
    s.Lager(1, 1) = 10, s.Lager(7, 1) = 5, s.Lager(16, 1) = 3, s.SoundEreignis = 1;
    // Player, fire, five hits (Getreide, Damast, Flopse, empty Seidenstoffe, Getreide again), countdown.
    RndFolge(s, {0.0f, 0.0f, 0.0f, 0.31f, 0.76f, 0.06f, 0.01f, 0.5f});
    LAGERBRAND(s);
    EXPECT_EQ(Meldungen(s), (Zeilen{"Lagerbrand bei Anna: ", "   Getreide  und Damast weg!"}));
    EXPECT_EQ(s.Lager(1, 1) + s.Lager(7, 1), 0);
    EXPECT_EQ(s.Lager(16, 1), 3) << "the line was long enough: the Flopse are spared";
    EXPECT_TRUE(s.Statistik(EST_ABGEBRANNT, 2) == 15 && s.SoundEreignis == 2 && s.EreignisJahre(EREIGNIS_LAGERBRAND) == 21);
    // With fire protection a draw of 0.65 keeps the fire away.
    s.MeldungAnzahl = 0, s.Forschung(ERF_BRANDSCHUTZ, 1) = -1;
    RndFolge(s, {0.0f, 0.65f, 0.1f});
    LAGERBRAND(s);
    EXPECT_TRUE(s.MeldungAnzahl == 0 && s.EreignisJahre(EREIGNIS_LAGERBRAND) == 5);
    // Above it the fire comes all the same; of three players the second, and sooner again.
    Spiel d = KleineWelt(3);
    d.Forschung(ERF_BRANDSCHUTZ, 2) = -1;
    RndFolge(d, {0.5f, 0.66f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.5f});
    LAGERBRAND(d);
    EXPECT_EQ(Meldungen(d), (Zeilen{"Lagerbrand bei Bnna: ", "   keine Schäden!"}));
    EXPECT_EQ(d.EreignisJahre(EREIGNIS_LAGERBRAND), 7);
}

TEST(Katastrophen, StreikBisZurGrenze) {
    Spiel s = KleineWelt();
    s.Dokument(23).Produktion = 5, s.Dokument(23).Preis = 10;  // limit 4 x 4 + 5 = 21
    s.Dokument(24).Produktion = 5, s.Dokument(24).Preis = 21;
    // 11 undiscovered, 23, + 2 + Int(4 x 0.99 / 2), countdown; then 23 from 20, capped; then 24 at its limit.
    RndFolge(s, {0.0f, 0.245f, 0.99f, 0.0f, 0.245f, 0.99f, 0.0f, 0.265f, 0.99f});
    STREIK(s);
    EXPECT_EQ(Meldungen(s), (Zeilen{"Streik auf Wega III", "   Arbeiter fordern 13SD pro Tonne!"}));
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_STREIK), 5);
    s.Dokument(23).Preis = 20;
    STREIK(s);
    STREIK(s);
    EXPECT_EQ(Meldungen(s).at(3), "   Arbeiter fordern 21SD pro Tonne!");
    EXPECT_EQ(s.MeldungAnzahl, 4) << "no news from a planet at its limit";
    EXPECT_EQ(s.Dokument(24).Preis, 21);
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_STREIK), 15);
}

TEST(JahresendeSzenario, MillionaerZahltSteuer) {
    Spiel s = RuhigesSpiel(1, 30);
    s.Bargeld(1) = 2000000, s.EreignisJahre(EREIGNIS_STEUER) = 1;
    s.Kredit(1) = 10000;  // the bank books after the guild: the tax is on the full two millions
    const TreiberLauf lauf = GeladenSpielen(s, "", "millionaer");
    const Spiel g = ZustandAus(lauf);
    Zeilen news = NewsAb(lauf, "65535\tDie Gilde ernennt");
    news.resize(6);
    EXPECT_EQ(news, (Zeilen{"65535\tDie Gilde ernennt Spieler1 zum ", "65535\t   Handelstreiber!",
                            "65535\tHerzlichen Glückwunsch Spieler1!", "65535\t   Sie sind Millionär!",
                            "255\tEs waren wieder 10% Steuern auf das", "255\tBarvermögen fällig!"})) << lauf.screen;
    EXPECT_EQ(g.Bargeld(1), 2000000 - 200000 - 50 - 100) << "tax, then repayment and interest";
    EXPECT_TRUE(g.Rang(1) == 2 && g.Kredit(1) == 9950 && g.Statistik(EST_STEUERN, 2) == 200000);
    EXPECT_TRUE(g.Forschung(FORSCHUNG_MILLIONAER, 1) == -1 && g.EreignisJahre(EREIGNIS_STEUER) == 20);
    EXPECT_NE(lauf.trace.find("DTWQuorvant.mid"), std::string::npos);
}

TEST(JahresendeSzenario, JedeKatastropheEinmal) {
    Spiel s = RuhigesSpiel(1, 1);
    s.EreignisJahre(EREIGNIS_STEUER) = 30;
    for (int n = 11; n <= s.AnzahlPlaneten + 10; ++n)
        s.Dokument(n).Produktion = 5, s.Dokument(n).Bestand = 5050, s.Dokument(n).Preis = static_cast<Integer>(3 * s.Dokument(n).Ware);
    s.Lager(WARE_HISTARIN, 1) = 5, s.Lager(1, 1) = 100;
    // The seed picks the storm's system; a second run puts a ship there.
    const Spiel erst = ZustandAus(GeladenSpielen(s, "", "katastrophen1"));
    int z = 0;
    for (int n = 11; n <= s.AnzahlPlaneten + 10; n += 10) z = erst.Dokument(n).Bestand == 4055 ? n : z;
    ASSERT_GT(z, 0);
    Neu(s, ++s.HoechstesSchiff, TYP_FRACHTER, ZUSTAND_RUHT, z + 1);
    const TreiberLauf lauf = GeladenSpielen(s, "", "katastrophen2");
    const Spiel g = ZustandAus(lauf);
    int streik = 0;
    for (int n = 11; n <= s.AnzahlPlaneten + 10; ++n) streik = g.Dokument(n).Preis != s.Dokument(n).Preis ? n : streik;
    ASSERT_GT(streik, 0);
    Zeilen news = NewsAb(lauf, "255\tDie Gilde verlangt");
    news.resize(8);
    EXPECT_EQ(news, (Zeilen{"255\tDie Gilde verlangt 20 pro Schiff für ", "255\tdie Nutzung des Raumfahrthafens!",
                            "255\tMeteorsturm auf " + Utf8(s.Dokument(z).Name), "255\tEs wurden Schiffe beschädigt!",
                            "255\tLagerbrand bei Spieler1: ", "255\t   Lagerbestand komplett abgebrannt!",
                            "255\tStreik auf " + Utf8(g.Dokument(streik).Name + Tafeln().RoemZahl(streik % 10)),
                            "255\t   Arbeiter fordern " + std::to_string(g.Dokument(streik).Preis) + "SD pro Tonne!"}))
        << lauf.screen;
    EXPECT_TRUE(g.Bargeld(1) == 5000 - 2 * 20 && g.Statistik(EST_HAFENGEBUEHREN, 2) == 40);
    EXPECT_TRUE(g.Schiffe(s.HoechstesSchiff).Schaden >= 20 && g.Schiffe(s.HoechstesSchiff).Schaden <= 40);
    EXPECT_TRUE(g.Lager(WARE_HISTARIN, 1) + g.Lager(1, 1) == 0 && g.Statistik(EST_ABGEBRANNT, 2) == 105);
    EXPECT_NE(lauf.trace.find("LagerbrandQuorvant.mid"), std::string::npos);
}

TEST(JahresendeSzenario, MedailleDurchVerkauf) {
    for (const int damast : {401, 400}) {  // 400 t fall short: the limit must be passed
        SCOPED_TRACE(damast);
        Spiel s = RuhigesSpiel(1, 30);
        const int bronze[] = {3000, 1001, 1001, 1001, 1001, 701, damast};
        for (int g = 1; g <= 7; ++g) s.Statistik(g, 1) = bronze[g - 1];
        s.Lager(1, 1) = 1;  // the tonne that passes the limit of Getreide
        const TreiberLauf lauf = GeladenSpielen(s, "key V\nkey ENTER\nkey ENTER\nkey ENTER\nkey W\nkey ENTER\n", "medaille");
        const Spiel g = ZustandAus(lauf);
        const bool verliehen = damast == 401;
        EXPECT_TRUE(g.Jahr == s.Jahr + 2 && g.Statistik(1, 1) == 3001);
        EXPECT_EQ(g.Medaille(1), verliehen ? 1 : 0);
        const Zeilen news = NewsAb(lauf, "65535\tDie Gilde verleiht Spieler1 die ");
        EXPECT_EQ(news.empty(), !verliehen) << lauf.screen;
        if (verliehen) {
            EXPECT_EQ(news.at(1), "65535\tVersorgungsmedaille in Bronze!");
        }
        EXPECT_EQ(lauf.trace.find("OrdenQuorvant.mid") != std::string::npos, verliehen);
    }
}
