#pragma once
// The game window: SDL2 shows the canvas, gathers keys and clicks, shows the
// message boxes and plays the music through SDL_mixer.
#include <cstdint>
#include <deque>
#include <string>

#include "screen/leinwand.h"
#include "screen/plattform.h"
#include "screen/sdl/aufnahme.h"
#include "screen/sdl/hochbild.h"

struct SDL_Window;
struct SDL_Surface;
union SDL_Event;
struct _Mix_Music;

// The file descriptor of the X11 connection behind a window, -1 elsewhere.
int X11Verbindung(SDL_Window* fenster);

class SdlPlattform : public Plattform {
public:
    SdlPlattform();
    ~SdlPlattform() override;
    SdlPlattform(const SdlPlattform&) = delete;
    SdlPlattform& operator=(const SdlPlattform&) = delete;

    // Opens the window and the font. On failure false with a German message.
    bool starten(std::string& fehler);
    Leinwand& leinwand() { return leinwand_; }
    // What the window shows: the pixels of its surface (for tests and screenshots).
    SDL_Surface* fensterFlaeche() { return flaeche_; }
    const Hochbild& hochbild() const { return hoch_; }
    // The session's recording; it writes once started.
    Aufnahme& aufnahme() { return aufnahme_; }

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
    long long uhrMs() override;
    uint32_t saat() override;
    bool frage(const std::string& titel, const std::string& text) override;
    void meldung(const std::string& titel, const std::string& text, BoxArt art) override;
    bool musikSpielen(const std::string& pfad) override;
    void musikStoppen() override;

private:
    void verarbeiten(const SDL_Event& ev);       // one SDL event into the queue
    void fensterEreignis(const SDL_Event& ev);   // size, exposure
    void zeigen(bool sofort);                    // what changed to the window, when due
    void flaecheHolen();                         // after a new size: surface, scale, the whole picture
    void geaendert(const Hochbild::Rechteck& r);
    void vollbildUmschalten();
    // Gathers what the window system sent; true when something came.
    bool sammeln();
    // Sleeps up to ms on the window system's connection; true when something came.
    bool warten(int ms);
    bool klickAufLeinwand(int fx, int fy, int& x, int& y) const;
    // 1 yes/OK, 0 no, -1 no SDL box possible.
    int sdlBox(const std::string& titel, const std::string& text, BoxArt art, bool frage);
    bool gemalteBox(const std::string& titel, const std::string& text, bool frage);
    bool tonBereit();

    Leinwand leinwand_;
    Hochbild hoch_{leinwand_};
    SDL_Window* fenster_ = nullptr;
    SDL_Surface* flaeche_ = nullptr;   // the window's own pixels, kept between presents
    int zielX_ = 0, zielY_ = 0, zielB_ = Leinwand::BREITE, zielH_ = Leinwand::HOEHE;  // the picture in it
    Hochbild::Rechteck schmutz_;       // canvas pixels drawn since the last present
    bool videoAn_ = false;
    bool geaendert_ = true;
    bool zeigenErzwingen_ = false;
    bool neueGroesse_ = false;         // the window changed size since the last present
    long long letztesZeigen_ = -1000;
    int xVerbindung_ = -1;             // X11: an epoll set holding the connection to sleep on, else -1
    bool xUngelesen_ = true;           // SDL may hold events read from it already
    bool xStill_ = false;              // the last sleep on it ended with nothing to read
    long long letztesSammeln_ = 0;
    bool sdlBoxGeht_ = true;
    std::deque<Ereignis> warteschlange_;
    std::string titel_ = "Quorvant";
    Aufnahme aufnahme_;
    bool zeichenAufgenommen_ = false;  // the character after a key went into the key's line

    bool tonVersucht_ = false;
    bool tonAn_ = false;
    _Mix_Music* musik_ = nullptr;
};
