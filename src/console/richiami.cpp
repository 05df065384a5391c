#include "console/richiami.h"

#include "console/servito.h"
#include "platform/guasto.h"

namespace lumigrafo {

void Richiami::AggiornaDBLumigrafoCucina(const std::string& sigla, const std::string& numero,
                                         std::int16_t index, std::int16_t servito) {
    lumigrafo::AggiornaDBLumigrafoCucina(c_.stato, c_.porte.orologio, sigla, numero, index, servito);
}

void Richiami::ScaricaLumigrafo() {
    // The program ends after a last message, and a desk's number has no board to go up on meanwhile.
    c_.porte.server.Chiudi();
    ignorandoGuasti([this] { c_.frmVideata().Scarica(); });
    c_.stato.frmVideata.reset();
    c_.cedi("ScaricaLumigrafo");
}

std::string Richiami::lblReparto(int quadrante) const {
    return c_.controlli("lblReparto", quadrante).Caption();
}

std::int16_t Richiami::Categoria(int quadrante) const {
    return c_.stato.Categoria.at(static_cast<std::size_t>(quadrante));
}

} // namespace lumigrafo
