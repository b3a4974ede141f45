#include "screen/headless/headless_plattform.h"

#include <algorithm>
#include <ctime>
#include <sstream>

#include "state/text.h"

namespace {

struct TastenName {
    const char* name;
    int code;
    int zeichen;  // the character the key types, -1 none
};

// Keys a script may press: name, Windows key code, character of the key.
constexpr TastenName TASTEN[] = {
    {"ENTER", 13, 13},  {"ESC", 27, 27},    {"SPACE", 32, ' '}, {"BACKSPACE", 8, 8},
    {"TAB", 9, 9},      {"UP", 38, -1},     {"DOWN", 40, -1},   {"LEFT", 37, -1},
    {"RIGHT", 39, -1},  {"PGUP", 33, -1},   {"PGDN", 34, -1},   {"PERIOD", 190, '.'},
    {"F3", 114, -1},    {"F4", 115, -1},    {"F5", 116, -1},
};

// The key that types a character on a German keyboard.
int TastenCodeFuer(unsigned char c) {
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

std::string Zahl(long long n) { return std::to_string(n); }

}  // namespace

HeadlessPlattform::HeadlessPlattform() = default;

bool HeadlessPlattform::schriftBereit(std::string& fehler) { return leinwand_.schriftLaden(fehler); }

bool HeadlessPlattform::skriptLaden(const std::string& text, std::string& fehler) {
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
        Zeile z;
        z.art = Art::Taste;
        z.nummer = nr;
        bool gut = true;
        std::istringstream r(rest);
        if (wort == "key") {
            std::string name = Trim(rest);
            gut = false;
            if (name.size() == 1 && ((name[0] >= 'A' && name[0] <= 'Z') || (name[0] >= '0' && name[0] <= '9'))) {
                z.code = name[0];
                z.zeichen = name[0] >= 'A' ? name[0] + 32 : name[0];
                gut = true;
            }
            for (const auto& t : TASTEN)
                if (name == t.name) { z.code = t.code; z.zeichen = t.zeichen; gut = true; }
        } else if (wort == "type") {
            z.art = Art::Tippen;
            z.text = T(rest);
            gut = !z.text.empty();
        } else if (wort == "click") {
            z.art = Art::Klick;
            gut = static_cast<bool>(r >> z.x >> z.y);
        } else if (wort == "wait") {
            z.art = Art::Warten;
            gut = static_cast<bool>(r >> z.ms) && z.ms >= 0;
        } else if (wort == "answer") {
            z.art = Art::Antwort;
            std::string w = Trim(rest);
            gut = w == "yes" || w == "no";
            z.ja = w == "yes";
        } else if (wort == "close" && Trim(rest).empty()) {
            z.art = Art::Schliessen;
        } else {
            gut = false;
        }
        if (!gut) {
            fehler = "Skriptzeile " + std::to_string(nr) + " unbekannt: " + zeile;
            return false;
        }
        skript_.push_back(z);
    }
    return true;
}

bool HeadlessPlattform::skriptAufgebraucht() const { return pos_ >= skript_.size(); }

uint32_t HeadlessPlattform::saat() {
    if (saatFest_) return saat_;
    return static_cast<uint32_t>(std::time(nullptr));
}

// --- trace -------------------------------------------------------------------

void HeadlessPlattform::spurZeile(const std::string& z) {
    if (!spurAn_) return;
    if (z == letzteSpur_ && z.rfind("sleep", 0) == 0) {  // a run of polls is one line
        ++spurWiederholung_;
        return;
    }
    if (spurWiederholung_ > 0) spur_ += "  (x" + Zahl(spurWiederholung_ + 1) + ")";
    if (!spur_.empty()) spur_ += '\n';
    spur_ += z;
    letzteSpur_ = z;
    spurWiederholung_ = 0;
}

// --- drawing -----------------------------------------------------------------

void HeadlessPlattform::verdecken(int x1, int y1, int x2, int y2) {
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    for (auto& p : posten_) {
        if (p.istText) {
            if (p.y < y1 || p.y + p.zellH - 1 > y2) continue;
            for (size_t i = 0; i < p.verdeckt.size(); ++i) {
                int cx = p.x + static_cast<int>(i) * p.zellB;
                if (cx >= x1 && cx + p.zellB - 1 <= x2) p.verdeckt[i] = true;
            }
        } else if (p.x >= x1 && p.y >= y1 && p.x + p.zellB - 1 <= x2 && p.y + p.zellH - 1 <= y2) {
            p.verdeckt.assign(1, true);
        }
    }
    std::erase_if(posten_, [](const Posten& p) {
        return !p.verdeckt.empty() && std::all_of(p.verdeckt.begin(), p.verdeckt.end(), [](bool b) { return b; });
    });
}

void HeadlessPlattform::leeren() {
    nichtGeschlafen();
    spurZeile("clear");
    if (pixel_) leinwand_.leeren();
    posten_.clear();
}

void HeadlessPlattform::titelSetzen(const std::string& t) {
    spurZeile("title " + Utf8(t));
    titel_ = t;
}

void HeadlessPlattform::text(const std::string& t, int groesse, int x, int y, Farbe f) {
    nichtGeschlafen();
    spurZeile("print " + Zahl(x) + " " + Zahl(y) + " " + Zahl(groesse) + " " + Zahl(f) + " " + Utf8(t));
    if (pixel_) leinwand_.text(t, groesse, x, y, f);
    if (t.empty()) return;
    Posten p;
    p.x = x;
    p.y = y;
    p.groesse = groesse;
    p.farbe = f;
    p.text = t;
    p.verdeckt.assign(t.size(), false);
    int b = 0, h = 0;
    leinwand_.textMessen(" ", groesse, b, h);
    p.zellB = b;
    p.zellH = h;
    posten_.push_back(std::move(p));
}

void HeadlessPlattform::textMessen(const std::string& t, int groesse, int& breite, int& hoehe) {
    leinwand_.textMessen(t, groesse, breite, hoehe);
}

void HeadlessPlattform::linie(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    nichtGeschlafen();
    spurZeile("line " + Zahl(x1) + " " + Zahl(y1) + " " + Zahl(x2) + " " + Zahl(y2) + " " + Zahl(f) + " " + Zahl(breite));
    if (pixel_) leinwand_.linie(x1, y1, x2, y2, f, breite);
}

void HeadlessPlattform::rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite) {
    nichtGeschlafen();
    spurZeile("frame " + Zahl(x1) + " " + Zahl(y1) + " " + Zahl(x2) + " " + Zahl(y2) + " " + Zahl(f) + " " + Zahl(breite));
    if (pixel_) leinwand_.rahmen(x1, y1, x2, y2, f, breite);
}

void HeadlessPlattform::box(int x1, int y1, int x2, int y2, Farbe f) {
    nichtGeschlafen();
    spurZeile("box " + Zahl(x1) + " " + Zahl(y1) + " " + Zahl(x2) + " " + Zahl(y2) + " " + Zahl(f));
    if (pixel_) leinwand_.box(x1, y1, x2, y2, f);
    verdecken(x1, y1, x2, y2);
}

void HeadlessPlattform::kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) {
    nichtGeschlafen();
    spurZeile("circle " + Zahl(cx) + " " + Zahl(cy) + " " + Zahl(r) + " " + Zahl(f) + (gefuellt ? " filled" : " outline"));
    if (pixel_) leinwand_.kreis(cx, cy, r, f, gefuellt, breite);
    if (gefuellt && r > 1) {
        int k = static_cast<int>(r * 0.7);  // the square inside the disc
        verdecken(cx - k, cy - k, cx + k, cy + k);
    }
}

void HeadlessPlattform::bild(const std::string& schluessel, int x, int y) {
    nichtGeschlafen();
    spurZeile("picture " + Zahl(x) + " " + Zahl(y) + " " + Utf8(schluessel));
    if (pixel_) leinwand_.bild(schluessel, x, y);
    int b = 0, h = 0;
    if (!leinwand_.bildGroesse(schluessel, b, h)) return;
    verdecken(x, y, x + b - 1, y + h - 1);
    Posten p;
    p.istText = false;
    p.x = x;
    p.y = y;
    p.text = schluessel;
    p.zellB = b;
    p.zellH = h;
    posten_.push_back(std::move(p));
}

std::string HeadlessPlattform::textBei(int x, int y) const {
    for (auto it = posten_.rbegin(); it != posten_.rend(); ++it) {
        if (!it->istText || it->x != x || it->y != y) continue;
        std::string t = it->text;
        for (size_t i = 0; i < t.size(); ++i)
            if (it->verdeckt[i]) t[i] = ' ';
        return t;
    }
    return "";
}

std::string HeadlessPlattform::bildschirm() const {
    std::string r;
    for (const auto& p : posten_) {
        if (!p.istText) {
            r += "picture\t" + Zahl(p.x) + "\t" + Zahl(p.y) + "\t" + Utf8(p.text) + "\n";
            continue;
        }
        std::string t = p.text;
        for (size_t i = 0; i < t.size(); ++i)
            if (p.verdeckt[i]) t[i] = ' ';
        if (t.find_first_not_of(' ') == std::string::npos) continue;  // blanks show nothing
        r += "text\t" + Zahl(p.x) + "\t" + Zahl(p.y) + "\t" + Zahl(p.groesse) + "\t" + Zahl(p.farbe) + "\t" + Utf8(t) + "\n";
    }
    return r;
}

// --- time and input ------------------------------------------------------------

void HeadlessPlattform::schlafen(int ms) {
    spurZeile("sleep " + Zahl(ms));
    uhr_ += ms;
    kurzGeschlafen_ = ms <= 50;
    if (uhr_ - START_MS >= maxMs_) throw ProgrammEnde{0};
}

bool HeadlessPlattform::ausliefern() {
    while (pos_ < skript_.size()) {
        if (uhr_ < wartenBis_) return false;
        Zeile& z = skript_[pos_];
        switch (z.art) {
            case Art::Warten:
                wartenBis_ = uhr_ + z.ms;
                ++pos_;
                continue;
            case Art::Antwort:
                antwortVorgemerkt_ = z.ja ? 1 : 2;
                ++pos_;
                continue;
            case Art::Taste:
                warteschlange_.push_back({EreignisArt::KeyDown, z.code});
                if (z.zeichen >= 0) warteschlange_.push_back({EreignisArt::KeyPress, z.zeichen});
                ++pos_;
                return true;
            case Art::Tippen: {
                unsigned char c = static_cast<unsigned char>(z.text[tippPos_]);
                warteschlange_.push_back({EreignisArt::KeyDown, TastenCodeFuer(c)});
                warteschlange_.push_back({EreignisArt::KeyPress, c});
                if (++tippPos_ >= z.text.size()) {
                    tippPos_ = 0;
                    ++pos_;
                }
                return true;
            }
            case Art::Klick:
                warteschlange_.push_back({EreignisArt::MouseUp, 0, 1, z.x, z.y});
                ++pos_;
                return true;
            case Art::Schliessen:
                warteschlange_.push_back({EreignisArt::Schliessen});
                ++pos_;
                return true;
        }
    }
    return false;
}

void HeadlessPlattform::pumpen() {
    if (!kurzGeschlafen_) return;  // only the polling of a waiting routine takes input
    kurzGeschlafen_ = false;
    if (!warteschlange_.empty()) return;
    if (ausliefern() || pos_ < skript_.size() || uhr_ < wartenBis_) return;
    if (nachschub_) {
        skript_.clear();  // what was played is not needed again
        pos_ = 0;
        std::string fehler;
        const std::string mehr = nachschub_();
        if (!mehr.empty() && skriptLaden(mehr, fehler) && (ausliefern() || pos_ < skript_.size())) return;
    }
    throw ProgrammEnde{0};
}

bool HeadlessPlattform::ereignisHolen(Ereignis& e) {
    if (warteschlange_.empty()) return false;
    e = warteschlange_.front();
    warteschlange_.pop_front();
    return true;
}

// --- boxes and music -----------------------------------------------------------

bool HeadlessPlattform::frage(const std::string& titel, const std::string& text) {
    nichtGeschlafen();
    // An "answer" line right behind the input that raised the box belongs to it.
    if (antwortVorgemerkt_ == 0 && pos_ < skript_.size() && skript_[pos_].art == Art::Antwort) {
        antwortVorgemerkt_ = skript_[pos_].ja ? 1 : 2;
        ++pos_;
    }
    bool ja = antwortVorgemerkt_ != 2;
    antwortVorgemerkt_ = 0;
    spurZeile("msgbox question " + Utf8(titel) + " | " + Utf8(text) + " -> " + (ja ? "yes" : "no"));
    return ja;
}

void HeadlessPlattform::meldung(const std::string& titel, const std::string& text, BoxArt) {
    nichtGeschlafen();
    spurZeile("msgbox info " + Utf8(titel) + " | " + Utf8(text));
}

bool HeadlessPlattform::musikSpielen(const std::string& pfad) {
    spurZeile("music play " + pfad);
    musikGespielt.push_back(pfad);
    return true;
}

void HeadlessPlattform::musikStoppen() { spurZeile("music stop"); }
