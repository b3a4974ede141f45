#pragma once
// The history of a game: how each house stood at the end of every year,
// for the graphs. It is not part of the saved game; the companion file
// beside it carries it.
#include <array>
#include <cstdint>
#include <vector>

#include "state/felder.h"

struct HausJahr {
    Long bewertung = 0;                // as the status screen shows it
    Long bargeld = 0;
    Long kredit = 0;
    Long tonnen = 0;                   // all goods sold so far
    Integer rang = 0;
    Integer erfindungen = 0;
    std::array<Integer, 6> schiffe{};  // by ship type 1..6, in the yard or out
    bool operator==(const HausJahr&) const = default;
};

struct VerlaufJahr {
    Long jahr = 0;
    std::array<HausJahr, 6> haus{};  // houses 1..6 at 0..5
    bool operator==(const VerlaufJahr&) const = default;
};

// Years in the order they were played; at most one entry a year.
using Verlauf = std::vector<VerlaufJahr>;
