#include "strumenti/cassa/programma.h"

#include "platform/guasto.h"
#include "strumenti/cassa/argomenti.h"

#include <ostream>

namespace lumigrafo::cassa {

namespace {

using strumenti::kChiamataErrata;
using strumenti::kFallito;
using strumenti::kFatto;

constexpr const char* kAiuto = R"(Uso: lumigrafo-cassa --sigla LETTERA [--server HOST] [--ogni SECONDI]

Chiede alla stazione il prossimo numero, come fa una cassa del sistema "Avanti il prossimo",
e stampa la risposta: NUMERO seguito dal numero, oppure KO se non ce ne sono.
Se la stazione è occupata riprova da sola.

  --sigla LETTERA  lettera della cassa, dalla A alla E
  --server HOST    nome o indirizzo della stazione (predefinito: localhost)
  --ogni SECONDI   continua a chiedere, una volta ogni tanti secondi, e si ricollega da sola
  --help           stampa questo testo
  --version        stampa la versione

Codici di uscita: 0 risposta ricevuta, 1 richiesta fallita, 2 chiamata errata.
)";

/// False where there was no answer.
bool chiedi(Richiedente& richiedente, std::ostream& out, std::ostream& err) {
    try {
        out << richiedente.chiedi() << std::endl;
        return true;
    } catch (const Guasto& guasto) {
        err << guasto.descrizione() << std::endl;
        return false;
    }
}

} // namespace

int esegui(const std::vector<std::string>& parole, Collegamento& collegamento, const Attesa& attesa,
           std::ostream& out, std::ostream& err) {
    try {
        const Argomenti a = leggiArgomenti(parole);
        if (a.aiuto || a.versione) {
            out << (a.aiuto ? kAiuto : "lumigrafo-cassa " LUMIGRAFO_VERSIONE "\n");
            return kFatto;
        }
        Richiedente richiedente(collegamento, a.server, a.sigla, attesa);
        bool risposto = chiedi(richiedente, out, err);
        while (a.ogni > 0 && attesa(std::chrono::seconds(a.ogni)))
            risposto = chiedi(richiedente, out, err);
        return risposto ? kFatto : kFallito;
    } catch (const ErroreDiUso& errore) {
        err << errore.what() << "\nPer l'elenco delle opzioni: lumigrafo-cassa --help\n";
        return kChiamataErrata;
    }
}

} // namespace lumigrafo::cassa
