// Speed of the spine on the headless platform: the idle pump, one printed
// line, the whole main screen.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "flow/hauptschleife.h"
#include "screen/ausgabe.h"
#include "screen/headless/headless_plattform.h"
#include "state/regeln.h"

namespace {

struct Aufbau {
    std::unique_ptr<HeadlessPlattform> p = std::make_unique<HeadlessPlattform>();
    std::unique_ptr<Spiel> s = std::make_unique<Spiel>();
    Aufbau() {
        std::string fehler;
        if (!p->schriftBereit(fehler)) throw std::runtime_error(fehler);
        p->leinwand().bilderLaden(QUORVANT_DATEN_STANDARD);
        s->plattform = p.get();
        s->AnzahlSpieler = 1;
        VORBELEGUNG_VARIABLEN(*s);
        s->SpielerName(1) = "Anna";
        s->Rang(1) = 1;
        for (int g = 1; g <= 20; g += 3) s->Lager(g, 1) = static_cast<Integer>(g * 20);
    }
};

void BM_PumpeOhneEreignis(benchmark::State& st) {
    Aufbau a;
    for (auto _ : st) DoEvents(*a.s);
}
BENCHMARK(BM_PumpeOhneEreignis);

void BM_EineTextzeile(benchmark::State& st) {
    Aufbau a;
    for (auto _ : st) TEXT_AUSGEBEN(*a.s, "Weiter zum naechsten Jahr   ", 15, 50, 600, WEISS);
}
BENCHMARK(BM_EineTextzeile);

void BM_Hauptbildschirm(benchmark::State& st) {
    Aufbau a;
    for (auto _ : st) {
        a.p->leeren();
        HAUPTBILDSCHIRM(*a.s, true);
    }
}
BENCHMARK(BM_Hauptbildschirm)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
