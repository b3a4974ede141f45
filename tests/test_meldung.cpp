// The news frame: one page or pages of 17, F3, the click rows and their links.
#include "hilfe.h"

namespace {

struct News : TestSpiel {
    bool warten;
    explicit News(int zeilen, const std::string& skript = "") : TestSpiel(skript), warten(!skript.empty()) {
        s->Dokument(11).Ware = 1;  // a map stands: F3 leafs
        s->MeldungAnzahl = static_cast<Integer>(zeilen);
        for (int i = 1; i <= zeilen; ++i) {
            s->MeldungText(i) = "Zeile " + std::to_string(i);
            s->MeldungFarbe(i) = CYAN, s->MeldungPlanet(i) = -1;
        }
    }
    // Draws the frame, then waits for Enter while F3 may leaf.
    void zeigen() {
        laufen([this](Spiel& sp) {
            MELDUNG(sp);
            if (warten) TASTE_ABWARTEN(sp);
        });
    }
    std::string zeile(int r) const { return textBei(510, 230 + 25 * r); }
    int zeilen() const {
        int n = 0;
        for (int r = 1; r <= 19; ++r) n += !zeile(r).empty();
        return n;
    }
    bool hinweis() const {
        return bildschirm().find("text\t610\t705\t15\t65535\t< F3: Weitere Meldungen >\n") != std::string::npos;
    }
};

}  // namespace

TEST(Meldung, EineSeiteBisNeunzehnDannSeitenZuSiebzehnImRing) {
    // rows at y 255 to 705, 25 apart; the click rows 510..990 and 20 high; unused rows cannot be hit
    auto feld = [](const News& n, int r) {
        const KlickFeld& k = n.s->KlickFelder(r);
        return std::to_string(static_cast<int>(k.X1)) + "," + std::to_string(static_cast<int>(k.Y1)) + "-" +
               std::to_string(static_cast<int>(k.X2)) + "," + std::to_string(static_cast<int>(k.Y2)) + " " +
               std::to_string(k.Schiff) + " " + std::to_string(k.Planet);
    };
    News a(19);
    a.s->MeldungText(2).clear();
    a.zeigen();
    EXPECT_EQ(a.zeilen(), 18) << "an empty line draws nothing";
    EXPECT_EQ(a.zeile(19), "Zeile 19");
    EXPECT_FALSE(a.hinweis());
    EXPECT_NE(a.bildschirm().find("text\t510\t255\t15\t16776960\tZeile 1\n"), std::string::npos) << "in its colour";
    EXPECT_EQ(feld(a, 19), "510,705-990,725 -1 -1");
    EXPECT_EQ(feld(a, 20), "0,0-0,0 -1 -1");

    News b(20);
    b.zeigen();
    EXPECT_EQ(b.zeilen(), 17);
    EXPECT_EQ(b.zeile(17), "Zeile 17");
    EXPECT_TRUE(b.hinweis()) << "printed behind the rows, so it stays";
    EXPECT_EQ(feld(b, 17), "510,655-990,675 -1 -1");
    for (int r = 18; r <= 20; ++r) EXPECT_EQ(feld(b, r), "0,0-0,0 -1 -1") << r;
    // F3 leafs in a ring; 18 lines stay one page whatever the page number; 17 never leave page 1.
    struct Fall { int zeilen, f3, seite, zeile1, zeile6; };
    const Fall faelle[] = {{40, 1, 2, 18, 23}, {40, 2, 3, 35, 40}, {40, 3, 1, 1, 6}, {18, 1, 2, 1, 6}, {17, 1, 1, 1, 6}};
    for (const Fall& f : faelle) {
        std::string k;
        for (int i = 0; i < f.f3; ++i) k += "key F3\n";
        News n(f.zeilen, k + "key ENTER");
        n.zeigen();
        SCOPED_TRACE(std::to_string(f.zeilen) + " lines, F3 x" + std::to_string(f.f3));
        EXPECT_EQ(n.s->MeldungSeite, f.seite);
        EXPECT_EQ(n.zeile(1), "Zeile " + std::to_string(f.zeile1));
        EXPECT_EQ(n.zeile(6), "Zeile " + std::to_string(f.zeile6));
        EXPECT_EQ(n.zeile(7), f.zeile6 == 40 ? "" : "Zeile " + std::to_string(f.zeile6 + 1)) << "past the end of the list";
        EXPECT_EQ(n.s->KlickFelder(7).Y1, 405);
    }
}

TEST(Meldung, ZeilenVerweisenAufSchiffOderPlanet) {
    auto felder = [](int anzahl) {
        auto n = std::make_unique<News>(anzahl);
        Spiel& s = *n->s;
        s.MeldungText(1) = "SST 12 (Anna) gelandet auf Wega III", s.MeldungText(2) = "FSS 3 greift SST 17 an";
        s.MeldungText(3) = " XS 8 (Anna) gelandet auf Deneb I", s.MeldungPlanet(3) = 41;
        s.MeldungText(4) = "Wega II produziert 12t Getreide", s.MeldungPlanet(4) = 57;
        s.MeldungText(5) = T("Hauptquartier zerstört von FSS 5"), s.MeldungPlanet(5) = 88;
        s.MeldungText(6) = "TSR 9 (Anna) gelandet auf Sol III", s.MeldungPlanet(6) = 3;
        n->zeigen();
        return n;
    };
    // Ship 12; 17 by the order of the codes, not by the place in the line; a scout links on a single
    // page; no code: the line's planet; a label at the very end has no blank behind it, and as a
    // code was found, no planet either.
    auto eine = felder(6);
    std::vector<std::pair<int, int>> links;
    for (int r = 1; r <= 6; ++r) links.emplace_back(eine->s->KlickFelder(r).Schiff, eine->s->KlickFelder(r).Planet);
    EXPECT_EQ(links, (std::vector<std::pair<int, int>>{{12, -1}, {17, -1}, {8, -1}, {-1, 57}, {0, -1}, {9, -1}}));

    auto seiten = felder(20);
    EXPECT_EQ(seiten->s->KlickFelder(1).Schiff, 12);
    EXPECT_TRUE(seiten->s->KlickFelder(3).Schiff == -1 && seiten->s->KlickFelder(3).Planet == 41) << "no scout links on a paged list";
}

TEST(Meldung, ZweihundertZeilenDanachEinHinweis) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.MeldungAnzahl = 0;
    for (int i = 1; i <= 200; ++i) MELDUNG_NEU(s, "Zeile " + std::to_string(i), CYAN, i);
    EXPECT_TRUE(s.MeldungAnzahl == 200 && s.MeldungText(200) == "Zeile 200" && s.MeldungPlanet(200) == 200) << "a full table keeps all";
    for (int i = 201; i <= 250; ++i) MELDUNG_NEU(s, "Zeile " + std::to_string(i), CYAN);
    EXPECT_EQ(s.MeldungAnzahl, 200);
    EXPECT_EQ(s.MeldungText(199), "Zeile 199");
    EXPECT_EQ(s.MeldungText(200), "-- 51 weitere Meldungen fehlen --") << "lines 200 to 250";
    EXPECT_TRUE(s.MeldungFarbe(200) == ROT && s.MeldungPlanet(200) == -1);
}
