#include "platform/guasto.h"

#include <utility>

namespace lumigrafo {

namespace {

const char* testoDi(int numero) {
    switch (numero) {
    case guasti::kSovraccarico:
        return "Overflow";
    case guasti::kIndice:
        return "Indice non incluso nell'intervallo";
    case guasti::kTipo:
        return "Tipo non corrispondente";
    case guasti::kFileNonTrovato:
        return "Impossibile trovare il file";
    case guasti::kErroreIO:
        return "Errore di I/O della periferica";
    case guasti::kDiscoPieno:
        return "Disco pieno";
    case guasti::kPermessoNegato:
        return "Autorizzazione negata";
    case guasti::kAccesso:
        return "Errore nell'accesso al percorso o al file";
    case guasti::kPercorso:
        return "Impossibile trovare il percorso";
    case guasti::kOggettoMancante:
        return "Variabile oggetto non impostata";
    case guasti::kElementoMancante:
        return "Elemento della matrice di controlli inesistente";
    case guasti::kProprieta:
        return "Valore della proprietà non valido";
    case guasti::kImmagine:
        return "Immagine non valida";
    default:
        return "Errore dell'applicazione";
    }
}

} // namespace

Guasto::Guasto(int numero) : Guasto(numero, testoDi(numero)) {}

Guasto::Guasto(int numero, std::string descrizione) : numero_(numero), descrizione_(std::move(descrizione)) {}

} // namespace lumigrafo
