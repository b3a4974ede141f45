#include "state/text.h"

#include <array>

#include "state/spiel.h"

namespace {
// Windows-1252 bytes 0x80..0x9F; 0 where the code page has no character.
constexpr std::array<unsigned int, 32> CP1252_80 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};
}  // namespace

unsigned int Cp1252ZuCodepunkt(unsigned char c) {
    if (c >= 0x80 && c < 0xA0) return CP1252_80[c - 0x80] ? CP1252_80[c - 0x80] : c;
    return c;
}

int CodepunktZuCp1252(unsigned int cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<int>(cp);
    for (unsigned i = 0; i < CP1252_80.size(); ++i)
        if (CP1252_80[i] == cp && cp != 0) return static_cast<int>(0x80 + i);
    return -1;
}

std::string T(std::string_view u) {
    std::string r;
    r.reserve(u.size());
    for (size_t i = 0; i < u.size();) {
        unsigned char c = static_cast<unsigned char>(u[i]);
        unsigned int cp;
        size_t n;
        if (c < 0x80) { cp = c; n = 1; }
        else if ((c & 0xE0) == 0xC0) { cp = c & 0x1F; n = 2; }
        else if ((c & 0xF0) == 0xE0) { cp = c & 0x0F; n = 3; }
        else if ((c & 0xF8) == 0xF0) { cp = c & 0x07; n = 4; }
        else { ++i; continue; }
        if (i + n > u.size()) break;
        for (size_t k = 1; k < n; ++k) cp = (cp << 6) | (static_cast<unsigned char>(u[i + k]) & 0x3F);
        i += n;
        int b = CodepunktZuCp1252(cp);
        if (b >= 0) r += static_cast<char>(b);
    }
    return r;
}

std::string Utf8(std::string_view s) {
    std::string r;
    r.reserve(s.size() + 8);
    for (unsigned char c : s) {
        unsigned int cp = Cp1252ZuCodepunkt(c);
        if (cp < 0x80) {
            r += static_cast<char>(cp);
        } else if (cp < 0x800) {
            r += static_cast<char>(0xC0 | (cp >> 6));
            r += static_cast<char>(0x80 | (cp & 0x3F));
        } else {
            r += static_cast<char>(0xE0 | (cp >> 12));
            r += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
            r += static_cast<char>(0x80 | (cp & 0x3F));
        }
    }
    return r;
}

std::string Str(long long n) { return (n >= 0 ? " " : "") + std::to_string(n); }

std::string Space(int n) { return n > 0 ? std::string(static_cast<size_t>(n), ' ') : std::string(); }

std::string Rechtsbuendig(long long n, int breite) {
    std::string t = Str(n);
    return Space(breite - static_cast<int>(t.size())) + t;
}

std::string Trim(const std::string& s) {
    size_t a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    size_t b = s.find_last_not_of(' ');
    return s.substr(a, b - a + 1);
}

std::vector<std::string> Umbrechen(const std::string& text, size_t breite) {
    std::vector<std::string> r;
    auto umbrechen = [&](std::string z) {
        while (z.size() > breite && breite > 0) {
            size_t p = z.rfind(' ', breite);
            if (p == std::string::npos || p == 0) p = breite;
            r.push_back(z.substr(0, p));
            z.erase(0, p);
            if (!z.empty() && z[0] == ' ') z.erase(0, 1);
        }
        r.push_back(z);
    };
    std::string zeile;
    for (char c : text) {
        if (c == '\r') continue;
        if (c == '\n') {
            umbrechen(zeile);
            zeile.clear();
        } else {
            zeile += c;
        }
    }
    umbrechen(zeile);
    return r;
}

std::string UCase(const std::string& s) {
    std::string r = s;
    for (char& ch : r) {
        unsigned char c = static_cast<unsigned char>(ch);
        if (c >= 'a' && c <= 'z') ch = static_cast<char>(c - 32);
        else if (c >= 0xE0 && c <= 0xFE && c != 0xF7) ch = static_cast<char>(c - 32);
    }
    return r;
}

std::string PlanetenName(const Spiel& s, int planet) {
    return s.Dokument(planet).Name + s.RoemZahl(planet % 10);
}
