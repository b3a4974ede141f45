#include "screen/headless/headless_plattform.h"

#include <algorithm>
#include <ctime>

#include "state/text.h"

namespace {

std::string Zahl(long long n) { return std::to_string(n); }

}  // namespace

HeadlessPlattform::HeadlessPlattform() = default;

bool HeadlessPlattform::schriftBereit(std::string& fehler) { return leinwand_.schriftLaden(fehler); }

bool HeadlessPlattform::skriptLaden(const std::string& text, std::string& fehler) {
    return SkriptLesen(text, skript_, fehler);
}

bool HeadlessPlattform::skriptAufgebraucht() const { return pos_ >= skript_.size() && warteschlange_.empty(); }

uint32_t HeadlessPlattform::saat() {
    // A seed line right behind the input that led here belongs to this seeding.
    if (!saatVorgemerkt_ && pos_ < skript_.size() && skript_[pos_].art == SkriptArt::Saat) {
        saatVorgemerkt_ = true;
        vorgemerkteSaat_ = skript_[pos_++].saat;
    }
    if (saatVorgemerkt_) {
        saatVorgemerkt_ = false;
        return vorgemerkteSaat_;
    }
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

void HeadlessPlattform::leeren() {
    nichtGeschlafen();
    spurZeile("clear");
    if (pixel_) leinwand_.leeren();
    text_.leeren();
}

void HeadlessPlattform::titelSetzen(const std::string& t) {
    spurZeile("title " + Utf8(t));
    titel_ = t;
}

void HeadlessPlattform::text(const std::string& t, int groesse, int x, int y, Farbe f) {
    nichtGeschlafen();
    spurZeile("print " + Zahl(x) + " " + Zahl(y) + " " + Zahl(groesse) + " " + Zahl(f) + " " + Utf8(t));
    if (pixel_) leinwand_.text(t, groesse, x, y, f);
    int b = 0, h = 0;
    leinwand_.textMessen(" ", groesse, b, h);
    text_.text(t, groesse, x, y, f, b, h);
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
    text_.verdecken(x1, y1, x2, y2);
}

void HeadlessPlattform::kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) {
    nichtGeschlafen();
    spurZeile("circle " + Zahl(cx) + " " + Zahl(cy) + " " + Zahl(r) + " " + Zahl(f) + (gefuellt ? " filled" : " outline"));
    if (pixel_) leinwand_.kreis(cx, cy, r, f, gefuellt, breite);
    text_.kreis(cx, cy, r, gefuellt);
}

void HeadlessPlattform::bild(const std::string& schluessel, int x, int y) {
    nichtGeschlafen();
    spurZeile("picture " + Zahl(x) + " " + Zahl(y) + " " + Utf8(schluessel));
    if (pixel_) leinwand_.bild(schluessel, x, y);
    int b = 0, h = 0;
    if (leinwand_.bildGroesse(schluessel, b, h)) text_.bild(schluessel, x, y, b, h);
}

struct HeadlessPlattform::Stand : Plattform::Bildstand {
    std::vector<uint32_t> pixel;
    Bildschirmtext text;
};

std::shared_ptr<Plattform::Bildstand> HeadlessPlattform::bildSichern() {
    auto st = std::make_shared<Stand>();
    if (pixel_) st->pixel = leinwand_.kopie();
    st->text = text_;
    return st;
}

void HeadlessPlattform::bildZurueck(const std::shared_ptr<Bildstand>& stand) {
    const auto* st = dynamic_cast<const Stand*>(stand.get());
    if (!st) return;
    nichtGeschlafen();
    spurZeile("restore");
    if (pixel_) leinwand_.zurueckholen(st->pixel);
    text_ = st->text;
}


// --- time and input ------------------------------------------------------------

void HeadlessPlattform::schlafen(int ms) {
    spurZeile("sleep " + Zahl(ms));
    // A poll ends when a timed input comes, as the window's does.
    if (ms <= 50 && faellig_ > uhr_ && faellig_ < uhr_ + ms && eingabeZeile(pos_)) uhr_ = faellig_;
    else uhr_ += ms;
    kurzGeschlafen_ = ms <= 50;
    if (uhr_ - START_MS >= maxMs_) throw ProgrammEnde{0};
}

bool HeadlessPlattform::eingabeZeile(size_t i) const {
    if (i >= skript_.size()) return false;
    const SkriptArt a = skript_[i].art;
    return a == SkriptArt::Taste || a == SkriptArt::Tippen || a == SkriptArt::Klick || a == SkriptArt::Schliessen;
}

bool HeadlessPlattform::ausliefern(bool abfrage) {
    bool etwas = false;
    while (pos_ < skript_.size()) {
        const SkriptZeile& z = skript_[pos_];
        const bool gezeitet = faellig_ >= 0;
        if (z.art == SkriptArt::Warten) {  // waits add up from the last input on
            faellig_ = (gezeitet ? faellig_ : basis_) + z.ms;
            ++pos_;
            continue;
        }
        if (z.art == SkriptArt::Saat) {
            saatVorgemerkt_ = true;
            vorgemerkteSaat_ = z.saat;
            ++pos_;
            continue;
        }
        if (z.art == SkriptArt::Antwort) {
            // A timed answer waits for its box; when none came by its time, it is for the next one.
            if (gezeitet && uhr_ < faellig_) break;
            antwortVorgemerkt_ = z.ja ? 1 : 2;
            if (gezeitet) {
                basis_ = uhr_;
                faellig_ = -1;
            }
            ++pos_;
            continue;
        }
        // A timed input comes at its time wherever the game is; an untimed one
        // only to a routine that polls, one at a time.
        if (gezeitet ? uhr_ < faellig_ : (!abfrage || etwas || !warteschlange_.empty())) break;
        switch (z.art) {
            case SkriptArt::Taste:
                if (z.code >= 0) warteschlange_.push_back({EreignisArt::KeyDown, z.code});
                if (z.zeichen >= 0) warteschlange_.push_back({EreignisArt::KeyPress, z.zeichen});
                ++pos_;
                break;
            case SkriptArt::Tippen: {
                unsigned char c = static_cast<unsigned char>(z.text[tippPos_]);
                warteschlange_.push_back({EreignisArt::KeyDown, SkriptTastenCode(c)});
                warteschlange_.push_back({EreignisArt::KeyPress, c});
                if (++tippPos_ >= z.text.size()) {
                    tippPos_ = 0;
                    ++pos_;
                }
                break;
            }
            case SkriptArt::Klick:
                warteschlange_.push_back({EreignisArt::MouseUp, 0, 1, z.x, z.y});
                ++pos_;
                break;
            default:
                warteschlange_.push_back({EreignisArt::Schliessen});
                ++pos_;
                break;
        }
        basis_ = uhr_;
        faellig_ = -1;
        etwas = true;
    }
    return etwas;
}

void HeadlessPlattform::pumpen() {
    const bool abfrage = kurzGeschlafen_;
    kurzGeschlafen_ = false;
    if (ausliefern(abfrage) || !abfrage || !warteschlange_.empty() || pos_ < skript_.size() || uhr_ < faellig_)
        return;
    if (nachschub_) {
        // The computer players hand in their next keys when the script runs dry.
        skript_.clear();  // what was played is not needed again
        pos_ = 0;
        std::string fehler;
        const std::string mehr = nachschub_();
        if (!mehr.empty() && skriptLaden(mehr, fehler) && (ausliefern(abfrage) || pos_ < skript_.size())) return;
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
    // An answer line right behind the input that raised the box belongs to it;
    // after a wait the box stood that long.
    if (antwortVorgemerkt_ == 0) {
        size_t i = pos_;
        long long f = faellig_;
        for (; i < skript_.size() && skript_[i].art == SkriptArt::Warten; ++i) f = (f >= 0 ? f : basis_) + skript_[i].ms;
        if (i < skript_.size() && skript_[i].art == SkriptArt::Antwort) {
            antwortVorgemerkt_ = skript_[i].ja ? 1 : 2;
            pos_ = i + 1;
            if (f >= 0) {
                uhr_ = std::max(uhr_, f);
                basis_ = uhr_;
                faellig_ = -1;
            }
        }
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
