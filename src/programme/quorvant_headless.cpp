// quorvant-headless: the game from its start on the headless platform, fed
// by a script, writing what a test wants to see.
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <unistd.h>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "bots/computerspieler.h"
#include "flow/programm.h"
#include "flow/spielstand.h"
#include "screen/headless/headless_plattform.h"
#include "state/spiel.h"

namespace {

void Hilfe() {
    std::fprintf(stderr,
                 "Aufruf: quorvant-headless [--data DIR] [--seed N] [--script DATEI|-] [--max-ms MS]\n"
                 "                          [--screen DATEI] [--png DATEI] [--state DATEI] [--trace DATEI]\n"
                 "       quorvant-headless --bots P --years Y [--systems N] [--capital C] [--seed S]\n"
                 "                          [--check] [--report DATEI] [--state DATEI] [--load SPIELSTAND]\n"
                 "                          [--keep SPIELSTAND]\n");
}

bool Schreiben(const std::string& pfad, const std::string& inhalt) {
    std::ofstream aus(pfad, std::ios::binary);
    aus << inhalt;
    return static_cast<bool>(aus);
}

}  // namespace

int main(int argc, char** argv) {
    std::string daten = QUORVANT_DATEN_STANDARD, skript, screen, png, state, trace;
    long long seed = -1, maxMs = 86400000LL;
    BotAuftrag bots;
    bool mitBots = false, mitJahren = false, mitDaten = false;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        auto wert = [&]() -> std::string {
            if (i + 1 >= argc) {
                std::fprintf(stderr, "Option %s braucht einen Wert.\n", a.c_str());
                std::exit(2);
            }
            return argv[++i];
        };
        if (a == "--data") { daten = wert(); mitDaten = true; }
        else if (a == "--seed") seed = std::stoll(wert());
        else if (a == "--script") skript = wert();
        else if (a == "--max-ms") maxMs = std::stoll(wert());
        else if (a == "--screen") screen = wert();
        else if (a == "--png") png = wert();
        else if (a == "--state") state = wert();
        else if (a == "--trace") trace = wert();
        else if (a == "--bots") { bots.spieler = std::stoi(wert()); mitBots = true; }
        else if (a == "--years") { bots.jahre = std::stol(wert()); mitJahren = true; }
        else if (a == "--systems") bots.systeme = std::stoi(wert());
        else if (a == "--capital") bots.kapital = std::stoi(wert());
        else if (a == "--check") bots.pruefen = true;
        else if (a == "--report") bots.bericht = wert();
        else if (a == "--load") bots.laden = wert();
        else if (a == "--keep") bots.behalten = wert();
        else if (a == "--help" || a == "-h") { Hilfe(); return 0; }
        else {
            std::fprintf(stderr, "Unbekannte Option: %s\n", a.c_str());
            Hilfe();
            return 2;
        }
    }

    auto plattform = std::make_unique<HeadlessPlattform>();
    std::string fehler;
    if (!skript.empty()) {
        std::stringstream inhalt;
        if (skript == "-") {
            inhalt << std::cin.rdbuf();
        } else {
            std::ifstream ein(skript, std::ios::binary);
            if (!ein) {
                std::fprintf(stderr, "Skript '%s' nicht gefunden.\n", skript.c_str());
                return 2;
            }
            inhalt << ein.rdbuf();
        }
        if (!plattform->skriptLaden(inhalt.str(), fehler)) {
            std::fprintf(stderr, "%s\n", fehler.c_str());
            return 2;
        }
    }
    if (!plattform->schriftBereit(fehler)) {
        std::fprintf(stderr, "%s\n", fehler.c_str());
        return 1;
    }
    plattform->leinwand().bilderLaden(daten);
    if (seed >= 0) plattform->saatFestlegen(static_cast<uint32_t>(seed));
    plattform->maxMsFestlegen(maxMs);
    plattform->spurAufzeichnen(!trace.empty());

    auto spiel = std::make_unique<Spiel>();
    spiel->ProgrammVerzeichnis = daten;
    // Without --data the game reads the source tree's data but keeps its saves
    // (the autosaves of every year too) in a folder of the run's own.
    std::filesystem::path eigeneDaten;
    if (!mitDaten) {
        eigeneDaten = std::filesystem::temp_directory_path() / ("quorvant-headless-" + std::to_string(::getpid()));
        spiel->DatenVerzeichnis = (eigeneDaten / "Daten").string();
    }
    int status = 0;
    if (mitBots && !bots.laden.empty()) {
        // The houses of the saved game: --bots, if given, must say as many.
        const int n = BOTS_SPIELSTAND_PRUEFEN(bots.laden, fehler);
        if (n == 0 || bots.spieler != n) {
            std::fprintf(stderr, "%s\n", n == 0 ? fehler.c_str() : ("Der Spielstand hat " + std::to_string(n) + " Spieler.").c_str());
            return 2;
        }
    }
    if (mitBots) {
        if (bots.spieler < 1 || bots.spieler > 6 || !mitJahren || bots.jahre < 1 || !SYSTEME_ERLAUBT(bots.systeme) ||
            bots.kapital < 0 || bots.kapital > 10000 || !skript.empty()) {
            std::fprintf(stderr, "--bots braucht 1 bis 6 Spieler, --years ab 1, --systems 50, 80, 100, 120, 150, 200, 300\n"
                                 "oder 400, --capital 0 bis 10000 und kein --script.\n");
            return 2;
        }
        bots.saat = seed >= 0 ? static_cast<uint32_t>(seed) : 1;
        plattform->pixelZeichnen(!png.empty());  // pixels only for a picture
        status = COMPUTERSPIEL(bots, daten, *plattform, *spiel);
    } else {
        status = PROGRAMM_AUSFUEHREN(*spiel, *plattform);
    }

    bool gut = true;
    if (!screen.empty()) gut &= Schreiben(screen, plattform->bildschirm());
    if (!trace.empty()) gut &= Schreiben(trace, plattform->spur() + "\n");
    if (!state.empty()) {
        std::vector<uint8_t> b = SPIELSTAND_BYTES(*spiel);
        gut &= Schreiben(state, std::string(b.begin(), b.end()));
    }
    if (!png.empty() && !plattform->leinwand().pngSchreiben(png, fehler)) {
        std::fprintf(stderr, "%s\n", fehler.c_str());
        gut = false;
    }
    std::error_code weg;
    if (!eigeneDaten.empty()) std::filesystem::remove_all(eigeneDaten, weg);
    if (!gut) return 1;
    return status;
}
