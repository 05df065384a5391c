// A receipt's code, from its last key to the outcome panel on the screen, beside bare counterparts.
#include "bench/console/serata.h"
#include "console/codice_scontrino.h"
#include "console/qt/frmGestione.h"
#include "platform/qt/aspetto.h"
#include "platform/qt/caratteri.h"
#include "platform/qt/pompa_qt.h"
#include "platform/qt/timers_qt.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <charconv>
#include <chrono>

using namespace lumigrafo;
using namespace lumigrafo::misure;

namespace {

using Istante = std::chrono::steady_clock;

constexpr QSize kFinestra(1920, 1080);
constexpr int kRighePiene = 400;

double secondi(Istante::time_point da, Istante::time_point a) {
    return std::chrono::duration<double>(a - da).count();
}

void decodifica(benchmark::State& stato) {
    const std::string codice = "5996501001233";
    for (auto _ : stato)
        benchmark::DoNotOptimize(leggiCodice(codice));
}

void decodificaNuda(benchmark::State& stato) {
    const std::string codice = "5996501001233";
    for (auto _ : stato) {
        int campi[3]{};
        const bool cifre =
            std::all_of(codice.begin(), codice.end(), [](char c) { return c >= '0' && c <= '9'; });
        std::from_chars(codice.data() + 3, codice.data() + 5, campi[0]);
        std::from_chars(codice.data() + 5, codice.data() + 7, campi[1]);
        std::from_chars(codice.data() + 7, codice.data() + 12, campi[2]);
        benchmark::DoNotOptimize(cifre);
        benchmark::DoNotOptimize(std::string(1, static_cast<char>(campi[0])) + "  " +
                                 std::to_string(campi[2]));
        benchmark::DoNotOptimize(campi);
    }
}

std::vector<std::string> celle() {
    std::vector<std::string> testi;
    for (int n = 0; n < kRighePiene * 3; ++n)
        testi.push_back("A  " + std::to_string(10000 + n));
    return testi;
}

/// The last cell of a full grid.
void ricerca(benchmark::State& stato) {
    Griglia grid;
    grid.Rows(kRighePiene);
    const auto testi = celle();
    for (int n = 0; n < kRighePiene * 3; ++n)
        grid.testo(n / 3, n % 3, testi[static_cast<std::size_t>(n)]);
    for (auto _ : stato)
        benchmark::DoNotOptimize(grid.cerca(testi.back()));
}

void ricercaNuda(benchmark::State& stato) {
    const auto testi = celle();
    for (auto _ : stato)
        benchmark::DoNotOptimize(std::find(testi.begin(), testi.end(), testi.back()));
}

/// From Enter to the painted panel: the call itself, with its state files and its strike-off, lies in
/// between.
void scansione(benchmark::State& stato) {
    prova::Banco b;
    prepara(b, kOrdiniUsuali);
    PompaQt pompa;
    TimersQt timers;
    frmGestione console;
    b.pompaVera = &pompa;
    b.timersVeri = &timers;
    b.finestraVera = &console;
    console.collega(b.console());
    console.resize(kFinestra);
    console.show();
    b.caricata();
    QApplication::processEvents();
    Istante::time_point dipinto;
    b.orologio.durante = [&dipinto] { dipinto = Istante::now(); };
    int numero = 0;
    for (auto _ : stato) {
        char codice[16];
        const int n = numero++ % kOrdiniUsuali + 1;
        std::snprintf(codice, sizeof codice, "599%02d01%05d0", static_cast<int>(siglaDi(n)[0]), n);
        for (const char* c = codice; *c; ++c)
            b.console().tasto(static_cast<unsigned char>(*c));
        const auto inizio = Istante::now();
        b.console().tasto(U'\r');
        stato.SetIterationTime(secondi(inizio, dipinto));
        dimentica(b);
    }
}

/// A bare window that shows a bare label over all of it.
void pannelloNudo(benchmark::State& stato) {
    QMainWindow finestra;
    QLabel etichetta(&finestra);
    etichetta.setFont(carattere(QStringLiteral("Arial"), 160, true, false));
    etichetta.setAutoFillBackground(true);
    etichetta.setAlignment(Qt::AlignCenter);
    etichetta.resize(kFinestra);
    etichetta.hide();
    finestra.resize(kFinestra);
    finestra.show();
    QApplication::processEvents();
    for (auto _ : stato) {
        const auto inizio = Istante::now();
        etichetta.setText(QStringLiteral("Cucina\nA  123"));
        etichetta.show();
        etichetta.update();
        QCoreApplication::sendPostedEvents(&finestra, QEvent::UpdateRequest);
        stato.SetIterationTime(secondi(inizio, Istante::now()));
        etichetta.hide();
        QApplication::processEvents();
    }
}

} // namespace

BENCHMARK(decodifica);
BENCHMARK(decodificaNuda);
BENCHMARK(ricerca)->Unit(benchmark::kMicrosecond);
BENCHMARK(ricercaNuda)->Unit(benchmark::kMicrosecond);
BENCHMARK(scansione)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(pannelloNudo)->Unit(benchmark::kMicrosecond)->UseManualTime();

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    QApplication applicazione(argc, argv);
    aspetto::applica(applicazione);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
