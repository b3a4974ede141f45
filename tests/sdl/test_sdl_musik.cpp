// Music through SDL_mixer without a sound card: never a crash, at worst silence.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "screen/sdl/sdl_plattform.h"

TEST(SdlMusik, SpieltOderBleibtStumm) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    const std::string midi = std::string(QUORVANT_DATEN_STANDARD) + "/Musik/OrdenQuorvant.mid";
    const auto ordner = std::filesystem::temp_directory_path() / ("quorvant-sdl-" + std::to_string(::getpid()));
    std::filesystem::create_directories(ordner);
    const std::string kaputt = (ordner / "kaputt.mid").string();
    std::ofstream(kaputt, std::ios::binary) << "MThx\x01\x02\x03";
    {
        SdlPlattform p;
        const bool gespielt = p.musikSpielen(midi);
        if (!gespielt) std::fprintf(stderr, "(keine Tonausgabe hier; die Musik bleibt stumm)\n");
        p.musikStoppen();
        p.musikStoppen();  // twice is harmless
        EXPECT_EQ(p.musikSpielen(midi), gespielt);  // the next piece replaces the last
        EXPECT_EQ(p.musikSpielen(midi), gespielt);
        EXPECT_FALSE(p.musikSpielen("/gibt/es/nicht.mid"));
        p.musikSpielen(kaputt);  // a broken file may be refused or play nothing, but never crash
        p.musikStoppen();
        EXPECT_EQ(p.musikSpielen(midi), gespielt);
    }  // closes while a piece may still play
    std::filesystem::remove_all(ordner);
}
