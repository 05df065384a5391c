#include "tests/fuzz/giri.h"
#include "tests/fuzz/semi.h"
#include "tests/sostegno/durata.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <random>

namespace lumigrafo::prova {
namespace {

/// Damage that once was taken badly, and what a fuzzer found to take new ways through the engine.
TEST(ArchiviAccessGuasti, OgniSeme) {
    ogniSeme(SEMI "_access", 10, giroAccess);
}

/// Bits, bytes in a page's head, a page of rubbish, a page in another's place, an end cut off.
std::string danno(std::mt19937& caso) {
    static constexpr struct {
        char comando;
        int volte, byte;
    } kGeneri[] = {{'b', 20, 5}, {'w', 1, 4}, {'r', 1, 3}, {'c', 1, 4}, {'t', 1, 4}};
    const auto& genere = kGeneri[caso() % std::size(kGeneri)];
    std::string dati;
    for (int i = 0; i < genere.volte; ++i) {
        dati += genere.comando;
        std::generate_n(std::back_inserter(dati), genere.byte, [&] { return static_cast<char>(caso()); });
    }
    if (genere.comando == 'w') {
        dati[4] = static_cast<char>(dati[4] & 0); // in the first 256 bytes
        dati += '\x0C';
        std::generate_n(std::back_inserter(dati), 12, [&] { return static_cast<char>(caso()); });
    }
    return dati;
}

/// LUMIGRAFO_GIRI says how many.
TEST(ArchiviAccessGuasti, ACaso) {
    std::mt19937 caso(41);
    std::map<EsitoAccess, int> esiti;
    for (int k = giri(100); k > 0; --k) {
        const std::string dati = danno(caso);
        try {
            ++esiti[giroAccess(dati)];
        } catch (const std::exception& e) {
            ADD_FAILURE() << e.what() << ": " << testing::PrintToString(dati);
        }
    }
    std::printf("%d refused, %d unharmed, %d mended, %d past mending\n", esiti[EsitoAccess::Rifiutato],
                esiti[EsitoAccess::Sano], esiti[EsitoAccess::Riparato], esiti[EsitoAccess::DaRiparare]);
    EXPECT_GT(esiti[EsitoAccess::Rifiutato], 0);
    EXPECT_GT(esiti[EsitoAccess::Sano], 0);
    EXPECT_GT(esiti[EsitoAccess::Riparato], 0);
}

} // namespace
} // namespace lumigrafo::prova
