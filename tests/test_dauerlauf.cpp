// A thousand years of the largest world at war, and after every year the
// tables must still hang together.
#include <sstream>

#include "../bench/grosse_welt.h"
#include "hilfe.h"
#include "state/codes.h"
#include "year/jahr.h"

namespace {

// What is wrong with the tables after a year, or "" if nothing.
std::string Pruefen(const Spiel& s) {
    std::ostringstream f;
    const auto fehler = [&](int slot, const char* feld, long wert) {
        f << "Jahr " << s.Jahr << ", Schiff " << slot << ", " << feld << " = " << wert << "\n";
    };
    for (int i = 1; i <= SCHIFF_GRENZE - 1; ++i) {
        const Schiff& sch = s.Schiffe(i);
        if (IstFrei(sch)) {
            if (i <= s.HoechstesSchiff && sch.Partner != 0) fehler(i, "Partner eines freien Platzes", sch.Partner);
            continue;
        }
        if (i > s.HoechstesSchiff) fehler(i, "HoechstesSchiff", s.HoechstesSchiff);
        const int p = sch.Partner;
        if (p != 0 && p != PIRATEN_HQ && (!SchiffNummerGueltig(p) || IstFrei(s.Schiffe(p))))
            fehler(i, "Partner", p);
        if (sch.Schaden > 99) fehler(i, "Schaden", sch.Schaden);
    }
    for (int i = SCHIFF_GRENZE; i <= MAX_SCHIFFE; ++i)
        if (!IstFrei(s.Schiffe(i)) && IstPirat(s.Schiffe(i))) fehler(i, "Pirat ab 1000", i);
    for (int sp = 1; sp <= SPIELER_MAX; ++sp) {
        bool luecke = false;
        int vorher = 0;
        for (int k = 1; k <= DOCK_PLAETZE_ERWEITERT; ++k) {
            const int d = s.DockSchiffe(k, sp);
            if (d == 0) luecke = true;
            else if (luecke || d <= vorher) fehler(d, "DockSchiffe", sp * 10 + k);
            else vorher = d;
        }
    }
    return f.str();
}

}  // namespace

TEST(Dauerlauf, TausendJahreDerGroesstenWeltImKrieg) {
    TestSpiel t;
    Spiel& s = *t.s;
    ASSERT_TRUE(GrosseWeltBauen(s, 99));
    GrosseWeltRuesten(s);
    ASSERT_EQ(Pruefen(s), "");
    long piratenJahre = 0, angriffe = 0, hqStandJahre = 0;
    std::string fehler;
    t.laufen([&](Spiel& sp) {
        for (int j = 0; j < 1000 && fehler.empty(); ++j) {
            RUNDE_AUSFUEHREN(sp);
            fehler = Pruefen(sp);
            for (int i = 1; i <= sp.HoechstesSchiff; ++i) {
                piratenJahre += IstPirat(sp.Schiffe(i)) ? 1 : 0;
                angriffe += sp.Schiffe(i).Zustand == ZUSTAND_ANGRIFF ? 1 : 0;
            }
            hqStandJahre += sp.Schiffe(PIRATEN_HQ).Planet > 0 ? 1 : 0;
        }
    });
    EXPECT_EQ(fehler, "");
    EXPECT_EQ(s.Jahr, 3000);
    // The war really went on: pirates lived, attacked and were attacked.
    EXPECT_GT(piratenJahre, 1000);
    EXPECT_GT(angriffe, 1000);
    EXPECT_LT(hqStandJahre, 1000) << "the cruisers at the headquarters bring it down";
}
