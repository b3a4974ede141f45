#pragma once
// Everything the game needs from outside itself. The game logic talks only
// to this; the SDL window and the headless platform implement it.
#include <cstdint>
#include <memory>
#include <string>

// Colours are the game's blue-green-red numbers (255 red, 65280 green, ...).
using Farbe = uint32_t;

enum class EreignisArt { KeyDown, KeyPress, MouseUp, Schliessen };

struct Ereignis {
    EreignisArt art = EreignisArt::KeyDown;
    int code = 0;      // KeyDown: Windows virtual key code; KeyPress: Windows-1252 character
    int knopf = 0;     // MouseUp: 1 left, 2 right, 4 middle
    int x = 0, y = 0;  // MouseUp: canvas pixels
};

// Key codes as the game knows them.
namespace Taste {
constexpr int Backspace = 8, Tab = 9, Enter = 13, Esc = 27, Leer = 32;
constexpr int BildAuf = 33, BildAb = 34, Links = 37, Hoch = 38, Rechts = 39, Runter = 40;
constexpr int F1 = 112, F2 = 113, F3 = 114, F4 = 115, F5 = 116, F6 = 117, Punkt = 190;
}  // namespace Taste

enum class BoxArt { Info, Warnung, Fehler, Frage };

struct Plattform {
    virtual ~Plattform() = default;

    // --- the canvas (1024 x 768, keeps what is drawn) ---------------------
    virtual void leeren() = 0;
    virtual void titelSetzen(const std::string& cp1252) = 0;
    // Text in Windows-1252 at (x, y), top left of its cell; size 12, 15 or 20.
    virtual void text(const std::string& cp1252, int groesse, int x, int y, Farbe f) = 0;
    virtual void textMessen(const std::string& cp1252, int groesse, int& breite, int& hoehe) = 0;
    virtual void linie(int x1, int y1, int x2, int y2, Farbe f, int breite) = 0;
    virtual void rahmen(int x1, int y1, int x2, int y2, Farbe f, int breite) = 0;
    virtual void box(int x1, int y1, int x2, int y2, Farbe f) = 0;  // filled, both corners inclusive
    virtual void kreis(int cx, int cy, int r, Farbe f, bool gefuellt, int breite) = 0;
    virtual void bild(const std::string& schluessel, int x, int y) = 0;
    // The size of a picture; false for a key without one.
    virtual bool bildGroesse(const std::string& schluessel, int& b, int& h) = 0;
    // Everything the screen shows, to be put back exactly after something was
    // laid over it for a while (a help page, a question asked in the window).
    struct Bildstand {
        virtual ~Bildstand() = default;
    };
    virtual std::shared_ptr<Bildstand> bildSichern() = 0;
    virtual void bildZurueck(const std::shared_ptr<Bildstand>& stand) = 0;

    // --- time and events ----------------------------------------------------
    virtual void schlafen(int ms) = 0;
    virtual void pumpen() = 0;                  // gathers what arrived
    virtual bool ereignisHolen(Ereignis& e) = 0;  // one gathered event, in order
    virtual long long uhrMs() = 0;              // milliseconds, steady
    virtual uint32_t saat() = 0;                // a seed "from the clock"

    // --- boxes ---------------------------------------------------------------
    virtual bool frage(const std::string& titel, const std::string& text) = 0;  // true: yes
    virtual void meldung(const std::string& titel, const std::string& text, BoxArt art) = 0;

    // --- music ---------------------------------------------------------------
    // Returns false when the piece could not be started (no device, bad file).
    virtual bool musikSpielen(const std::string& pfad) = 0;
    virtual void musikStoppen() = 0;
};

// Thrown to end the program from inside the blocking routines; caught by main.
struct ProgrammEnde {
    int status = 0;
};
