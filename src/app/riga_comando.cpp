#include "app/riga_comando.h"

#include <cstdlib>
#include <string_view>

namespace lumigrafo {

namespace {

constexpr const char* kAiuto = R"(Uso: lumigrafo [RIAVVIO | RIDOTTA]

Il tabellone dei numeri per cucine e casse.

  RIAVVIO     riparte senza finestra iniziale e senza controllo di un altro avvio
  RIDOTTA     tiene il tabellone del pubblico ridotto a icona
  --version   mostra la versione
  --help      mostra questo aiuto

Impostazioni, stato e log stanno nella cartella del programma, o in quella che
la variabile d'ambiente LUMIGRAFO_HOME indica.
)";

/// Without a separator at its end, as it is compared with the archive's folder.
std::filesystem::path senzaCoda(std::filesystem::path cartella) {
    cartella = std::filesystem::absolute(cartella).lexically_normal();
    return cartella.has_filename() ? cartella : cartella.parent_path();
}

} // namespace

std::optional<std::string> rispostaImmediata(int argc, char** argv) {
    if (argc != 2)
        return std::nullopt;
    const std::string_view parola = argv[1];
    if (parola == "--version")
        return "lumigrafo " LUMIGRAFO_VERSIONE "\n";
    if (parola == "--help")
        return kAiuto;
    return std::nullopt;
}

Ambiente leggiAmbiente(int argc, char** argv, const std::filesystem::path& eseguibile) {
    Ambiente ambiente;
    ambiente.eseguibile = eseguibile;
    const char* casa = std::getenv("LUMIGRAFO_HOME");
    ambiente.cartella = senzaCoda(casa && *casa ? std::filesystem::path(casa) : eseguibile.parent_path());
    for (int i = 1; i < argc; ++i)
        ambiente.argomenti += (i > 1 ? " " : "") + std::string(argv[i]);
    return ambiente;
}

} // namespace lumigrafo
