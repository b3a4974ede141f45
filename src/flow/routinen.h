#pragma once
// The routines the main menu and the year call, by the subsystem that owns them.
#include "state/spiel.h"

// flow
void tmrStart_Timer(Spiel& s);
void HAUPTBILDSCHIRM(Spiel& s, bool mitMeldungUndLager);
void KOPFZEILE(Spiel& s, bool mitLeerzeichen = true);
void AKTIONSZEILE(Spiel& s);
void AUSSETZEN(Spiel& s);
void SPIELSCHLEIFE(Spiel& s);  // the turn loop, for ever
void SPIEL_SICHERN(Spiel& s);
void SPIEL_LADEN(Spiel& s);

// orders
void SCHIFFE_ANWEISEN(Spiel& s);
void SCHIFF_VERKAUFEN(Spiel& s);
void STERNKARTE(Spiel& s);

// year
void RUNDE_AUSFUEHREN(Spiel& s);
void MELDUNG(Spiel& s);

// economy
void SPACEDOCKS(Spiel& s);
void WAREN_VERKAUFEN(Spiel& s);
void FORSCHUNG_FINANZIEREN(Spiel& s);
void KREDIT(Spiel& s);

// views
void STATUS(Spiel& s);
void STERNLIST(Spiel& s);
void LAGERBESTAND(Spiel& s);
