#include "bots/gegner.h"

#include <climits>
#include <ctime>

#include "flow/programm.h"

namespace {

Gegner* aktiv = nullptr;  // for the game's hooks, which take no context

bool Computer(const Spiel& s, int p) { return p >= 1 && p <= 6 && s.Computer(p) == -1; }

}  // namespace

Gegner::Gegner(Plattform& fenster) : computer_(fenster) {
    computer_.computerSetzen([this] { return spieler_->eingabe(); }, [this] { return amZug(); });
}

Gegner::~Gegner() {
    if (aktiv == this) aktiv = nullptr;
}

bool Gegner::amZug() const {
    // The year's own questions (an invention's page, the name of a save) are
    // for the persons at the keyboard, also when they only watch.
    return laeuft_ && s_ && s_->ImZug && Computer(*s_, s_->AktSpieler);
}

void Gegner::zugBeginnt() {
    Spiel& s = *s_;
    laeuft_ = true;
    if (Computer(s, s.AktSpieler)) {
        computerZug_ = s.AktSpieler;
        zugAnfang_ = HAUS_STAND(s, s.AktSpieler);
        return;
    }
    computerZug_ = 0;
    if (berichte_.empty()) return;
    ZUEGE_ZEIGEN(s, berichte_);
    berichte_.clear();
}

void Gegner::zugEndet() {
    if (computerZug_ == 0 || computerZug_ != s_->AktSpieler) return;
    for (auto& z : ZUG_BERICHT(*s_, computerZug_, zugAnfang_)) berichte_.push_back(std::move(z));
    computerZug_ = 0;
}

int Gegner::spielen(Spiel& s) {
    s_ = &s;
    aktiv = this;
    BotAuftrag a;
    a.spieler = 6;
    a.jahre = LONG_MAX;
    a.saat = static_cast<uint32_t>(std::time(nullptr));
    a.nebenMenschen = true;
    spieler_ = std::make_unique<Computerspieler>(s, computer_, a);
    s.haken.NachDemJahr = [](Spiel&) {
        if (aktiv) aktiv->spieler_->jahrBeendet();
    };
    s.haken.ZugBeginnt = [](Spiel&) {
        if (aktiv) aktiv->zugBeginnt();
    };
    s.haken.ZugEndet = [](Spiel&) {
        if (aktiv) aktiv->zugEndet();
    };
    const int status = PROGRAMM_AUSFUEHREN(s, computer_);
    s.haken.NachDemJahr = s.haken.ZugBeginnt = s.haken.ZugEndet = nullptr;
    aktiv = nullptr;
    return status;
}
