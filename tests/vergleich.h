#pragma once
// Field by field comparison of two saved states, for golden scenarios: the
// first difference named by table, record and field.
#include <string>

#include "state/spiel.h"

// "" when every saved field is equal; otherwise e.g. "Schiffe(12).Ladung: 5 statt 7"
// (the value found, then the value expected).
std::string ERSTER_UNTERSCHIED(const Spiel& ist, const Spiel& soll);
