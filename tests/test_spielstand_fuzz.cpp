// Saved games that the fuzzer made, or that stand for what it found: each
// is loaded as in play and must come through the year and the main screen.
#include "flow/hauptschleife.h"
#include "flow/spielstand.h"
#include "hilfe.h"
#include "state/codes.h"
#include "views/lagerbestand.h"
#include "year/jahr.h"
#include "year/meldung.h"

namespace {

// Keys for the story screens and the news pages of a year.
std::string Tasten() {
    std::string k;
    for (int i = 0; i < 200; ++i) k += "key ENTER\n";
    return k;
}

// The bytes loaded into t as a saved game, then the year and the main screen
// as after a load in play. False if the loader refused them.
bool LadenUndSpielen(TestSpiel& t, const std::vector<uint8_t>& bytes) {
    std::string fehler;
    if (!SPIELSTAND_LESEN(*t.s, bytes, fehler)) return false;
    t.laufen([](Spiel& s) {
        s.AktSpieler = 1;
        RUNDE_AUSFUEHREN(s);
        MELDUNG(s);
        LAGERBESTAND(s);
        HAUPTBILDSCHIRM(s, true);
    });
    return true;
}

}  // namespace

TEST(SpielstandFuzz, HaendlerOhneNahenPlanetenBleibtStehen) {
    // Every planet pushed far out: no merchant finds a planet near enough,
    // and the year must still end.
    Spiel s = NeuesSpielZustand(1, 1000);
    for (int n = 11; n <= s.AnzahlPlaneten + 10; ++n) s.Dokument(n).Abstand = 100;
    Spiel vorher = s;
    TestSpiel t(Tasten());
    ASSERT_TRUE(LadenUndSpielen(t, SPIELSTAND_BYTES(s)));
    EXPECT_EQ(t.s->Jahr, vorher.Jahr + 1);
    for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h) {
        EXPECT_EQ(t.s->Schiffe(h).Planet, vorher.Schiffe(h).Planet) << h;
        EXPECT_EQ(t.s->Schiffe(h).Zustand, ZUSTAND_RUHT) << h;
    }
}

TEST(SpielstandFuzz, TankAusserhalbJederZahlWirdAbgelehnt) {
    // Found by the fuzzer: a free slot whose fuel no whole number can hold
    // broke the check that was to refuse it.
    Spiel s = NeuesSpielZustand(1, 1000);
    s.Schiffe(810).Treibstoff = -1.70141e38f;
    TestSpiel t(Tasten());
    EXPECT_FALSE(LadenUndSpielen(t, SPIELSTAND_BYTES(s)));
    std::string wo;
    EXPECT_FALSE(SPIELSTAND_PRUEFEN(s, wo));
    EXPECT_EQ(wo, "Schiffe(810).Treibstoff = 0");
    s.Schiffe(810).Treibstoff = 12.5f;  // an old value in a free slot is no harm
    EXPECT_TRUE(SPIELSTAND_PRUEFEN(s, wo)) << wo;
}
