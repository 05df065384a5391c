#include "announce/emissione_fiscale.h"

#include "data/istruzioni.h"
#include "platform/conversioni.h"

namespace lumigrafo {

namespace {

constexpr std::int32_t kNessuno = -1;
constexpr std::int16_t kFineDati = 10;

bool vero(const Valore& v) {
    return !v.nullo() && v.aBooleano();
}

} // namespace

void EmissioneFiscale::EmettiFiscale(const std::string& Sigla, const std::string& Numero) {
    p_.log.ScriviLog("Stampo fiscale per comanda " + Sigla + " " + Numero);
    auto finestra = p_.frmFiscale.mostra();
    p_.pompa.cedi("EmettiFiscale/2");
    StampaScontrino(CercaScontrino(Sigla, Numero));
    p_.pompa.cedi("EmettiFiscale/5");
    finestra.reset();
    p_.log.ScriviLog("Fine stampo fiscale");
}

std::int32_t EmissioneFiscale::CercaScontrino(const std::string& Sigla, const std::string& Numero) {
    std::int32_t id = kNessuno;
    clsRecordset rs({p_.dati.Db(), p_.dati.PathDB(), p_.orologio, p_.avvisi, p_.uscita, p_.sistema});
    rs.Apri("CercaScontrino", true, istruzioni::scontrini(Sigla, Numero, p_.dati.DataCompetenzaSql()), false,
            true);
    if (rs.Errore() == kFineDati) {
        // No blank between letter and number here.
        p_.messaggi.MostraMessaggio("Scontrino " + Sigla + Numero + " non trovato", 2);
        p_.log.ScriviLog("Non trovato id_scontrino per " + Sigla + " " + Numero);
    } else if (vero(rs.ilRecordset().Fields()["Stornato"].Value())) {
        // An older receipt isn't looked at, though it may stand.
        p_.messaggi.MostraMessaggio("Scontrino stornato !", 2);
    } else {
        id = rs.ilRecordset().Fields()["ID_Scontrino"].Value().aIntero32();
    }
    rs.Chiudi();
    return id;
}

void EmissioneFiscale::StampaScontrino(std::int32_t ID_Scontrino) {
    if (ID_Scontrino == 0 || ID_Scontrino == kNessuno)
        return;
    const auto componente = p_.fabbrica.creaComponente();
    componente->ArchivioLocale(p_.cartella == p_.dati.PathDB());
    imposta(*componente);
    bool esito = false;
    componente->Prepara(esito); // whatever it says
    componente->Stampa(true);
    for (;;) {
        esito = false;
        componente->EmettiScontrino(ID_Scontrino, "", 1, esito);
        if (esito)
            return;
        if (p_.avvisi.chiedi({"Vuoi riprovare ?", "ERRORE STAMPA FISCALE", Icona::Domanda, Bottoni::SiNo}) !=
            Risposta::Si)
            return;
    }
}

void EmissioneFiscale::imposta(OggettoFiscale& oggetto) const {
    oggetto.CartellaProgramma(p_.cartella);
    oggetto.Workspace(p_.dati.Ws());
    oggetto.Database(p_.dati.Db());
    oggetto.CartellaDati(p_.dati.PathDB());
}

void EmissioneFiscale::UtilitaFiscali() {
    const auto componente = p_.fabbrica.creaComponente();
    imposta(*componente);
    componente->MostraUtilita();
}

void EmissioneFiscale::ImpostazioniFiscali() {
    p_.avvisi.chiedi({"Attenzione, usare solo stampanti Custom", "", Icona::Informazione, Bottoni::Ok});
    const auto configura = p_.fabbrica.creaConfigura();
    imposta(*configura);
    configura->Opzione(aTesto(true));
    configura->Mostra(true);
}

} // namespace lumigrafo
