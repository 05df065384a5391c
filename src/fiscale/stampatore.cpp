#include "fiscale/stampatore.h"

#include "fiscale/crea_driver.h"
#include "fiscale/lettura.h"
#include "platform/guasto.h"

namespace lumigrafo {

namespace {

bool stesso(const Scontrino& s, const VoceRegistro& v) {
    return s.sigla == v.sigla && s.numero == v.numero && s.dataCompetenza == v.dataCompetenza;
}

} // namespace

bool Stampatore::emetti(std::int32_t id, const VoceRegistro* attesa) {
    EsitoStampa esito;
    try {
        esito = tenta(id, attesa);
    } catch (const Guasto& guasto) { // the reading failed: nothing was sent
        esito = {Fine::NonStampato, guasto.descrizione()};
    }
    if (esito.fine != Fine::Fatto)
        avvisa(esito);
    return esito.fine == Fine::Fatto;
}

EsitoStampa Stampatore::tenta(std::int32_t id, const VoceRegistro* attesa) {
    const ImpostazioniFiscali impostazioni = leggiImpostazioniFiscali(cartella_);
    if (const std::string manca = difetto(impostazioni); !manca.empty())
        return {Fine::NonStampato, manca};
    const Scontrino scontrino = leggiScontrino(db_, id);
    if (attesa && !stesso(scontrino, *attesa))
        return {Fine::NonStampato, "Nell'archivio lo scontrino n. " + std::to_string(id) +
                                       " è ora dell'ordine " + scontrino.ordine() + "."};
    RegistroScontrini registro(cartella_, p_.orologio);
    const bool copia = registro.giaFatto(scontrino);
    const Modulo modulo = impagina(scontrino, impostazioni, p_.orologio.adesso(), copia);
    const VoceRegistro voce = registro.inizia(scontrino);
    const EsitoStampa esito =
        creaDriver(impostazioni, p_, cartella_, archivio_)->stampa({scontrino, modulo, false, copia});
    registro.conclude(voce, esito);
    return esito;
}

void Stampatore::avvisa(const EsitoStampa& esito) {
    const bool incerto = esito.fine == Fine::Incerto;
    p_.avvisi.chiedi(
        {esito.testo + "\r\n\r\n" +
             (incerto ? "Lo scontrino potrebbe essere già stato stampato: guardare la stampante prima di "
                        "riprovare."
                      : "Lo scontrino non è stato stampato."),
         "Stampa dello scontrino", incerto ? Icona::Esclamazione : Icona::Critica, Bottoni::Ok});
}

} // namespace lumigrafo
