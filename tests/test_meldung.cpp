// The news frame: one page or pages of 17, F3, the click rows and their links.
#include "hilfe.h"
#include "screen/ausgabe.h"
#include "screen/dialog.h"
#include "state/text.h"
#include "year/meldung.h"

namespace {

struct News : TestSpiel {
    bool warten;
    explicit News(int zeilen, const std::string& skript = "") : TestSpiel(skript), warten(!skript.empty()) {
        s->Dokument(11).Ware = 1;  // a map stands: F3 leafs
        s->MeldungAnzahl = static_cast<Integer>(zeilen);
        for (int i = 1; i <= zeilen; ++i) {
            s->MeldungText(i) = "Zeile " + std::to_string(i);
            s->MeldungFarbe(i) = CYAN;
            s->MeldungPlanet(i) = -1;
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

TEST(Meldung, NeunzehnZeilenEineSeiteAbZwanzigSeitenZuSiebzehn) {
    News a(19);
    a.zeigen();
    EXPECT_EQ(a.zeilen(), 19);
    EXPECT_EQ(a.zeile(19), "Zeile 19");
    EXPECT_FALSE(a.hinweis());
    EXPECT_NE(a.bildschirm().find("text\t510\t255\t15\t16776960\tZeile 1\n"), std::string::npos) << "in its colour";
    const KlickFeld& k = a.s->KlickFelder(19);
    EXPECT_EQ(k.X1, 510);
    EXPECT_EQ(k.Y1, 705);
    EXPECT_EQ(k.X2, 990);
    EXPECT_EQ(k.Y2, 725);
    EXPECT_EQ(a.s->KlickFelder(20).Y1, 0);
    EXPECT_EQ(a.s->KlickFelder(20).Y2, 0);

    News b(20);
    b.zeigen();
    EXPECT_EQ(b.zeilen(), 17);
    EXPECT_EQ(b.zeile(17), "Zeile 17");
    EXPECT_TRUE(b.hinweis()) << "printed behind the rows, so it stays";
    EXPECT_EQ(b.s->KlickFelder(17).Y1, 655);
    for (int r = 18; r <= 20; ++r) {
        EXPECT_EQ(b.s->KlickFelder(r).Y1, 0) << r;
        EXPECT_EQ(b.s->KlickFelder(r).Y2, 0) << r;
        EXPECT_EQ(b.s->KlickFelder(r).Schiff, -1) << r;
    }

    News leer(3);
    leer.s->MeldungText(2).clear();
    leer.zeigen();
    EXPECT_EQ(leer.zeilen(), 2) << "an empty line draws nothing";
    EXPECT_EQ(leer.s->KlickFelder(19).Y1, 705) << "all 19 rows of a single page can be hit";
}

TEST(Meldung, F3BlaettertImRing) {
    News zwei(40, "key F3\nkey ENTER");
    zwei.zeigen();
    EXPECT_EQ(zwei.s->MeldungSeite, 2);
    EXPECT_EQ(zwei.zeile(1), "Zeile 18");
    EXPECT_EQ(zwei.zeile(17), "Zeile 34");

    News drei(40, "key F3\nkey F3\nkey ENTER");
    drei.zeigen();
    EXPECT_EQ(drei.zeile(6), "Zeile 40");
    EXPECT_EQ(drei.zeile(7), "") << "past the end of the list";
    EXPECT_EQ(drei.s->KlickFelder(7).Y1, 405);
    EXPECT_EQ(drei.s->KlickFelder(7).Schiff, -1);
    EXPECT_TRUE(drei.hinweis());

    News rund(40, "key F3\nkey F3\nkey F3\nkey ENTER");
    rund.zeigen();
    EXPECT_EQ(rund.s->MeldungSeite, 1);
    EXPECT_EQ(rund.zeile(1), "Zeile 1");

    News achtzehn(18, "key F3\nkey ENTER");
    achtzehn.zeigen();
    EXPECT_EQ(achtzehn.s->MeldungSeite, 2);
    EXPECT_EQ(achtzehn.zeile(1), "Zeile 1") << "18 lines stay one page, whatever the page number";
    EXPECT_EQ(achtzehn.zeile(18), "Zeile 18");

    News siebzehn(17, "key F3\nkey ENTER");
    siebzehn.zeigen();
    EXPECT_EQ(siebzehn.s->MeldungSeite, 1);
}

TEST(Meldung, ZeilenVerweisenAufSchiffOderPlanet) {
    auto felder = [](int anzahl) {
        auto n = std::make_unique<News>(anzahl);
        Spiel& s = *n->s;
        s.MeldungText(1) = "SST 12 (Anna) gelandet auf Wega III";
        s.MeldungText(2) = "FSS 3 greift SST 17 an";
        s.MeldungText(3) = " XS 8 (Anna) gelandet auf Deneb I";
        s.MeldungPlanet(3) = 41;
        s.MeldungText(4) = "Wega II produziert 12t Getreide";
        s.MeldungPlanet(4) = 57;
        s.MeldungText(5) = T("Hauptquartier zerstört von FSS 5");
        s.MeldungPlanet(5) = 88;
        s.MeldungText(6) = "TSR 9 (Anna) gelandet auf Sol III";
        s.MeldungPlanet(6) = 3;
        n->zeigen();
        return n;
    };
    auto eine = felder(6);
    auto schiff = [&](int r) { return eine->s->KlickFelder(r).Schiff; };
    auto planet = [&](int r) { return eine->s->KlickFelder(r).Planet; };
    EXPECT_EQ(schiff(1), 12);
    EXPECT_EQ(schiff(2), 17) << "by the order of the codes, not by the place in the line";
    EXPECT_EQ(schiff(3), 8) << "a scout links on a single page";
    EXPECT_EQ(planet(3), -1);
    EXPECT_EQ(schiff(4), -1);
    EXPECT_EQ(planet(4), 57) << "no code: the line's planet";
    EXPECT_EQ(schiff(5), 0) << "a label at the very end has no blank behind it";
    EXPECT_EQ(planet(5), -1) << "a code was found, so no planet either";
    EXPECT_EQ(schiff(6), 9);
    EXPECT_EQ(planet(6), -1);

    auto seiten = felder(20);
    EXPECT_EQ(seiten->s->KlickFelder(1).Schiff, 12);
    EXPECT_EQ(seiten->s->KlickFelder(3).Schiff, -1) << "no scout links on a paged list";
    EXPECT_EQ(seiten->s->KlickFelder(3).Planet, 41);
}

TEST(Meldung, ZweihundertZeilenDanachEinHinweis) {
    TestSpiel t;
    Spiel& s = *t.s;
    s.MeldungAnzahl = 0;
    for (int i = 1; i <= 200; ++i) MELDUNG_NEU(s, "Zeile " + std::to_string(i), CYAN, i);
    EXPECT_EQ(s.MeldungAnzahl, 200);
    EXPECT_EQ(s.MeldungText(200), "Zeile 200") << "a full table keeps all its lines";
    EXPECT_EQ(s.MeldungPlanet(200), 200);
    for (int i = 201; i <= 250; ++i) MELDUNG_NEU(s, "Zeile " + std::to_string(i), CYAN);
    EXPECT_EQ(s.MeldungAnzahl, 200);
    EXPECT_EQ(s.MeldungText(199), "Zeile 199");
    EXPECT_EQ(s.MeldungText(200), "-- 51 weitere Meldungen fehlen --") << "lines 200 to 250";
    EXPECT_EQ(s.MeldungFarbe(200), ROT);
    EXPECT_EQ(s.MeldungPlanet(200), -1);
}
