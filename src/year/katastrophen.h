#pragma once
// The five events whose countdown ends at the turn of a year. Each one sets
// its own countdown anew.
#include "state/spiel.h"

// 10 % of every positive cash.
void STEUER(Spiel& s);
// 20 SD for every ship a player owns.
void HAFENGEBUEHR(Spiel& s);
// One system: its first discovered planet loses stock, ships there take damage.
void METEORSTURM(Spiel& s);
// One player's storage on Sol III; Histarin burns it all.
void LAGERBRAND(Spiel& s);
// One discovered planet raises its price.
void STREIK(Spiel& s);
