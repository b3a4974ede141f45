// Help for a newcomer, a long game's history in graphs, and the autosaves.
#include <unistd.h>

#include "flow/autosicherung.h"
#include "flow/begleitdatei.h"
#include "flow/dateien.h"
#include "hilfe.h"
#include "views/hilfe.h"
#include "views/verlaufsgrafik.h"

namespace fs = std::filesystem;

namespace {

std::string Lesen(const std::string& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

// A driver run that ends while a page lies over the screen: its picture.
std::string Bild(const std::string& skript, const std::string& name, const std::string& daten = "") {
    const std::string png = TempOrdner("bild-" + name) + "/" + name + ".png";
    const TreiberLauf lauf = Treiber(skript, "--seed 7 --png " + png, daten);
    EXPECT_EQ(lauf.status, 0) << lauf.fehler;
    return png;
}

}  // namespace

// F1 lays the help over any screen and prompt; it leaves them exactly as they were.
TEST(Hilfe, SeitenUeberJederEingabeUndDanachAllesWieVorher) {
    const std::string neu = NeuesSpielSkript(1, 5000, {"Anna"});
    WieGolden(Bild(neu + "key F1\n", "hilfe_tasten"), "hilfe_tasten");
    WieGolden(Bild(neu + "key F1\nkey PGUP\n", "hilfe_geld"), "hilfe_geld");

    // Pixel for pixel: the main screen, and the star map while a target is chosen.
    for (const std::string& vorher : {neu, neu + "key R\nkey ENTER\nkey ENTER\nkey ENTER\nkey TAB\n"}) {
        const std::string a = Bild(vorher, "vorher"), b = Bild(vorher + "key F1\nkey PGDN\nkey F1\nkey ESC\n", "nachher");
        EXPECT_TRUE(Lesen(a) == Lesen(b)) << "the screen is as before the help";
    }
    // The prompt underneath goes on with what it had: the number entry keeps its 12,
    // the map its cursor on the second system.
    const Spiel kredit = ZustandAus(Treiber(neu + "key K\nkey ENTER\nkey ENTER\ntype 12\nkey F1\nkey DOWN\nkey ESC\n"
                                                  "type 34\nkey ENTER\n"));
    EXPECT_EQ(kredit.Kredit(1), 1234);
    const Spiel start = ZustandAus(Treiber(neu + "key R\nkey ENTER\nkey ENTER\nkey ENTER\nkey TAB\nkey F1\nkey ESC\n"
                                                 "key ENTER\n"));
    EXPECT_EQ(start.Schiffe(1).Zustand, ZUSTAND_FLIEGT);
    EXPECT_EQ(start.Schiffe(1).Planet, 11) << "Tab, then the help, then Enter: the star of the first system";

    for (const HilfeSeite& seite : HILFE_SEITEN()) {
        EXPECT_LE(seite.zeilen.size(), static_cast<size_t>(HILFE_ZEILEN)) << seite.titel;
        for (const char* z : seite.zeilen) EXPECT_LE(T(z).size(), static_cast<size_t>(HILFE_BREITE)) << z;
    }
}

// A click on a star of the map moves the cursor there; a second click chooses it.
TEST(Hilfe, SternkarteAntwortetDerMaus) {
    const std::string neu = NeuesSpielSkript(1, 5000, {"Anna"});
    const Spiel ohne = NeuesSpielZustand(1, 5000);
    const int x = KarteX(ohne, 21), y = KarteY(ohne, 21);
    const std::string klick = Klick(x, y);
    const TreiberLauf lauf = Treiber(neu + "key R\nkey ENTER\nkey ENTER\nkey ENTER\n" + klick + klick);
    const Spiel e = ZustandAus(lauf);
    EXPECT_EQ(e.Schiffe(1).Zustand, ZUSTAND_FLIEGT) << lauf.screen;
    EXPECT_EQ(e.Schiffe(1).Planet, 21);
    EXPECT_NE(lauf.trace.find("Pfeile Leer Tab . A-Z Enter Esc F1 Klick"), std::string::npos)
        << "the keys stand below the map's labels";
}

// F6 over a game the computer houses played for three hundred years: a line a
// house, a legend of names; the screen comes back afterwards.
TEST(Verlauf, GrafikenEinesLangenComputerspiels) {
    const std::string daten = DatenKopie("verlauf");
    fs::create_directories(daten + "/Daten");
    for (const char* endung : {".qvt", ".qvz"})
        fs::copy_file(std::string(QUORVANT_TESTDATEN) + "/computerspiel300" + endung, daten + "/Daten/Computer" + endung);
    const std::string laden = LadeSkript();
    WieGolden(Bild(laden + "key F6\n", "verlauf", daten), "verlauf_bewertung");
    const std::string vorher = Bild(laden, "vorher", daten);
    const std::string nachher = Bild(laden + "key F6\nkey DOWN\nkey DOWN\nkey DOWN\nkey ESC\n", "nachher", daten);
    EXPECT_TRUE(Lesen(vorher) == Lesen(nachher)) << "the screen is as before the graphs";

    // The companion's history is the computer game's, and the loaded year adds to it.
    // Six houses end their turns; the year's save writes "weiter".
    const TreiberLauf weiter =
        Treiber(laden + "key I\nkey ENTER\n" + Mal("key W\nkey ENTER\n", 6) + "type weiter\nkey ENTER\n", "--seed 7", daten);
    std::vector<uint8_t> spiel, zusatz;
    ASSERT_TRUE(DATEI_LESEN(daten + "/Daten/weiter.qvt", spiel)) << weiter.fehler;
    ASSERT_TRUE(DATEI_LESEN(daten + "/Daten/weiter.qvz", zusatz));
    Spiel s;
    std::string fehler;
    ASSERT_TRUE(SPIELSTAND_LESEN(s, spiel, fehler)) << fehler;
    ASSERT_TRUE(BEGLEIT_LESEN(s, zusatz, spiel, fehler)) << fehler;
    ASSERT_EQ(s.VerlaufJahre.size(), 301u);
    EXPECT_EQ(s.VerlaufJahre.front().jahr, 2001);
    EXPECT_EQ(s.VerlaufJahre.back().jahr, 2301);
    EXPECT_EQ(s.Jahr, 2301) << "saved at the start of the year after the loaded one";
    EXPECT_EQ(s.VerlaufJahre.back().haus[0].bargeld, s.Bargeld(1)) << "the saved year is the last one of the history";

    // A history with a value no game can have is damage, even under a right checksum.
    s.VerlaufJahre[10].haus[2].rang = 12;
    const std::vector<uint8_t> falsch = BEGLEIT_BYTES(s, spiel);
    Spiel t;
    ASSERT_TRUE(SPIELSTAND_LESEN(t, spiel, fehler));
    EXPECT_FALSE(BEGLEIT_LESEN(t, falsch, spiel, fehler));
    EXPECT_EQ(Utf8(fehler), "Die Zusatzdatei zum Spielstand ist beschädigt (Verlauf).");
}

// Every year begins with an autosave, three deep; the player's own saves stay
// untouched, and a game loaded from the newest goes on with its history.
TEST(Autosicherung, DreiTiefUndWeiterMitVerlauf) {
    const std::string daten = DatenKopie("auto");
    fs::create_directories(daten + "/Daten");
    std::ofstream(daten + "/Daten/Zorro.qvt", std::ios::binary) << "nicht anfassen";
    const TreiberLauf lauf = Treiber(NeuesSpielSkript(1, 5000, {"Anna"}) + Mal("key W\nkey ENTER\n", 5), "--seed 7", daten);
    EXPECT_EQ(ZustandAus(lauf).Jahr, 2005);
    EXPECT_EQ(Lesen(daten + "/Daten/Zorro.qvt"), "nicht anfassen");
    EXPECT_FALSE(fs::exists(daten + "/Daten/" + AUTOSICHERUNG_NAME(4) + ".qvt"));
    // The newest holds the state before the fifth year, as an ordered save would.
    for (int n = 1; n <= 3; ++n) {
        std::vector<uint8_t> spiel, zusatz;
        ASSERT_TRUE(DATEI_LESEN(daten + "/Daten/" + AUTOSICHERUNG_NAME(n) + ".qvt", spiel));
        ASSERT_TRUE(DATEI_LESEN(daten + "/Daten/" + AUTOSICHERUNG_NAME(n) + ".qvz", zusatz));
        Spiel s;
        std::string fehler;
        ASSERT_TRUE(SPIELSTAND_LESEN(s, spiel, fehler)) << fehler;
        ASSERT_TRUE(BEGLEIT_LESEN(s, zusatz, spiel, fehler)) << fehler;
        EXPECT_EQ(s.Jahr, 2005 - n);
        EXPECT_EQ(s.VerlaufJahre.size(), static_cast<size_t>(5 - n)) << "history up to the year before";
    }
    // Loaded from the newest (the only one left beside Zorro): its year runs, the history goes on.
    for (int n = 2; n <= 3; ++n)
        for (const char* endung : {".qvt", ".qvz"}) fs::remove(daten + "/Daten/" + AUTOSICHERUNG_NAME(n) + endung);
    const TreiberLauf geladen = Treiber("wait 3000\nkey SPACE\nwait 300\nkey N\nkey ENTER\nkey A\nkey ENTER\n"
                                        "key I\nkey ENTER\nkey W\nkey ENTER\ntype Weiter\nkey ENTER\n",
                                        "--seed 7", daten);
    std::vector<uint8_t> spiel, zusatz;
    ASSERT_TRUE(DATEI_LESEN(daten + "/Daten/Weiter.qvt", spiel)) << geladen.screen;
    ASSERT_TRUE(DATEI_LESEN(daten + "/Daten/Weiter.qvz", zusatz));
    Spiel s;
    std::string fehler;
    ASSERT_TRUE(SPIELSTAND_LESEN(s, spiel, fehler) && BEGLEIT_LESEN(s, zusatz, spiel, fehler)) << fehler;
    ASSERT_EQ(s.VerlaufJahre.size(), 5u);
    EXPECT_EQ(s.VerlaufJahre.back().jahr, 2005);

    // A folder that takes nothing: one line in the news, and the game goes on.
    const std::string voll = DatenKopie("auto-voll");
    fs::create_directories(voll + "/Daten/" + AUTOSICHERUNG_NAME(1) + ".qvt.neu");
    const TreiberLauf ohne = Treiber(NeuesSpielSkript(1, 5000, {"Anna"}) + "key W\nkey ENTER\n", "--seed 7", voll);
    EXPECT_NE(ohne.screen.find("Automatische Sicherung fehlgeschlagen!"), std::string::npos) << ohne.screen;
    EXPECT_EQ(ZustandAus(ohne).Jahr, 2001);
}
