#pragma once

#include "strumenti/archivio/cassa.h"
#include "strumenti/chiamata.h"

#include <optional>
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
struct Verifica {
    std::string cartella;
};
struct Ripara {
    std::string cartella;
};
struct Converti {
    std::string da, a;
    bool access = false;
};
using Comando = std::variant<Aiuto, Versione, Crea, AggiungiOrdine, Mostra, Verifica, Ripara, Converti>;

using strumenti::ErroreDiUso;

/// The words behind the program's name. Throws ErroreDiUso.
[[nodiscard]] Comando leggiArgomenti(const std::vector<std::string>& argomenti);

} // namespace lumigrafo::archivio
