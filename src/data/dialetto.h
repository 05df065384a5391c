#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

/// A statement "Select columns from one table", of which each row is a row of the table and can be changed.
struct Selezione {
    std::string tabella;              ///< without brackets
    std::string voci;                 ///< what stands between SELECT and FROM
    std::string da;                   ///< the FROM clause
    std::string resto;                ///< WHERE, ORDER BY
    std::vector<std::string> colonne; ///< the table's column behind each entry; empty for `*`
};

/// The archive's SQL as the program spells it, put right for SQLite. Literals and all else stay as they are.
///
/// `Delete * from`, `Delete T.* from`, `UPDATE T SET T.c =` lose what SQLite doesn't take; `True` and `False`
/// become -1 and 0, the values of Yes/No columns. Texts compare and sort without regard to case: the columns
/// of our own archives are declared so, and the columns of other archives that aren't are told to this class.
class Dialetto {
public:
    /// `conMaiuscole`: lower-case names of the text columns whose own comparison minds the case.
    explicit Dialetto(std::set<std::string> conMaiuscole = {}) : conMaiuscole_(std::move(conMaiuscole)) {}

    /// A whole statement.
    [[nodiscard]] std::string istruzione(std::string_view sql) const;
    /// A condition alone, as a search takes it.
    [[nodiscard]] std::string criterio(std::string_view condizione) const;
    /// The source of a record set: a bare table name stands for all its rows.
    [[nodiscard]] std::string sorgente(std::string_view tabellaOSql) const;

private:
    std::set<std::string> conMaiuscole_;
};

/// The parts of a translated statement whose rows can be changed; nothing for sums, joins, unions and the
/// like.
[[nodiscard]] std::optional<Selezione> selezioneSemplice(std::string_view sql);

} // namespace lumigrafo
