// Golden pictures of the ship panel of every type, as a player sees them
// (the main screen's is taken in test_schiffe's new game).
#include "hilfe.h"

TEST(Golden, SchiffstafelJedesTyps) {
    struct Fall { const char* typ; const char* name; int laderaum; int fracht; };
    const Fall faelle[] = {
        {"SST ", "Frachter   ", 10, 4},   {"TST ", "Tanker      ", 10, 0}, {"FSS ", "Kreuzer     ", 0, 0},
        {" XS ", "Scout       ", 0, 0},   {"TSR ", "Raumstation ", 90, 30}, {"XXL ", "Großfrachter", 200, 120},
    };
    const std::string ordner = TempOrdner("golden-schiffe");
    int nr = 1;
    for (const Fall& fall : faelle) {
        TestSpiel t;
        Spiel& s = *t.s;
        s.Dokument(3).Name = "Sol ";
        Schiff& sch = s.Schiffe(nr);
        sch.Typ = fall.typ, sch.Name = T(fall.name), sch.Besitzer = 1, sch.Planet = 3;
        sch.Laderaum = static_cast<Integer>(fall.laderaum), sch.Tankgroesse = 30, sch.Treibstoff = 17;
        sch.Bewaffnung = std::string(fall.typ) == "FSS " ? 6 : 0;
        for (int g = 1; g <= fall.fracht; ++g) sch.Fracht(1 + g % 20) += 1;
        sch.Ladung = static_cast<Integer>(fall.fracht);
        if (std::string(fall.typ) == "TST ") sch.Fracht(21) = 6, sch.Fracht(23) = 2, sch.Ladung = 8;
        t.laufen([&](Spiel& sp) {
            HAUPTBILDSCHIRM(sp, true);
            SCHIFF_ANZEIGEN(sp, nr);
        });
        const std::string png = ordner + "/" + Trim(fall.typ) + ".png";
        std::string fehler;
        ASSERT_TRUE(t.p->leinwand().pngSchreiben(png, fehler)) << fehler;
        WieGolden(png, std::string("schiff_") + Trim(fall.typ));
        ++nr;
    }
}
