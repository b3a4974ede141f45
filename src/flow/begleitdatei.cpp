#include "flow/begleitdatei.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <type_traits>
#include <cstring>

#include "state/text.h"

namespace {

constexpr char MARKE[4] = {'Q', 'V', 'Z', '1'};
constexpr uint16_t VERSION = 1;
constexpr size_t KOPF = 4 + 2 + 8;  // mark, version, the saved game's checksum

// A checksum that finds damage to a file, eight bytes at a time: a save of
// the largest game reads its two hundred kilobytes in well under a millisecond.
uint64_t Pruefsumme(const uint8_t* p, size_t n) {
    uint64_t h = 0x51ED270B27C5B7A3ULL ^ n;
    size_t i = 0;
    for (; i + 8 <= n; i += 8) {
        uint64_t w;
        std::memcpy(&w, p + i, 8);
        h = (h ^ w) * 0x9E3779B97F4A7C15ULL;
        h ^= h >> 29;
    }
    for (; i < n; ++i) h = (h ^ p[i]) * 0x100000001B3ULL;
    h ^= h >> 32;
    return h * 0xD6E8FEB86659FD93ULL;
}

void U16(std::vector<uint8_t>& b, uint16_t v) {
    b.push_back(static_cast<uint8_t>(v));
    b.push_back(static_cast<uint8_t>(v >> 8));
}
void U32(std::vector<uint8_t>& b, uint32_t v) {
    for (int i = 0; i < 4; ++i) b.push_back(static_cast<uint8_t>(v >> (8 * i)));
}
void U64(std::vector<uint8_t>& b, uint64_t v) {
    for (int i = 0; i < 8; ++i) b.push_back(static_cast<uint8_t>(v >> (8 * i)));
}
uint64_t U64An(const std::vector<uint8_t>& b, size_t pos) {
    uint64_t v = 0;
    for (int i = 0; i < 8; ++i) v |= static_cast<uint64_t>(b[pos + static_cast<size_t>(i)]) << (8 * i);
    return v;
}
uint32_t U32An(const std::vector<uint8_t>& b, size_t pos) {
    uint32_t v = 0;
    for (int i = 0; i < 4; ++i) v |= static_cast<uint32_t>(b[pos + static_cast<size_t>(i)]) << (8 * i);
    return v;
}

// Whole numbers as varints of their zigzag form: small changes from year to
// year take one or two bytes, which keeps twelve thousand years small.
void Zahl(std::vector<uint8_t>& b, int64_t v) {
    uint64_t z = (static_cast<uint64_t>(v) << 1) ^ static_cast<uint64_t>(v >> 63);
    while (z >= 0x80) {
        b.push_back(static_cast<uint8_t>(z | 0x80));
        z >>= 7;
    }
    b.push_back(static_cast<uint8_t>(z));
}

struct ZahlLeser {
    const std::vector<uint8_t>& b;
    size_t pos, ende;
    bool gut = true;
    int64_t operator()() {
        uint64_t z = 0;
        for (int schub = 0; gut; schub += 7) {
            if (pos >= ende || schub > 63) {
                gut = false;
                break;
            }
            const uint8_t c = b[pos++];
            z |= static_cast<uint64_t>(c & 0x7F) << schub;
            if (!(c & 0x80)) break;
        }
        return static_cast<int64_t>(z >> 1) ^ -static_cast<int64_t>(z & 1);
    }
};

// The fields of a house's year, in the order of the file.
template <class F>
void Felder(HausJahr& h, F f) {
    f(h.bewertung, INT32_MIN, INT32_MAX);
    f(h.bargeld, INT32_MIN, INT32_MAX);
    f(h.kredit, INT32_MIN, INT32_MAX);
    f(h.tonnen, 0, INT32_MAX);
    f(h.rang, 0, 9);
    f(h.erfindungen, 0, 11);
    for (auto& n : h.schiffe) f(n, 0, MAX_SCHIFFE);
}

void JahrKodieren(std::vector<uint8_t>& b, const VerlaufJahr& j, const VerlaufJahr& vorher, int haeuser) {
    Zahl(b, static_cast<int64_t>(j.jahr) - vorher.jahr);
    for (int h = 0; h < haeuser; ++h) {
        HausJahr neu = j.haus[static_cast<size_t>(h)];
        HausJahr alt = vorher.haus[static_cast<size_t>(h)];
        std::vector<int64_t> werte;
        Felder(neu, [&](auto& v, int64_t, int64_t) { werte.push_back(v); });
        size_t i = 0;
        Felder(alt, [&](auto& v, int64_t, int64_t) { Zahl(b, werte[i++] - static_cast<int64_t>(v)); });
    }
}

// The history grows by a year at a time and is written with every save and
// autosave: the bytes of the years already written are kept and only the new
// years are added, so that a long game's autosave costs no more than a short one's.
struct VerlaufKodierung {
    const Spiel* spiel = nullptr;
    int haeuser = -1;
    size_t jahre = 0;
    VerlaufJahr erstes, letztes;
    std::vector<uint8_t> bytes;
};

const std::vector<uint8_t>& VerlaufBytes(const Spiel& s) {
    static VerlaufKodierung k;
    const int haeuser = std::clamp<int>(s.AnzahlSpieler, 0, 6);
    const Verlauf& v = s.VerlaufJahre;
    const bool weiter = k.spiel == &s && k.haeuser == haeuser && k.jahre <= v.size() &&
                        (k.jahre == 0 || (v[0] == k.erstes && v[k.jahre - 1] == k.letztes));
    if (!weiter) k = VerlaufKodierung{&s, haeuser, 0, {}, {}, {static_cast<uint8_t>(haeuser)}};
    if (!v.empty()) k.erstes = v[0];
    for (; k.jahre < v.size(); ++k.jahre) {
        JahrKodieren(k.bytes, v[k.jahre], k.jahre == 0 ? VerlaufJahr{} : v[k.jahre - 1], haeuser);
        k.letztes = v[k.jahre];
    }
    return k.bytes;
}

bool VerlaufLesen(const std::vector<uint8_t>& b, size_t pos, size_t ende, int anzahlSpieler, Verlauf& v) {
    if (pos >= ende) return false;
    const int haeuser = b[pos++];
    if (haeuser > 6 || haeuser > anzahlSpieler) return false;
    ZahlLeser zahl{b, pos, ende};
    VerlaufJahr j;
    while (zahl.pos < ende) {
        const int64_t jahr = j.jahr + zahl();
        if (!zahl.gut || jahr <= j.jahr || jahr > INT32_MAX) return false;
        j.jahr = static_cast<Long>(jahr);
        for (int h = 0; h < haeuser; ++h) {
            bool gut = true;
            Felder(j.haus[static_cast<size_t>(h)], [&](auto& feld, int64_t min, int64_t max) {
                const int64_t neu = static_cast<int64_t>(feld) + zahl();
                if (neu < min || neu > max) gut = false;
                else feld = static_cast<std::remove_reference_t<decltype(feld)>>(neu);
            });
            if (!gut || !zahl.gut) return false;
        }
        v.push_back(j);
    }
    return zahl.pos == ende;
}

void Abschnitt(std::vector<uint8_t>& b, const char* name, const std::vector<uint8_t>& inhalt) {
    b.insert(b.end(), name, name + 4);
    U32(b, static_cast<uint32_t>(inhalt.size()));
    b.insert(b.end(), inhalt.begin(), inhalt.end());
}

}  // namespace

std::string BEGLEIT_PFAD(const std::string& spielstandPfad) {
    const size_t punkt = spielstandPfad.rfind('.');
    const size_t strich = spielstandPfad.rfind('/');
    if (punkt == std::string::npos || (strich != std::string::npos && punkt < strich)) return spielstandPfad + ".qvz";
    return spielstandPfad.substr(0, punkt) + ".qvz";
}

std::vector<uint8_t> BEGLEIT_BYTES(const Spiel& s, const std::vector<uint8_t>& spielstand) {
    std::vector<uint8_t> b(MARKE, MARKE + 4);
    U16(b, VERSION);
    U64(b, Pruefsumme(spielstand.data(), spielstand.size()));
    std::vector<uint8_t> rollen;
    for (int p = 1; p <= 6; ++p) rollen.push_back(s.Computer(p) == -1 ? 1 : 0);
    Abschnitt(b, "ROLL", rollen);
    Abschnitt(b, "VERL", VerlaufBytes(s));
    U64(b, Pruefsumme(b.data(), b.size()));
    return b;
}

bool BEGLEIT_LESEN(Spiel& s, const std::vector<uint8_t>& b, const std::vector<uint8_t>& spielstand,
                   std::string& fehler) {
    auto kaputt = [&](const char* was) {
        fehler = T("Die Zusatzdatei zum Spielstand ist beschädigt (") + T(was) + ").";
        return false;
    };
    if (b.size() < KOPF + 8 || std::memcmp(b.data(), MARKE, 4) != 0) return kaputt("keine Quorvant-Zusatzdatei");
    if (Pruefsumme(b.data(), b.size() - 8) != U64An(b, b.size() - 8)) return kaputt("Prüfsumme falsch");
    const uint16_t version = static_cast<uint16_t>(b[4] | (b[5] << 8));
    if (version == 0 || version > VERSION) return kaputt("von einer neueren Fassung des Spiels");
    if (U64An(b, 6) != Pruefsumme(spielstand.data(), spielstand.size())) return true;  // not this save's

    Feld<Integer, 1, 6> rollen{};
    Verlauf verlauf;
    const size_t ende = b.size() - 8;
    for (size_t pos = KOPF; pos < ende;) {
        if (ende - pos < 8) return kaputt("Abschnitt abgeschnitten");
        const std::string name(b.begin() + static_cast<long>(pos), b.begin() + static_cast<long>(pos) + 4);
        const uint32_t laenge = U32An(b, pos + 4);
        pos += 8;
        if (laenge > ende - pos) return kaputt("Abschnitt zu lang");
        if (name == "ROLL") {
            if (laenge != 6) return kaputt("Rollen");
            for (int p = 1; p <= 6; ++p) {
                const uint8_t r = b[pos + static_cast<size_t>(p - 1)];
                if (r > 1 || (r == 1 && p > s.AnzahlSpieler)) return kaputt("Rollen");
                rollen(p) = r == 1 ? -1 : 0;
            }
        }
        if (name == "VERL" && !VerlaufLesen(b, pos, pos + laenge, s.AnzahlSpieler, verlauf)) return kaputt("Verlauf");
        pos += laenge;  // a section of a newer game is skipped
    }
    s.Computer = rollen;
    s.VerlaufJahre = std::move(verlauf);
    return true;
}
