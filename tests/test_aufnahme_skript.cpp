// The script lines a recording writes, read back by the headless platform:
// keys, the seed, and inputs that come at their time.
#include "flow/spielstand.h"
#include "hilfe.h"
#include "screen/skript.h"

namespace {

std::vector<Ereignis> Alle(HeadlessPlattform& p) {
    std::vector<Ereignis> r;
    Ereignis e;
    while (p.ereignisHolen(e)) r.push_back(e);
    return r;
}

}  // namespace

TEST(Skript, JedeTasteKommtAlsDieselbenEreignisseZurueck) {
    struct Fall {
        int code, zeichen;
        const char* zeile;
    };
    const Fall faelle[] = {
        {13, 13, "key ENTER"},        {'A', 'a', "key A"},          {'7', '7', "key 7"},
        {'A', 'A', "type A"},         {222, 0xE4, "type ä"},        {Taste::F4, -1, "key F4"},
        {'1', '!', "keycode 49 33"},  {'A', -1, "keycode 65"},      {-1, 0xE9, "char 233"},
        {0, 0x81, "keycode 0 129"},   {36, -1, "key HOME"},
    };
    for (const Fall& f : faelle) {
        const std::string zeile = SkriptTaste(f.code, f.zeichen);
        EXPECT_EQ(zeile, f.zeile) << "a script is UTF-8";
        HeadlessPlattform p;
        std::string fehler;
        ASSERT_TRUE(p.skriptLaden(zeile, fehler)) << fehler;
        p.schlafen(5);
        p.pumpen();
        std::vector<Ereignis> soll;
        if (f.code >= 0) soll.push_back({EreignisArt::KeyDown, f.code});
        if (f.zeichen >= 0) soll.push_back({EreignisArt::KeyPress, f.zeichen});
        const std::vector<Ereignis> ist = Alle(p);
        ASSERT_EQ(ist.size(), soll.size()) << zeile;
        for (size_t i = 0; i < ist.size(); ++i) EXPECT_TRUE(ist[i].art == soll[i].art && ist[i].code == soll[i].code) << zeile;
    }
    std::string fehler;
    HeadlessPlattform p;
    EXPECT_FALSE(p.skriptLaden("keycode 300\n", fehler));
    EXPECT_FALSE(p.skriptLaden("seed -1\n", fehler));
}

TEST(Skript, EingabeNachWartezeitKommtPunktlichAuchMittenImZeichnen) {
    HeadlessPlattform p;
    std::string fehler;
    ASSERT_TRUE(p.skriptLaden("wait 1000\nkey A\nwait 30\nkey B\nwait 10\nkey C\nkey D\nclose\nwait 700\nanswer no\n", fehler));
    const long long t0 = p.uhrMs();
    p.schlafen(1000);
    p.pumpen();
    EXPECT_EQ(Alle(p).size(), 2u) << "after a long pause too";
    p.schlafen(50);
    EXPECT_EQ(p.uhrMs(), t0 + 1030) << "the poll ends when the key comes";
    p.box(0, 0, 1, 1, 0);
    p.pumpen();
    EXPECT_EQ(Alle(p).size(), 2u) << "inside a print too";
    p.schlafen(100);
    p.pumpen();
    EXPECT_EQ(Alle(p).size(), 2u) << "C is due; D has no wait and waits for a poll";
    p.schlafen(5);
    p.pumpen();
    EXPECT_EQ(Alle(p).size(), 2u);
    p.schlafen(5);
    p.pumpen();
    ASSERT_EQ(Alle(p).size(), 1u);
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
    const TreiberLauf zeile = Treiber("seed 12345\n" + NeuesSpielSkript(1, 100) + "close\nanswer no\n");
    const TreiberLauf option = Treiber(NeuesSpielSkript(1, 100) + "close\nanswer no\n", "--seed 12345");
    ASSERT_EQ(zeile.status, 0) << zeile.fehler;
    EXPECT_FALSE(zeile.state.empty());
    EXPECT_EQ(zeile.state, option.state);
    EXPECT_NE(zeile.state, Treiber(NeuesSpielSkript(1, 100) + "close\nanswer no\n").state);
}
