// A saved game of any bytes: the loader takes it or refuses it; what it takes
// must then survive one year and the drawing of the main screen, as after a
// load in play. Runs on the headless platform; waits are ended by keys.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "flow/hauptschleife.h"
#include "flow/programm.h"
#include "flow/spielstand.h"
#include "screen/headless/headless_plattform.h"
#include "state/regeln.h"
#include "state/spiel.h"
#include "state/zufall.h"
#include "views/lagerbestand.h"
#include "year/jahr.h"
#include "year/meldung.h"

namespace {

// Enough keys for every story screen and every page of the news of one year.
std::string Tastenfolge() {
    std::string k;
    for (int i = 0; i < 200; ++i) k += "key ENTER\n";
    return k;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t groesse) {
    auto p = std::make_unique<HeadlessPlattform>();
    std::string fehler;
    static const std::string tasten = Tastenfolge();
    if (!p->skriptLaden(tasten, fehler) || !p->schriftBereit(fehler)) __builtin_trap();
    p->saatFestlegen(7);
    p->maxMsFestlegen(3600000LL);  // an hour of game time: a hang shows as a slow input, not a stop

    auto s = std::make_unique<Spiel>();
    s->plattform = p.get();
    s->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    s->DatenVerzeichnis = "/nonexistent-quorvant-fuzz";  // nothing may be written
    HAKEN_SETZEN(*s);
    s->haken.Autosichern = nullptr;  // the year writes no files here
    Randomize(*s, p->saat());
    VORBELEGUNG_VARIABLEN(*s);

    const std::vector<uint8_t> bytes(daten, daten + groesse);
    if (!SPIELSTAND_LESEN(*s, bytes, fehler)) return 0;
    try {
        s->AktSpieler = 1;
        HAUPTBILDSCHIRM(*s, false);
        RUNDE_AUSFUEHREN(*s);
        MELDUNG(*s);
        LAGERBESTAND(*s);
        HAUPTBILDSCHIRM(*s, true);
    } catch (const ProgrammEnde&) {
        // the keys ran out or the game ended itself: both are fine
    }
    return 0;
}
