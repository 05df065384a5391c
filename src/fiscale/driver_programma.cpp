#include "fiscale/driver_programma.h"

#include "fiscale/json_programma.h"

#include <algorithm>
#include <chrono>

namespace lumigrafo {

namespace {

constexpr const char* kMancante = "Il programma di stampa non può essere avviato.";
constexpr const char* kLento = "Il programma di stampa non ha risposto in tempo ed è stato chiuso.";
constexpr const char* kConfuso = "Il programma di stampa ha dato una risposta incomprensibile.";

} // namespace

std::optional<FineProgramma> DriverProgramma::chiama(const std::string& richiesta) {
    return esecutore_.esegui({i_.indirizzo()}, richiesta + "\n", std::chrono::seconds(i_.limite));
}

EsitoStampa DriverProgramma::stampa(const Lavoro& lavoro) {
    const auto fine = chiama(richiestaDiStampa(lavoro, archivio_));
    if (!fine)
        return {Fine::NonStampato, kMancante};
    if (fine->scaduto)
        return {Fine::Incerto, kLento};
    const auto esito = esitoDa(fine->uscita);
    // A program that fell down behind its answer may not have done what it said.
    if (!esito || (esito->fine == Fine::Fatto && fine->codice != 0))
        return {Fine::Incerto, kConfuso};
    return *esito;
}

StatoStampante DriverProgramma::stato() {
    const auto fine = chiama(richiestaDiStato());
    if (!fine)
        return {false, kMancante};
    if (fine->scaduto)
        return {false, kLento};
    return statoDa(fine->uscita).value_or(StatoStampante{false, kConfuso});
}

} // namespace lumigrafo
