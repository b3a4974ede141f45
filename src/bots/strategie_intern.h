#pragma once
// What the files of the computer players' strategy share: the places of the
// order menu and a few small measures.
#include <string>
#include <vector>

#include "state/codes.h"
#include "state/spiel.h"

namespace bots {

// The places of the order menu, as "Raumschiffe anweisen" numbers them.
enum Platz : int {
    P_START = 1, P_TELEPORT, P_VON_STATION, P_VOM_PLANETEN, P_AUSRUESTUNG, P_TANKER, P_TANKEN_SOL, P_TANKEN_STATION,
    P_ENTLADEN, P_ANKOPPELN, P_TRENNEN, P_ANGRIFF, P_ANGRIFF_ENDE, P_NOTRUF, P_HANDELN, P_REPARATUR, P_GERAET, P_PORTAL,
};

// Cash a house keeps back from every purchase.
inline constexpr Long RESERVE = 600;

// Whether a good bought at a planet's price pays its way home: the market must
// give half again and a little, since one sale sinks its price for years.
inline bool Lohnend(const Spiel& s, int ware, int planetPreis) {
    return ware >= 1 && ware <= ANZAHL_WAREN && 2L * s.Preis(ware) >= 3L * planetPreis + 6;
}

inline int System(int planet) { return (planet - 1) / 10; }
// Whether the order menu offers this place.
inline bool Da(const std::vector<std::string>& l, int platz) { return !l[static_cast<size_t>(platz)].empty(); }

}  // namespace bots
