// Music through SDL_mixer without a sound card: never a crash, at worst silence.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "screen/sdl/sdl_plattform.h"

namespace {

// A tiny standard MIDI file: piano, four notes, end of track.
std::vector<uint8_t> KleinesMidi() {
    std::vector<uint8_t> spur = {0x00, 0xC0, 0x00};  // program 0
    for (uint8_t note : {60, 64, 67, 72}) {
        const uint8_t an[] = {0x00, 0x90, note, 0x50, 0x30, 0x80, note, 0x40};
        spur.insert(spur.end(), std::begin(an), std::end(an));
    }
    const uint8_t ende[] = {0x00, 0xFF, 0x2F, 0x00};
    spur.insert(spur.end(), std::begin(ende), std::end(ende));
    std::vector<uint8_t> d = {'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 0, 0, 1, 0, 96, 'M', 'T', 'r', 'k'};
    const uint32_t n = static_cast<uint32_t>(spur.size());
    d.push_back(static_cast<uint8_t>(n >> 24));
    d.push_back(static_cast<uint8_t>(n >> 16));
    d.push_back(static_cast<uint8_t>(n >> 8));
    d.push_back(static_cast<uint8_t>(n));
    d.insert(d.end(), spur.begin(), spur.end());
    return d;
}

std::string Datei(const std::string& name, const std::vector<uint8_t>& inhalt) {
    const auto ordner = std::filesystem::temp_directory_path() / ("quorvant-sdl-" + std::to_string(::getpid()));
    std::filesystem::create_directories(ordner);
    const std::string pfad = (ordner / name).string();
    std::ofstream aus(pfad, std::ios::binary);
    aus.write(reinterpret_cast<const char*>(inhalt.data()), static_cast<std::streamsize>(inhalt.size()));
    return pfad;
}

}  // namespace

TEST(SdlMusik, SpieltOderBleibtStumm) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    const std::string midi = Datei("probe.mid", KleinesMidi());
    const std::string kaputt = Datei("kaputt.mid", {'M', 'T', 'h', 'x', 1, 2, 3});
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
    std::filesystem::remove_all(std::filesystem::path(midi).parent_path());
}
