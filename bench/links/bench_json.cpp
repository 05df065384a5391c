// What writing and reading JSON costs, beside the same work done by a general library.
#include "links/json_bag.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>
#include <vector>

using namespace lumigrafo;

namespace {

struct Membro {
    std::string nome, testo;
    std::int32_t numero = 0; ///< where there is no text
};

/// The members of the board document.
std::vector<Membro> membri() {
    std::vector<Membro> m{{"TipoLumigrafo", "ELIMINACODE"},
                          {"Categoria1", "Pizzeria al taglio"},
                          {"Categoria2", "Bar"},
                          {"Categoria3", "Gelati"},
                          {"FontNumeri", "", 72},
                          {"TitoloLumigrafo", "Stiamo servendo i numeri"}};
    for (int g = 0; g < 3; ++g)
        for (int n = 1; n <= 9; ++n)
            m.push_back({"Categoria" + std::to_string(g) + "_numero" + std::to_string(n),
                         "A " + std::to_string(n * 37)});
    m.push_back({"Last", "", 2});
    for (int k = 1; k <= 3; ++k) {
        m.push_back({"BackColorCategoria" + std::to_string(k), "255"});
        m.push_back({"ForeColorCategoria" + std::to_string(k), "16777215"});
    }
    return m;
}

void riempi(JsonBag& radice, const std::vector<Membro>& membri) {
    JsonBag& dati = radice.AddNewObject("DatiLumigrafo");
    for (const Membro& m : membri) {
        if (m.testo.empty())
            dati.Item(m.nome, m.numero);
        else
            dati.Item(m.nome, m.testo);
    }
}

void riempi(nlohmann::json& radice, const std::vector<Membro>& membri) {
    nlohmann::json& dati = radice["DatiLumigrafo"];
    for (const Membro& m : membri) {
        if (m.testo.empty())
            dati[m.nome] = m.numero;
        else
            dati[m.nome] = m.testo;
    }
}

/// About that many bytes of orders, as a cash desk could send them.
std::string documento(std::size_t byte) {
    std::string testo = R"({"ordini":[)";
    for (int i = 1; testo.size() < byte; ++i) {
        testo += i > 1 ? "," : "";
        testo += R"({"sigla":"A","numero":)" + std::to_string(i) + R"(,"evidenzia":false,"nota":null,)" +
                 R"("cliente":"Caff\u00e8 della \"Stazione\"","totale":)" + std::to_string(i % 90) + ".5" +
                 std::to_string(i % 10) + R"(,"pezzi":[1,0,2,)" + std::to_string(i % 7) +
                 R"(],"descrizione":"Margherita con mozzarella di bufala, già tagliata"})";
    }
    return testo + "]}";
}

void nostroScrive(benchmark::State& stato) {
    JsonBag bag;
    riempi(bag, membri());
    for (auto _ : stato)
        benchmark::DoNotOptimize(bag.JSON());
    stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(bag.JSON().size()));
}

void altroScrive(benchmark::State& stato) {
    nlohmann::json json;
    riempi(json, membri());
    for (auto _ : stato)
        benchmark::DoNotOptimize(json.dump());
    stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(json.dump().size()));
}

template <typename Json>
void costruisceEScrive(benchmark::State& stato) {
    const auto tutti = membri();
    for (auto _ : stato) {
        Json json;
        riempi(json, tutti);
        if constexpr (std::is_same_v<Json, JsonBag>)
            benchmark::DoNotOptimize(json.JSON());
        else
            benchmark::DoNotOptimize(json.dump());
    }
}

void nostroLegge(benchmark::State& stato) {
    const std::string testo = documento(static_cast<std::size_t>(stato.range(0)));
    for (auto _ : stato) {
        JsonBag bag;
        bag.JSON(testo);
        benchmark::DoNotOptimize(bag.Count());
    }
    stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(testo.size()));
}

void altroLegge(benchmark::State& stato) {
    const std::string testo = documento(static_cast<std::size_t>(stato.range(0)));
    for (auto _ : stato) {
        const auto json = nlohmann::json::parse(testo);
        benchmark::DoNotOptimize(json.size());
    }
    stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(testo.size()));
}

void nostroRiscrive(benchmark::State& stato) {
    JsonBag bag;
    bag.JSON(documento(static_cast<std::size_t>(stato.range(0))));
    for (auto _ : stato)
        benchmark::DoNotOptimize(bag.JSON());
    stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(bag.JSON().size()));
}

void altroRiscrive(benchmark::State& stato) {
    const auto json = nlohmann::json::parse(documento(static_cast<std::size_t>(stato.range(0))));
    for (auto _ : stato)
        benchmark::DoNotOptimize(json.dump());
    stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(json.dump().size()));
}

constexpr std::int64_t kMisure[] = {1 << 10, 100 << 10, 10 << 20};

void conMisure(benchmark::internal::Benchmark* banco) {
    for (const std::int64_t misura : kMisure)
        banco->Arg(misura);
}

BENCHMARK(nostroScrive)->Name("tabellone/scrive/JsonBag");
BENCHMARK(altroScrive)->Name("tabellone/scrive/nlohmann");
BENCHMARK(costruisceEScrive<JsonBag>)->Name("tabellone/costruisce e scrive/JsonBag");
BENCHMARK(costruisceEScrive<nlohmann::json>)->Name("tabellone/costruisce e scrive/nlohmann");
BENCHMARK(nostroLegge)->Name("legge/JsonBag")->Apply(conMisure);
BENCHMARK(altroLegge)->Name("legge/nlohmann")->Apply(conMisure);
BENCHMARK(nostroRiscrive)->Name("scrive/JsonBag")->Apply(conMisure);
BENCHMARK(altroRiscrive)->Name("scrive/nlohmann")->Apply(conMisure);

} // namespace

BENCHMARK_MAIN();
