#include "tests/fuzz/giro_casse.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace lumigrafo::prova {
namespace {

/// Scripts written by hand, and those that a fuzzer found to take new ways through the server.
TEST(SemiCasse, EachScriptGetsTheAnswersItDeserves) {
    int semi = 0;
    for (const auto& voce : std::filesystem::directory_iterator(SEMI_CASSE)) {
        std::ifstream file(voce.path(), std::ios::binary);
        const std::string passi{std::istreambuf_iterator<char>(file), {}};
        EXPECT_NO_THROW(giroCasse(passi)) << voce.path().filename();
        ++semi;
    }
    EXPECT_GT(semi, 5);
}

} // namespace
} // namespace lumigrafo::prova
