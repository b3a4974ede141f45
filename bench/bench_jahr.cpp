// One year of the largest world, printed on the headless platform.
#include <benchmark/benchmark.h>

#include <memory>

#include "year/jahr.h"
#include "grosse_welt.h"
#include "screen/headless/headless_plattform.h"

namespace {

// Years of the largest world, each measured year from `vorlage` again, so that
// lost ships do not make later years cheaper. `ruesten` prepares the world.
void JahreMessen(benchmark::State& st, bool ruesten) {
    auto p = std::make_unique<HeadlessPlattform>();
    std::string fehler;
    if (!p->schriftBereit(fehler)) {
        st.SkipWithError(fehler.c_str());
        return;
    }
    auto s = std::make_unique<Spiel>();
    s->plattform = p.get();
    s->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    if (!GrosseWeltBauen(*s, 1234)) {
        st.SkipWithError("Planetenliste.bin fehlt");
        return;
    }
    if (ruesten) {
        GrosseWeltRuesten(*s);
        // Ten years on, so that the fights are under way.
        for (int j = 0; j < 10; ++j) RUNDE_AUSFUEHREN(*s);
    }
    const Spiel vorlage = *s;
    for (auto _ : st) {
        st.PauseTiming();
        *s = vorlage;
        st.ResumeTiming();
        RUNDE_AUSFUEHREN(*s);
    }
}

void BM_JahrDerGroesstenWelt(benchmark::State& st) { JahreMessen(st, false); }
BENCHMARK(BM_JahrDerGroesstenWelt)->Unit(benchmark::kMillisecond);

// The same world at war: cruisers at the pirates and at the headquarters,
// pirates looking for victims, hopping, fleeing and being born.
void BM_JahrMitPiraten(benchmark::State& st) { JahreMessen(st, true); }
BENCHMARK(BM_JahrMitPiraten)->Unit(benchmark::kMillisecond);

}  // namespace
