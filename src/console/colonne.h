#pragma once

#include <string>

namespace lumigrafo {

/// Columns of the queue for a category code.
[[nodiscard]] inline std::string colonnaCategoria(int codice) {
    return "Categoria" + std::to_string(codice);
}
[[nodiscard]] inline std::string colonnaPezzi(int codice) {
    return "Pezzi" + std::to_string(codice);
}

} // namespace lumigrafo
