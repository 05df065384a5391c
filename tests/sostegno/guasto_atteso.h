#pragma once

#include "platform/guasto.h"

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

} // namespace lumigrafo::prova
