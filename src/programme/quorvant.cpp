// quorvant: the game in its window.
#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include "bots/gegner.h"
#include "flow/programm.h"
#include "screen/sdl/ordner.h"
#include "screen/sdl/sdl_plattform.h"
#include "state/spiel.h"

int main(int, char**) {
    try {
        auto spiel = std::make_unique<Spiel>();
        auto plattform = std::make_unique<SdlPlattform>();
        std::string fehler;
        if (!plattform->starten(fehler)) {
            std::fprintf(stderr, "Quorvant: %s\n", fehler.c_str());
            return 1;
        }
        spiel->ProgrammVerzeichnis = SPIELDATEN_ORDNER(QUORVANT_DATEN_STANDARD);
        spiel->DatenVerzeichnis = SPIELER_ORDNER("Daten");
        const int bilder = plattform->leinwand().bilderLaden(spiel->ProgrammVerzeichnis);
        if (bilder < 44)
            std::fprintf(stderr, "Quorvant: nur %d von 44 Bildern in '%s/bilder' gefunden, der Rest bleibt grau.\n",
                         bilder, spiel->ProgrammVerzeichnis.c_str());
        if (const std::string aufnahmen = SPIELER_ORDNER("Aufnahmen"); !aufnahmen.empty())
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
