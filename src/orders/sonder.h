#pragma once
// The orders that take effect at once: a trade with a merchant ship, the
// repair set, production devices and the portal.
#include "state/spiel.h"

// Handeln: tonnes of goods on board for the good the merchant offers.
void ORDER_HANDELN(Spiel& s, int schiff);
// Reparatur: the repair set on board takes 44 to 50 points of damage off.
void ORDER_REPARATUR(Spiel& s, int schiff);
// Gerät ausliefern: one production device raises the planet's yield.
void ORDER_GERAET_AUSLIEFERN(Spiel& s, int schiff);
// Portal installieren: the portal on board is set up on the planet.
void ORDER_PORTAL_INSTALLIEREN(Spiel& s, int schiff);
