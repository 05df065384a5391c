#include "strumenti/cassa/richiesta.h"

#include "platform/ascolto_tcp.h"

#include <utility>

namespace lumigrafo::cassa {

namespace {

using namespace std::chrono_literals;

constexpr auto kLimiteCollegamento = 5s;
constexpr auto kLimiteRisposta = 10s; ///< a station that rebuilds its grids answers a little later
constexpr auto kPausa = 300ms;        ///< before a busy station is asked again
constexpr int kTentativi = 20;
/// Nothing tells the end of an answer: digits may still be on their way.
constexpr auto kSilenzio = 50ms;

constexpr const char* kOccupata = "RIPROVARE";

bool comincia(const std::string& testo) {
    const std::string numero = "NUMERO ";
    return testo == "KO" || testo == kOccupata ||
           (testo.starts_with(numero) && testo.size() > numero.size()) ||
           testo.starts_with("Codice Cassa errato: ");
}

} // namespace

Richiedente::Richiedente(Collegamento& collegamento, std::string server, std::string sigla, Attesa attesa)
    : collegamento_(collegamento), server_(std::move(server)), sigla_(std::move(sigla)),
      attesa_(std::move(attesa)) {}

std::string Richiedente::chiedi() {
    for (int volta = 0; volta < kTentativi; ++volta) {
        std::string risposta = unaVolta();
        if (risposta != kOccupata)
            return risposta;
        if (!attesa_(kPausa))
            break;
    }
    throw Guasto(guasti::kRete, "La stazione è sempre occupata.");
}

std::string Richiedente::unaVolta() {
    try {
        if (std::exchange(aperto_, false))
            return scambia();
    } catch (const Guasto& guasto) {
        // The station has lost the connection meanwhile, by a restart say: it is asked over a new one.
        if (guasto.numero() != guasti::kConnessioneCaduta)
            throw;
    }
    collegamento_.apri(server_, kLimiteCollegamento);
    return scambia();
}

std::string Richiedente::scambia() {
    collegamento_.manda(sigla_);
    std::string risposta;
    while (!comincia(risposta)) {
        const std::string pezzo = collegamento_.ricevi(kLimiteRisposta);
        if (pezzo.empty())
            throw Guasto(guasti::kRete, "La stazione non risponde: forse ha già dieci casse collegate.");
        risposta += pezzo;
    }
    (void)ignorandoGuasti([&] {
        for (std::string pezzo; !(pezzo = collegamento_.ricevi(kSilenzio)).empty();)
            risposta += pezzo;
        aperto_ = true;
    });
    if (risposta.starts_with("Codice"))
        throw Guasto(guasti::kRete, "La stazione rifiuta la lettera " + sigla_ + ": " + risposta);
    return risposta;
}

} // namespace lumigrafo::cassa
