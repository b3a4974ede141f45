#pragma once
// The 44 pictures of the game, by key and size. Keys are Windows-1252 as the
// game writes them; files in data/bilder/ carry the key spelt in ASCII
// (ß -> ss, ä -> ae, ö -> oe, ü -> ue) with ".png".
#include <array>
#include <string>

struct BildEintrag {
    const char* schluessel;  // UTF-8 in this table
    int breite;
    int hoehe;
};

inline constexpr std::array<BildEintrag, 44> BILDLISTE = {{
    // key                  w    h       no.
    {"Getreide",            9,  15},  //  1
    {"Seidenstoffe",        8,  15},  //  2
    {"G-Stahl",             8,  15},  //  3
    {"Gewürze",             8,  15},  //  4
    {"Fluritid",            8,  15},  //  5
    {"Alkarkotica",         8,  15},  //  6
    {"Damast",              8,  15},  //  7
    {"Silizium",            8,  15},  //  8
    {"Platinholz",          8,  15},  //  9
    {"Mirellen",            8,  15},  // 10
    {"Fossilien",           9,  15},  // 11
    {"Griflinge",           8,  15},  // 12
    {"Sen-Wurzel",          8,  15},  // 13
    {"Antimaterie",         9,  15},  // 14
    {"Zimol-Lampen",        9,  15},  // 15
    {"Flopse",              8,  15},  // 16
    {"Histarin",            8,  15},  // 17
    {"Stellariten",         8,  15},  // 18
    {"Diamitrin",           8,  15},  // 19
    {"Golgo-Pelze",         9,  15},  // 20
    {"Leer",                9,  15},  // 21
    {"Tank",                8,  15},  // 22
    {"Supersprit",          8,  15},  // 23
    {"Frachter",           68,  68},  // 24
    {"Kreuzer",            68,  68},  // 25
    {"Scout",              68,  68},  // 26
    {"Raumstation",        68,  68},  // 27
    {"Großfrachter",       68,  68},  // 28
    {"Piraten",            69,  68},  // 29
    {"Händler",            68,  68},  // 30
    {"FrachterKlein",      36,  36},  // 31
    {"KreuzerKlein",       36,  36},  // 32
    {"ScoutKlein",         36,  36},  // 33
    {"RaumstationKlein",   36,  36},  // 34
    {"GroßfrachterKlein",  34,  34},  // 35
    {"PiratenKlein",       36,  36},  // 36
    {"HändlerKlein",       36,  36},  // 37
    {"DTW-Filter",         34,  34},  // 38
    {"Reparaturset",       26,  26},  // 39
    {"Geräte",             18,  15},  // 40
    {"Sound",              17,  17},  // 41
    {"Produktion",         17,  17},  // 42
    {"Portal",            202, 147},  // 43
    {"PortalKlein",        81,  59},  // 44
}};
static_assert(BILDLISTE.size() == 44, "the image list holds 44 pictures");

// "Großfrachter" -> "Grossfrachter" (input UTF-8).
inline std::string BildDateiname(const std::string& utf8) {
    std::string r;
    for (size_t i = 0; i < utf8.size(); ++i) {
        unsigned char c = static_cast<unsigned char>(utf8[i]);
        if (c == 0xC3 && i + 1 < utf8.size()) {
            unsigned char d = static_cast<unsigned char>(utf8[++i]);
            switch (d) {
                case 0x9F: r += "ss"; break;
                case 0xA4: r += "ae"; break;
                case 0xB6: r += "oe"; break;
                case 0xBC: r += "ue"; break;
                case 0x84: r += "Ae"; break;
                case 0x96: r += "Oe"; break;
                case 0x9C: r += "Ue"; break;
                default: break;
            }
        } else {
            r += static_cast<char>(c);
        }
    }
    return r + ".png";
}
