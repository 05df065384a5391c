#include "strumenti/archivio/programma.h"

#include "data/schema.h"
#include "data/verifica_archivio.h"
#include "platform/guasto.h"
#include "strumenti/archivio/argomenti.h"
#include "strumenti/archivio/codice_scontrino.h"
#include "strumenti/archivio/converti.h"
#include "strumenti/archivio/dimostrativo.h"
#include "strumenti/archivio/mostra.h"

#include <filesystem>
#include <ostream>

namespace lumigrafo::archivio {

namespace {

using strumenti::kChiamataErrata;
using strumenti::kFallito;
using strumenti::kFatto;

constexpr const char* kAiuto = R"(Uso: lumigrafo-archivio COMANDO CARTELLA [OPZIONI]

Gestisce l'archivio degli ordini, il file archivio.mdb della cartella indicata.

Comandi:
  crea CARTELLA      crea un archivio nuovo, con le categorie Bar, Cucina, Griglia e Pizzeria;
                     un archivio che esiste già non viene toccato
    --formato sqlite|access   tipo di archivio (predefinito: sqlite)
    --dimostrativo N          con N ordini inventati di una serata
  ordine CARTELLA    aggiunge un ordine come fa una cassa e ne stampa il codice a barre
    --sigla A                 lettera della cassa (facoltativa)
    --numero N                numero dell'ordine
    --categoria CODICE=PEZZI  categoria da 1 a 10 e pezzi; si può ripetere
    --evidenzia               ordine da evidenziare
  mostra CARTELLA    stampa gli ordini in coda
  verifica CARTELLA  legge tutto l'archivio e dice che cosa non torna
  ripara CARTELLA    rimette a posto un archivio, a programmi chiusi; com'era resta in
                     archivio-prima-della-riparazione.mdb
  converti CARTELLA CARTELLA-NUOVA --formato sqlite|access
                     copia le tabelle in un archivio nuovo dell'altro tipo

  --help             stampa questo testo
  --version          stampa la versione

Codici di uscita: 0 fatto, 1 operazione fallita, 2 chiamata errata.
)";

std::string percorso(const std::string& cartella) {
    return (std::filesystem::path(cartella) / kFileArchivio).string();
}

class Esecutore {
public:
    Esecutore(const Orologio& orologio, std::ostream& out) : orologio_(orologio), out_(out) {}

    int operator()(const Aiuto&) {
        out_ << kAiuto;
        return kFatto;
    }
    int operator()(const Versione&) {
        out_ << "lumigrafo-archivio " << LUMIGRAFO_VERSIONE << '\n';
        return kFatto;
    }
    int operator()(const Crea& c) {
        const std::string file = percorso(c.cartella);
        std::error_code ec;
        std::filesystem::create_directories(c.cartella, ec); // a failure shows itself when the file is made
        creaArchivio(file, c.access ? Formato::Access : Formato::Sqlite);
        riempi(file, c.dimostrativo);
        out_ << "Creato l'archivio " << file << ".\n";
        return kFatto;
    }
    int operator()(const AggiungiOrdine& a) {
        const auto db = ws_.OpenDatabase(percorso(a.cartella));
        ws_.BeginTrans(); // a failure closes the archive and so undoes it
        Cassa(*db, dataCompetenza(orologio_.adesso())).registra(a.ordine);
        ws_.CommitTrans();
        out_ << codiceScontrino(a.ordine.sigla, a.ordine.voci.front().categoria, a.ordine.numero) << '\n';
        return kFatto;
    }
    int operator()(const Mostra& m) {
        mostraCoda(*ws_.OpenDatabase(percorso(m.cartella)), out_);
        return kFatto;
    }
    int operator()(const Verifica& v) {
        const EsitoVerifica esito = verificaArchivio(percorso(v.cartella));
        for (const std::string& nota : esito.note)
            out_ << nota << '\n';
        for (const std::string& discordanza : esito.discordanze)
            out_ << "! " << discordanza << '\n';
        if (!esito.discordanze.empty())
            return kFallito;
        out_ << "L'archivio è in ordine.\n";
        return kFatto;
    }
    int operator()(const Ripara& r) {
        const auto copia = std::filesystem::path(r.cartella) / "archivio-prima-della-riparazione.mdb";
        const auto fatto = riparaArchivio(percorso(r.cartella), copia);
        for (const std::string& riga : fatto)
            out_ << riga << '\n';
        if (fatto.empty())
            out_ << "Non c'era niente da riparare.\n";
        return kFatto;
    }
    int operator()(const Converti& c) {
        converti(percorso(c.da), percorso(c.a), c.access ? Formato::Access : Formato::Sqlite, out_);
        return kFatto;
    }

private:
    void riempi(const std::string& file, int ordini) {
        try {
            const auto db = ws_.OpenDatabase(file);
            ws_.BeginTrans();
            scriviCategorie(*db);
            scriviOrdini(*db, ordini, dataCompetenza(orologio_.adesso()));
            ws_.CommitTrans();
        } catch (const Guasto&) {
            eliminaArchivio(file);
            throw;
        }
    }

    const Orologio& orologio_;
    std::ostream& out_;
    Workspace ws_;
};

std::string spiegazione(const Guasto& guasto, const Comando& comando) {
    const auto* a = std::get_if<AggiungiOrdine>(&comando);
    if (a && guasto.numero() == dao::kDuplicato)
        return "L'ordine " + a->ordine.sigla + (a->ordine.sigla.empty() ? "" : " ") +
               std::to_string(a->ordine.numero) + " è già in coda.";
    return guasto.descrizione();
}

} // namespace

int esegui(const std::vector<std::string>& argomenti, const Orologio& orologio, std::ostream& out,
           std::ostream& err) {
    Comando comando;
    try {
        comando = leggiArgomenti(argomenti);
        return std::visit(Esecutore(orologio, out), comando);
    } catch (const ErroreDiUso& errore) {
        err << errore.what() << "\nPer l'elenco dei comandi: lumigrafo-archivio --help\n";
        return kChiamataErrata;
    } catch (const Guasto& guasto) {
        err << spiegazione(guasto, comando) << '\n';
        return kFallito;
    }
}

} // namespace lumigrafo::archivio
