#pragma once
// The small kit every dialog is made of: waiting for a key, a refusal, the
// "Nummer:" entry and the ship picker. The counters of the one-player
// statistics (EINSTATISTIK) and the emptying of a slot (SCHIFF_SLOT_LEEREN)
// are plain table work and live with the codes in state/codes.h.
#include <functional>
#include <memory>
#include <string>

#include "screen/plattform.h"

#include "state/codes.h"
#include "state/spiel.h"

// How a dialog goes on after a step: it ends, or its menu is shown again.
enum class Ausgang { Ende, ZumMenue };

// Clears TasteDa and polls every 5 ms until a key (or a click that counts as
// one) is noted; returns its code. TasteDa is cleared again before returning.
int TASTE_ABWARTEN(Spiel& s);

// A refusal: one white line at x 50, the queue runs, 1000 ms pass. With
// ZumMenue the rows below the menu (y 660 to 720) are wiped for it.
Ausgang ABLEHNEN(Spiel& s, const std::string& text, int y, Ausgang danach = Ausgang::Ende);

// "Nummer:" in red at (50, y): digits build the number while it stays at most
// bis, Backspace takes the last digit, Enter ends. Esc gives -1. The row is
// wiped afterwards.
long NUMMER_EINGEBEN(Spiel& s, int y, long bis);

// The next slot from n on (n itself included), in steps of +1 or -1 round the
// ends of 1..grenze, that passes the test; 0 when none does.
int NAECHSTES_SCHIFF(int n, int schritt, int grenze, const std::function<bool(int)>& passt);

struct SchiffWahl {
    std::function<bool(int)> passt;   // the ships this dialog may choose
    std::function<void(int)> zeigen;  // draws the ship that is chosen now
    int grenze = 0;                   // the slots run from 1 to grenze
    int nummerY = 0;                  // row of the "Nummer:" entry (Blank); 0: none
    long nummerBis = 999;             // the largest number the entry takes
    int nummerGrenze = 0;             // after the entry, search round 1..nummerGrenze
    bool blaettern = false;           // PageUp/PageDown jump eleven slots
    bool maus = false;                // a click on a ship in the news chooses it
};
struct Gewaehlt {
    int schiff = 0;      // 0: Esc
    bool klick = false;  // chosen by a click
};
// Up and Down step through the ships that pass, Blank asks for a number,
// Enter takes the ship shown. Starts on `start`, which the caller has shown.
Gewaehlt SCHIFF_WAEHLEN(Spiel& s, int start, const SchiffWahl& w);

// Something laid over the screen for a while, wherever the game is (a help
// page, the graphs, the computer houses' turns): while it stands, keys go to
// it alone; when it ends, the picture and the notes of the prompt underneath
// are exactly as before, so the prompt goes on as if nothing had happened.
class Ueberlagerung {
public:
    explicit Ueberlagerung(Spiel& s);
    ~Ueberlagerung();
    Ueberlagerung(const Ueberlagerung&) = delete;
    Ueberlagerung& operator=(const Ueberlagerung&) = delete;
    // The next key pressed while the overlay stands.
    int taste();

private:
    Spiel& s_;
    std::shared_ptr<Plattform::Bildstand> bild_;
    Integer tasteDa_, tastenCode_, mausTreffer_;
    std::string tastenZeichen_, bildschirm_;
    Long mausSchiff_, mausPlanet_, mausStern_;
    int linienbreite_;
};

// A page of an overlay: a frame with its title, as the game's boxes look.
void UEBERLAGERUNG_RAHMEN(Spiel& s, int x1, int y1, int x2, int y2, const std::string& titel, Farbe farbe);
