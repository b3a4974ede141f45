// A person alone at the keyboard against five computer houses, in the window.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <memory>

#include "bots/gegner.h"
#include "screen/sdl/sdl_plattform.h"
#include "sdl_hilfe.h"

namespace fs = std::filesystem;

namespace {

using Uhr = std::chrono::steady_clock;

// The person: the keys of the start one by one, then in the game what the
// screen asks for. He presses only when the game has polled a few times and
// no computer house is on turn, as a person waits for his turn.
struct Mensch : SdlPlattform {
    Spiel* s = nullptr;
    Gegner* gegner = nullptr;
    std::deque<std::pair<SDL_Keycode, const char*>> start;
    std::deque<std::pair<SDL_Keycode, const char*>> tasten;
    long sichernIm = -1;      // the year in which he orders a save
    long schliessenAb = 0;    // from this year on he closes the window
    bool gesichert = false, benannt = false;
    bool musikAus = false;
    int berichte = 0;         // computer turns' boxes he saw
    int kurz = 0;
    double laengstesWarten = 0;  // seconds from his end of turn to his next turn
    Uhr::time_point zugEnde{};

    void schlafen(int ms) override {
        if (ms <= 50) ++kurz;
        SdlPlattform::schlafen(ms);
    }
    void pumpen() override {
        if (musikAus && gegner->plattform().computerAmZug()) {
            musikAus = false;  // F5 during a computer's turn: the music goes off, the computer plays on
            Druecken(SDLK_F5);
        }
        if (kurz >= 3 && !gegner->plattform().computerAmZug()) {
            kurz = 0;
            if (tasten.empty() && start.empty()) planen();
            auto& quelle = start.empty() ? tasten : start;
            if (!quelle.empty()) {
                Druecken(quelle.front().first, quelle.front().second);
                quelle.pop_front();
            }
        }
        SdlPlattform::pumpen();
    }
    bool frage(const std::string& titel, const std::string& text) override {
        Druecken(SDLK_n, "n");
        return SdlPlattform::frage(titel, text);
    }
    void planen() {
        const ComputerPlattform& bild = gegner->plattform();
        if (bild.textBei(80, 80) == "Die Z\xFCge der Computerspieler") {
            ++berichte;
            tasten.push_back({SDLK_SPACE, " "});
        } else if (bild.textBei(50, 630) == "Dateiname: " && gesichert && !benannt) {
            benannt = true;
            for (const char* c : {"r", "o", "l", "l", "e", "n"}) tasten.push_back({static_cast<SDL_Keycode>(c[0]), c});
            tasten.push_back({SDLK_RETURN, nullptr});
        } else if (!s->ImZug) {
            tasten.push_back({SDLK_SPACE, " "});  // a page of the year (a story, an invention) waits for him
        } else if (s->Bildschirm == "HAUPT" && s->Computer(s->AktSpieler) == 0) {
            if (zugEnde != Uhr::time_point{})
                laengstesWarten = std::max(laengstesWarten, std::chrono::duration<double>(Uhr::now() - zugEnde).count());
            zugEnde = {};
            if (s->Jahr >= schliessenAb) {
                tasten.push_back({-1, nullptr});
            } else if (s->Jahr == sichernIm && !gesichert) {
                gesichert = true;
                tasten.push_back({SDLK_i, "i"});
                tasten.push_back({SDLK_RETURN, nullptr});
            } else {
                tasten.push_back({SDLK_w, "w"});
                tasten.push_back({SDLK_RETURN, nullptr});
                if (s->SichernAmRundenende == 0) zugEnde = Uhr::now();  // a save's dialog is his own time
            }
        }
    }
};

struct Sitzung {
    std::unique_ptr<Spiel> spiel = std::make_unique<Spiel>();
    std::unique_ptr<Mensch> mensch = std::make_unique<Mensch>();
    std::unique_ptr<Gegner> gegner;
    explicit Sitzung(const std::string& daten) {
        std::string fehler;
        EXPECT_TRUE(mensch->starten(fehler)) << fehler;
        spiel->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
        spiel->DatenVerzeichnis = daten;
        mensch->leinwand().bilderLaden(spiel->ProgrammVerzeichnis);
        gegner = std::make_unique<Gegner>(*mensch);
        mensch->s = spiel.get();
        mensch->gegner = gegner.get();
    }
    int spielen() { return gegner->spielen(*spiel); }
};

long SchiffeDerComputer(const Spiel& s) {
    long n = 0;
    for (int i = 1; i <= s.HoechstesSchiff; ++i)
        if (!s.Schiffe(i).Typ.empty() && s.Schiffe(i).Besitzer >= 2 && s.Schiffe(i).Besitzer <= 6) ++n;
    return n;
}

}  // namespace

TEST(Gegner, EinMenschGegenFuenfComputerSichertLaedtUndSpieltWeiter) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    const std::string daten = SdlTestOrdner("gegner") + "/Daten";
    {
        // Six houses; the person names himself and marks the other five with F2.
        Sitzung a(daten);
        const SDL_Keycode E = SDLK_RETURN;
        a.mensch->start = {{SDLK_DOWN, 0}, {E, 0}, {'6', "6"}, {E, 0}, {E, 0}, {E, 0}, {E, 0},
                           {'5', "5"}, {'0', "0"}, {'0', "0"}, {'0', "0"}, {E, 0},
                           {'m', "M"}, {'a', "a"}, {'x', "x"}, {E, 0}};
        for (int p = 2; p <= 6; ++p) {
            a.mensch->start.push_back({SDLK_F2, nullptr});
            a.mensch->start.push_back({E, nullptr});
        }
        a.mensch->sichernIm = 2009;
        a.mensch->musikAus = true;
        a.mensch->schliessenAb = 2010;
        EXPECT_EQ(a.spielen(), 0);
        const Spiel& s = *a.spiel;
        EXPECT_EQ(s.Jahr, 2010);
        EXPECT_EQ(s.SpielerName(1), "Max");
        EXPECT_EQ(s.SpielerName(4), "Computer4") << "a computer house without a name gets one";
        EXPECT_EQ(s.Computer(1), 0);
        for (int p = 2; p <= 6; ++p) EXPECT_EQ(s.Computer(p), -1) << "house " << p;
        EXPECT_GE(a.mensch->berichte, 9) << "after each year the person read what the computers did";
        EXPECT_EQ(s.SoundAn, 0) << "F5 reached the game during a computer's turn";
        EXPECT_GT(SchiffeDerComputer(s), 5) << "the computer houses bought ships";
        EXPECT_TRUE(fs::exists(daten + "/rollen.qvt"));
        std::printf("Longest wait for the person's next turn (five computer turns and the year): %.3f s\n",
                    a.mensch->laengstesWarten);
    }
    {
        // The saved game loads with the houses' roles, and the computers play on.
        Sitzung b(daten);
        b.mensch->start = {{SDLK_DOWN, 0}, {SDLK_n, "n"}, {SDLK_RETURN, 0}, {SDLK_r, "r"}, {SDLK_RETURN, 0}};
        b.mensch->schliessenAb = 2013;
        EXPECT_EQ(b.spielen(), 0);
        const Spiel& s = *b.spiel;
        EXPECT_EQ(s.Jahr, 2013);
        EXPECT_EQ(s.Computer(1), 0);
        for (int p = 2; p <= 6; ++p) EXPECT_EQ(s.Computer(p), -1) << "house " << p << " is still the computer's";
        EXPECT_GE(b.mensch->berichte, 2);
    }
}
