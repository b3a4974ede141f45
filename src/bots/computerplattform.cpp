#include "bots/computerplattform.h"

#include <cstdio>

namespace {

// What a person may do in the window while a computer plays: close it, and
// switch the music and the production news (F5, F4). Other keys and clicks
// would land in the computer's dialog, so they are dropped.
bool FensterSache(const Ereignis& e) {
    return e.art == EreignisArt::Schliessen ||
           (e.art == EreignisArt::KeyDown && (e.code == Taste::F5 || e.code == Taste::F4));
}

}  // namespace

struct ComputerPlattform::Stand : Plattform::Bildstand {
    std::shared_ptr<Bildstand> innen;
    Bildschirmtext text;
};

void ComputerPlattform::leeren() {
    innen_.leeren();
    text_.leeren();
}

void ComputerPlattform::text(const std::string& t, int groesse, int x, int y, Farbe f) {
    innen_.text(t, groesse, x, y, f);
    int b = 0, h = 0;
    innen_.textMessen(" ", groesse, b, h);
    text_.text(t, groesse, x, y, f, b, h);
}

void ComputerPlattform::box(int x1, int y1, int x2, int y2, Farbe f) {
    innen_.box(x1, y1, x2, y2, f);
    text_.verdecken(x1, y1, x2, y2);
}

void ComputerPlattform::kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) {
    innen_.kreis(cx, cy, r, f, gefuellt, breite);
    text_.kreis(cx, cy, r, gefuellt);
}

void ComputerPlattform::bild(const std::string& schluessel, int x, int y) {
    innen_.bild(schluessel, x, y);
    int b = 0, h = 0;
    if (innen_.bildGroesse(schluessel, b, h)) text_.bild(schluessel, x, y, b, h);
}

std::shared_ptr<Plattform::Bildstand> ComputerPlattform::bildSichern() {
    auto st = std::make_shared<Stand>();
    st->innen = innen_.bildSichern();
    st->text = text_;
    return st;
}

void ComputerPlattform::bildZurueck(const std::shared_ptr<Bildstand>& stand) {
    const auto* st = dynamic_cast<const Stand*>(stand.get());
    if (!st) return;
    innen_.bildZurueck(st->innen);
    text_ = st->text;
}

// --- time and input ---------------------------------------------------------------

void ComputerPlattform::schlafen(int ms) {
    abfrage_ = ms <= 50;
    if (computerAmZug()) {
        uebersprungen_ += ms;  // the game's clock goes on; nobody waits for it
        return;
    }
    innen_.schlafen(ms);
}

void ComputerPlattform::pumpen() {
    const bool abfrage = abfrage_;
    abfrage_ = false;
    innen_.pumpen();
    const bool computer = computerAmZug();
    Ereignis e;
    while (innen_.ereignisHolen(e))
        if (!computer || FensterSache(e)) ereignisse_.push_back(e);
    if (computer && abfrage && ereignisse_.empty()) naechsteEingabe();
}

bool ComputerPlattform::ereignisHolen(Ereignis& e) {
    if (ereignisse_.empty()) return false;
    e = ereignisse_.front();
    ereignisse_.pop_front();
    return true;
}

// One input of the computer, as a person gives one at a time: a key with its
// character, one typed character, or a click.
void ComputerPlattform::naechsteEingabe() {
    for (int versuch = 0; versuch < 2; ++versuch) {
        while (pos_ < zeilen_.size()) {
            const SkriptZeile& z = zeilen_[pos_];
            switch (z.art) {
                case SkriptArt::Taste:
                    if (z.code >= 0) ereignisse_.push_back({EreignisArt::KeyDown, z.code});
                    if (z.zeichen >= 0) ereignisse_.push_back({EreignisArt::KeyPress, z.zeichen});
                    ++pos_;
                    return;
                case SkriptArt::Tippen: {
                    if (z.text.empty()) {
                        ++pos_;
                        break;
                    }
                    const unsigned char c = static_cast<unsigned char>(z.text[tippPos_]);
                    ereignisse_.push_back({EreignisArt::KeyDown, SkriptTastenCode(c)});
                    ereignisse_.push_back({EreignisArt::KeyPress, c});
                    if (++tippPos_ >= z.text.size()) {
                        tippPos_ = 0;
                        ++pos_;
                    }
                    return;
                }
                case SkriptArt::Klick:
                    ereignisse_.push_back({EreignisArt::MouseUp, 0, 1, z.x, z.y});
                    ++pos_;
                    return;
                default:  // waits, answers, seeds, closing: not a computer's business
                    ++pos_;
                    break;
            }
        }
        if (!naechste_) return;
        zeilen_.clear();
        pos_ = tippPos_ = 0;
        std::string fehler;
        if (!SkriptLesen(naechste_(), zeilen_, fehler)) {
            std::fprintf(stderr, "Computerspieler: %s\n", fehler.c_str());
            zeilen_.clear();
            return;
        }
    }
}
