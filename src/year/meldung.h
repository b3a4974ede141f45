#pragma once
#include <string>

#include "state/spiel.h"

// The ship a news line names, read back out of its text: the first of the
// labels SST, FSS, TST, XXL, TSR (and XS on a single page) that occurs.
// 0 when the line names none or the number cannot be read.
Long SCHIFF_IN_MELDUNG(const std::string& zeile, bool mitScout, bool& gefunden);
