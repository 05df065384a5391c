#pragma once

#include "data/jet/pagine.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo::jet {

enum class Tipo : std::uint8_t {
    Booleano = 1,
    Byte = 2,
    Intero = 3,
    Lungo = 4,
    Valuta = 5,
    Singolo = 6,
    Doppio = 7,
    Data = 8,
    Binario = 9,
    Testo = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Decimale = 16,
};

/// Bytes of a value of a type that has one length; 0 for the others.
[[nodiscard]] constexpr std::size_t byteDi(Tipo tipo) {
    switch (tipo) {
    case Tipo::Byte:
        return 1;
    case Tipo::Intero:
        return 2;
    case Tipo::Lungo:
    case Tipo::Singolo:
        return 4;
    case Tipo::Valuta:
    case Tipo::Doppio:
    case Tipo::Data:
        return 8;
    case Tipo::Guid:
        return 16;
    case Tipo::Decimale:
        return 17;
    default:
        return 0;
    }
}
[[nodiscard]] inline bool valoreLungo(Tipo tipo) {
    return tipo == Tipo::Ole || tipo == Tipo::Memo;
}

struct Colonna {
    std::string nome; ///< UTF-8
    Tipo tipo = Tipo::Testo;
    std::uint16_t numero = 0;          ///< its bit in a row's null mask
    std::uint16_t indiceVariabile = 0; ///< place among the variable values
    std::uint16_t postoFisso = 0;      ///< place in the fixed area
    std::uint16_t lunghezza = 0;       ///< bytes at most
    bool fissa = false, contatore = false, comprimibile = false;
    std::uint32_t ordinamento = 0; ///< of texts; precision and scale of decimals

    /// Takes place in a row's variable area. Yes/No values take none anywhere.
    [[nodiscard]] bool variabile() const { return !fissa && tipo != Tipo::Booleano; }
    [[nodiscard]] unsigned precisione() const { return ordinamento & 0xFF; }
    [[nodiscard]] unsigned scala() const { return ordinamento >> 8 & 0xFF; }
};

struct ColonnaIndice {
    std::size_t colonna = 0; ///< place in Definizione::colonne
    bool crescente = true;
};

/// An index as it lies in the file; several names may stand for one.
struct Indice {
    std::string nome;
    std::vector<ColonnaIndice> colonne;
    Posizione mappa;
    std::uint32_t radice = 0;
    std::uint32_t distinte = 0; ///< keys, by and large
    bool unico = false, ignoraNulli = false, richiesto = false;
};

struct Definizione {
    // Places in the first page of what changes with the rows.
    static constexpr std::size_t kRighe = 16, kContatore = 20, kIndici = 63, kPassoIndici = 12;

    std::uint32_t pagina = 0;          ///< the first one: the table's number
    std::vector<std::uint32_t> catena; ///< all of them
    std::uint32_t righe = 0, contatore = 0;
    std::uint16_t colonneMassime = 0, variabili = 0;
    std::vector<Colonna> colonne;
    std::vector<Indice> indici;
    Posizione possedute, libere; ///< maps of the table's data pages, and of those with room
    /// The same of the pages that hold the long values of a column.
    struct MappeLunghe {
        std::uint16_t colonna; ///< its number
        Posizione possedute, libere;
    };
    std::vector<MappeLunghe> mappeLunghe;

    /// Without regard to case.
    [[nodiscard]] std::optional<std::size_t> cerca(std::string_view nome) const;
    /// The autonumber column.
    [[nodiscard]] std::optional<std::size_t> contatoreIn() const;
};

/// Reads the table defined on that page. Throws Guasto 3049.
[[nodiscard]] Definizione leggiDefinizione(Pagine& pagine, std::uint32_t pagina);

/// Names of tables and columns compare without regard to case, of accented letters too.
[[nodiscard]] bool stessoNome(std::string_view a, std::string_view b);

} // namespace lumigrafo::jet
