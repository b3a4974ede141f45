// The autosave of the largest game with a long history, and the graphs of
// ten thousand years.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <unistd.h>

#include "flow/autosicherung.h"
#include "grosse_welt.h"
#include "screen/headless/headless_plattform.h"
#include "views/verlaufsgrafik.h"

namespace {

// Ten thousand years of six houses that rise, fall and build.
void LangerVerlauf(Spiel& s, int jahre) {
    s.VerlaufJahre.clear();
    for (int j = 1; j <= jahre; ++j) {
        VerlaufJahr v;
        v.jahr = 2000 + j;
        for (int h = 0; h < 6; ++h) {
            HausJahr& hj = v.haus[static_cast<size_t>(h)];
            hj.bargeld = static_cast<Long>(5000 + (j * (h + 3) * 37) % 90000 - 20000);
            hj.bewertung = hj.bargeld + 3000 * (h + 1) + j * 5;
            hj.kredit = static_cast<Long>((j / 50) % 3 == 0 ? 2000 : 0);
            hj.tonnen = j * (h + 2);
            hj.rang = static_cast<Integer>(1 + j / 1500);
            hj.erfindungen = static_cast<Integer>(std::min(11, j / 900));
            for (int t = 0; t < 6; ++t) hj.schiffe[static_cast<size_t>(t)] = static_cast<Integer>((j / (t + 40)) % 12);
        }
        s.VerlaufJahre.push_back(v);
    }
}

void BM_AutosicherungGroessteWelt(benchmark::State& st) {
    auto s = std::make_unique<Spiel>();
    if (!GrosseWeltBauen(*s, 1234)) {
        st.SkipWithError("Planetenliste.bin fehlt");
        return;
    }
    LangerVerlauf(*s, static_cast<int>(st.range(0)));
    const auto ordner = std::filesystem::temp_directory_path() / ("quorvant-bench-" + std::to_string(::getpid()));
    s->DatenVerzeichnis = ordner.string();
    for (auto _ : st) {
        if (!AUTOSICHERUNG(*s)) st.SkipWithError("Autosicherung nicht geschrieben");
        // The next year's autosave writes one year more of history.
        st.PauseTiming();
        VerlaufJahr v = s->VerlaufJahre.back();
        ++v.jahr;
        s->VerlaufJahre.push_back(v);
        st.ResumeTiming();
    }
    std::error_code ec;
    std::filesystem::remove_all(ordner, ec);
}
BENCHMARK(BM_AutosicherungGroessteWelt)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_VerlaufZehntausendJahreZeichnen(benchmark::State& st) {
    auto p = std::make_unique<HeadlessPlattform>();
    std::string fehler;
    if (!p->schriftBereit(fehler)) {
        st.SkipWithError(fehler.c_str());
        return;
    }
    auto s = std::make_unique<Spiel>();
    s->plattform = p.get();
    s->AnzahlSpieler = 6;
    for (int h = 1; h <= 6; ++h) s->SpielerName(h) = "Haus" + std::to_string(h);
    LangerVerlauf(*s, 10000);
    int seite = 0;
    for (auto _ : st) {
        VERLAUF_SEITE_ZEICHNEN(*s, seite);
        seite = (seite + 1) % VERLAUF_SEITEN;
    }
}
BENCHMARK(BM_VerlaufZehntausendJahreZeichnen)->Unit(benchmark::kMillisecond);

}  // namespace
