#pragma once
// Writing the player's files so that nothing is ever half written: every
// file goes to a temporary name first, is forced onto the disk, and only
// then takes the place of the old one. A full disk, a read-only folder or a
// power cut leaves the old files as they were.
#include <cstdint>
#include <string>
#include <vector>

struct DateiInhalt {
    std::string pfad;
    std::vector<uint8_t> bytes;
};

// Writes all files or, on a failure, none of them; the German message in
// fehler names what went wrong. The files take their places one after
// another, the last one last.
bool DATEIEN_SICHER_SCHREIBEN(const std::vector<DateiInhalt>& dateien, std::string& fehler);

// One file at its path, forced onto the disk when festschreiben is set.
bool DATEI_SCHREIBEN(const std::string& pfad, const std::vector<uint8_t>& bytes, bool festschreiben);

// The whole file, or false when it cannot be read.
bool DATEI_LESEN(const std::string& pfad, std::vector<uint8_t>& bytes);
