#include "fiscale/componente.h"

#include "fiscale/configurazione.h"
#include "fiscale/stampatore.h"
#include "fiscale/utilita.h"
#include "platform/conversioni.h"
#include "platform/guasto.h"

namespace lumigrafo {

namespace {

std::filesystem::path percorso(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

/// What both objects are told.
struct Detti {
    lumigrafo::Database* db = nullptr;
    std::filesystem::path programma;
    PostoArchivio archivio;

    /// The open archive. Throws Guasto 91 where none was given.
    [[nodiscard]] lumigrafo::Database& archivioAperto() const {
        if (!db)
            throw Guasto(guasti::kOggettoMancante);
        return *db;
    }
};

/// The sets that both have.
template <typename Interfaccia>
class ConDetti : public Interfaccia {
public:
    explicit ConDetti(const PorteComponente& porte) : porte_(porte) {}
    void Database(lumigrafo::Database& db) final { detti_.db = &db; }
    void CartellaDati(const std::string& cartella) final { detti_.archivio.cartella = cartella; }
    void Workspace(lumigrafo::Workspace&) final {} // one statement at a time needs no transaction
    void CartellaProgramma(const std::string& cartella) final { detti_.programma = percorso(cartella); }

protected:
    PorteComponente porte_;
    Detti detti_;
};

class Componente final : public ConDetti<ComponenteFiscale> {
public:
    using ConDetti::ConDetti;

    void Prepara(bool& esito) override {
        esito = difetto(leggiImpostazioniFiscali(detti_.programma)).empty();
    }
    void MostraUtilita() override {
        Stampatore stampatore = nuovoStampatore();
        UtilitaFiscale utilita(porte_, detti_.programma, detti_.archivio, stampatore);
        porte_.finestre.mostra(utilita);
    }
    void EmettiScontrino(std::int32_t ID_Scontrino, const std::string&, std::int32_t, bool& esito) override {
        esito = stampa_ && nuovoStampatore().emetti(ID_Scontrino);
    }
    void ArchivioLocale(bool locale) override { detti_.archivio.locale = locale; }
    void Stampa(bool stampa) override { stampa_ = stampa; }

private:
    [[nodiscard]] Stampatore nuovoStampatore() const {
        return {porte_, detti_.archivioAperto(), detti_.programma, detti_.archivio};
    }

    bool stampa_ = false;
};

class Configura final : public ConDetti<ConfiguraFiscale> {
public:
    using ConDetti::ConDetti;

    void Opzione(const std::string& testo) override {
        ignorandoGuasti([&] { modificabili_ = aBooleano(testo); });
    }
    void Mostra(bool) override { // its one caller asks for a modal window
        ConfigurazioneFiscale configurazione(porte_, detti_.programma, detti_.archivio, modificabili_);
        porte_.finestre.mostra(configurazione);
    }

private:
    bool modificabili_ = false;
};

} // namespace

std::unique_ptr<ComponenteFiscale> FabbricaComponente::creaComponente() {
    return std::make_unique<Componente>(porte_);
}

std::unique_ptr<ConfiguraFiscale> FabbricaComponente::creaConfigura() {
    return std::make_unique<Configura>(porte_);
}

} // namespace lumigrafo
