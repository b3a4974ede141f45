#pragma once
// The computer players sit between the game and its platform, where a
// person sits between the game and the keyboard. While a computer player
// answers the game's prompts, this layer hands the game his keys one at a
// time whenever it polls, skips the game's pauses (a computer needs no time
// to read a refusal), lets through from the window only what is the
// window's business (closing it, the music and production switches), and
// keeps what the screen shows as text, which is all the computer reads.
// Otherwise everything passes through untouched.
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "screen/bildschirmtext.h"
#include "screen/plattform.h"
#include "screen/skript.h"

class ComputerPlattform : public Plattform {
public:
    using Zeilen = std::function<std::string()>;  // the computer's next script lines
    using AmZug = std::function<bool()>;          // whether the computer answers the game now

    explicit ComputerPlattform(Plattform& innen) : innen_(innen) {}
    void computerSetzen(Zeilen naechste, AmZug amZug) {
        naechste_ = std::move(naechste);
        amZug_ = std::move(amZug);
    }
    bool computerAmZug() const { return amZug_ && amZug_(); }

    // What the screen shows, as the computer reads it.
    std::string textBei(int x, int y) const { return text_.textBei(x, y); }
    std::string bildschirm() const { return text_.bildschirm(); }
    // How much of the game's waiting the computer's turns skipped.
    long long uebersprungeneMs() const { return uebersprungen_; }
    Plattform& innen() { return innen_; }

    // Plattform
    void leeren() override;
    void titelSetzen(const std::string& t) override { innen_.titelSetzen(t); }
    void text(const std::string& cp1252, int groesse, int x, int y, Farbe f) override;
    void textMessen(const std::string& t, int groesse, int& b, int& h) override { innen_.textMessen(t, groesse, b, h); }
    void linie(int x1, int y1, int x2, int y2, Farbe f, int breite) override { innen_.linie(x1, y1, x2, y2, f, breite); }
    void rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite) override { innen_.rahmen(x1, y1, x2, y2, f, breite); }
    void box(int x1, int y1, int x2, int y2, Farbe f) override;
    void kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) override;
    void bild(const std::string& schluessel, int x, int y) override;
    bool bildGroesse(const std::string& k, int& b, int& h) override { return innen_.bildGroesse(k, b, h); }
    std::shared_ptr<Bildstand> bildSichern() override;
    void bildZurueck(const std::shared_ptr<Bildstand>& stand) override;
    void schlafen(int ms) override;
    void pumpen() override;
    bool ereignisHolen(Ereignis& e) override;
    long long uhrMs() override { return innen_.uhrMs() + uebersprungen_; }
    uint32_t saat() override { return innen_.saat(); }
    bool frage(const std::string& titel, const std::string& text) override { return innen_.frage(titel, text); }
    void meldung(const std::string& titel, const std::string& text, BoxArt art) override { innen_.meldung(titel, text, art); }
    bool musikSpielen(const std::string& pfad) override { return innen_.musikSpielen(pfad); }
    void musikStoppen() override { innen_.musikStoppen(); }

private:
    struct Stand;
    void naechsteEingabe();

    Plattform& innen_;
    Zeilen naechste_;
    AmZug amZug_;
    Bildschirmtext text_;
    std::deque<Ereignis> ereignisse_;  // for the game, in order
    std::vector<SkriptZeile> zeilen_;  // the computer's keys not yet given
    size_t pos_ = 0, tippPos_ = 0;
    bool abfrage_ = false;  // the last sleep was a poll's: the game waits for input
    long long uebersprungen_ = 0;
};
