#include "screen/sdl/aufnahme.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <vector>

#include "screen/skript.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* VORSILBE = "Sitzung-";
constexpr const char* ENDUNG = ".txt";

bool IstAufnahme(const fs::path& p) {
    const std::string n = p.filename().string();
    return n.rfind(VORSILBE, 0) == 0 && p.extension() == ENDUNG;
}

// Sitzung-2026-11-23-18-55-02.txt (a second one in that second _2): the names sort by time.
std::string Zeitstempel() {
    const std::time_t t = std::time(nullptr);
    std::tm tm{};
    localtime_r(&t, &tm);
    char b[32];
    std::strftime(b, sizeof b, "%Y-%m-%d-%H-%M-%S", &tm);
    return b;
}

}  // namespace

void AufnahmenAufraeumen(const std::string& ordner, int behalten) {
    std::error_code fc;
    std::vector<fs::path> alle;
    for (fs::directory_iterator it(ordner, fc), ende; !fc && it != ende; it.increment(fc))
        if (IstAufnahme(it->path())) alle.push_back(it->path());
    std::sort(alle.begin(), alle.end());
    for (size_t i = 0; i + static_cast<size_t>(std::max(behalten, 0)) < alle.size(); ++i) fs::remove(alle[i], fc);
}

Aufnahme::~Aufnahme() {
    if (datei_) std::fclose(datei_);
}

bool Aufnahme::starten(const std::string& ordner, long long jetzt, int behalten) {
    std::error_code fc;
    fs::create_directories(ordner, fc);
    const std::string stempel = Zeitstempel();
    std::string pfad = ordner + "/" + VORSILBE + stempel + ENDUNG;
    for (int n = 2; fs::exists(pfad, fc); ++n) pfad = ordner + "/" + VORSILBE + stempel + "_" + std::to_string(n) + ENDUNG;
    datei_ = std::fopen(pfad.c_str(), "wx");
    if (!datei_) {
        std::fprintf(stderr, "Quorvant: keine Aufnahme dieser Sitzung ('%s' nicht anlegbar).\n", pfad.c_str());
        return false;
    }
    pfad_ = pfad;
    letzte_ = jetzt;
    AufnahmenAufraeumen(ordner, behalten);
    schreiben("# Quorvant-Sitzung vom " + stempel + ": quorvant-headless --script DATEI spielt sie nach");
    return laeuft();
}

void Aufnahme::schreiben(const std::string& zeile) {
    if (!datei_) return;
    // Each line at once: a crash loses nothing that reached the game.
    if (std::fputs((zeile + "\n").c_str(), datei_) < 0 || std::fflush(datei_) != 0) {
        std::fprintf(stderr, "Quorvant: die Aufnahme '%s' bricht ab (nicht schreibbar); das Spiel geht weiter.\n",
                     pfad_.c_str());
        std::fclose(datei_);
        datei_ = nullptr;
    }
}

void Aufnahme::warten(long long jetzt) {
    schreiben("wait " + std::to_string(std::max(jetzt - letzte_, 0LL)));
    letzte_ = jetzt;
}

void Aufnahme::eingabe(const Ereignis& e, long long jetzt) {
    if (!datei_) return;
    warten(jetzt);
    schreiben(SkriptEreignis(e));
}

void Aufnahme::taste(int code, int zeichen, long long jetzt) {
    if (!datei_) return;
    warten(jetzt);
    schreiben(SkriptTaste(code, zeichen));
}

void Aufnahme::saat(uint32_t wert) { schreiben("seed " + std::to_string(wert)); }

void Aufnahme::antwort(bool ja, long long jetzt) {
    if (!datei_) return;
    warten(jetzt);
    schreiben(ja ? "answer yes" : "answer no");
}
