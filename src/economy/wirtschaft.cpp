#include "economy/kredit.h"
#include "flow/routinen.h"

// The spacedocks, research and credit come with their own
// work; until then the menu items return straight to the menu.
void SPACEDOCKS(Spiel&) {}
void FORSCHUNG_FINANZIEREN(Spiel&) {}
void KREDIT(Spiel&) {}

// Interest and repayment come with the credit dialog.
void KREDIT_VERBUCHEN(Spiel&) {}
