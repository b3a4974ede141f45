#include "flow/autosicherung.h"

#include <cstdio>
#include <filesystem>

#include "flow/begleitdatei.h"
#include "flow/dateien.h"
#include "flow/spielstand.h"

namespace fs = std::filesystem;

std::string AUTOSICHERUNG_NAME(int n) { return "Autosicherung-" + std::to_string(n); }

bool AUTOSICHERUNG(Spiel& s) {
    const std::string ordner = DATEN_ORDNER(s);
    std::error_code ec;
    fs::create_directories(ordner, ec);
    auto pfad = [&](int n) { return ordner + "/" + AUTOSICHERUNG_NAME(n) + ".qvt"; };
    const std::vector<uint8_t> spiel = SPIELSTAND_BYTES(s);
    const std::string neu = pfad(1) + ".neu";
    const std::string neuZusatz = BEGLEIT_PFAD(pfad(1)) + ".neu";
    // Not forced onto the disk: that would cost more than a year of play, and
    // the two older autosaves and the player's own saves cover a power cut.
    if (!DATEI_SCHREIBEN(neuZusatz, BEGLEIT_BYTES(s, spiel), false) || !DATEI_SCHREIBEN(neu, spiel, false)) {
        std::remove(neu.c_str());
        std::remove(neuZusatz.c_str());
        return false;
    }
    for (int n = AUTOSICHERUNGEN - 1; n >= 1; --n) {
        // A missing older one is no failure; a companion that strays from
        // its saved game on the way is left aside when the game is loaded.
        fs::rename(BEGLEIT_PFAD(pfad(n)), BEGLEIT_PFAD(pfad(n + 1)), ec);
        fs::rename(pfad(n), pfad(n + 1), ec);
    }
    fs::rename(neuZusatz, BEGLEIT_PFAD(pfad(1)), ec);
    if (ec) {
        std::remove(neu.c_str());
        return false;
    }
    fs::rename(neu, pfad(1), ec);
    return !ec;
}
