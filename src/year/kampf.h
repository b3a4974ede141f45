#pragma once
// Fights and pirates in the year.
#include "state/spiel.h"

void ANGRIFFE(Spiel& s);
void ANGRIFFSBERICHT(Spiel& s, int schiff);
void HAUPTQUARTIER_FEUER(Spiel& s, int schiff);
void SCHIFF_BESCHAEDIGEN(Spiel& s, int schiff);
void PARTNER_PRUEFEN(Spiel& s);
void ZERSTOERTE_ENTFERNEN(Spiel& s);

void PIRAT_IM_SCHIFFSDURCHLAUF(Spiel& s, int schiff);
void PIRATEN_ZIEHEN(Spiel& s);
void NEUE_PIRATEN(Spiel& s);
