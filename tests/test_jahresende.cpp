// The turn of the year: the guild's figure, ranks, medals, the millionaire,
// tax and the disasters; with fed draws, and through the driver from
// prepared saved games.
#include <algorithm>
#include <map>
#include <sstream>

#include "hilfe.h"
#include "state/codes.h"
#include "state/regeln.h"
#include "state/text.h"
#include "state/zufall.h"
#include "year/jahresende.h"
#include "year/katastrophen.h"

namespace {

// One player, fifty systems; system 2 is "Wega".
Spiel Welt(int spieler = 1) {
    Spiel s;
    s.AnzahlSpieler = static_cast<Integer>(spieler);
    VORBELEGUNG_VARIABLEN(s);
    s.AnzahlPlaneten = 50;
    s.HoechstesSchiff = 10;
    s.MeldungAnzahl = 0;  // the year begins with empty news
    for (int p = 1; p <= spieler; ++p) s.SpielerName(p) = std::string(1, static_cast<char>('A' + p - 1)) + "nna";
    for (int n = 21; n <= 30; ++n) s.Dokument(n).Name = "Wega ", s.Dokument(n).Ware = 4;
    return s;
}

Schiff& Neu(Spiel& s, int nr, const char* typ, int zustand, int planet, int besitzer = 1) {
    Schiff& sch = s.Schiffe(nr);
    sch.Typ = typ, sch.Name = "x", sch.Zustand = static_cast<Integer>(zustand);
    sch.Planet = static_cast<Integer>(planet), sch.Besitzer = static_cast<Integer>(besitzer);
    return sch;
}

std::string News(const Spiel& s) {
    std::string r;
    for (int i = 1; i <= s.MeldungAnzahl; ++i) r += Utf8(s.MeldungText(i)) + "|";
    return r;
}

// The news rows on the driver's screen, top to bottom, as "colour text".
std::vector<std::string> NewsAmSchirm(const std::string& screen) {
    std::map<int, std::string> zeilen;
    std::istringstream ein(screen);
    for (std::string z; std::getline(ein, z);) {
        std::vector<std::string> f;
        std::istringstream t(z);
        for (std::string feld; std::getline(t, feld, '\t');) f.push_back(feld);
        if (f.size() < 6 || f[0] != "text" || f[1] != "510") continue;
        const int y = std::stoi(f[2]);
        if (y >= 255 && y <= 705) zeilen[y] = f[4] + " " + f[5];
    }
    std::vector<std::string> r;
    for (auto& [y, t] : zeilen) r.push_back(t);
    return r;
}

// Where a line stands in the news; -1 if it is missing.
int Stelle(const std::vector<std::string>& news, const std::string& zeile) {
    auto it = std::find(news.begin(), news.end(), zeile);
    return it == news.end() ? -1 : static_cast<int>(it - news.begin());
}

const Spiel& Start() {
    static const Spiel s = NeuesSpielZustand(1, 5000);
    return s;
}

}  // namespace

TEST(Bewertung, RundetNachJedemRumpf) {
    Spiel s = Welt();
    s.Bargeld(1) = 1000, s.Kredit(1) = 300;
    Neu(s, 1, TYP_FRACHTER, 0, 3).Laderaum = 5;          // 0.99 x 950 = 940.5
    s.Schiffe(1).Schaden = 1, s.Schiffe(1).Fracht(1) = 3;  // 3 t at 10
    Neu(s, 2, TYP_TANKER, 1, 25).Laderaum = 15;          // 0.99 x 950 again
    s.Schiffe(2).Schaden = 1, s.Schiffe(2).Fracht(FRACHT_SPRIT) = 2;
    Neu(s, 3, TYP_GROSSFRACHTER, -1, 3).Fracht(20) = 50;  // a scout's worth, cargo not counted
    Neu(s, 4, TYP_KREUZER, 2, 26).Bewaffnung = 1;
    Neu(s, 5, TYP_STATION, 0, 27).Schaden = 50;
    s.Schiffe(5).Fracht(1) = 1, s.Schiffe(5).Fracht(FRACHT_SPRIT) = 1;
    Neu(s, 6, TYP_KREUZER, 0, 3, 2).Bewaffnung = 9;      // someone else's
    s.Lager(2, 1) = 4;
    s.Forschung(ERF_LADERAUM, 1) = s.Forschung(ERF_PORTAL, 1) = s.Forschung(FORSCHUNG_MILLIONAER, 1) = -1;
    // 700 + 940.5 -> 1640 (even) + 30, + 940.5 -> 2610 + 60, + 400 + 540 + 1000 + 40, + 60 + 10000.
    EXPECT_EQ(BEWERTUNG(s, 1), 14710);
    EXPECT_EQ(BEWERTUNG(s, 1, true), 15010);
}

TEST(Jahresende, RangMedailleUndMillionaer) {
    TestSpiel t;
    Spiel& s = *t.s;
    for (int e = 1; e <= 5; ++e) s.EreignisJahre(e) = 30;
    s.MeldungAnzahl = 0;
    s.Rang(1) = 2, s.Bargeld(1) = 130000;  // past two thresholds: one rank a year
    t.laufen([](Spiel& g) { JAHRESENDE(g); });
    EXPECT_EQ(s.Rang(1), 3);
    EXPECT_EQ(News(s), "Die Gilde ernennt Anna zum Kaufmann!|");
    EXPECT_EQ(s.SoundEreignis, 3);
    s.MeldungAnzahl = 0, s.SpielerName(1) = "Maximilian", s.Bargeld(1) = 1000000;
    for (int g = 1; g <= 20; ++g) s.Statistik(g, 1) = 3001;
    t.laufen([](Spiel& g) { JAHRESENDE(g); });
    EXPECT_EQ(s.Rang(1), 4);
    EXPECT_EQ(News(s), "Die Gilde ernennt Maximilian zum |   Organisator!|Die Gilde verleiht Maximilian die |"
                       "Versorgungsmedaille in Bronze!|Herzlichen Glückwunsch Maximilian!|   Sie sind Millionär!|");
    EXPECT_EQ(s.SoundEreignis, 5) << "the later honour wins";
    // Fallen back and rich again: no second greeting; the top rank is not weighed.
    s.MeldungAnzahl = 0, s.Rang(1) = 9, s.Bargeld(1) = 5000000, s.SoundEreignis = 0;
    t.laufen([](Spiel& g) { JAHRESENDE(g); });
    EXPECT_EQ(News(s), "");
    EXPECT_EQ(s.Medaille(1), 1) << "Silber asks for 6000 t of Getreide";
    EXPECT_EQ(s.SoundEreignis, 0);
}

TEST(Katastrophen, MeteorsturmTrifftEinSystem) {
    Spiel s = Welt();
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
    EXPECT_EQ(s.Dokument(23).Bestand, 0);
    EXPECT_EQ(s.Dokument(24).Bestand, 5000) << "only the first discovered planet";
    EXPECT_EQ(News(s), "Meteorsturm auf Wega |Es wurden Schiffe beschädigt!|");
    EXPECT_EQ(s.SoundEreignis, 1);
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_METEORSTURM), 20);
    // System 3 has a ship but no discovered planet: nothing, and no damage draws.
    s.MeldungAnzahl = 0, s.SoundEreignis = 3;
    RndFolge(s, {0.405f, 0.0f});
    METEORSTURM(s);
    EXPECT_EQ(s.Schiffe(7).Schaden, 0);
    EXPECT_EQ(News(s), "");
    EXPECT_EQ(s.SoundEreignis, 3);
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_METEORSTURM), 5);
}

TEST(Katastrophen, LagerbrandMitUndOhneBrandschutz) {
    Spiel s = Welt();
    s.Lager(1, 1) = 10, s.Lager(7, 1) = 5, s.Lager(16, 1) = 3;
    s.SoundEreignis = 1;
    // Player, fire, five hits (Getreide, Damast, Flopse, empty Seidenstoffe, Getreide again), countdown.
    RndFolge(s, {0.0f, 0.0f, 0.0f, 0.31f, 0.76f, 0.06f, 0.01f, 0.5f});
    LAGERBRAND(s);
    EXPECT_EQ(News(s), "Lagerbrand bei Anna: |   Getreide  und Damast weg!|");
    EXPECT_EQ(s.Lager(1, 1) + s.Lager(7, 1), 0);
    EXPECT_EQ(s.Lager(16, 1), 3) << "the line was long enough: the Flopse are spared";
    EXPECT_EQ(s.Statistik(EST_ABGEBRANNT, 2), 15);
    EXPECT_EQ(s.SoundEreignis, 2);
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_LAGERBRAND), 21);
    // With fire protection a draw of 0.65 keeps the fire away.
    s.MeldungAnzahl = 0;
    s.Forschung(ERF_BRANDSCHUTZ, 1) = -1;
    RndFolge(s, {0.0f, 0.65f, 0.1f});
    LAGERBRAND(s);
    EXPECT_EQ(News(s), "");
    EXPECT_EQ(s.Lager(16, 1), 3);
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_LAGERBRAND), 5);
    // Above it the fire comes all the same; three players: the second is hit, sooner again.
    Spiel d = Welt(3);
    d.Forschung(ERF_BRANDSCHUTZ, 2) = -1;
    RndFolge(d, {0.5f, 0.66f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.5f});
    LAGERBRAND(d);
    EXPECT_EQ(News(d), "Lagerbrand bei Bnna: |   keine Schäden!|");
    EXPECT_EQ(d.EreignisJahre(EREIGNIS_LAGERBRAND), 7);
}

TEST(Katastrophen, StreikBisZurGrenze) {
    Spiel s = Welt();
    s.Dokument(23).Produktion = 5, s.Dokument(23).Preis = 10;  // limit 4 x 4 + 5 = 21
    s.Dokument(24).Produktion = 5, s.Dokument(24).Preis = 21;
    RndFolge(s, {0.0f, 0.245f, 0.99f, 0.0f});  // 11 undiscovered, 23, + 2 + Int(4 x 0.99 / 2), countdown
    STREIK(s);
    EXPECT_EQ(s.Dokument(23).Preis, 13);
    EXPECT_EQ(News(s), "Streik auf Wega III|   Arbeiter fordern 13SD pro Tonne!|");
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_STREIK), 5);
    s.MeldungAnzahl = 0, s.Dokument(23).Preis = 20;
    RndFolge(s, {0.245f, 0.99f, 0.0f, 0.265f, 0.99f});  // capped at 21; then 24 at its limit
    STREIK(s);
    STREIK(s);
    EXPECT_EQ(s.Dokument(23).Preis, 21);
    EXPECT_EQ(s.Dokument(24).Preis, 21);
    EXPECT_EQ(News(s), "Streik auf Wega III|   Arbeiter fordern 21SD pro Tonne!|");
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_STREIK), 15);
    RndFolge(s, {0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.5f});  // five undiscovered planets: no strike
    STREIK(s);
    EXPECT_EQ(s.EreignisJahre(EREIGNIS_STREIK), 10);
}

TEST(JahresendeSzenario, MillionaerZahltSteuer) {
    Spiel s = Start();
    s.Bargeld(1) = 2000000;
    for (int e = 1; e <= 5; ++e) s.EreignisJahre(e) = e == EREIGNIS_STEUER ? 1 : 30;
    const TreiberLauf lauf = GeladenSpielen(s, "", "millionaer");
    const Spiel g = ZustandAus(lauf);
    const auto news = NewsAmSchirm(lauf.screen);
    const int rang = Stelle(news, "65535 Die Gilde ernennt Spieler1 zum ");
    ASSERT_GE(rang, 0) << lauf.screen;
    EXPECT_EQ(news.at(rang + 1), "65535    Handelstreiber!");
    EXPECT_EQ(Stelle(news, "65535 Herzlichen Glückwunsch Spieler1!"), rang + 2);
    EXPECT_EQ(Stelle(news, "65535    Sie sind Millionär!"), rang + 3);
    EXPECT_EQ(Stelle(news, "255 Es waren wieder 10% Steuern auf das"), rang + 4);
    EXPECT_EQ(Stelle(news, "255 Barvermögen fällig!"), rang + 5);
    EXPECT_EQ(g.Rang(1), 2);
    EXPECT_EQ(g.Bargeld(1), 1800000);
    EXPECT_EQ(g.Statistik(EST_STEUERN, 2), 200000);
    EXPECT_EQ(g.Forschung(FORSCHUNG_MILLIONAER, 1), -1);
    EXPECT_EQ(g.EreignisJahre(EREIGNIS_STEUER), 20);
    EXPECT_NE(lauf.trace.find("DTWQuorvant.mid"), std::string::npos);
}

TEST(JahresendeSzenario, JedeKatastropheEinmal) {
    Spiel s = Start();
    for (int e = 1; e <= 5; ++e) s.EreignisJahre(e) = e == EREIGNIS_STEUER ? 30 : 1;
    for (int n = 11; n <= s.AnzahlPlaneten + 10; ++n) {
        Planet& pl = s.Dokument(n);
        pl.Produktion = 5, pl.Bestand = 5050, pl.Preis = static_cast<Integer>(3 * pl.Ware);
    }
    s.Lager(WARE_HISTARIN, 1) = 5, s.Lager(1, 1) = 100;
    // The storm's system comes from the seed; a second run puts a ship there.
    const Spiel erst = ZustandAus(GeladenSpielen(s, "", "katastrophen1"));
    int z = 0;
    for (int n = 11; n <= s.AnzahlPlaneten + 10; n += 10)
        if (erst.Dokument(n).Bestand == 4055) z = n;
    ASSERT_GT(z, 0);
    Neu(s, s.HoechstesSchiff + 1, TYP_FRACHTER, ZUSTAND_RUHT, z + 1);
    ++s.HoechstesSchiff;
    const TreiberLauf lauf = GeladenSpielen(s, "", "katastrophen2");
    const Spiel g = ZustandAus(lauf);
    const auto news = NewsAmSchirm(lauf.screen);
    const int gebuehr = Stelle(news, "255 Die Gilde verlangt 20 pro Schiff für ");
    ASSERT_GE(gebuehr, 0) << lauf.screen;
    const std::vector<std::string> folge = {
        "255 die Nutzung des Raumfahrthafens!", "255 Meteorsturm auf " + Utf8(s.Dokument(z).Name),
        "255 Es wurden Schiffe beschädigt!", "255 Lagerbrand bei Spieler1: ", "255    Lagerbestand komplett abgebrannt!"};
    for (size_t i = 0; i < folge.size(); ++i) EXPECT_EQ(news.at(gebuehr + 1 + i), folge[i]);
    EXPECT_EQ(g.Bargeld(1), 5000 - 40);
    EXPECT_EQ(g.Statistik(EST_HAFENGEBUEHREN, 2), 40);
    EXPECT_GE(g.Schiffe(s.HoechstesSchiff).Schaden, 20);
    EXPECT_LE(g.Schiffe(s.HoechstesSchiff).Schaden, 40);
    EXPECT_EQ(g.Lager(WARE_HISTARIN, 1) + g.Lager(1, 1), 0);
    EXPECT_EQ(g.Statistik(EST_ABGEBRANNT, 2), 105);
    int streik = 0;
    for (int n = 11; n <= s.AnzahlPlaneten + 10; ++n)
        if (g.Dokument(n).Preis != s.Dokument(n).Preis) streik = n;
    ASSERT_GT(streik, 0);
    EXPECT_EQ(news.at(gebuehr + 6), "255 Streik auf " + Utf8(g.Dokument(streik).Name + Welt().RoemZahl(streik % 10)));
    EXPECT_EQ(news.at(gebuehr + 7), "255    Arbeiter fordern " + std::to_string(g.Dokument(streik).Preis) + "SD pro Tonne!");
    EXPECT_NE(lauf.trace.find("LagerbrandQuorvant.mid"), std::string::npos);
    EXPECT_GE(g.EreignisJahre(EREIGNIS_HAFENGEBUEHR), 18);
}

TEST(JahresendeSzenario, MedailleDurchVerkauf) {
    for (const int damast : {401, 400}) {
        SCOPED_TRACE(damast);
        Spiel s = Start();
        for (int e = 1; e <= 5; ++e) s.EreignisJahre(e) = 30;
        const int bronze[] = {3000, 1001, 1001, 1001, 1001, 701, damast};
        for (int g = 1; g <= 7; ++g) s.Statistik(g, 1) = bronze[g - 1];
        s.Lager(1, 1) = 1;  // the tonne that passes the limit
        const TreiberLauf lauf = GeladenSpielen(s, "key V\nkey ENTER\nkey ENTER\nkey ENTER\nkey W\nkey ENTER\n", "medaille");
        const Spiel g = ZustandAus(lauf);
        EXPECT_EQ(g.Statistik(1, 1), 3001);
        const auto news = NewsAmSchirm(lauf.screen);
        const int zeile = Stelle(news, "65535 Die Gilde verleiht Spieler1 die ");
        EXPECT_EQ(g.Medaille(1), damast == 401 ? 1 : 0);
        EXPECT_EQ(zeile >= 0, damast == 401) << lauf.screen;
        if (zeile >= 0) {
            EXPECT_EQ(news.at(zeile + 1), "65535 Versorgungsmedaille in Bronze!");
        }
        EXPECT_EQ(lauf.trace.find("OrdenQuorvant.mid") != std::string::npos, damast == 401);
    }
}
