// Recording a session in the window and replaying it without one.
#include <gtest/gtest.h>

#include <SDL.h>

#include <cstdlib>
#include <cstring>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

#include "flow/programm.h"
#include "flow/spielstand.h"
#include "screen/headless/headless_plattform.h"
#include "screen/sdl/sdl_plattform.h"
#include "state/spiel.h"

namespace fs = std::filesystem;

namespace {

std::string Ordner(const std::string& name) {
    const fs::path p = fs::temp_directory_path() / ("quorvant-aufnahme-" + std::to_string(::getpid()) + "-" + name);
    fs::remove_all(p);
    fs::create_directories(p);
    return p.string();
}

void Schicken(SDL_Event ev) { SDL_PushEvent(&ev); }

void Druecken(SDL_Keycode k, const char* text = nullptr) {
    SDL_Event ev{};
    ev.type = SDL_KEYDOWN;
    ev.key.state = SDL_PRESSED;
    ev.key.keysym.sym = k;
    Schicken(ev);
    if (!text) return;
    ev = SDL_Event{};
    ev.type = SDL_TEXTINPUT;
    std::strncpy(ev.text.text, text, sizeof ev.text.text - 1);
    Schicken(ev);
}

// The window with a player who presses the next key whenever the game has
// polled a few times, and one key while the intro's banner is still being
// written (which the game drops). He answers the closing question with N.
struct Spieler : SdlPlattform {
    std::deque<std::function<void()>> zuege;
    std::function<void()> imBanner;
    int kurz = 0, lang = 0;
    void schlafen(int ms) override {
        if (ms <= 50) ++kurz;
        else if (ms == 100) ++lang;
        SdlPlattform::schlafen(ms);
    }
    void pumpen() override {
        if (lang == 3 && imBanner) std::exchange(imBanner, nullptr)();
        if (kurz >= 4 && !zuege.empty()) {
            zuege.front()();
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
    p->imBanner = [] { Druecken(SDLK_x, "x"); };
    auto taste = [&](SDL_Keycode k, const char* t = nullptr) { p->zuege.push_back([=] { Druecken(k, t); }); };
    taste(SDLK_SPACE, " ");                                     // ends the scroller
    for (int i = 0; i < 5; ++i) taste(SDLK_RETURN);             // new game, 1 player, 100 systems, low, no limit
    for (const char* z : {"5", "0", "0", "0"}) taste(z[0], z);  // capital
    taste(SDLK_RETURN);
    taste(SDLK_a, "A");
    for (const char* z : {"n", "n", "a"}) taste(z[0], z);
    taste(SDLK_RETURN);
    taste(SDLK_r, "r");                                         // the freighter starts to the next star
    for (int i = 0; i < 3; ++i) taste(SDLK_RETURN);
    taste(SDLK_TAB);
    taste(SDLK_RETURN);
    taste(SDLK_w, "w");                                         // the year
    taste(SDLK_RETURN);
    taste(SDLK_F4);
    p->zuege.push_back([] {
        SDL_Event ev{};
        ev.type = SDL_MOUSEBUTTONUP;
        ev.button.button = SDL_BUTTON_LEFT;
        ev.button.x = 600, ev.button.y = 300;
        Schicken(ev);
    });
    p->zuege.push_back([] {
        SDL_Event ev{};
        ev.type = SDL_QUIT;
        Schicken(ev);
    });

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

    std::ifstream ein(p->aufnahme().pfad());
    std::stringstream skript;
    skript << ein.rdbuf();
    const std::string text = skript.str();
    for (const char* zeile : {"\nseed ", "\nkey X\n", "\ntype A\n", "\nkey TAB\n", "\nkey F4\n", "\nclick 600 300\n",
                              "\nclose\nwait ", "\nanswer no\n"})
        EXPECT_NE(text.find(zeile), std::string::npos) << zeile << " in\n" << text;

    HeadlessPlattform h;
    ASSERT_TRUE(h.skriptLaden(text, fehler)) << fehler;
    ASSERT_TRUE(h.schriftBereit(fehler)) << fehler;
    h.leinwand().bilderLaden(QUORVANT_DATEN_STANDARD);
    auto nach = std::make_unique<Spiel>();
    nach->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    nach->DatenVerzeichnis = ordner + "/Daten";
    EXPECT_EQ(PROGRAMM_AUSFUEHREN(*nach, h), 0);
    EXPECT_TRUE(h.skriptAufgebraucht());
    EXPECT_TRUE(SPIELSTAND_BYTES(*nach) == SPIELSTAND_BYTES(*spiel)) << "the same game, byte for byte";
    EXPECT_TRUE(h.leinwand().kopie() == p->leinwand().kopie()) << "and the same picture";
}

TEST(Aufnahme, ZehnSitzungenBleibenUndEinVersperrterOrdnerHaeltNichtsAuf) {
    const std::string ordner = Ordner("zehn");
    for (int i = 10; i < 22; ++i) std::ofstream(ordner + "/Sitzung-2020-01-01-00-00-" + std::to_string(i) + ".txt") << "key A\n";
    std::ofstream(ordner + "/notiz.txt") << "bleibt";
    Aufnahme a;
    ASSERT_TRUE(a.starten(ordner, 0));
    a.saat(4711);
    a.taste(13, 13, 250);
    a.eingabe(Ereignis{EreignisArt::MouseUp, 0, 2, 30, 40}, 250);
    a.antwort(false, 1250);
    std::vector<std::string> namen;
    for (const auto& e : fs::directory_iterator(ordner)) namen.push_back(e.path().filename().string());
    std::sort(namen.begin(), namen.end());
    ASSERT_EQ(namen.size(), 11u) << "ten recordings and the note";
    EXPECT_EQ(namen[0], "Sitzung-2020-01-01-00-00-13.txt") << "the three oldest went";
    EXPECT_EQ(namen[10], "notiz.txt");
    std::ifstream ein(a.pfad());
    std::stringstream s;
    s << ein.rdbuf();
    EXPECT_EQ(s.str().substr(s.str().find('\n') + 1), "seed 4711\nwait 250\nkey ENTER\nwait 0\nclick 30 40\nwait 1000\nanswer no\n")
        << "each line is in the file at once";

    std::ofstream(ordner + "/datei") << "";
    Aufnahme gesperrt;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(gesperrt.starten(ordner + "/datei/Aufnahmen", 0));
    gesperrt.taste(13, 13, 5);  // nothing, and no crash
    EXPECT_NE(testing::internal::GetCapturedStderr().find("keine Aufnahme"), std::string::npos);
}

TEST(Aufnahme, VollePlatteBeendetNurDieAufnahme) {
    const std::string ordner = Ordner("voll");
    rlimit alt{};
    getrlimit(RLIMIT_FSIZE, &alt);
    rlimit klein = alt;
    klein.rlim_cur = 300;  // the disk is full after 300 bytes
    std::signal(SIGXFSZ, SIG_IGN);
    Aufnahme a;
    testing::internal::CaptureStderr();
    setrlimit(RLIMIT_FSIZE, &klein);
    ASSERT_TRUE(a.starten(ordner, 0));
    for (int i = 0; i < 100; ++i) a.taste(13, 13, i);
    setrlimit(RLIMIT_FSIZE, &alt);
    std::signal(SIGXFSZ, SIG_DFL);
    const std::string fehler = testing::internal::GetCapturedStderr();
    EXPECT_FALSE(a.laeuft());
    EXPECT_NE(fehler.find("bricht ab"), std::string::npos);
    EXPECT_EQ(fehler.find('\n'), fehler.size() - 1) << "one line: " << fehler;
}
