#include "tests/console/banco.h"

#include <algorithm>

namespace lumigrafo::prova {

Console& Banco::console() {
    if (console_)
        return *console_;
    Timers& iTimers = timersVeri ? *timersVeri : timers;
    pompaConsole_ = std::make_unique<PompaConsole>(pompaVera ? *pompaVera : pompa, stato);
    servizi_ =
        std::make_unique<ServiziSchede>(ServiziSchede{ambiente, *pompaConsole_, iTimers, dati, sceltaFile});
    console_ = std::make_unique<Console>(
        stato,
        PorteConsole{ambiente, orologio, *pompaConsole_, iTimers, avvisi, messaggi, processi, alimentazione,
                     sistema, desktop, uscita, dialoghi, collegati, collegati, collegati, collegati,
                     collegati},
        finestraVera ? *finestraVera : finestra, [this](TipoVideata tipo) {
            tipoChiesto = tipo;
            // The standard board unless asked otherwise: it has the slots of all three quadrants.
            return creaVideata(tipoVero ? tipo : TipoVideata::frmLumigrafo, *servizi_,
                               [this](std::shared_ptr<Controlli>, EventiFinestra) {
                                   return std::make_unique<FinestraVideataFinta>(diario);
                               });
        });
    return *console_;
}

void Banco::reparti(std::initializer_list<int> categorie) {
    for (int i = 0; const int categoria : categorie)
        imposta(("Categoria" + std::to_string(i++)).c_str(), categoria);
}

Console& Banco::caricata() {
    console().carica();
    diario.clear();
    return console();
}

std::vector<std::string> Banco::celle(int quadrante) {
    std::vector<std::string> testi;
    const Griglia& grid = console().stato().grid.at(static_cast<std::size_t>(quadrante));
    for (int r = 0; r < grid.Rows(); ++r)
        for (int k = 0; k < grid.Cols(); ++k)
            testi.push_back(grid.testo(r, k));
    return testi;
}

std::vector<std::string> Banco::posti(int quadrante, int quanti) {
    std::vector<std::string> testi;
    for (int n = 1; n <= quanti; ++n)
        testi.push_back(board().controlli()(etichettaNumero(n), quadrante).Caption());
    return testi;
}

void Banco::clic(int quadrante, const std::string& testo) {
    Griglia& grid = console().stato().grid.at(static_cast<std::size_t>(quadrante));
    const auto posto = grid.cerca(testo);
    if (!posto)
        throw std::runtime_error("no cell with " + testo);
    grid.corrente(posto->riga, posto->colonna);
    console().clicGriglia(quadrante);
}

void Banco::digita(std::string_view tasti) {
    for (const char tasto : tasti)
        (void)console().tasto(static_cast<unsigned char>(tasto));
}

Diario Banco::senza(std::initializer_list<std::string_view> inizi) const {
    Diario resto;
    std::copy_if(diario.begin(), diario.end(), std::back_inserter(resto), [&](const std::string& riga) {
        return std::none_of(inizi.begin(), inizi.end(),
                            [&](auto inizio) { return riga.starts_with(inizio); });
    });
    return resto;
}

} // namespace lumigrafo::prova
