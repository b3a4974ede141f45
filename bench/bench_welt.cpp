// Making the largest galaxy: 400 systems, 4000 planets.
#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>

#include "state/regeln.h"
#include "state/spiel.h"
#include "state/sterne.h"
#include "state/zufall.h"

namespace {

void BM_SterneNeu400(benchmark::State& st) {
    auto s = std::make_unique<Spiel>();
    s->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    s->AnzahlSpieler = 1;
    uint32_t saat = 1;
    for (auto _ : st) {
        Randomize(*s, saat++);
        VORBELEGUNG_VARIABLEN(*s);
        s->AnzahlPlaneten = 4000;
        if (!STERNE_NEU(*s)) throw std::runtime_error("Planetenliste.bin");
        benchmark::DoNotOptimize(s->Dokument(4001).X);
    }
}
BENCHMARK(BM_SterneNeu400)->Unit(benchmark::kMillisecond);

void BM_Entfernung(benchmark::State& st) {
    auto s = std::make_unique<Spiel>();
    s->ProgrammVerzeichnis = QUORVANT_DATEN_STANDARD;
    s->AnzahlPlaneten = 4000;
    Randomize(*s, 3);
    VORBELEGUNG_VARIABLEN(*s);
    if (!STERNE_NEU(*s)) throw std::runtime_error("Planetenliste.bin");
    int a = 11, b = 2000;
    for (auto _ : st) {
        benchmark::DoNotOptimize(ENTFERNUNG(*s, a, b));
        a = a % 4000 + 11;
        b = b % 4000 + 13;
    }
}
BENCHMARK(BM_Entfernung);

}  // namespace
