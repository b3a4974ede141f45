#pragma once
// The platform without a window: the same canvas in memory, a virtual clock
// (a sleep costs nothing) and input read from a script. Tests and the
// headless driver run the game on it.
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "screen/bildschirmtext.h"
#include "screen/leinwand.h"
#include "screen/plattform.h"
#include "screen/skript.h"

class HeadlessPlattform : public Plattform {
public:
    HeadlessPlattform();

    // The lines of screen/skript.h. On a bad line returns false and names it.
    bool skriptLaden(const std::string& text, std::string& fehler);
    void saatFestlegen(uint32_t saat) { saatFest_ = true; saat_ = saat; }
    void maxMsFestlegen(long long ms) { maxMs_ = ms; }
    void spurAufzeichnen(bool an) { spurAn_ = an; }
    bool schriftBereit(std::string& fehler);
    // Asked for more script lines whenever the script is used up while the
    // game waits for input; "" lets the run end as without it.
    void nachschubSetzen(std::function<std::string()> f) { nachschub_ = std::move(f); }
    // Without pixels the canvas stays black; the screen file is kept all the same.
    void pixelZeichnen(bool an) { pixel_ = an; }
    Leinwand& leinwand() { return leinwand_; }

    // What is visible, one line per item (text / picture), in print order.
    std::string bildschirm() const { return text_.bildschirm(); }
    const std::string& spur() const { return spur_; }
    // Every input of the script has reached the game.
    bool skriptAufgebraucht() const;
    // The text that begins at (x, y) as the screen file shows it, "" if none.
    std::string textBei(int x, int y) const { return text_.textBei(x, y); }
    const std::string& titel() const { return titel_; }
    long long virtuelleZeit() const { return uhr_ - START_MS; }
    std::vector<std::string> musikGespielt;  // every piece started, in order

    // Plattform
    void leeren() override;
    void titelSetzen(const std::string& cp1252) override;
    void text(const std::string& cp1252, int groesse, int x, int y, Farbe f) override;
    void textMessen(const std::string& cp1252, int groesse, int& breite, int& hoehe) override;
    void linie(int x1, int y1, int x2, int y2, Farbe f, int breite) override;
    void rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite) override;
    void box(int x1, int y1, int x2, int y2, Farbe f) override;
    void kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) override;
    void bild(const std::string& schluessel, int x, int y) override;
    bool bildGroesse(const std::string& schluessel, int& b, int& h) override {
        return leinwand_.bildGroesse(schluessel, b, h);
    }
    std::shared_ptr<Bildstand> bildSichern() override;
    void bildZurueck(const std::shared_ptr<Bildstand>& stand) override;
    void schlafen(int ms) override;
    void pumpen() override;
    bool ereignisHolen(Ereignis& e) override;
    long long uhrMs() override { return uhr_; }
    uint32_t saat() override;
    bool frage(const std::string& titel, const std::string& text) override;
    void meldung(const std::string& titel, const std::string& text, BoxArt art) override;
    bool musikSpielen(const std::string& pfad) override;
    void musikStoppen() override;

private:
    static constexpr long long START_MS = 1000000;

    struct Stand;
    void spurZeile(const std::string& zeile);
    void nichtGeschlafen() { kurzGeschlafen_ = false; }
    // Scripted input into the queue: every timed input that is due, and one
    // untimed input when the game polls. False if nothing came.
    bool ausliefern(bool abfrage);
    bool eingabeZeile(size_t i) const;

    Leinwand leinwand_;
    std::vector<SkriptZeile> skript_;
    size_t pos_ = 0;
    size_t tippPos_ = 0;  // next character of a "type" line
    std::deque<Ereignis> warteschlange_;
    long long uhr_ = START_MS;
    long long basis_ = START_MS;   // when the last input arrived
    long long faellig_ = -1;      // when the next input is due, -1: at the next poll
    long long maxMs_ = 86400000LL;
    bool kurzGeschlafen_ = false;
    bool saatFest_ = false;
    uint32_t saat_ = 0;
    bool saatVorgemerkt_ = false;  // a seed line passed: the next seeding gives it
    uint32_t vorgemerkteSaat_ = 0;
    int antwortVorgemerkt_ = 0;  // 1 yes, 2 no, 0 none
    bool spurAn_ = false;
    std::string spur_;
    std::string letzteSpur_;
    long long spurWiederholung_ = 0;
    Bildschirmtext text_;
    std::string titel_;
    std::function<std::string()> nachschub_;
    bool pixel_ = true;
};
