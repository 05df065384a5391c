#pragma once

#include "platform/guasto.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace lumigrafo::prova {

using Fallimento = std::pair<int, std::string>;

/// Number and text of the failure; 0 and an empty text where nothing failed.
template <typename Azione>
Fallimento fallimento(Azione&& azione) {
    try {
        azione();
    } catch (const Guasto& guasto) {
        return {guasto.numero(), guasto.descrizione()};
    }
    return {};
}

/// The number alone, 0 where nothing failed; a failure must have a text for people.
template <typename Azione>
int guastoDi(Azione&& azione) {
    const auto [numero, testo] = fallimento(std::forward<Azione>(azione));
    EXPECT_EQ(testo.empty(), numero == 0) << numero;
    return numero;
}

} // namespace lumigrafo::prova
