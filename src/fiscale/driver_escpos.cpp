#include "fiscale/driver_escpos.h"

#include "fiscale/escpos.h"

#include <algorithm>
#include <iterator>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

/// The printer answers these at once.
constexpr auto kLimiteDomanda = 1500ms;
/// What has come unasked, at the most.
constexpr std::size_t kArretrati = 4096;
/// For the questions behind an attempt that has used up its time.
constexpr auto kChiusura = 2000ms;

constexpr const char* kAssente =
    "La stampante non risponde: controllare che sia accesa e collegata e che l'indirizzo sia giusto.";

} // namespace

class DriverEscPos::Tempo {
public:
    explicit Tempo(std::chrono::milliseconds tutto) : fine_(std::chrono::steady_clock::now() + tutto) {}
    /// What is left, `massimo` at the most.
    [[nodiscard]] std::chrono::milliseconds resto(std::chrono::milliseconds massimo = 1h) const {
        const auto resto =
            std::chrono::ceil<std::chrono::milliseconds>(fine_ - std::chrono::steady_clock::now());
        return std::clamp(resto, std::chrono::milliseconds(0), massimo);
    }

private:
    std::chrono::steady_clock::time_point fine_;
};

DriverEscPos::Risposte DriverEscPos::interroga(Trasporto& t, const Tempo& tempo) {
    Risposte r;
    std::string inLinea;
    for (int quale = 0; quale < static_cast<int>(std::size(escpos::kChiediStato)); ++quale) {
        static_cast<void>(t.leggi(kArretrati, 0ms));
        const std::string_view domanda = escpos::kChiediStato[quale];
        if (t.scrivi(domanda, tempo.resto(kLimiteDomanda)) != domanda.size())
            return {false, false, "La stampante ha interrotto il collegamento."};
        const std::string byte = t.leggi(1, tempo.resto(kLimiteDomanda));
        if (byte.empty())
            return {false, false, "La stampante non comunica il suo stato."};
        if (!escpos::risposta(byte[0]))
            return {false, false, "La stampante ha dato una risposta incomprensibile."};
        const std::string problema = escpos::impedimento(quale, byte[0]);
        if (quale == 0)
            inLinea = problema; // the other two know why
        else if (r.problema.empty())
            r.problema = problema;
        r.esaurimento = quale == 2 && escpos::cartaInEsaurimento(byte[0]);
    }
    if (r.problema.empty())
        r.problema = inLinea;
    r.riuscite = true;
    return r;
}

EsitoStampa DriverEscPos::stampa(const Lavoro& lavoro) {
    const Tempo tempo(std::chrono::seconds(i_.limite));
    const auto t = apri_();
    if (!t)
        return {Fine::NonStampato, kAssente};
    const bool chiede = i_.controllaStato && t->risponde();
    if (chiede)
        if (const Risposte r = interroga(*t, tempo); !r.problema.empty())
            return {Fine::NonStampato, r.problema};
    EsitoStampa esito = manda(*t, escpos::scontrino(lavoro.modulo, i_), tempo);
    if (esito.fine == Fine::Fatto && chiede)
        esito = attendiFine(*t, tempo);
    // A connection closed over unread bytes is broken off: the printer might drop what it hasn't printed yet.
    static_cast<void>(t->leggi(kArretrati, 0ms));
    if (esito.fine == Fine::Incerto && t->scrivi(escpos::kScordaTutto, kLimiteDomanda) != 0)
        static_cast<void>(t->svuota(kLimiteDomanda));
    return esito;
}

EsitoStampa DriverEscPos::manda(Trasporto& t, const std::string& byte, const Tempo& tempo) {
    const std::size_t presi = t.scrivi(byte, tempo.resto());
    if (presi == 0)
        return {Fine::NonStampato, "La stampante non accetta lo scontrino."};
    if (presi < byte.size() || !t.svuota(tempo.resto()))
        return {Fine::Incerto, "Il collegamento con la stampante si è interrotto durante la stampa."};
    return {Fine::Fatto, ""};
}

EsitoStampa DriverEscPos::attendiFine(Trasporto& t, const Tempo& tempo) {
    static_cast<void>(t.leggi(kArretrati, 0ms));
    if (t.scrivi(escpos::kChiediFine, tempo.resto(kLimiteDomanda)) != escpos::kChiediFine.size())
        return {Fine::Incerto, "Il collegamento con la stampante si è interrotto durante la stampa."};
    const std::string byte = t.leggi(1, tempo.resto());
    if (!byte.empty())
        return fineDa(byte[0]);
    const Risposte r = interroga(t, Tempo(kChiusura));
    return {Fine::Incerto,
            r.riuscite && !r.problema.empty() ? r.problema : "La stampante non ha confermato la stampa."};
}

EsitoStampa DriverEscPos::fineDa(char byte) {
    if (!escpos::rispostaDiFine(byte))
        return {Fine::Incerto, "La stampante ha dato una risposta incomprensibile."};
    if (escpos::fineSenzaCarta(byte)) // some run on without paper: the last lines may be missing
        return {Fine::Incerto, "La carta della stampante è finita."};
    return {Fine::Fatto, ""};
}

StatoStampante DriverEscPos::stato() {
    const auto t = apri_();
    if (!t)
        return {false, kAssente};
    if (!i_.controllaStato || !t->risponde())
        return {true, "La stampante è raggiungibile; non comunica il suo stato."};
    const Risposte r = interroga(*t, Tempo(std::chrono::seconds(i_.limite)));
    if (!r.problema.empty())
        return {false, r.problema};
    return {true,
            r.esaurimento ? "La stampante è pronta; la carta sta per finire." : "La stampante è pronta."};
}

} // namespace lumigrafo
