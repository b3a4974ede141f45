// quorvant: the game in its window.
#include <SDL.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>

#include "bots/gegner.h"
#include "flow/programm.h"
#include "screen/sdl/sdl_plattform.h"
#include "state/spiel.h"

namespace {

// The game's data: beside the program during development (build/data), then
// where the package puts it (/usr/games -> /usr/share/games/quorvant), else
// the source tree the program was built from.
std::string ProgrammOrdner() {
    std::string ordner = QUORVANT_DATEN_STANDARD;
    if (char* basis = SDL_GetBasePath()) {
        const std::string b(basis);
        SDL_free(basis);
        std::error_code fc;
        for (const std::string& kandidat : {b + "data", b + "../share/games/quorvant"}) {
            if (std::filesystem::is_regular_file(kandidat + "/Planetenliste.bin", fc)) {
                ordner = std::filesystem::weakly_canonical(kandidat, fc).string();
                if (fc) ordner = kandidat;
                break;
            }
        }
    }
    return ordner;
}

// Saved games: ~/.local/share/quorvant/Daten; recordings of the sessions beside
// them in ~/.local/share/quorvant/Aufnahmen.
std::string DatenOrdner(const char* name = "Daten") {
    std::string ordner;
    if (char* pref = SDL_GetPrefPath("", "quorvant")) {
        ordner = std::string(pref) + name;
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
        if (const std::string aufnahmen = DatenOrdner("Aufnahmen"); !aufnahmen.empty())
            plattform->aufnahme().starten(aufnahmen, plattform->uhrMs());
        // Houses marked for the computer are played through the same dialogs.
        Gegner gegner(*plattform);
        const int status = gegner.spielen(*spiel);
        spiel->plattform = nullptr;
        return status;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "Quorvant: unerwarteter Fehler: %s\n", e.what());
        return 1;
    }
}
