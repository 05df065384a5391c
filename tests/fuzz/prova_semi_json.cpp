#include "tests/fuzz/giro_json.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace lumigrafo::prova {
namespace {

/// The texts that once were hard to read, and those that a fuzzer found to take new ways through the parser.
TEST(SemiJson, EachSeedIsReadOrRefusedAndComesBackAsItWas) {
    int semi = 0;
    for (const auto& voce : std::filesystem::directory_iterator(SEMI_JSON)) {
        std::ifstream file(voce.path(), std::ios::binary);
        const std::string testo{std::istreambuf_iterator<char>(file), {}};
        EXPECT_NO_THROW(giroJson(testo)) << voce.path().filename();
        ++semi;
    }
    EXPECT_GT(semi, 10);
}

} // namespace
} // namespace lumigrafo::prova
