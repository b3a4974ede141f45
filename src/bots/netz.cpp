// The fuel network of the computer players: Sol III and every station out in
// space that holds tank units. A ship flies from filling to filling, so the
// reach of a house grows with each station its freighters tow out and its
// tankers keep filled.
#include <algorithm>
#include <limits>
#include <string>

#include "bots/computerspieler.h"
#include "bots/strategie_intern.h"
#include "state/codes.h"
#include "state/sterne.h"

using namespace bots;

namespace {

constexpr long WEIT = std::numeric_limits<long>::max() / 4;
constexpr size_t MAX_KNOTEN = 48;  // stations enough for any house; more are not needed for the way

// The nearest filling not yet settled, or n when none is left in reach.
size_t NaechsterOffener(const std::vector<long>& weg, const std::vector<bool>& fertig) {
    size_t u = weg.size();
    for (size_t k = 0; k < weg.size(); ++k)
        if (!fertig[k] && weg[k] < WEIT && (u == weg.size() || weg[k] < weg[u])) u = k;
    return u;
}

}  // namespace

long Computerspieler::weite(const Schiff& sch, double sprit) const {
    // A scout covers two units a year for one unit of fuel, a great freighter burns half.
    const double je = IstScout(sch) || IstGrossfrachter(sch) ? 2.0 : 1.0;
    return static_cast<long>(sprit * je) - 1;
}

void Computerspieler::netzAufbauen() {
    std::vector<int> knoten{SOL_III};
    for (int i = 1; i <= s_.HoechstesSchiff && knoten.size() < MAX_KNOTEN; ++i) {
        const Schiff& st = s_.Schiffe(i);
        if (IstFrei(st) || !IstStation(st) || st.Zustand != ZUSTAND_RUHT || st.Planet <= SOL_III) continue;
        if (st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT) <= 0) continue;
        if (std::find(knoten.begin(), knoten.end(), st.Planet) == knoten.end()) knoten.push_back(st.Planet);
    }
    if (knoten == knoten_) return;
    knoten_ = knoten;
    const size_t n = knoten_.size();
    abstaende_.assign(n * n, 0);
    for (size_t a = 0; a < n; ++a)
        for (size_t b = 0; b < n; ++b) abstaende_[a * n + b] = ENTFERNUNG(s_, knoten_[a], knoten_[b]);
    karten_.clear();
}

bool Computerspieler::tankstelle(int planet) const {
    return std::find(knoten_.begin(), knoten_.end(), planet) != knoten_.end();
}

long Computerspieler::rueckweg(int planet) const {
    if (planet < SOL_III) return 0;  // no target at all
    long best = WEIT;
    for (int k : knoten_) best = std::min<long>(best, k == planet ? 0 : ENTFERNUNG(s_, planet, k));
    return best;
}

// Dijkstra over the fillings: the way from `von` with `sprit` in the tank to
// `ziel`, which must leave `rueck` units of way in the tank on arrival.
int Computerspieler::halt(int nr, int ziel, long rueck) const {
    const Schiff& sch = s_.Schiffe(nr);
    const int von = sch.Planet;
    if (von == ziel) return 0;
    const long voll = weite(sch, sch.Tankgroesse);
    const long jetzt = weite(sch, sch.Treibstoff);
    if (ENTFERNUNG(s_, von, ziel) + rueck <= jetzt) return ziel;
    const size_t n = knoten_.size();
    std::vector<long> weg(n, WEIT), zumZiel(n);
    std::vector<int> erster(n, 0);
    std::vector<bool> fertig(n, false);
    for (size_t k = 0; k < n; ++k) {
        zumZiel[k] = ENTFERNUNG(s_, knoten_[k], ziel);
        const long d = knoten_[k] == von ? 0 : ENTFERNUNG(s_, von, knoten_[k]);
        if (d <= jetzt) {
            weg[k] = d;
            erster[k] = knoten_[k] == von ? 0 : knoten_[k];
        }
    }
    long bestWeg = WEIT;
    int bester = 0;
    for (;;) {
        const size_t u = NaechsterOffener(weg, fertig);
        if (u == n) break;
        fertig[u] = true;
        // Where the ship stands it flies on what it has: a filling here has been tried already.
        const long kann = knoten_[u] == von ? jetzt : voll;
        if (zumZiel[u] + rueck <= kann && weg[u] + zumZiel[u] < bestWeg) {
            bestWeg = weg[u] + zumZiel[u];
            bester = erster[u] ? erster[u] : ziel;
        }
        for (size_t v = 0; v < n; ++v) {
            const long d = abstaende_[u * n + v];
            if (fertig[v] || d > kann || weg[u] + d >= weg[v]) continue;
            weg[v] = weg[u] + d;
            erster[v] = erster[u] ? erster[u] : knoten_[v];
        }
    }
    return bester;
}

// For every planet the way from Sol III over the fillings to it, for ships of
// reach `weite` that fly there and back to their last filling.
const std::vector<long>& Computerspieler::karte(long reichweite) {
    auto it = karten_.find(reichweite);
    if (it != karten_.end()) return it->second;
    const size_t n = knoten_.size();
    std::vector<long> netz(n, WEIT);
    std::vector<bool> fertig(n, false);
    netz[0] = 0;
    for (;;) {
        const size_t u = NaechsterOffener(netz, fertig);
        if (u == n) break;
        fertig[u] = true;
        for (size_t v = 0; v < n; ++v) {
            const long d = abstaende_[u * n + v];
            if (d <= reichweite && netz[u] + d < netz[v]) netz[v] = netz[u] + d;
        }
    }
    std::vector<long> kosten(static_cast<size_t>(s_.AnzahlPlaneten) + 11, WEIT);
    for (int t = 11; t <= s_.AnzahlPlaneten + 10; ++t)
        for (size_t k = 0; k < n; ++k) {
            if (netz[k] >= WEIT) continue;
            const long d = ENTFERNUNG(s_, knoten_[k], t);
            if (2 * d <= reichweite) kosten[static_cast<size_t>(t)] = std::min(kosten[static_cast<size_t>(t)], netz[k] + d);
        }
    return karten_.emplace(reichweite, std::move(kosten)).first->second;
}

// Where the house tows its next station: a planet a freighter reaches on one
// tank from a filling, as near as may be to the pirates' headquarters, or, once
// that has fallen, out to the dear goods of the far stars. The freighter waits
// there until the tanker has filled the station; one station at a time.
int Computerspieler::standort() {
    const int p = s_.AktSpieler;
    int eigene = 0;
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
        const Schiff& st = s_.Schiffe(i);
        if (st.Besitzer != p || !IstStation(st) || st.Zustand < 0) continue;
        if (st.Partner > 0 && s_.Schiffe(st.Partner).Planet != SOL_III) return 0;  // one on its way
        if (st.Planet > SOL_III && st.Zustand == ZUSTAND_RUHT && st.Fracht(FRACHT_SPRIT) + st.Fracht(FRACHT_SUPERSPRIT) <= 0) return 0;
        eigene += st.Planet > SOL_III;
    }
    if (eigene >= 12) return 0;
    const int hq = s_.Schiffe(PIRATEN_HQ).Planet;
    constexpr long SCHRITT = 28;  // a freighter's way on one tank
    const auto naheAmNetz = [&](int t) {
        for (int k : knoten_)
            if (ENTFERNUNG(s_, k, t) <= SCHRITT / 2) return true;  // cruisers fly there and back
        return false;
    };
    int ziel = hq > 0 && !naheAmNetz(hq) ? hq : 0;
    if (ziel <= 0) {
        // The star farthest from home that the map holds.
        long fern = 0;
        for (int t = 11; t <= s_.AnzahlPlaneten + 10; t += 10) {
            const long d = ENTFERNUNG(s_, SOL_III, t);
            if (d > fern) {
                fern = d;
                ziel = t;
            }
        }
    }
    if (ziel <= 0 || naheAmNetz(ziel)) return 0;
    // Each house a system of its own: tankers unload into the first station of a planet,
    // and a second station there would stay dry. Another house's station is a filling all the same.
    std::vector<bool> besetzt(static_cast<size_t>(s_.AnzahlPlaneten / 10) + 2, false);
    for (int i = 1; i <= s_.HoechstesSchiff; ++i) {
        const Schiff& st = s_.Schiffe(i);
        if (!IstFrei(st) && IstStation(st) && st.Planet > SOL_III && st.Planet <= s_.AnzahlPlaneten + 10)
            besetzt[static_cast<size_t>(System(st.Planet))] = true;
    }
    for (const auto& [station, ort] : schlepp_)
        if (ort > SOL_III && ort <= s_.AnzahlPlaneten + 10) besetzt[static_cast<size_t>(System(ort))] = true;
    // A site opens new ground: one tank from a filling, but not within half a tank of one.
    int best = 0;
    long bestD = WEIT;
    for (int t = 12; t <= s_.AnzahlPlaneten + 10; t += 10) {
        if ((hq > 0 && System(t) == System(hq)) || besetzt[static_cast<size_t>(System(t))]) continue;
        long naechste = WEIT;
        for (int k : knoten_) naechste = std::min<long>(naechste, ENTFERNUNG(s_, k, t));
        if (naechste > SCHRITT || naechste < SCHRITT / 2) continue;
        const long d = ENTFERNUNG(s_, t, ziel);
        if (d < bestD) {
            bestD = d;
            best = t;
        }
    }
    return best;
}
