// The enlarged window under SDL's dummy video driver: what it shows is drawn
// at its own scale, a new size makes the whole picture anew, clicks find
// their canvas pixel, and the canvas itself stays 1024 x 768.
#include <gtest/gtest.h>

#include <SDL.h>

#include <cstdlib>
#include <memory>
#include <set>

#include "screen/sdl/sdl_plattform.h"

namespace {

constexpr Farbe ROT = 255, GRUEN = 65280, WEISS = 16777215;

struct ScharfTest : ::testing::Test {
    std::unique_ptr<SdlPlattform> p;
    void SetUp() override {
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        p = std::make_unique<SdlPlattform>();
        std::string fehler;
        ASSERT_TRUE(p->starten(fehler)) << fehler;
        ASSERT_EQ(p->leinwand().bilderLaden(QUORVANT_DATEN_STANDARD), 44);
    }
    void TearDown() override { p.reset(); }

    void groesse(int b, int h) {
        SDL_SetWindowSize(SDL_GetWindowFromID(1), b, h);
        p->pumpen();
        p->schlafen(20);  // the picture goes out once the pause is over
        Ereignis e;
        while (p->ereignisHolen(e)) {}
    }
    // 0xRRGGBB of a window pixel.
    uint32_t fenster(int x, int y) {
        SDL_Surface* f = p->fensterFlaeche();
        const auto* zeile = static_cast<const uint8_t*>(f->pixels) + static_cast<ptrdiff_t>(y) * f->pitch;
        Uint8 r, g, b;
        SDL_GetRGB(reinterpret_cast<const uint32_t*>(zeile)[x], f->format, &r, &g, &b);
        return (uint32_t(r) << 16) | (uint32_t(g) << 8) | b;
    }
    void szene() {
        p->box(10, 10, 19, 19, ROT);
        p->text("Quorvant", 15, 100, 100, GRUEN);
        p->kreis(300, 300, 20, WEISS, false, 1);
        p->linie(400, 400, 500, 450, WEISS, 1);
        p->bild("Frachter", 600, 100);
        p->schlafen(20);
    }
    std::vector<Ereignis> klick(int x, int y) {
        SDL_Event ev{};
        ev.type = SDL_MOUSEBUTTONUP;
        ev.button.button = SDL_BUTTON_LEFT;
        ev.button.x = x;
        ev.button.y = y;
        SDL_PushEvent(&ev);
        p->pumpen();
        std::vector<Ereignis> r;
        Ereignis e;
        while (p->ereignisHolen(e)) r.push_back(e);
        return r;
    }
};

}  // namespace

TEST_F(ScharfTest, DoppelteGroesseZeichnetNeuStattZuVergroessern) {
    szene();
    groesse(2048, 1536);
    ASSERT_TRUE(p->hochbild().aktiv());
    EXPECT_DOUBLE_EQ(p->hochbild().massstab(), 2.0);
    // Boxes land on exact window pixels.
    EXPECT_EQ(fenster(20, 20), 0xFF0000u);
    EXPECT_EQ(fenster(39, 39), 0xFF0000u);
    EXPECT_EQ(fenster(19, 20), 0u);
    EXPECT_EQ(fenster(40, 39), 0u);
    // Pictures: each canvas pixel becomes a 2 x 2 block.
    for (int y = 0; y < 68; y += 7)
        for (int x = 0; x < 68; x += 5) {
            const uint32_t c = p->leinwand().pixelAn(600 + x, 100 + y) & 0xFFFFFFu;
            ASSERT_EQ(fenster(1200 + 2 * x, 200 + 2 * y), c);
            ASSERT_EQ(fenster(1201 + 2 * x, 201 + 2 * y), c);
        }
    // Text from the outlines at twice the size: finer edges than an enlarged
    // canvas could have, where every 2 x 2 block would be one colour.
    bool feiner = false;
    std::set<uint32_t> toene;
    for (int y = 200; y < 246; y += 2)
        for (int x = 200; x < 200 + 8 * 24; x += 2) {
            toene.insert(fenster(x, y));
            if (fenster(x, y) != fenster(x + 1, y) || fenster(x, y) != fenster(x, y + 1)) feiner = true;
        }
    EXPECT_TRUE(feiner);
    EXPECT_GT(toene.size(), 2u);
    // The canvas keeps its size and its pixels.
    EXPECT_EQ(p->leinwand().pixelAn(10, 10) & 0xFFFFFFu, 0xFF0000u);
}

TEST_F(ScharfTest, NeueGroesseMachtAllesNeu) {
    szene();
    groesse(2048, 1536);
    groesse(1536, 1152);  // scale 1.5: the box 10..19 covers window pixels 15..29
    EXPECT_EQ(fenster(15, 15), 0xFF0000u);
    EXPECT_EQ(fenster(29, 29), 0xFF0000u);
    EXPECT_EQ(fenster(14, 15), 0u);
    EXPECT_EQ(fenster(30, 29), 0u);
    // Back to the canvas size: the window shows the canvas pixel for pixel.
    groesse(1024, 768);
    EXPECT_FALSE(p->hochbild().aktiv());
    int anders = 0;
    for (int y = 0; y < Leinwand::HOEHE; ++y)
        for (int x = 0; x < Leinwand::BREITE; ++x)
            anders += fenster(x, y) != (p->leinwand().pixelAn(x, y) & 0xFFFFFFu);
    EXPECT_EQ(anders, 0);
}

TEST_F(ScharfTest, UeberdeckteSchritteWerdenVergessen) {
    groesse(2048, 1536);
    // A prompt prints its answer at the same place again and again.
    for (int i = 0; i < 5000; ++i) {
        p->box(438, 280, 438 + 72, 280 + 23, 0);
        p->text(i % 2 ? "  ja" : "nein", 15, 438, 280, ROT);
    }
    p->kreis(300, 300, 20, WEISS, true, 1);
    EXPECT_LE(p->hochbild().schritte(), 2049u);
    p->schlafen(20);
    const uint32_t mitte = fenster(601, 601);
    groesse(1600, 1200);
    groesse(2048, 1536);
    EXPECT_EQ(fenster(601, 601), mitte);
    EXPECT_EQ(mitte, 0xFFFFFFu);
}

TEST_F(ScharfTest, KlicksTreffenDenPunktDerLeinwand) {
    groesse(2048, 1600);  // scale 2, a black bar of 32 pixels above and below
    auto e = klick(201, 32 + 401);
    ASSERT_EQ(e.size(), 1u);
    EXPECT_TRUE(e[0].art == EreignisArt::MouseUp && e[0].x == 100 && e[0].y == 200);
    EXPECT_TRUE(klick(500, 10).empty());    // on the bar
    EXPECT_TRUE(klick(500, 1590).empty());
}

TEST_F(ScharfTest, GemalteBoxHinterlaesstNichts) {
    szene();
    groesse(2048, 1536);
    const uint32_t vorher = fenster(1024, 768), text = fenster(230, 224);
    SDL_Event ev{};
    ev.type = SDL_KEYDOWN;
    ev.key.keysym.sym = SDLK_RETURN;
    SDL_PushEvent(&ev);
    p->meldung("Quorvant", "Eine Meldung mitten im Bild.", BoxArt::Info);
    EXPECT_EQ(fenster(1024, 768), vorher);
    EXPECT_EQ(fenster(230, 224), text);
}
