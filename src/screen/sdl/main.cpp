// quorvant: the game in its window.
#include <SDL.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>

#include "flow/programm.h"
#include "screen/sdl/sdl_plattform.h"
#include "state/spiel.h"

namespace {

// The data folder beside the program, else the one of the source tree.
std::string ProgrammOrdner() {
    std::string ordner = QUORVANT_DATEN_STANDARD;
    if (char* basis = SDL_GetBasePath()) {
        const std::string nebenan = std::string(basis) + "data";
        SDL_free(basis);
        std::error_code fc;
        if (std::filesystem::is_directory(nebenan, fc)) ordner = nebenan;
    }
    return ordner;
}

// Saved games: ~/.local/share/quorvant/Daten
std::string DatenOrdner() {
    std::string ordner;
    if (char* pref = SDL_GetPrefPath("", "quorvant")) {
        ordner = std::string(pref) + "Daten";
        SDL_free(pref);
    }
    return ordner;
}

}  // namespace

int main(int, char**) {
    try {
        auto spiel = std::make_unique<Spiel>();
        auto plattform = std::make_unique<SdlPlattform>();
        std::string fehler;
        if (!plattform->starten(fehler)) {
            std::fprintf(stderr, "Quorvant: %s\n", fehler.c_str());
            return 1;
        }
        spiel->ProgrammVerzeichnis = ProgrammOrdner();
        spiel->DatenVerzeichnis = DatenOrdner();
        const int bilder = plattform->leinwand().bilderLaden(spiel->ProgrammVerzeichnis);
        if (bilder < 44)
            std::fprintf(stderr, "Quorvant: nur %d von 44 Bildern in '%s/bilder' gefunden, der Rest bleibt grau.\n",
                         bilder, spiel->ProgrammVerzeichnis.c_str());
        const int status = PROGRAMM_AUSFUEHREN(*spiel, *plattform);
        spiel->plattform = nullptr;
        return status;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "Quorvant: unerwarteter Fehler: %s\n", e.what());
        return 1;
    }
}
