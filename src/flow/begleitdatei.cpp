#include "flow/begleitdatei.h"

#include <array>
#include <cstring>

#include "state/text.h"

namespace {

constexpr char MARKE[4] = {'Q', 'V', 'Z', '1'};
constexpr uint16_t VERSION = 1;

uint32_t Crc32(const uint8_t* p, size_t n) {
    static const std::array<uint32_t, 256> tafel = [] {
        std::array<uint32_t, 256> t{};
        for (uint32_t i = 0; i < 256; ++i) {
            uint32_t c = i;
            for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[i] = c;
        }
        return t;
    }();
    uint32_t c = 0xFFFFFFFFu;
    for (size_t i = 0; i < n; ++i) c = tafel[(c ^ p[i]) & 0xFF] ^ (c >> 8);
    return c ^ 0xFFFFFFFFu;
}

void U16(std::vector<uint8_t>& b, uint16_t v) {
    b.push_back(static_cast<uint8_t>(v));
    b.push_back(static_cast<uint8_t>(v >> 8));
}
void U32(std::vector<uint8_t>& b, uint32_t v) {
    for (int i = 0; i < 4; ++i) b.push_back(static_cast<uint8_t>(v >> (8 * i)));
}
uint32_t U32An(const std::vector<uint8_t>& b, size_t pos) {
    uint32_t v = 0;
    for (int i = 0; i < 4; ++i) v |= static_cast<uint32_t>(b[pos + static_cast<size_t>(i)]) << (8 * i);
    return v;
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
    U32(b, Crc32(spielstand.data(), spielstand.size()));
    std::vector<uint8_t> rollen;
    for (int p = 1; p <= 6; ++p) rollen.push_back(s.Computer(p) == -1 ? 1 : 0);
    Abschnitt(b, "ROLL", rollen);
    U32(b, Crc32(b.data(), b.size()));
    return b;
}

bool BEGLEIT_LESEN(Spiel& s, const std::vector<uint8_t>& b, const std::vector<uint8_t>& spielstand,
                   std::string& fehler) {
    auto kaputt = [&](const char* was) {
        fehler = T("Die Zusatzdatei zum Spielstand ist beschädigt (") + T(was) + ").";
        return false;
    };
    if (b.size() < 14 || std::memcmp(b.data(), MARKE, 4) != 0) return kaputt("keine Quorvant-Zusatzdatei");
    if (Crc32(b.data(), b.size() - 4) != U32An(b, b.size() - 4)) return kaputt("Prüfsumme falsch");
    const uint16_t version = static_cast<uint16_t>(b[4] | (b[5] << 8));
    if (version == 0 || version > VERSION) return kaputt("von einer neueren Fassung des Spiels");
    if (U32An(b, 6) != Crc32(spielstand.data(), spielstand.size())) return true;  // not this save's

    Feld<Integer, 1, 6> rollen{};
    const size_t ende = b.size() - 4;
    for (size_t pos = 10; pos < ende;) {
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
        pos += laenge;  // a section of a newer game is skipped
    }
    s.Computer = rollen;
    return true;
}
