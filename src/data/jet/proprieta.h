#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo::jet {

/// What a table's design says of a column beyond its definition.
struct Proprieta {
    std::string colonna;     ///< UTF-8
    std::string predefinito; ///< the expression that a new row's value is made from; empty for none
    bool richiesta = false;  ///< takes no null
};

/// Takes the properties apart that the catalog keeps with a table (its column LvProp). Columns of which
/// nothing is said are left out. Throws Guasto 3049.
[[nodiscard]] std::vector<Proprieta> leggiProprieta(std::string_view byte);

/// The bytes that say so.
[[nodiscard]] std::string componiProprieta(const std::vector<Proprieta>& proprieta);

} // namespace lumigrafo::jet
