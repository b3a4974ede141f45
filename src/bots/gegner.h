#pragma once
// Computer opponents in the window: the houses marked at the name prompt of
// the new game (or in a loaded game's companion file) are played by the
// computer players, through the same dialogs a person uses, while the
// persons play theirs. When a person's turn begins, a box tells what the
// computer houses did since his last one.
#include <memory>
#include <string>
#include <vector>

#include "bots/computerplattform.h"
#include "bots/computerspieler.h"
#include "bots/zugbericht.h"
#include "state/spiel.h"

class Gegner {
public:
    explicit Gegner(Plattform& fenster);
    ~Gegner();
    Gegner(const Gegner&) = delete;
    Gegner& operator=(const Gegner&) = delete;

    // Runs the program in the window, as PROGRAMM_AUSFUEHREN does.
    int spielen(Spiel& s);
    ComputerPlattform& plattform() { return computer_; }
    // The report lines not yet shown to a person.
    const std::vector<std::string>& offeneBerichte() const { return berichte_; }

private:
    bool amZug() const;
    void zugBeginnt();
    void zugEndet();

    ComputerPlattform computer_;
    Spiel* s_ = nullptr;
    std::unique_ptr<Computerspieler> spieler_;
    bool laeuft_ = false;       // the turn loop has begun
    int computerZug_ = 0;       // the computer house whose turn runs, 0 none
    HausStand zugAnfang_;
    std::vector<std::string> berichte_;
};
