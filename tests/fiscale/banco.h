#pragma once

#include "fiscale/componente.h"
#include "fiscale/impostazioni.h"
#include "fiscale/registro.h"
#include "platform/file.h"
#include "platform/finti/finti.h"
#include "platform/linux/esecutore.h"
#include "platform/linux/trasporti.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <functional>
#include <memory>
#include <string>

namespace lumigrafo::prova {

/// The component on a real archive, with real transports and programs; boxes and windows are faked.
class BancoFiscale : public FinestreComponente {
public:
    CartellaTemporanea cartella;
    ArchivioProva archivio{cartella.percorso() / "archivio.mdb"};
    Workspace ws;
    std::unique_ptr<Database> db = ws.OpenDatabase((cartella.percorso() / "archivio.mdb").string());
    OrologioFinto orologio;
    AvvisiFinti avvisi;
    TrasportiLinux trasporti;
    EsecutoreLinux esecutore;
    PorteComponente porte{orologio, avvisi, trasporti, esecutore, *this};
    FabbricaComponente fabbrica{porte};
    ImpostazioniFiscali impostazioni;
    /// What the operator does in a window.
    std::function<void(UtilitaFiscale&)> nelleUtilita;
    std::function<void(ConfigurazioneFiscale&)> nelleImpostazioni;

    void mostra(UtilitaFiscale& u) override { nelleUtilita(u); }
    void mostra(ConfigurazioneFiscale& c) override { nelleImpostazioni(c); }

    /// Receipt 7 of order A 12: two dishes, 16,00 and 3,50. Printed by that driver.
    explicit BancoFiscale(TipoDriver driver = TipoDriver::File, const std::string& indirizzo = "") {
        impostazioni.driver = driver;
        impostazioni.indirizzo() = indirizzo;
        impostazioni.limite = 3;
        archivio.esegui(
            "INSERT INTO ScontriniEmessi (ID_Scontrino, Sigla, Numero, DataCompetenza, Totale) VALUES "
            "(7, 'A', 12, 20260315, 19.5);"
            "INSERT INTO Dettaglio (Sigla, Numero, DataCompetenza, Descrizione, Quantita, Prezzo, Totale) VALUES "
            "('A', 12, 20260315, 'Lasagne al ragù', 2, 8, 16), ('A', 12, 20260315, 'Caffè', 1, 3.5, 3.5),"
            "('B', 12, 20260315, 'Altro', 1, 1, 1), ('A', 12, 20260314, 'Ieri', 1, 1, 1)");
    }
    std::unique_ptr<ComponenteFiscale> componente() {
        static_cast<void>(scriviImpostazioniFiscali(cartella.percorso(), impostazioni));
        auto c = fabbrica.creaComponente();
        c->CartellaProgramma(cartella.percorso().string());
        c->Workspace(ws);
        c->Database(*db);
        c->CartellaDati(cartella.percorso().string());
        c->Stampa(true);
        return c;
    }
    /// Shows the settings' window: `nelleImpostazioni` says what happens in it.
    void configura() {
        const auto c = fabbrica.creaConfigura();
        c->CartellaProgramma(cartella.percorso().string());
        c->Opzione("True");
        c->Mostra(true);
    }
    bool emetti(int id) {
        bool esito = true;
        componente()->EmettiScontrino(id, "", 1, esito);
        return esito;
    }
    std::vector<VoceRegistro> registro() { return RegistroScontrini(cartella.percorso(), orologio).voci(); }
    /// The text of the last box; empty without one.
    std::string avviso() { return avvisi.mostrati.empty() ? "" : avvisi.mostrati.back().testo; }
    std::string file(const std::string& nome) {
        return leggiFile(cartella.percorso() / "Scontrini" / nome).value_or("");
    }
    /// A program of the shell in the program folder.
    std::string programma(const std::string& nome, const std::string& corpo) {
        const auto dove = cartella.percorso() / nome;
        static_cast<void>(sostituisciFile(dove, "#!/bin/sh\n" + corpo + "\n"));
        std::filesystem::permissions(dove, std::filesystem::perms::owner_all);
        return dove.string();
    }
};

} // namespace lumigrafo::prova
