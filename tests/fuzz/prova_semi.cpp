// Inputs written by hand because they once were hard to take, and those that a fuzzer found to take new ways.
#include "tests/fuzz/giri.h"
#include "tests/fuzz/semi.h"

namespace lumigrafo::prova {
namespace {

TEST(SemiJson, EachSeedIsReadOrRefusedAndComesBackAsItWas) {
    ogniSeme(SEMI "_json", 10, giroJson);
}

TEST(SemiCasse, EachScriptGetsTheAnswersItDeserves) {
    ogniSeme(SEMI "_casse", 5, giroCasse);
}

} // namespace
} // namespace lumigrafo::prova
