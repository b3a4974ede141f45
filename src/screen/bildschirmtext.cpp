#include "screen/bildschirmtext.h"

#include <algorithm>

#include "state/text.h"

namespace {

std::string Zahl(long long n) { return std::to_string(n); }

}  // namespace

void Bildschirmtext::text(const std::string& t, int groesse, int x, int y, Farbe f, int zellB, int zellH) {
    if (t.empty()) return;
    Posten p;
    p.x = x;
    p.y = y;
    p.groesse = groesse;
    p.farbe = f;
    p.text = t;
    p.verdeckt.assign(t.size(), false);
    p.zellB = zellB;
    p.zellH = zellH;
    posten_.push_back(std::move(p));
}

void Bildschirmtext::bild(const std::string& schluessel, int x, int y, int b, int h) {
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

void Bildschirmtext::kreis(int cx, int cy, int r, bool gefuellt) {
    if (!gefuellt || r <= 1) return;
    const int k = static_cast<int>(r * 0.7);
    verdecken(cx - k, cy - k, cx + k, cy + k);
}

void Bildschirmtext::verdecken(int x1, int y1, int x2, int y2) {
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    bool weg = false;
    for (auto& p : posten_) {
        if (p.istText) {
            const int rechts = p.x + static_cast<int>(p.verdeckt.size()) * p.zellB - 1;
            if (p.y < y1 || p.y + p.zellH - 1 > y2 || rechts < x1 || p.x > x2) continue;
            for (size_t i = 0; i < p.verdeckt.size(); ++i) {
                const int cx = p.x + static_cast<int>(i) * p.zellB;
                if (cx >= x1 && cx + p.zellB - 1 <= x2 && !p.verdeckt[i]) {
                    p.verdeckt[i] = true;
                    ++p.anzahlVerdeckt;
                }
            }
        } else if (p.x >= x1 && p.y >= y1 && p.x + p.zellB - 1 <= x2 && p.y + p.zellH - 1 <= y2) {
            p.verdeckt.assign(1, true);
            p.anzahlVerdeckt = 1;
        }
        weg |= !p.verdeckt.empty() && p.anzahlVerdeckt == p.verdeckt.size();
    }
    if (weg) std::erase_if(posten_, [](const Posten& p) { return !p.verdeckt.empty() && p.anzahlVerdeckt == p.verdeckt.size(); });
}

std::string Bildschirmtext::textBei(int x, int y) const {
    for (auto it = posten_.rbegin(); it != posten_.rend(); ++it) {
        if (!it->istText || it->x != x || it->y != y) continue;
        std::string t = it->text;
        for (size_t i = 0; i < t.size(); ++i)
            if (it->verdeckt[i]) t[i] = ' ';
        return t;
    }
    return "";
}

std::string Bildschirmtext::bildschirm() const {
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
