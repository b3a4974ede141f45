// The galaxy of a new game and the distance between two planets.
#include "state/sterne.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>
#include <filesystem>
#include <numeric>
#include <system_error>

#include "state/text.h"
#include "state/zufall.h"

namespace {

constexpr int ANZAHL_EINTRAEGE = 400;
constexpr int NAME_BREITE = 15;   // columns 1-15
constexpr int ABSTAND_SPALTE = 17;  // columns 17-19
constexpr int EINTRAG_MINDESTENS = 19;

// Placing one star retries until it keeps its distance to all earlier ones.
// A sound star list needs a few retries; this many means the list crowds
// its stars onto too few places, and the game would never start.
constexpr long PLATZ_VERSUCHE = 1000000;

// Which good a star produces, by its distance e from Sol. A row is
// chosen by the lowest e it covers; in a row the first column whose bound
// lies above the draw r gives the good, the last column takes the rest.
struct WarenZeile {
    int abVon;          // the row covers e >= abVon (up to the next row)
    int anzahl;         // columns used
    Integer ware[11];
    float grenze[10];   // single precision; r must lie strictly below
};
const WarenZeile WAREN_TABELLE[] = {
    /* 1 */ {  0,  1, { 1},
                      {}},
    /* 2 */ {  7,  4, { 1,     2,     3,     4},
                      {0.30f, 0.45f, 0.65f}},
    /* 3 */ { 30,  7, { 1,     2,     3,     4,     5,     6,     7},
                      {0.10f, 0.20f, 0.40f, 0.60f, 0.80f, 0.90f}},
    /* 4 */ { 50,  7, { 1,     2,     3,     4,     5,     6,     7},
                      {0.05f, 0.10f, 0.17f, 0.25f, 0.55f, 0.85f}},
    /* 5 */ { 75, 10, { 1,     2,     3,     4,     5,     6,     7,     8,     9,    10},
                      {0.03f, 0.07f, 0.15f, 0.25f, 0.35f, 0.50f, 0.70f, 0.80f, 0.90f}},
    /* 6 */ {100, 11, { 3,     4,     5,     6,     7,     8,     9,    10,    11,    12,    13},
                      {0.03f, 0.07f, 0.13f, 0.20f, 0.30f, 0.40f, 0.50f, 0.70f, 0.80f, 0.90f}},
    /* 7 */ {120, 11, { 7,     8,     9,    10,    11,    12,    13,    14,    15,    16,    17},
                      {0.04f, 0.10f, 0.17f, 0.25f, 0.35f, 0.50f, 0.65f, 0.75f, 0.84f, 0.92f}},
    /* 8 */ {150, 11, {10,    11,    12,    13,    14,    15,    16,    17,    18,    19,    20},
                      {0.05f, 0.10f, 0.15f, 0.20f, 0.30f, 0.45f, 0.60f, 0.75f, 0.84f, 0.92f}},
};
static_assert(std::size(WAREN_TABELLE) == 8);

std::string DateiFehlt(const std::string& pfad) {
    return "Die Datei 'Planetenliste.bin' fehlt: " + pfad;
}
std::string DateiKaputt() { return T("Die Datei 'Planetenliste.bin' ist beschädigt oder zu kurz."); }

// One character of Windows-1252 in lower case.
unsigned char Klein(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + 32);
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<unsigned char>(c + 32);
    switch (c) {
        case 0x8A: return 0x9A;  // Š
        case 0x8C: return 0x9C;  // Œ
        case 0x8E: return 0x9E;  // Ž
        case 0x9F: return 0xFF;  // Ÿ
        default: return c;
    }
}

// A lower-case letter with its marks taken off: "ä" sorts as "a", "ß" as "ss".
void Grundbuchstabe(unsigned char c, std::string& aus) {
    if (c >= 0xE0 && c <= 0xE5) { aus += 'a'; return; }
    if (c >= 0xE8 && c <= 0xEB) { aus += 'e'; return; }
    if (c >= 0xEC && c <= 0xEF) { aus += 'i'; return; }
    if ((c >= 0xF2 && c <= 0xF6) || c == 0xF8) { aus += 'o'; return; }
    if (c >= 0xF9 && c <= 0xFC) { aus += 'u'; return; }
    switch (c) {
        case 0xE6: aus += "ae"; return;
        case 0xE7: aus += 'c'; return;
        case 0xF0: aus += 'd'; return;
        case 0xF1: aus += 'n'; return;
        case 0xFD: case 0xFF: aus += 'y'; return;
        case 0xFE: aus += "th"; return;
        case 0xDF: aus += "ss"; return;
        case 0x9A: aus += 's'; return;
        case 0x9C: aus += "oe"; return;
        case 0x9E: aus += 'z'; return;
        default: aus += static_cast<char>(c);
    }
}

// The order of the sorted star list: letters without regard to case, an
// umlaut beside its plain letter; texts alike in that compare by their
// lower-case bytes, and texts alike in that too keep their order.
struct Sortierschluessel {
    std::string grob;
    std::string fein;
};
Sortierschluessel Schluessel(const std::string& text) {
    Sortierschluessel k;
    for (unsigned char c : text) {
        const unsigned char l = Klein(c);
        k.fein += static_cast<char>(l);
        Grundbuchstabe(l, k.grob);
    }
    return k;
}
bool Vor(const Sortierschluessel& a, const Sortierschluessel& b) {
    const auto byteweise = [](const std::string& x, const std::string& y) {
        return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end(), [](char p, char q) {
            return static_cast<unsigned char>(p) < static_cast<unsigned char>(q);
        });
    };
    if (a.grob != b.grob) return byteweise(a.grob, b.grob);
    return byteweise(a.fein, b.fein);
}

// The number at the start of a text, blanks skipped, as the game reads
// numbers out of texts: "  7" is 7, "12.5" is 12.5, nothing is 0.
double ZahlWert(const std::string& text) {
    std::string z;
    for (char c : text) {
        if (c == ' ' || c == '\t') continue;
        const bool ziffer = c >= '0' && c <= '9';
        const bool vorzeichen = (c == '-' || c == '+') && z.empty();
        const bool punkt = c == '.' && z.find('.') == std::string::npos;
        if (!ziffer && !vorzeichen && !punkt) break;
        z += c;
    }
    double w = 0;
    bool minus = false, nachkomma = false;
    double teil = 1;
    for (char c : z) {
        if (c == '-') minus = true;
        else if (c == '.') nachkomma = true;
        else if (c >= '0' && c <= '9') {
            if (nachkomma) {
                teil /= 10;
                w += (c - '0') * teil;
            } else {
                w = w * 10 + (c - '0');
            }
        }
    }
    return minus ? -w : w;
}

// Int(Rnd x AnzahlPlaneten) + 11: any planet in play.
int PlanetZiehen(Spiel& s) { return static_cast<int>(ZufallGanz(s, 11, s.AnzahlPlaneten + 10L)); }

}  // namespace

bool PLANETENLISTE_LESEN(const std::string& pfad, std::vector<std::string>& eintraege, std::string& fehler) {
    eintraege.clear();
    std::error_code ec;
    if (!std::filesystem::is_regular_file(pfad, ec)) {
        fehler = DateiFehlt(pfad);
        return false;
    }
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein) {
        fehler = DateiFehlt(pfad);
        return false;
    }
    const std::string inhalt((std::istreambuf_iterator<char>(ein)), std::istreambuf_iterator<char>());
    size_t pos = 0;
    for (int i = 0; i < ANZAHL_EINTRAEGE; ++i) {
        if (inhalt.size() - pos < 2) {
            fehler = DateiKaputt();
            eintraege.clear();
            return false;
        }
        const size_t laenge = static_cast<unsigned char>(inhalt[pos]) |
                              (static_cast<size_t>(static_cast<unsigned char>(inhalt[pos + 1])) << 8);
        pos += 2;
        if (laenge < EINTRAG_MINDESTENS || inhalt.size() - pos < laenge) {
            fehler = DateiKaputt();
            eintraege.clear();
            return false;
        }
        eintraege.push_back(inhalt.substr(pos, laenge));
        pos += laenge;
    }
    fehler.clear();
    return true;
}

Integer WARE_FUER_STERN(int e, float r) {
    const WarenZeile* zeile = &WAREN_TABELLE[0];
    for (const WarenZeile& z : WAREN_TABELLE)
        if (e >= z.abVon) zeile = &z;
    for (int i = 0; i < zeile->anzahl - 1; ++i)
        if (r < zeile->grenze[i]) return zeile->ware[i];
    return zeile->ware[zeile->anzahl - 1];
}

bool STERNE_NEU(Spiel& s, std::string& fehler) {
    std::vector<std::string> eintraege;
    if (!PLANETENLISTE_LESEN(s.ProgrammVerzeichnis + "/Planetenliste.bin", eintraege, fehler)) return false;
    const int n = s.AnzahlPlaneten / 10;
    if (n < 1 || n > ANZAHL_EINTRAEGE) {
        fehler = "Die Zahl der Sternensysteme " + std::to_string(n) + " ist nicht spielbar.";
        return false;
    }

    // 1. the first n stars of the list, in the order of their names
    std::vector<Sortierschluessel> schluessel;
    for (int i = 0; i < n; ++i) schluessel.push_back(Schluessel(eintraege[static_cast<size_t>(i)]));
    std::vector<int> folge(static_cast<size_t>(n));
    std::iota(folge.begin(), folge.end(), 0);
    std::stable_sort(folge.begin(), folge.end(), [&](int a, int b) {
        return Vor(schluessel[static_cast<size_t>(a)], schluessel[static_cast<size_t>(b)]);
    });

    // 2. names with one trailing blank, and the distance from Sol
    for (int sys = 1; sys <= n; ++sys) {
        const std::string& eintrag = eintraege[static_cast<size_t>(folge[static_cast<size_t>(sys - 1)])];
        std::string name = eintrag.substr(0, NAME_BREITE);
        while (name.size() >= 2 && name[name.size() - 1] == ' ' && name[name.size() - 2] == ' ') name.pop_back();
        const double wert = ZahlWert(eintrag.substr(ABSTAND_SPALTE - 1, 3));
        for (int k = 1; k <= 10; ++k) {
            Planet& p = s.Dokument(10 * sys + k);
            p.Name = name;
            p.Abstand = static_cast<Integer>(std::nearbyint(wert));
        }
    }

    // The searches below only end if some star suits them.
    bool nah = false, weit = false;
    for (int sys = 1; sys <= n; ++sys) {
        nah = nah || s.Dokument(10 * sys + 1).Abstand < 71;
        weit = weit || s.Dokument(10 * sys + 1).Abstand >= 40;
    }
    if (!nah || !weit) {
        fehler = T("Die Datei 'Planetenliste.bin' hat keine Sterne für die Komponenten oder die Händler.");
        return false;
    }

    // 3. Sol
    Planet& sol = s.Dokument(SOL_III);
    sol.Name = "Sol ";
    sol.Abstand = 0;
    sol.X = 0;
    sol.Y = 0;

    // 4.
    s.Zufallswert = Rnd(s);

    // 5. every star at its distance, in a direction drawn until it keeps
    //    sqrt(7) from every earlier star
    for (int sys = 1; sys <= n; ++sys) {
        Planet& stern = s.Dokument(10 * sys + 1);
        const float e = static_cast<float>(stern.Abstand);
        for (long versuch = 1;; ++versuch) {
            if (versuch > PLATZ_VERSUCHE) {
                fehler = "Die Sterne aus 'Planetenliste.bin' finden auf der Karte keinen Platz.";
                return false;
            }
            const float a = Rnd(s) * 10000.0f;
            stern.X = static_cast<Integer>(std::floor(e * std::cos(a)));
            stern.Y = static_cast<Integer>(std::floor(e * std::sin(a)));
            bool frei = true;
            for (int t = 1; t < sys && frei; ++t) {
                const Planet& alt = s.Dokument(10 * t + 1);
                const long dy = stern.Y - alt.Y;
                const long dx = stern.X - alt.X;
                frei = dy * dy + dx * dx >= 7;
            }
            if (frei) break;
        }
        for (int k = 2; k <= 10; ++k) {
            s.Dokument(10 * sys + k).X = stern.X;
            s.Dokument(10 * sys + k).Y = stern.Y;
        }
    }

    // 6. the good of each system; the near ones draw all the same
    for (int sys = 1; sys <= n; ++sys) {
        const float r = Rnd(s);
        const Integer ware = WARE_FUER_STERN(s.Dokument(10 * sys + 1).Abstand, r);
        for (int k = 1; k <= 10; ++k) s.Dokument(10 * sys + k).Ware = ware;
    }

    // 7. the five story components, near Sol; two may share a planet
    for (int i = 1; i <= 5; ++i) {
        int p;
        do p = PlanetZiehen(s);
        while (s.Dokument(p).Abstand >= 71);
        s.KomponentenPlanet(i) = static_cast<Integer>(p);
    }

    // 8. the six merchants, out from 40 units
    for (int h = HAENDLER_ERSTES; h <= HAENDLER_LETZTES; ++h) {
        int p;
        do p = PlanetZiehen(s);
        while (s.Dokument(p).Abstand < 40);
        s.Schiffe(h).Planet = static_cast<Integer>(p);
    }

    // 9. the pirates' headquarters beyond 89 units; the search gives up at
    //    its 1000th draw, and then there is none, whatever that draw gave
    {
        int p = 0;
        int zuege = 0;
        do {
            p = PlanetZiehen(s);
            ++zuege;
        } while (s.Dokument(p).Abstand <= 89 && zuege < 1000);
        s.Schiffe(PIRATEN_HQ).Planet = static_cast<Integer>(zuege == 1000 ? 0 : p);
    }

    // 10. each planet's own offset replaces the distance from Sol
    for (int p = 11; p <= s.AnzahlPlaneten + 10; ++p)
        s.Dokument(p).Abstand = static_cast<Integer>(ZufallGanz(s, -2, 2));
    return true;
}

Integer ENTFERNUNG(const Spiel& s, int AnfPlanet, int ZielPlanet) {
    float d;
    if (ZielPlanet < 0) {
        d = 1.0f;
    } else {
        const auto system = [](int planet) { return static_cast<int>(std::floor((planet - 1) / 10.0)); };
        const Planet& anf = s.Dokument(AnfPlanet);
        const Planet& ziel = s.Dokument(ZielPlanet);
        if (system(AnfPlanet) == system(ZielPlanet)) {
            d = 0.0f;
        } else {
            const float dy = static_cast<float>(anf.Y - ziel.Y);
            const float dx = static_cast<float>(anf.X - ziel.X);
            d = std::sqrt(dy * dy + dx * dx);
        }
        d = static_cast<float>(anf.Abstand) + d + static_cast<float>(ziel.Abstand);
        if (d < 2.0f) d = 2.0f;
    }
    if (AnfPlanet == ZielPlanet) d = 0.0f;
    // to the nearest whole number, a half to the even one (default rounding)
    return static_cast<Integer>(std::nearbyint(d));
}
