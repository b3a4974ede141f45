// The window platform under SDL's dummy video driver: keys, clicks, closing,
// sleeping and the box drawn on the canvas when SDL can show none.
#include <gtest/gtest.h>

#include <SDL.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "screen/sdl/sdl_plattform.h"
#include "state/text.h"

namespace {

struct SdlTest : ::testing::Test {
    std::unique_ptr<SdlPlattform> p;
    void SetUp() override {
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        p = std::make_unique<SdlPlattform>();
        std::string fehler;
        ASSERT_TRUE(p->starten(fehler)) << fehler;
        p->pumpen();
        Ereignis e;
        while (p->ereignisHolen(e)) {}
    }
    void TearDown() override { p.reset(); }

    static void taste(SDL_Keycode k, Uint16 mod = KMOD_NONE, Uint8 wiederholt = 0) {
        SDL_Event ev{};
        ev.type = SDL_KEYDOWN;
        ev.key.state = SDL_PRESSED;
        ev.key.repeat = wiederholt;
        ev.key.keysym.sym = k;
        ev.key.keysym.mod = mod;
        SDL_PushEvent(&ev);
    }
    static void tippen(const char* utf8) {
        SDL_Event ev{};
        ev.type = SDL_TEXTINPUT;
        std::strncpy(ev.text.text, utf8, sizeof ev.text.text - 1);
        SDL_PushEvent(&ev);
    }
    std::vector<Ereignis> holen() {
        p->pumpen();
        std::vector<Ereignis> r;
        Ereignis e;
        while (p->ereignisHolen(e)) r.push_back(e);
        return r;
    }
};

}  // namespace

TEST_F(SdlTest, TastenWerdenWindowsCodes) {
    taste(SDLK_a);
    tippen("a");
    taste(SDLK_RETURN);
    taste(SDLK_F3);
    taste(SDLK_LSHIFT);      // nothing
    taste(SDLK_F11);         // the window's own key
    taste(SDLK_F11);
    taste(SDLK_RETURN, KMOD_LALT);
    taste(SDLK_RETURN, KMOD_LALT);
    taste(SDLK_DOWN, KMOD_NONE, 1);  // auto-repeat comes through
    taste(SDLK_7);
    tippen("\xC3\xA4\xE2\x82\xAC\xE2\x98\x83");  // ä, € and a snowman the code page lacks
    const auto e = holen();
    ASSERT_EQ(e.size(), 9u);
    EXPECT_TRUE(e[0].art == EreignisArt::KeyDown && e[0].code == 65);
    EXPECT_TRUE(e[1].art == EreignisArt::KeyPress && e[1].code == 'a');
    EXPECT_TRUE(e[2].art == EreignisArt::KeyDown && e[2].code == 13);
    EXPECT_TRUE(e[3].art == EreignisArt::KeyPress && e[3].code == 13);
    EXPECT_TRUE(e[4].art == EreignisArt::KeyDown && e[4].code == Taste::F3);
    EXPECT_TRUE(e[5].art == EreignisArt::KeyDown && e[5].code == Taste::Runter);
    EXPECT_TRUE(e[6].art == EreignisArt::KeyDown && e[6].code == '7');
    EXPECT_TRUE(e[7].art == EreignisArt::KeyPress && e[7].code == 0xE4);
    EXPECT_TRUE(e[8].art == EreignisArt::KeyPress && e[8].code == 0x80);
}

TEST_F(SdlTest, KlickUndSchliessen) {
    SDL_Event ev{};
    ev.type = SDL_MOUSEBUTTONUP;
    ev.button.button = SDL_BUTTON_RIGHT;
    ev.button.x = 300;
    ev.button.y = 200;
    SDL_PushEvent(&ev);
    ev = SDL_Event{};
    ev.type = SDL_QUIT;
    SDL_PushEvent(&ev);
    const auto e = holen();
    ASSERT_EQ(e.size(), 2u);
    EXPECT_TRUE(e[0].art == EreignisArt::MouseUp && e[0].knopf == 2 && e[0].x == 300 && e[0].y == 200);
    EXPECT_TRUE(e[1].art == EreignisArt::Schliessen);
}

TEST_F(SdlTest, SchlafenHaeltEingabenFest) {
    const long long t0 = p->uhrMs();
    taste(SDLK_SPACE);
    p->schlafen(120);
    EXPECT_GE(p->uhrMs() - t0, 120);
    p->schlafen(5);
    const auto e = holen();
    ASSERT_EQ(e.size(), 1u);
    EXPECT_EQ(e[0].code, Taste::Leer);
}

TEST_F(SdlTest, GemalteFrageBox) {
    p->titelSetzen(T("Quorvant – Prüfung"));
    p->box(0, 0, 1023, 767, 16711680);
    p->text("Hallo", 15, 10, 10, 65535);
    const std::vector<uint32_t> vorher = p->leinwand().kopie();

    taste(SDLK_n);
    tippen("n");
    EXPECT_FALSE(p->frage("Quorvant", T("Spiel beenden?")));
    EXPECT_TRUE(p->leinwand().kopie() == vorher);
    EXPECT_TRUE(holen().empty());  // the answer's keys stay in the box

    taste(SDLK_j);
    EXPECT_TRUE(p->frage("Quorvant", T("Wirklich?")));
    taste(SDLK_ESCAPE);
    EXPECT_FALSE(p->frage("Quorvant", "?"));
    taste(SDLK_RETURN);
    p->meldung("Quorvant", T("Musikdatei nicht gefunden!\nWeiter geht's."), BoxArt::Warnung);
    EXPECT_TRUE(p->leinwand().kopie() == vorher);
    EXPECT_TRUE(holen().empty());
}
