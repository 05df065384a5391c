#pragma once

#include "data/valore.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

class Recordset;

/// One column of a record set. It stands for the current row's value, whichever row that is, and lives as
/// long as the record set.
class Field {
public:
    Field(Recordset& insieme, std::size_t indice, std::string nome, std::string colonna, const char* tipo);

    [[nodiscard]] const std::string& Name() const { return nome_; }
    /// The DAO type code (dao::dbBoolean ...); dao::dbDouble for computed columns.
    [[nodiscard]] int Type() const { return tipo_; }
    /// Greatest length of a text in characters; 0 where there is none.
    [[nodiscard]] std::size_t Size() const { return dimensione_; }
    /// The table's column behind it; empty for a computed one.
    [[nodiscard]] const std::string& colonna() const { return colonna_; }

    /// After Edit or AddNew the value that Update will write, once one was set; null for what AddNew leaves
    /// to the table's default. Throws Guasto 3021 without a current row, 3167 on a deleted one, 3420 after
    /// Close.
    [[nodiscard]] Valore Value() const;
    /// Converts to the column's type: a truth value is stored as -1 or 0. Throws Guasto 3020 outside Edit and
    /// AddNew, 3421 for what can't be converted, 3163 for a text that is too long.
    void Value(const Valore& valore);
    /// A value as the column takes it. Throws Guasto 3421 and 3163.
    [[nodiscard]] Valore convertito(const Valore& valore) const;

private:
    [[nodiscard]] Valore nelTipo(const Valore& valore) const;

    Recordset* insieme_;
    std::size_t indice_;
    std::string nome_;
    std::string colonna_;
    int tipo_;
    std::size_t dimensione_ = 0;
};

/// The columns of a record set, in order. Who reads many rows asks for each Field once, before the loop.
class Fields {
public:
    [[nodiscard]] std::size_t Count() const { return campi_.size(); }
    /// By name, without regard to case, or by position from 0. Throws Guasto 3265 where there is none.
    [[nodiscard]] Field& Item(std::string_view nome);
    [[nodiscard]] Field& Item(std::size_t indice);
    [[nodiscard]] Field& operator[](std::string_view nome) { return Item(nome); }

    void aggiungi(Field campo) { campi_.push_back(std::move(campo)); }
    /// Room for the columns: a Field must not move once it was handed out.
    void prepara(std::size_t quanti);
    [[nodiscard]] const std::vector<Field>& tutti() const { return campi_; }

private:
    [[nodiscard]] std::size_t casella(std::string_view nome) const;
    void indicizza();

    std::vector<Field> campi_;
    std::vector<std::uint16_t> indice_; ///< open addressing by name: position + 1, 0 for a free place
    std::size_t prossimo_ = 0;          ///< behind the column asked for last
};

} // namespace lumigrafo
