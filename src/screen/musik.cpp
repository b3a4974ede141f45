#include "screen/musik.h"

#include <filesystem>

#include "screen/plattform.h"

void MCI_Play(Spiel& s, const std::string& datei) {
    const std::string pfad = s.ProgrammVerzeichnis + "/Musik/" + datei;
    std::error_code fehler;
    if (!std::filesystem::is_regular_file(pfad, fehler)) {
        s.plattform->meldung(s.Titel, "Musikdatei '" + pfad + "' nicht gefunden!", BoxArt::Warnung);
        return;
    }
    s.plattform->musikSpielen(pfad);  // no sound device: the game stays silent
}

void MCI_Stop(Spiel& s) { s.plattform->musikStoppen(); }
