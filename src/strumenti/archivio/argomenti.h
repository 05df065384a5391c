#pragma once

#include "strumenti/archivio/cassa.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

/// The command line of lumigrafo-archivio.
namespace lumigrafo::archivio {

struct Aiuto {};
struct Versione {};
struct Crea {
    std::string cartella;
    bool access = false;
    int dimostrativo = 0; ///< orders to make up; 0: none
};
struct AggiungiOrdine {
    std::string cartella;
    Ordine ordine;
};
struct Mostra {
    std::string cartella;
};
using Comando = std::variant<Aiuto, Versione, Crea, AggiungiOrdine, Mostra>;

/// A call that can't be understood; the text tells the user why.
struct ErroreDiUso : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The words behind the program's name. Throws ErroreDiUso.
[[nodiscard]] Comando leggiArgomenti(const std::vector<std::string>& argomenti);

} // namespace lumigrafo::archivio
