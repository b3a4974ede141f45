// Years per second of six computer players in the largest galaxy, every key
// through the prompts and the tables checked after every year.
#include <benchmark/benchmark.h>

#include <memory>

#include "bots/computerspieler.h"
#include "screen/headless/headless_plattform.h"

namespace {

void BM_ComputerspielSechsSpieler(benchmark::State& st) {
    BotAuftrag a;
    a.spieler = 6;
    a.systeme = 400;
    a.jahre = st.range(0);
    a.pruefen = true;
    a.saat = 11;
    for (auto _ : st) {
        auto p = std::make_unique<HeadlessPlattform>();
        std::string fehler;
        if (!p->schriftBereit(fehler)) {
            st.SkipWithError(fehler.c_str());
            return;
        }
        p->pixelZeichnen(false);
        auto s = std::make_unique<Spiel>();
        if (COMPUTERSPIEL(a, QUORVANT_DATEN_STANDARD, *p, *s) != 0) {
            st.SkipWithError("Das Computerspiel ging nicht durch.");
            return;
        }
    }
    st.SetItemsProcessed(st.iterations() * a.jahre);  // items: years
}
BENCHMARK(BM_ComputerspielSechsSpieler)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
