#pragma once

#include "platform/file.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace lumigrafo::prova {

/// Each file of the folder goes the fuzzer's way; there must be more than so many.
template <typename Giro>
void ogniSeme(const char* cartella, int piuDi, Giro&& giro) {
    int semi = 0;
    for (const auto& voce : std::filesystem::directory_iterator(cartella)) {
        EXPECT_NO_THROW((void)giro(leggiFile(voce.path()).value())) << voce.path().filename();
        ++semi;
    }
    EXPECT_GT(semi, piuDi);
}

} // namespace lumigrafo::prova
