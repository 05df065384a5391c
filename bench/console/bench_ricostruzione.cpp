// The rebuild of the grids without their window, beside the same statements on the bare engine.
#include "bench/console/nudo.h"
#include "bench/console/serata.h"

#include <benchmark/benchmark.h>

using namespace lumigrafo;
using namespace lumigrafo::misure;

namespace {

void ricostruzione(benchmark::State& stato) {
    prova::Banco b;
    prepara(b);
    Console& console = b.caricata();
    for (auto _ : stato) {
        console.clic("cmdAggiorna", kSenzaIndice);
        dimentica(b);
    }
    if (b.celle(kReparti - 1)[kOrdini - 1].empty())
        stato.SkipWithError("the grids don't hold the whole queue");
}

void ricostruzioneNuda(benchmark::State& stato) {
    prova::Banco b;
    prepara(b);
    RicostruzioneNuda nuda(b.cartella.percorso() / kFileArchivio);
    for (auto _ : stato)
        nuda.esegui();
}

} // namespace

BENCHMARK(ricostruzione)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(ricostruzioneNuda)->Unit(benchmark::kMicrosecond)->UseRealTime();
