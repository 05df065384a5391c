#include "tests/sostegno/archivio_prova.h"

#include "data/motore.h"
#include "data/schema.h"
#include "data/verifica_archivio.h"

#include <algorithm>
#include <cstdlib>
#include <sqlite3.h>
#include <stdexcept>

namespace lumigrafo::prova {

namespace {

std::string citata(const std::optional<std::string>& testo) {
    return testo ? "'" + *testo + "'" : "NULL";
}

} // namespace

bool archiviAccess() {
    const char* formato = std::getenv("LUMIGRAFO_PROVE_ARCHIVIO");
    return formato && std::string(formato) == "access";
}

ArchivioProva::ArchivioProva(std::filesystem::path file) : file_(std::move(file)) {
    const bool nuovo = !std::filesystem::exists(file_);
    if (nuovo)
        creaArchivio(file_, archiviAccess() ? Formato::Access : Formato::Sqlite);
    motore_ = apriMotore(file_, std::chrono::seconds(5));
    db_ = motore_->connessione();
    esegui("PRAGMA synchronous = OFF"); // a test's own rows needn't outlive a power cut
    if (nuovo)
        esegui(
            "INSERT INTO Categorie (Codice, Descrizione) VALUES (1, 'Cucina'), (2, 'Bar'), (3, 'Pizzeria')");
}

ArchivioProva::~ArchivioProva() {
    annulla();
}

void ArchivioProva::annulla() {
    motore_->annulla();
}

void ArchivioProva::ordine(const std::optional<std::string>& sigla, int numero,
                           const std::vector<std::pair<int, int>>& categorie, bool evidenzia) {
    esegui("BEGIN IMMEDIATE");
    const std::string chiave = citata(sigla) + ", " + std::to_string(numero);
    std::string colonne = "Sigla, Numero, Evidenzia";
    std::string valori = chiave + ", " + (evidenzia ? "-1" : "0");
    for (int codice = 1; codice <= 10; ++codice) // as cash desks do, so that sums are never null
        if (std::none_of(categorie.begin(), categorie.end(),
                         [&](const auto& c) { return c.first == codice; })) {
            colonne += ", Pezzi" + std::to_string(codice);
            valori += ", 0";
        }
    for (const auto& [codice, pezzi] : categorie) {
        colonne += ", Categoria" + std::to_string(codice) + ", Pezzi" + std::to_string(codice);
        valori += ", -1, " + std::to_string(pezzi);
        const std::string riga = "VALUES (" + chiave + ", ";
        esegui("INSERT INTO DettaglioLumigrafo (Sigla, Numero, CATEGORIA, SERVITO, MinutiServito) " + riga +
               std::to_string(codice) + ", 0, 0)");
        esegui("INSERT INTO Dettaglio (Sigla, Numero, DataCompetenza, SERVITO, MinutiServito) " + riga +
               dataCompetenza + ", 0, 0)");
    }
    esegui("INSERT INTO Lumigrafo (" + colonne + ") VALUES (" + valori + ")");
    esegui("INSERT INTO ScontriniEmessi (Sigla, Numero, DataCompetenza, Servito, Stornato) VALUES (" +
           chiave + ", " + dataCompetenza + ", 0, 0)");
    esegui("COMMIT");
}

void ArchivioProva::esegui(const std::string& sql) {
    char* errore = nullptr;
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &errore) == SQLITE_OK)
        return;
    const std::string testo = sql + ": " + errore;
    sqlite3_free(errore);
    throw std::runtime_error(testo);
}

std::string ArchivioProva::leggi(const std::string& sql) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK)
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(db_));
    std::string tutto;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        if (!tutto.empty())
            tutto += ' ';
        for (int i = 0; i < sqlite3_column_count(stmt); ++i) {
            const auto* testo = reinterpret_cast<const char*>(sqlite3_column_text(stmt, i));
            tutto += (i ? "|" : "") + std::string(testo ? testo : "NULL");
        }
    }
    sqlite3_finalize(stmt);
    return tutto;
}

std::string ArchivioProva::discordanze() const {
    std::string tutte;
    for (const std::string& d : verificaArchivio(file_).discordanze)
        tutte += d + '\n';
    return tutte;
}

std::string codiceScontrino(int quadrante, const std::string& cella) {
    const std::string numero = cella.substr(3);
    return "599" + std::to_string(static_cast<int>(cella[0])) + "0" + std::to_string(quadrante + 1) +
           std::string(5 - numero.size(), '0') + numero + "0";
}

std::string ArchivioProva::coda() {
    return leggi("SELECT coalesce(Sigla, '') || Numero FROM Lumigrafo ORDER BY Sigla, Numero");
}

} // namespace lumigrafo::prova
