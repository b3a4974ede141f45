#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "flow/begleitdatei.h"
#include "flow/dateien.h"
#include "flow/programm.h"
#include "flow/spielstand.h"
#include "screen/ausgabe.h"
#include "screen/eingabe.h"
#include "screen/musik.h"
#include "state/regeln.h"
#include "state/text.h"
#include "state/zufall.h"
#include "flow/hauptschleife.h"

namespace fs = std::filesystem;

namespace {

// Names of the saved games in the folder, in the order the folder gives them.
std::vector<std::string> Spielstaende(const std::string& ordner, bool mitEndung, size_t hoechstens) {
    std::vector<std::string> namen;
    std::error_code ec;
    for (fs::directory_iterator it(ordner, ec), ende; !ec && it != ende; it.increment(ec)) {
        const fs::path& p = it->path();
        if (p.extension() != ".qvt" || !it->is_regular_file(ec)) continue;
        std::string name = T(p.filename().string());
        if (!mitEndung) name = name.substr(0, name.find('.'));
        namen.push_back(name);
        if (namen.size() >= hoechstens) break;
    }
    return namen;
}

bool NamensZeichen(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == 196 || c == 214 ||
           c == 220 || c == 228 || c == 246 || c == 252;
}

void Fehler(Spiel& s, const std::string& text) {
    std::fprintf(stderr, "%s\n", Utf8(text).c_str());
    BOX(s, 22, 625, 488, 732, SCHWARZ);
    // Whole words, as many lines as the action box holds below the menu.
    const std::vector<std::string> zeilen = Umbrechen(text, 36);
    for (size_t i = 0; i < zeilen.size() && i < 3; ++i)
        TEXT_AUSGEBEN(s, zeilen[i], 15, 50, 630 + 30 * static_cast<int>(i), ROT);
    DoEvents(s);
    Warten(s, 3000);
}

}  // namespace

void SPIEL_SICHERN(Spiel& s) {
    const std::string ordner = DATEN_ORDNER(s);
    const std::vector<std::string> namen = Spielstaende(ordner, false, 100);
    for (int i = 1; i <= 100; ++i) s.Dateiliste(i) = i <= static_cast<int>(namen.size()) ? namen[static_cast<size_t>(i - 1)] : "";
    if (!namen.empty() && s.DateiNummer <= 0) s.DateiNummer = 1;
    bool zuerstZeigen = true;

    for (;;) {
        std::error_code ec;
        if (!fs::is_directory(ordner, ec)) {
            fs::create_directories(ordner, ec);
            if (ec) {
                Fehler(s, T("Der Ordner für Spielstände kann nicht angelegt werden."));
                return;
            }
        }
        TEXT_AUSGEBEN(s, "Dateiname: ", 15, 50, 630, WEISS);
        std::string name;
        s.TastenZeichen.clear();
        bool fertig = false;
        while (!fertig) {
            s.TasteDa = 0;
            while (s.TasteDa == 0 && s.TastenZeichen.empty()) {
                s.plattform->schlafen(5);
                DoEvents(s);
            }
            const int code = s.TasteDa ? s.TastenCode : 0;
            if (code == Taste::Enter) {
                fertig = true;
            } else if (code == Taste::Esc) {
                return;
            } else if (code == Taste::Backspace) {
                if (!name.empty()) name.pop_back();
                TEXT_AUSGEBEN(s, name + " ", 15, 180, 630, WEISS);
            } else if ((code == Taste::Hoch || code == Taste::Runter) && s.DateiNummer >= 1) {
                TEXT_AUSGEBEN(s, Space(static_cast<int>(name.size())), 15, 180, 630, WEISS);
                if (!zuerstZeigen) {
                    if (code == Taste::Hoch) {
                        ++s.DateiNummer;
                        if (s.DateiNummer > 100 || s.Dateiliste(s.DateiNummer).empty()) s.DateiNummer = 1;
                    } else {
                        --s.DateiNummer;
                        if (s.DateiNummer == 0) {
                            s.DateiNummer = 1;
                            for (int i = 1; i <= 100; ++i)
                                if (!s.Dateiliste(i).empty()) s.DateiNummer = static_cast<Integer>(i);
                        }
                    }
                }
                zuerstZeigen = false;
                name = s.Dateiliste(s.DateiNummer);
                TEXT_AUSGEBEN(s, name, 15, 180, 630, WEISS);
            } else if (!s.TastenZeichen.empty()) {
                unsigned char c = static_cast<unsigned char>(s.TastenZeichen[0]);
                if (NamensZeichen(c) && name.size() < 10) {
                    name += static_cast<char>(c);
                    TEXT_AUSGEBEN(s, name, 15, 180, 630, WEISS);
                }
            }
            s.TastenZeichen.clear();
        }
        if (name.empty()) continue;
        const std::string pfad = ordner + "/" + Utf8(name) + ".qvt";
        if (fs::exists(pfad, ec)) {
            TEXT_AUSGEBEN(s, "Datei existiert schon.", 15, 50, 660, WEISS);
            TEXT_AUSGEBEN(s, T("Überschreiben?"), 15, 50, 690, WEISS);
            Integer wert = -1;
            JA_NEIN(s, wert, 250, 690, 15, WEISS);
            if (s.Eingabe != 1) {
                BOX(s, 50, 630, 488, 710, SCHWARZ);
                continue;
            }
            BOX(s, 50, 690, 488, 710, SCHWARZ);
        }
        std::string fehler;
        if (!SPIELSTAND_DATEI_SCHREIBEN(s, pfad, fehler)) {
            Fehler(s, fehler);
            return;
        }
        TEXT_AUSGEBEN(s, "Spiel erfolgreich gespeichert.", 15, 50, 660, WEISS);
        DoEvents(s);
        if (s.BeendenNachSichern != 0) {
            MCI_Stop(s);
            TEXT_AUSGEBEN(s, "Auf Wiedersehen!", 15, 50, 690, WEISS);
            DoEvents(s);
            Warten(s, 2000);
            PROGRAMM_BEENDEN(s, 0);
        }
        Warten(s, 1000);
        return;
    }
}

void SPIEL_LADEN(Spiel& s) {
    Randomize(s, s.plattform->saat());
    VORBELEGUNG_VARIABLEN(s);
    s.Dokument(SOL_III).Name = "SOL ";
    const std::string ordner = DATEN_ORDNER(s);
    const std::vector<std::string> namen = Spielstaende(ordner, true, 100);
    for (int i = 1; i <= 100; ++i) s.Dateiliste(i) = i <= static_cast<int>(namen.size()) ? namen[static_cast<size_t>(i - 1)] : "";
    if (namen.empty()) {
        TEXT_AUSGEBEN(s, "Es existiert kein gespeichertes Spiel!", 15, 120, 260, ROT);
        DoEvents(s);
        Warten(s, 1000);
        s.Eingabe = -1;
        return;
    }
    TEXT_AUSGEBEN(s, "Dateiname: ", 15, 120, 260, ROT);
    std::vector<std::string> liste(1);
    for (const auto& n : namen) liste.push_back(n);
    Long start = 1;
    AUSWAHL(s, liste, 1, std::min<int>(static_cast<int>(namen.size()), 99), 250, 260, 15, ROT, start, s.AuswahlTasten);
    s.DateiNummer = static_cast<Integer>(s.Eingabe);
    if (s.Eingabe == -1) return;

    s.plattform->leeren();
    const std::string pfad = ordner + "/" + Utf8(s.Dateiliste(s.DateiNummer));
    std::vector<uint8_t> bytes, zusatz;
    std::string fehler;
    if (!DATEI_LESEN(pfad, bytes)) fehler = T("Der Spielstand kann nicht gelesen werden.");
    if (fehler.empty() && !SPIELSTAND_LESEN(s, bytes, fehler)) { /* fehler is set */ }
    // Without its companion a game is played by persons only, and its history starts now.
    s.Computer = {};
    s.VerlaufJahre.clear();
    const std::string zusatzPfad = BEGLEIT_PFAD(pfad);
    std::error_code ec;
    if (fehler.empty() && fs::exists(zusatzPfad, ec)) {
        if (!DATEI_LESEN(zusatzPfad, zusatz)) fehler = T("Die Zusatzdatei zum Spielstand kann nicht gelesen werden.");
        else BEGLEIT_LESEN(s, zusatz, bytes, fehler);
    }
    if (!fehler.empty()) {
        std::fprintf(stderr, "%s: %s\n", pfad.c_str(), Utf8(fehler).c_str());
        TEXT_AUSGEBEN(s, fehler, 15, 120, 260, ROT);
        DoEvents(s);
        Warten(s, 3000);
        s.Eingabe = -1;  // the new-game dialog follows; the file stays as it is
        return;
    }
    s.Eingabe = s.DateiNummer;
    s.AktSpieler = 1;
    HAUPTBILDSCHIRM(s, false);
}
