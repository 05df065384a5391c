#include "boards/videata_lumigrafo.h"

#include "boards/crea_videata.h"

#include <utility>

namespace lumigrafo {

namespace {

/// Drops a board whose load failed.
class CaricoInCorso {
public:
    explicit CaricoInCorso(std::shared_ptr<Scheda>& scheda) : posto_(scheda), scheda_(scheda) {}
    ~CaricoInCorso() {
        if (!riuscito_ && posto_ == scheda_)
            posto_.reset();
    }
    CaricoInCorso(const CaricoInCorso&) = delete;
    CaricoInCorso& operator=(const CaricoInCorso&) = delete;
    void riuscito() { riuscito_ = true; }

private:
    std::shared_ptr<Scheda>& posto_;
    std::shared_ptr<Scheda> scheda_;
    bool riuscito_ = false;
};

} // namespace

VideataLumigrafo::VideataLumigrafo(TipoVideata tipo, const ServiziSchede& servizi, FabbricaFinestre finestre)
    : tipo_(tipo), servizi_(servizi), finestre_(std::move(finestre)) {}

std::shared_ptr<Scheda> VideataLumigrafo::carica() {
    if (scheda_)
        return scheda_;
    const std::shared_ptr<Scheda> scheda = creaScheda(tipo_, servizi_);
    scheda_ = scheda;
    CaricoInCorso carico(scheda_);
    scheda->Carica(finestre_(scheda->controlli(), eventi()));
    carico.riuscito();
    return scheda;
}

EventiFinestra VideataLumigrafo::eventi() {
    const auto allaViva = [this](void (Scheda::*routine)()) {
        return [this, routine] {
            if (const auto viva = scheda_)
                ((*viva).*routine)();
        };
    };
    return {.clic = [this](std::string_view nome, int) { clic(nome); },
            .attivata = allaViva(&Scheda::Attiva),
            .doppioClicSfondo = allaViva(&Scheda::DoppioClicSfondo),
            .chiusa = [this] { Scarica(); }};
}

void VideataLumigrafo::clic(std::string_view nome) {
    if (nome == "lblChiudi" || nome == "picChiudi")
        Scarica();
}

Controlli& VideataLumigrafo::controlli() {
    return *carica()->controlli();
}

void VideataLumigrafo::Mostra() {
    const auto scheda = carica();
    FinestraVideata* finestra = scheda->finestra();
    if (!finestra)
        return;
    // A show is an activation, but it leaves the keyboard to the console, so that no event would tell. It is
    // placed first: the public doesn't see it jump.
    if (!finestra->ridotta())
        scheda->Attiva();
    finestra->mostra();
}

void VideataLumigrafo::Nascondi() {
    if (const auto scheda = carica(); scheda->finestra())
        scheda->finestra()->nascondi();
}

void VideataLumigrafo::Ridisegna() {
    if (const auto scheda = carica(); scheda->finestra())
        scheda->finestra()->ridisegna();
}

void VideataLumigrafo::Riduci(bool ridotta) {
    if (const auto scheda = carica(); scheda->finestra())
        scheda->finestra()->riduci(ridotta);
}

void VideataLumigrafo::Posiziona(const Rettangolo& posto) {
    if (const auto scheda = carica(); scheda->finestra())
        scheda->finestra()->posto(posto);
}

void VideataLumigrafo::Blinka(std::int16_t indice) {
    carica()->Blinka(indice);
}

void VideataLumigrafo::Lampeggia(const std::string& Cassa, const std::string& Numero) {
    carica()->Lampeggia(Cassa, Numero);
}

void VideataLumigrafo::Scarica() {
    if (!scheda_)
        return;
    const auto scheda = std::exchange(scheda_, nullptr);
    scaricati_ = scheda->controlli();
    scheda->Scarica();
}

} // namespace lumigrafo
