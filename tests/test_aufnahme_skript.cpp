// The script lines a recording writes, read back by the headless platform:
// keys, the seed, and inputs that come at their time.
#include "hilfe.h"
#include "screen/skript.h"

namespace {

std::string Alle(HeadlessPlattform& p) {  // "d13 p13" for key down 13, key press 13
    std::string r;
    for (Ereignis e; p.ereignisHolen(e);) {
        const char* art = e.art == EreignisArt::KeyDown ? "d" : e.art == EreignisArt::KeyPress ? "p" : "e";
        r += (r.empty() ? "" : " ") + std::string(art) + std::to_string(e.code);
    }
    return r;
}

}  // namespace

TEST(Skript, JedeTasteKommtAlsDieselbenEreignisseZurueck) {
    struct Fall {
        int code, zeichen;
        const char* zeile;
        const char* ereignisse;
    };
    const Fall faelle[] = {
        {13, 13, "key ENTER", "d13 p13"}, {'A', 'a', "key A", "d65 p97"},    {'A', 'A', "type A", "d65 p65"},
        {222, 0xE4, "type ä", "d222 p228"}, {Taste::F4, -1, "key F4", "d115"}, {'1', '!', "keycode 49 33", "d49 p33"},
        {'A', -1, "keycode 65", "d65"},   {-1, 0xE9, "char 233", "p233"},   {0, 0x81, "keycode 0 129", "d0 p129"},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(SkriptTaste(f.code, f.zeichen), f.zeile) << "a script is UTF-8";
        HeadlessPlattform p;
        std::string fehler;
        ASSERT_TRUE(p.skriptLaden(f.zeile, fehler)) << fehler;
        p.schlafen(5);
        p.pumpen();
        EXPECT_EQ(Alle(p), f.ereignisse) << f.zeile;
    }
    std::string fehler;
    EXPECT_FALSE(HeadlessPlattform().skriptLaden("keycode 300\n", fehler));
    EXPECT_FALSE(HeadlessPlattform().skriptLaden("seed -1\n", fehler));
}

TEST(Skript, EingabeNachWartezeitKommtPuenktlichAuchMittenImZeichnen) {
    HeadlessPlattform p;
    std::string fehler;
    ASSERT_TRUE(p.skriptLaden("wait 1000\nkey A\nwait 30\nkey B\nwait 10\nkey C\nkey D\nclose\nwait 700\nanswer no\n", fehler));
    const long long t0 = p.uhrMs();
    p.schlafen(1000);
    p.pumpen();
    EXPECT_EQ(Alle(p), "d65 p97") << "after a long pause too";
    p.schlafen(50);
    EXPECT_EQ(p.uhrMs(), t0 + 1030) << "the poll ends when the key comes";
    p.box(0, 0, 1, 1, 0);
    p.pumpen();
    EXPECT_EQ(Alle(p), "d66 p98") << "inside a print too";
    p.schlafen(100);
    p.pumpen();
    EXPECT_EQ(Alle(p), "d67 p99") << "D has no wait: it waits for a poll";
    p.schlafen(5);
    p.pumpen();
    EXPECT_EQ(Alle(p), "d68 p100");
    p.schlafen(5);
    p.pumpen();
    EXPECT_EQ(Alle(p), "e0");
    const long long zu = p.uhrMs();
    EXPECT_FALSE(p.frage("Quorvant", "?"));
    EXPECT_EQ(p.uhrMs(), zu + 700) << "the box stood as long as the player thought";
}

TEST(Skript, SaatZeileGiltFuerDieNaechsteAussaat) {
    HeadlessPlattform p;
    std::string fehler;
    ASSERT_TRUE(p.skriptLaden("seed 4711\nkey A\n", fehler));
    p.saatFestlegen(7);
    EXPECT_EQ(p.saat(), 4711u);
    EXPECT_EQ(p.saat(), 7u) << "once";
    // A new game seeded by the line is the game of that seed.
    const std::string spiel = NeuesSpielSkript(1, 100) + "close\nanswer no\n";
    const TreiberLauf zeile = Treiber("seed 12345\n" + spiel);
    ASSERT_EQ(zeile.status, 0) << zeile.fehler;
    EXPECT_EQ(zeile.state, Treiber(spiel, "--seed 12345").state);
    EXPECT_NE(zeile.state, Treiber(spiel).state);
}
