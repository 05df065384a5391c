#pragma once

#include "platform/guasto.h"

#include <gtest/gtest.h>

namespace lumigrafo::prova {

/// The number of the failure that `azione` ends with, 0 if it doesn't fail.
template <typename Azione>
int guastoDi(Azione&& azione) {
    try {
        azione();
        return 0;
    } catch (const Guasto& guasto) {
        EXPECT_FALSE(guasto.descrizione().empty()) << guasto.numero();
        return guasto.numero();
    }
}

} // namespace lumigrafo::prova
