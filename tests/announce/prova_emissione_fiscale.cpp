#include "announce/emissione_fiscale.h"
#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What all fiscal objects of one test share.
struct Copione {
    Diario& diario;
    std::deque<bool> esiti; ///< of the attempts
};

/// Writes every operation into the diary.
template <typename Interfaccia>
struct OggettoFinto : Interfaccia {
    explicit OggettoFinto(Copione& copione) : c(copione) { dice("crea"); }
    ~OggettoFinto() override { dice("rilascia"); }
    void Database(lumigrafo::Database&) override { dice("Database"); }
    void CartellaDati(const std::string&) override { dice("CartellaDati"); }
    void Workspace(lumigrafo::Workspace&) override { dice("Workspace"); }
    void CartellaProgramma(const std::string&) override { dice("CartellaProgramma"); }
    void dice(std::string riga) { c.diario.push_back(std::move(riga)); }
    Copione& c;
};

struct ComponenteFinto : OggettoFinto<ComponenteFiscale> {
    using OggettoFinto::OggettoFinto;
    void Prepara(bool& esito) override {
        dice("Prepara");
        esito = false; // nobody cares
    }
    void MostraUtilita() override { dice("MostraUtilita"); }
    void EmettiScontrino(std::int32_t id, const std::string& testo, std::int32_t valore,
                         bool& esito) override {
        dice("Emetti " + std::to_string(id) + " '" + testo + "' " + std::to_string(valore));
        esito = c.esiti.front();
        c.esiti.pop_front();
    }
    void ArchivioLocale(bool locale) override { dice(locale ? "Locale" : "Remoto"); }
    void Stampa(bool stampa) override { dice(stampa ? "Stampa" : "NonStampa"); }
};

struct ConfiguraFinta : OggettoFinto<ConfiguraFiscale> {
    using OggettoFinto::OggettoFinto;
    void Opzione(const std::string& testo) override { dice("Opzione " + testo); }
    void Mostra(bool modale) override { dice(modale ? "Mostra modale" : "Mostra"); }
};

struct FabbricaFinta : FabbricaFiscale, Copione {
    explicit FabbricaFinta(Diario& d) : Copione{d, {}} {}
    std::unique_ptr<ComponenteFiscale> creaComponente() override {
        return std::make_unique<ComponenteFinto>(*this);
    }
    std::unique_ptr<ConfiguraFiscale> creaConfigura() override {
        return std::make_unique<ConfiguraFinta>(*this);
    }
};

class Emissione : public testing::Test, public DatiFiscali, public FinestraFiscale {
protected:
    Database& Db() override { return *db; }
    Workspace& Ws() override { return ws; }
    std::string PathDB() const override { return pathDB; }
    std::int32_t DataCompetenzaSql() const override { return 20260315; }
    std::unique_ptr<Mostrata> mostra() override {
        struct Finestra : Mostrata {
            explicit Finestra(Diario& d) : diario(d) { diario.emplace_back("frmFiscale"); }
            ~Finestra() override { diario.emplace_back("frmFiscale chiusa"); }
            Diario& diario;
        };
        return std::make_unique<Finestra>(diario);
    }
    void scontrino(int id, const char* sigla, int numero, const char* data = "20260315", int stornato = 0) {
        archivio.esegui(
            "INSERT INTO ScontriniEmessi (ID_Scontrino, Sigla, Numero, DataCompetenza, Stornato) VALUES (" +
            std::to_string(id) + ", '" + sigla + "', " + std::to_string(numero) + ", " + data + ", " +
            std::to_string(stornato) + ")");
    }
    /// What the operator was shown for an order, and the identifiers that were issued.
    Diario emette(const char* sigla, const char* numero) {
        diario.clear();
        emissione.EmettiFiscale(sigla, numero);
        Diario resto;
        for (const std::string& riga : diario)
            if (riga.starts_with("Emetti") || riga.starts_with("messaggio") || riga.starts_with("avviso"))
                resto.push_back(riga);
        return resto;
    }
    std::string logDiOggi() {
        return leggiFile(cartella.percorso() / "loglumigrafo_15032026_20.txt").value_or("");
    }

    CartellaTemporanea cartella;
    ArchivioProva archivio{cartella.percorso() / "archivio.mdb"};
    Diario diario;
    Workspace ws;
    std::unique_ptr<Database> db = ws.OpenDatabase((cartella.percorso() / "archivio.mdb").string());
    std::string pathDB = cartella.percorso().string();
    OrologioFinto orologio;
    RegistroLog log{cartella.percorso(), orologio};
    PompaFinta pompa{&diario};
    MessaggiFinti messaggi{&diario};
    AvvisiFinti avvisi{&diario};
    UscitaFinta uscita;
    SistemaFinto sistema;
    FabbricaFinta fabbrica{diario};
    EmissioneFiscale emissione{{cartella.percorso().string(), *this, log, pompa, messaggi, orologio, avvisi,
                                uscita, sistema, *this, fabbrica}};
};

TEST_F(Emissione, TheWholeSequenceWithTwoFailures) {
    scontrino(7, "A", 12);
    scontrino(9, "A", 12);              // the newer one
    scontrino(11, "A", 12, "20260314"); // another day's
    fabbrica.esiti = {false, false, true};
    pompa.alPunto("EmettiFiscale/2", [&] { diario.push_back("log: " + logDiOggi()); });
    emissione.EmettiFiscale("A", "12");
    const std::string domanda = "avviso Vuoi riprovare ?";
    EXPECT_THAT(diario,
                ElementsAre("frmFiscale", "cedi EmettiFiscale/2",
                            "log: 20:30:00  Stampo fiscale per comanda A 12\n", "crea", "Locale",
                            "CartellaProgramma", "Workspace", "Database", "CartellaDati", "Prepara", "Stampa",
                            "Emetti 9 '' 1", domanda, "Emetti 9 '' 1", domanda, "Emetti 9 '' 1", "rilascia",
                            "cedi EmettiFiscale/5", "frmFiscale chiusa"));
    EXPECT_EQ(avvisi.mostrati.at(0).titolo, "ERRORE STAMPA FISCALE");
    EXPECT_EQ(avvisi.mostrati.at(0).bottoni, Bottoni::SiNo);
    EXPECT_EQ(avvisi.mostrati.at(0).icona, Icona::Domanda);
    EXPECT_EQ(logDiOggi(), "20:30:00  Stampo fiscale per comanda A 12\n20:30:00  Fine stampo fiscale\n");
}

TEST_F(Emissione, WhatIsNotIssued) {
    scontrino(0, "B", 1);
    scontrino(3, "B", 2);
    scontrino(4, "B", 2, "20260315", -1); // the newest is cancelled
    EXPECT_THAT(emette("B", "1"), IsEmpty());
    EXPECT_THAT(emette("B", "2"), ElementsAre("messaggio Scontrino stornato !"));
    EXPECT_THAT(emette("B", "77"), ElementsAre("messaggio Scontrino B77 non trovato"));
    EXPECT_EQ(messaggi.mostrati.back().second, 2);
    EXPECT_THAT(logDiOggi(),
                testing::EndsWith("Non trovato id_scontrino per B 77\n20:30:00  Fine stampo fiscale\n"));

    scontrino(5, "B", 3);
    fabbrica.esiti = {false};
    avvisi.risposte = {Risposta::No};
    EXPECT_THAT(emette("B", "3"), ElementsAre("Emetti 5 '' 1", "avviso Vuoi riprovare ?"));
    EXPECT_EQ(diario.back(), "frmFiscale chiusa");
}

TEST_F(Emissione, TheComponentsOwnWindows) {
    emissione.UtilitaFiscali();
    EXPECT_THAT(diario, ElementsAre("crea", "CartellaProgramma", "Workspace", "Database", "CartellaDati",
                                    "MostraUtilita", "rilascia"));
    diario.clear();
    emissione.ImpostazioniFiscali();
    EXPECT_THAT(diario, ElementsAre("avviso Attenzione, usare solo stampanti Custom", "crea",
                                    "CartellaProgramma", "Workspace", "Database", "CartellaDati",
                                    "Opzione True", "Mostra modale", "rilascia"));
    EXPECT_EQ(avvisi.mostrati.back().icona, Icona::Informazione);
}

} // namespace
} // namespace lumigrafo::prova
