#include "screen/sdl/ordner.h"

#include <SDL.h>

#include <filesystem>

std::string SPIELDATEN_ORDNER(const std::string& standard) {
    std::string ordner = standard;
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

std::string SPIELER_ORDNER(const char* name) {
    std::string ordner;
    if (char* pref = SDL_GetPrefPath("", "quorvant")) {
        ordner = std::string(pref) + name;
        SDL_free(pref);
    }
    return ordner;
}
