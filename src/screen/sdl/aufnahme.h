#pragma once
// The recording of a session: every input that reaches the game, the seeds
// drawn from the clock and the answers of the boxes, as a driver script that
// quorvant-headless replays. One file per session; the newest ones are kept.
#include <cstdint>
#include <cstdio>
#include <string>

#include "screen/plattform.h"

class Aufnahme {
public:
    static constexpr int BEHALTEN = 10;

    Aufnahme() = default;
    ~Aufnahme();
    Aufnahme(const Aufnahme&) = delete;
    Aufnahme& operator=(const Aufnahme&) = delete;

    // Opens a new file in ordner (made when missing) and removes all but the
    // newest `behalten` recordings there. jetzt: the platform clock. On failure
    // false, with one line on standard error; the game goes on without.
    bool starten(const std::string& ordner, long long jetzt, int behalten = BEHALTEN);
    bool laeuft() const { return datei_ != nullptr; }
    const std::string& pfad() const { return pfad_; }

    // An input as the game took it, a key with its character (zeichen -1: none).
    void eingabe(const Ereignis& e, long long jetzt);
    void taste(int code, int zeichen, long long jetzt);
    void saat(uint32_t wert);
    void antwort(bool ja, long long jetzt);

private:
    void warten(long long jetzt);
    void schreiben(const std::string& zeile);

    std::FILE* datei_ = nullptr;
    std::string pfad_;
    long long letzte_ = 0;  // clock of the last input
};

// Removes the oldest recordings of the folder until `behalten` are left.
void AufnahmenAufraeumen(const std::string& ordner, int behalten);
