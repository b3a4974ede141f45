#include "screen/skript.h"

#include <sstream>

#include "state/text.h"

namespace {

struct TastenName {
    const char* name;
    int code;
    int zeichen;  // the character the key types, -1 none
};

// Keys a script may press by name: Windows key code, character of the key.
constexpr TastenName TASTEN[] = {
    {"ENTER", 13, 13},  {"ESC", 27, 27},    {"SPACE", 32, ' '}, {"BACKSPACE", 8, 8},
    {"TAB", 9, 9},      {"UP", 38, -1},     {"DOWN", 40, -1},   {"LEFT", 37, -1},
    {"RIGHT", 39, -1},  {"PGUP", 33, -1},   {"PGDN", 34, -1},   {"PERIOD", 190, '.'},
    {"F1", 112, -1},    {"F2", 113, -1},    {"F3", 114, -1},    {"F4", 115, -1},
    {"F5", 116, -1},    {"F6", 117, -1},    {"F7", 118, -1},    {"F8", 119, -1},
    {"F9", 120, -1},    {"F10", 121, -1},   {"F11", 122, -1},   {"F12", 123, -1},
    {"HOME", 36, -1},   {"END", 35, -1},    {"INSERT", 45, -1}, {"DELETE", 46, -1},
};

// A letter key types its small letter, a digit key its digit.
bool BuchstabeOderZiffer(const std::string& name, int& code, int& zeichen) {
    if (name.size() != 1) return false;
    const char c = name[0];
    if (c >= 'A' && c <= 'Z') { code = c; zeichen = c + 32; return true; }
    if (c >= '0' && c <= '9') { code = c; zeichen = c; return true; }
    return false;
}

// A whole number in [von, bis] and nothing after it.
bool Zahl(std::istringstream& r, long long von, long long bis, long long& n) {
    if (!(r >> n) || n < von || n > bis) return false;
    std::string rest;
    return !(r >> rest);
}

}  // namespace

int SkriptTastenCode(unsigned char c) {
    if (c >= 'a' && c <= 'z') return c - 32;
    if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ') return c;
    switch (c) {
        case 0xE4: case 0xC4: return 222;  // ä
        case 0xF6: case 0xD6: return 192;  // ö
        case 0xFC: case 0xDC: return 186;  // ü
        case 0xDF: return 219;             // ß
        case '.': return 190;
        case ',': return 188;
        case '-': return 189;
        default: return 0;
    }
}

bool SkriptLesen(const std::string& text, std::vector<SkriptZeile>& zeilen, std::string& fehler) {
    std::istringstream ein(text);
    std::string zeile;
    int nr = 0;
    while (std::getline(ein, zeile)) {
        ++nr;
        if (!zeile.empty() && zeile.back() == '\r') zeile.pop_back();
        size_t a = zeile.find_first_not_of(" \t");
        if (a == std::string::npos || zeile[a] == '#') continue;
        zeile = zeile.substr(a);
        std::string wort = zeile.substr(0, zeile.find(' '));
        std::string rest = zeile.size() > wort.size() ? zeile.substr(wort.size() + 1) : "";
        SkriptZeile z;
        z.nummer = nr;
        bool gut = true;
        long long n = 0, m = 0;
        std::istringstream r(rest);
        if (wort == "key") {
            const std::string name = Trim(rest);
            gut = BuchstabeOderZiffer(name, z.code, z.zeichen);
            for (const auto& t : TASTEN)
                if (name == t.name) { z.code = t.code; z.zeichen = t.zeichen; gut = true; }
        } else if (wort == "keycode") {
            gut = static_cast<bool>(r >> n) && n >= 0 && n <= 255;
            z.code = static_cast<int>(n);
            if (gut && (r >> m)) {
                gut = m >= 0 && m <= 255;
                z.zeichen = static_cast<int>(m);
            }
            std::string mehr;
            if (r.clear(), r >> mehr) gut = false;
        } else if (wort == "char") {
            gut = Zahl(r, 0, 255, n);
            z.code = -1;
            z.zeichen = static_cast<int>(n);
        } else if (wort == "type") {
            z.art = SkriptArt::Tippen;
            z.text = T(rest);
            gut = !z.text.empty();
        } else if (wort == "click") {
            z.art = SkriptArt::Klick;
            gut = static_cast<bool>(r >> z.x >> z.y);
        } else if (wort == "wait") {
            z.art = SkriptArt::Warten;
            gut = Zahl(r, 0, 1LL << 40, z.ms);
        } else if (wort == "seed") {
            z.art = SkriptArt::Saat;
            gut = Zahl(r, 0, UINT32_MAX, n);
            z.saat = static_cast<uint32_t>(n);
        } else if (wort == "answer") {
            z.art = SkriptArt::Antwort;
            const std::string w = Trim(rest);
            gut = w == "yes" || w == "no";
            z.ja = w == "yes";
        } else if (wort == "close" && Trim(rest).empty()) {
            z.art = SkriptArt::Schliessen;
        } else {
            gut = false;
        }
        if (!gut) {
            fehler = "Skriptzeile " + std::to_string(nr) + " unbekannt: " + zeile;
            return false;
        }
        zeilen.push_back(z);
    }
    return true;
}

std::string SkriptTaste(int code, int zeichen) {
    if (code < 0) return "char " + std::to_string(zeichen);
    for (const auto& t : TASTEN)
        if (t.code == code && t.zeichen == zeichen) return std::string("key ") + t.name;
    const std::string eins(1, static_cast<char>(code));
    int c = 0, z = 0;
    if (BuchstabeOderZiffer(eins, c, z) && z == zeichen) return "key " + eins;
    // A character whose key is the one that types it, and that survives the
    // trip through the script's UTF-8.
    if (zeichen > 32 && zeichen != 127 && SkriptTastenCode(static_cast<unsigned char>(zeichen)) == code) {
        const std::string b(1, static_cast<char>(zeichen));
        const std::string u = Utf8(b);
        if (T(u) == b) return "type " + u;
    }
    return "keycode " + std::to_string(code) + (zeichen >= 0 ? " " + std::to_string(zeichen) : "");
}

std::string SkriptEreignis(const Ereignis& e) {
    switch (e.art) {
        case EreignisArt::KeyDown: return SkriptTaste(e.code, -1);
        case EreignisArt::KeyPress: return SkriptTaste(-1, e.code);
        case EreignisArt::MouseUp: return "click " + std::to_string(e.x) + " " + std::to_string(e.y);
        case EreignisArt::Schliessen: return "close";
    }
    return "";
}
