// From the start of the process to the painted console, and the memory that it holds then, beside a bare Qt
// window, empty and with one line of text (any text loads the fonts of the system). The waits that the load
// demands are left out; their sum is reported.
#include "bench/avvio/rapporto.h"
#include "bench/console/serata.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace lumigrafo;
using namespace lumigrafo::misure;

namespace {

/// A console and a screen for the public.
constexpr const char* kSchermi = R"({"screens": [
  {"name": "1-cassa", "x": 0, "y": 0, "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "2-pubblico", "x": 1280, "y": 0, "width": 1024, "height": 768, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}
]})";

std::int64_t adesso() {
    timespec t{};
    ::clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1'000'000'000 + t.tv_nsec;
}

/// The program's folder on a usual evening, without the splash.
class Serata {
public:
    Serata() {
        prepara(b_, kOrdiniUsuali);
        (void)std::ofstream(cartella() / ".sonoindebug");
        std::ofstream(cartella() / "schermi.json") << kSchermi;
    }
    [[nodiscard]] const std::filesystem::path& cartella() const { return b_.cartella.percorso(); }

private:
    prova::Banco b_;
};

/// The environment of a measured process: ours, with these on top.
std::vector<std::string> ambienteCon(const std::vector<std::string>& nuove) {
    std::vector<std::string> tutte = nuove;
    for (char** voce = environ; *voce; ++voce) {
        const std::string riga = *voce;
        const std::string nome = riga.substr(0, riga.find('=') + 1);
        if (std::none_of(nuove.begin(), nuove.end(), [&](const auto& n) { return n.starts_with(nome); }))
            tutte.push_back(riga);
    }
    return tutte;
}

/// A program and its one argument, or none.
struct Comando {
    const char* programma;
    const char* argomento = nullptr;
};

/// Runs the program until it is idle behind its first painting. False where it didn't come so far.
bool avvia(const Comando& comando, const std::string& piattaforma, const Serata& serata, Rapporto& rapporto,
           std::int64_t& inizio) {
    std::array<int, 2> tubo{};
    if (::pipe(tubo.data()) != 0)
        return false;
    ::fcntl(tubo[0], F_SETFD, FD_CLOEXEC);
    auto ambiente = ambienteCon({"LD_PRELOAD=" SPIA, "QT_QPA_PLATFORM=" + piattaforma,
                                 "LUMIGRAFO_HOME=" + serata.cartella().string(),
                                 std::string(kVariabileSpia) + "=" + std::to_string(tubo[1])});
    std::vector<char*> voci;
    for (std::string& voce : ambiente)
        voci.push_back(voce.data());
    voci.push_back(nullptr);
    const std::array argomenti{const_cast<char*>(comando.programma), const_cast<char*>(comando.argomento),
                               static_cast<char*>(nullptr)};
    pid_t pid = 0;
    inizio = adesso();
    const bool partito =
        ::posix_spawn(&pid, comando.programma, nullptr, nullptr, argomenti.data(), voci.data()) == 0;
    ::close(tubo[1]);
    const bool letto = partito && ::read(tubo[0], &rapporto, sizeof rapporto) == sizeof rapporto;
    ::close(tubo[0]);
    if (partito)
        ::waitpid(pid, nullptr, 0);
    return letto;
}

void avvio(benchmark::State& stato, const Comando& comando, const std::string& piattaforma) {
    const Serata serata;
    const std::string dove = piattaforma == "offscreen"
                                 ? "offscreen:configfile=" + (serata.cartella() / "schermi.json").string()
                                 : piattaforma;
    Rapporto rapporto{};
    for (auto _ : stato) {
        std::int64_t inizio = 0;
        if (!avvia(comando, dove, serata, rapporto, inizio)) {
            stato.SkipWithError("the window was never painted");
            break;
        }
        stato.SetIterationTime(static_cast<double>(rapporto.dipinta - inizio) / 1e9);
        stato.counters["cpu_ms"] += static_cast<double>(rapporto.cpu) / 1e6;
    }
    stato.counters["cpu_ms"].flags = benchmark::Counter::kAvgIterations;
    stato.counters["attese_ms"] = static_cast<double>(rapporto.attese) / 1e6;
    stato.counters["rss_kib"] = static_cast<double>(rapporto.rss);
}

void registra(const std::string& nome, const Comando& comando, const std::string& piattaforma) {
    benchmark::RegisterBenchmark((nome + "/" + piattaforma).c_str(), avvio, comando, piattaforma)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(3);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::vector<std::string> piattaforme{"offscreen"};
    if (std::getenv("DISPLAY"))
        piattaforme.emplace_back("xcb");
    for (const std::string& piattaforma : piattaforme) {
        registra("avvio", {PROGRAMMA}, piattaforma);
        registra("avvioNudo", {FINESTRA_NUDA}, piattaforma);
        registra("avvioConTesto", {FINESTRA_NUDA, "Lumigrafo"}, piattaforma);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
