// Recording a session in the window and replaying it without one.
#include <gtest/gtest.h>

#include <SDL.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "flow/programm.h"
#include "flow/spielstand.h"
#include "screen/headless/headless_plattform.h"
#include "screen/sdl/sdl_plattform.h"
#include "sdl_hilfe.h"

namespace fs = std::filesystem;

namespace {

std::string Ordner(const std::string& name) { return SdlTestOrdner("aufnahme-" + name); }

std::string Lesen(const std::string& pfad) {
    std::stringstream s;
    s << std::ifstream(pfad).rdbuf();
    return s.str();
}

// The window with a player who presses the next key whenever the game has
// polled a few times, and an X while the intro's banner is still being
// written (which the game drops). He answers the closing question with N.
struct Spieler : SdlPlattform {
    std::deque<std::pair<SDL_Keycode, const char*>> zuege;
    int kurz = 0, lang = 0;
    void schlafen(int ms) override {
        ms <= 50 ? ++kurz : ++lang;
        SdlPlattform::schlafen(ms);
    }
    void pumpen() override {
        if (lang == 3 && ++lang) Druecken(SDLK_x, "x");
        if (kurz >= 4 && !zuege.empty()) {
            Druecken(zuege.front().first, zuege.front().second);
            zuege.pop_front();
            kurz = 0;
        }
        SdlPlattform::pumpen();
    }
    bool frage(const std::string& titel, const std::string& text) override {
        Druecken(SDLK_n, "n");
        return SdlPlattform::frage(titel, text);
    }
};

}  // namespace

TEST(Aufnahme, SitzungImFensterSpieltSichOhneFensterGleichNach) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    const std::string ordner = Ordner("sitzung");
    auto spiel = std::make_unique<Spiel>();
    auto p = std::make_unique<Spieler>();
    std::string fehler;
    ASSERT_TRUE(p->starten(fehler)) << fehler;
    // Down ends the intro (had the X ended it, Down would say "nein" to a new
    // game and load the game the replay finds), then a new game of Anna with 5000 SD, her freighter to the next
    // star, the year, F4, a click, the close.
    const SDL_Keycode E = SDLK_RETURN;
    p->zuege = {{SDLK_DOWN, 0}, {E, 0}, {E, 0}, {E, 0}, {E, 0}, {E, 0}, {'5', "5"}, {'0', "0"}, {'0', "0"},
                {'0', "0"}, {E, 0}, {'a', "A"}, {'n', "n"}, {'n', "n"}, {'a', "a"}, {E, 0}, {'r', "r"}, {E, 0},
                {E, 0}, {E, 0}, {SDLK_TAB, 0}, {E, 0}, {'w', "w"}, {E, 0}, {SDLK_F4, 0}, {0, 0}, {-1, 0}};
    spiel->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    spiel->DatenVerzeichnis = ordner + "/Daten";
    p->leinwand().bilderLaden(spiel->ProgrammVerzeichnis);
    ASSERT_TRUE(p->aufnahme().starten(ordner + "/Aufnahmen", p->uhrMs()));
    EXPECT_EQ(PROGRAMM_AUSFUEHREN(*spiel, *p), 0);
    EXPECT_TRUE(p->zuege.empty());
    ASSERT_EQ(spiel->Jahr, 2001);
    EXPECT_EQ(spiel->SpielerName(1), "Anna");
    EXPECT_EQ(spiel->Schiffe(1).Zustand, 1) << "the freighter is under way";
    EXPECT_EQ(spiel->ProduktionAn, 0);

    const std::string text = Lesen(p->aufnahme().pfad());
    for (const char* zeile : {"\nseed ", "\nkey X\n", "\ntype A\n", "\nkey TAB\n", "\nclick 600 300\n", "\nclose\nwait "})
        EXPECT_NE(text.find(zeile), std::string::npos) << zeile << " in\n" << text;

    HeadlessPlattform h;
    ASSERT_TRUE(h.skriptLaden(text, fehler)) << fehler;
    ASSERT_TRUE(h.schriftBereit(fehler)) << fehler;
    h.leinwand().bilderLaden(QUORVANT_DATEN_STANDARD);
    fs::create_directories(ordner + "/Daten");
    ASSERT_TRUE(SPIELSTAND_DATEI_SCHREIBEN(*spiel, ordner + "/Daten/a.qvt", fehler)) << fehler;
    auto nach = std::make_unique<Spiel>();
    nach->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    nach->DatenVerzeichnis = ordner + "/Daten";
    EXPECT_EQ(PROGRAMM_AUSFUEHREN(*nach, h), 0);
    EXPECT_TRUE(h.skriptAufgebraucht());
    EXPECT_TRUE(SPIELSTAND_BYTES(*nach) == SPIELSTAND_BYTES(*spiel)) << "the same game, byte for byte";
    EXPECT_TRUE(h.leinwand().kopie() == p->leinwand().kopie()) << "and the same picture";
}

TEST(Aufnahme, ZehnSitzungenBleibenUndNichtsHaeltDasSpielAuf) {
    const std::string ordner = Ordner("zehn");
    for (int i = 10; i < 22; ++i) std::ofstream(ordner + "/Sitzung-2020-01-01-00-00-" + std::to_string(i) + ".txt");
    std::ofstream(ordner + "/notiz.txt");
    Aufnahme a;
    ASSERT_TRUE(a.starten(ordner, 0));
    a.saat(4711);
    a.taste(13, 13, 250);
    a.antwort(false, 1250);
    std::vector<std::string> namen;
    for (const auto& e : fs::directory_iterator(ordner)) namen.push_back(e.path().filename().string());
    std::sort(namen.begin(), namen.end());
    ASSERT_EQ(namen.size(), 11u) << "ten recordings and the note";
    EXPECT_EQ(namen[0], "Sitzung-2020-01-01-00-00-13.txt") << "the three oldest went";
    const std::string text = Lesen(a.pfad());
    EXPECT_EQ(text.substr(text.find('\n') + 1), "seed 4711\nwait 250\nkey ENTER\nwait 1000\nanswer no\n")
        << "each line is in the file at once";

    // No rights: no recording. A full disk: the recording stops, with one line.
    testing::internal::CaptureStderr();
    EXPECT_FALSE(Aufnahme().starten(ordner + "/notiz.txt/Aufnahmen", 0));
    rlimit alt{};
    getrlimit(RLIMIT_FSIZE, &alt);
    rlimit voll = alt;
    voll.rlim_cur = 300;
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &voll);
    Aufnahme b;
    EXPECT_TRUE(b.starten(ordner, 0));
    for (int i = 0; i < 100; ++i) b.taste(13, 13, i);
    setrlimit(RLIMIT_FSIZE, &alt);
    std::signal(SIGXFSZ, SIG_DFL);
    EXPECT_FALSE(b.laeuft());
    const std::string fehler = testing::internal::GetCapturedStderr();
    EXPECT_NE(fehler.find("keine Aufnahme"), std::string::npos) << fehler;
    EXPECT_EQ(fehler.find("bricht ab"), fehler.rfind("bricht ab")) << fehler;
    EXPECT_NE(fehler.find("bricht ab"), std::string::npos) << fehler;
}
