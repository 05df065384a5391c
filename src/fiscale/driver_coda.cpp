#include "fiscale/driver_coda.h"

#include "fiscale/escpos.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <chrono>
#include <sstream>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

/// Of one call of the print system.
constexpr auto kLimiteChiamata = 5000ms;
constexpr auto kPasso = 250ms;

/// The job's name in "request id is NAME-12 (1 file(s))"; empty where there is none.
std::string nomeLavoro(const std::string& uscita) {
    constexpr std::string_view kInizio = "request id is ";
    const auto dove = uscita.find(kInizio);
    if (dove == uscita.npos)
        return {};
    const std::string resto = uscita.substr(dove + kInizio.size());
    return resto.substr(0, resto.find_first_of(" \n"));
}

bool riuscito(const std::optional<FineProgramma>& fine) {
    return fine && fine->codice == 0;
}

} // namespace

std::optional<FineProgramma> DriverCoda::chiama(std::vector<std::string> parole, std::string_view ingresso) {
    parole.insert(parole.begin(), {"env", "LC_ALL=C"}); // their answers are read here
    return esecutore_.esegui(parole, ingresso, kLimiteChiamata);
}

DriverCoda::Lavorazione DriverCoda::lavorazione(const std::string& lavoro) {
    const auto elenco = chiama({"lpstat", "-W", "not-completed", "-o", i_.indirizzo()});
    if (!riuscito(elenco))
        return Lavorazione::Ignota;
    // Each line begins with a job's name and a blank.
    return ("\n" + elenco->uscita).find("\n" + lavoro + " ") == std::string::npos ? Lavorazione::Uscito
                                                                                  : Lavorazione::InCoda;
}

/// A job that was cancelled, or given up by the print system, leaves the queue as a printed one does.
EsitoStampa DriverCoda::comeUscito(const std::string& lavoro) {
    // A job's name at the beginning of a line, and below it, behind tabs, what became of it. Of a long
    // history only that piece comes here.
    const auto storia = chiama(
        {"sh", "-c", R"(lpstat -l -W completed -o "$1" | grep -A 3 "^$2 ")", "sh", i_.indirizzo(), lavoro});
    if (!riuscito(storia))
        return {Fine::Incerto, "Il sistema di stampa non dice come è finita la stampa."};
    std::istringstream righe(storia->uscita);
    std::string riga;
    std::getline(righe, riga);
    while (std::getline(righe, riga) && riga.starts_with('\t'))
        if (riga.find("job-completed-successfully") != std::string::npos)
            return {Fine::Fatto, ""};
    return {Fine::Incerto, "La coda di stampa " + i_.indirizzo() + " ha abbandonato lo scontrino."};
}

EsitoStampa DriverCoda::stampa(const Lavoro& lavoro) {
    const auto fine = chiama({"lp", "-d", i_.indirizzo(), "-o", "raw"}, escpos::scontrino(lavoro.modulo, i_));
    if (!fine)
        return {Fine::NonStampato, "Su questo computer manca il sistema di stampa."};
    if (fine->scaduto)
        return {Fine::Incerto, "Il sistema di stampa non risponde."};
    if (!riuscito(fine))
        return {Fine::NonStampato, "La coda di stampa " + i_.indirizzo() + " non accetta lo scontrino."};
    const std::string nome = nomeLavoro(fine->uscita);
    if (nome.empty())
        return {Fine::Incerto, "Il sistema di stampa ha dato una risposta incomprensibile."};
    const auto scadenza = std::chrono::steady_clock::now() + std::chrono::seconds(i_.limite);
    do {
        if (lavorazione(nome) == Lavorazione::Uscito)
            return comeUscito(nome);
        orologio_.attendi(kPasso);
    } while (std::chrono::steady_clock::now() < scadenza);
    static_cast<void>(chiama({"cancel", nome}));
    return {Fine::Incerto,
            "Lo scontrino è rimasto nella coda di stampa " + i_.indirizzo() + " ed è stato tolto."};
}

StatoStampante DriverCoda::stato() {
    const auto fine = chiama({"lpstat", "-p", i_.indirizzo()});
    if (!fine)
        return {false, "Su questo computer manca il sistema di stampa."};
    if (!riuscito(fine))
        return {false, "La coda di stampa " + i_.indirizzo() + " non c'è o non risponde."};
    if (fine->uscita.find("disabled") != std::string::npos)
        return {false, "La coda di stampa " + i_.indirizzo() + " è ferma."};
    return {true, "La coda di stampa " + i_.indirizzo() + " è attiva."};
}

} // namespace lumigrafo
