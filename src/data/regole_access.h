#pragma once

#include "data/jet/definizione.h"
#include "data/jet/proprieta.h"

#include <optional>
#include <string>
#include <vector>

namespace lumigrafo {

/// What a table's design asks of its rows: defaults that are constants, and columns that take no null. Rules
/// of validation and defaults that must be computed are left out.
class RegoleAccess {
public:
    RegoleAccess() = default;
    RegoleAccess(const jet::Definizione& definizione, const std::vector<jet::Proprieta>& proprieta);

    /// The bytes of the field in a new row that says nothing of it; nothing for null.
    [[nodiscard]] std::optional<std::string> predefinito(std::size_t colonna) const;
    /// Throws Guasto 3314 for a null that the column doesn't take.
    void verifica(std::size_t colonna, const std::optional<std::string>& byte) const;

private:
    struct Regola {
        std::string nome;
        std::optional<std::string> predefinito;
        bool richiesta = false;
    };
    std::vector<Regola> regole_; ///< by the column's place in the definition
};

} // namespace lumigrafo
