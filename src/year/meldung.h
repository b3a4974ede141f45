#pragma once
// The news of the year.
#include <string>

#include "screen/plattform.h"
#include "state/spiel.h"

// The news frame on the right, with the page MeldungSeite and its click rows.
void MELDUNG(Spiel& s);
// A new line at the end of the list; past the table's end the last line says
// how many were left out.
void MELDUNG_NEU(Spiel& s, const std::string& text, Farbe farbe, Long planet = -1);
// "SST 12": type code and slot number, as the news name a ship.
std::string LABEL(const Spiel& s, int schiff);
// The ship a news line names, read back out of its text: the first of the
// labels SST, FSS, TST, XXL, TSR (and XS on a single page) that occurs.
// 0 when the line names none or the number cannot be read.
Long SCHIFF_IN_MELDUNG(const std::string& zeile, bool mitScout, bool& gefunden);
// The music of the year's biggest event, if the sound is on.
void JAHRES_KLANG(Spiel& s);
