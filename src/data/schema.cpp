#include "data/schema.h"

#include "data/errori_dao.h"
#include "data/schema_access.h"

#include <cstdio>
#include <memory>
#include <sqlite3.h>
#include <string>

namespace lumigrafo {

namespace {

// Texts compare and sort without regard to case. Yes/No columns hold -1 or 0. The letter may be null.
constexpr const char* kTabelle = R"sql(
CREATE TABLE Categorie (
    Codice INTEGER NOT NULL PRIMARY KEY,
    Descrizione TEXT(50) COLLATE NOCASE
);
CREATE TABLE Numero (
    Numero INTEGER
);
CREATE TABLE DettaglioLumigrafo (
    ID INTEGER NOT NULL PRIMARY KEY,
    Sigla TEXT(1) COLLATE NOCASE,
    Numero INTEGER,
    CATEGORIA INTEGER,
    SERVITO YESNO NOT NULL DEFAULT 0,
    MinutiServito INTEGER
);
CREATE INDEX DettaglioLumigrafoOrdine ON DettaglioLumigrafo (Sigla, Numero, CATEGORIA);
CREATE TABLE Dettaglio (
    ID INTEGER NOT NULL PRIMARY KEY,
    Sigla TEXT(1) COLLATE NOCASE,
    Numero INTEGER,
    DataCompetenza INTEGER,
    Descrizione TEXT(50) COLLATE NOCASE,
    Quantita SMALLINT,
    Prezzo CURRENCY,
    Totale CURRENCY,
    SERVITO YESNO NOT NULL DEFAULT 0,
    MinutiServito INTEGER
);
CREATE INDEX DettaglioOrdine ON Dettaglio (Sigla, Numero, DataCompetenza);
CREATE TABLE ScontriniEmessi (
    ID_Scontrino INTEGER NOT NULL PRIMARY KEY,
    Sigla TEXT(1) COLLATE NOCASE,
    Numero INTEGER,
    DataCompetenza INTEGER,
    Totale CURRENCY,
    Servito YESNO NOT NULL DEFAULT 0,
    Stornato YESNO NOT NULL DEFAULT 0
);
CREATE INDEX ScontriniOrdine ON ScontriniEmessi (Sigla, Numero, DataCompetenza);
INSERT INTO Numero (Numero) VALUES (0);
)sql";

std::string tabellaLumigrafo() {
    std::string sql = "CREATE TABLE Lumigrafo (Sigla TEXT(1) COLLATE NOCASE, Numero INTEGER NOT NULL";
    for (int c = 1; c <= 10; ++c)
        sql += ", Categoria" + std::to_string(c) + " YESNO NOT NULL DEFAULT 0";
    for (int c = 1; c <= 10; ++c)
        sql += ", Pezzi" + std::to_string(c) + " SMALLINT DEFAULT 0";
    return sql + ", Evidenzia YESNO NOT NULL DEFAULT 0);"
                 "CREATE UNIQUE INDEX LumigrafoOrdine ON Lumigrafo (Sigla, Numero);";
}

/// Makes the file, empty, if nobody has it yet.
void riservaFile(const std::filesystem::path& file) {
    std::error_code ec;
    if (std::filesystem::exists(file, ec))
        throw erroreDao(dao::kEsisteGia, file.string());
    const auto cartella = file.parent_path();
    if (!cartella.empty() && !std::filesystem::is_directory(cartella, ec))
        throw erroreDao(dao::kPercorso, cartella.string());
    std::FILE* nuovo = std::fopen(file.string().c_str(), "wx"); // fails on a file that came in between
    if (!nuovo)
        throw erroreDao(std::filesystem::exists(file, ec) ? dao::kEsisteGia : dao::kPermesso, file.string());
    std::fclose(nuovo);
}

void riempiSqlite(const std::filesystem::path& file) {
    sqlite3* db = nullptr;
    const int esito = sqlite3_open_v2(file.string().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)> chiude(db, sqlite3_close_v2);
    if (esito != SQLITE_OK)
        throw erroreDao(dao::kPermesso, file.string());
    const std::string sql = "BEGIN IMMEDIATE;" + tabellaLumigrafo() + kTabelle + "COMMIT;";
    if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw erroreSqlite(db, Operazione::Apertura);
}

} // namespace

void creaArchivio(const std::filesystem::path& file, Formato formato) {
    riservaFile(file);
    try {
        formato == Formato::Access ? riempiAccess(file) : riempiSqlite(file);
    } catch (const Guasto&) {
        eliminaArchivio(file);
        throw;
    }
}

void eliminaArchivio(const std::filesystem::path& file) noexcept {
    std::error_code ec;
    std::filesystem::remove(file, ec);
    std::filesystem::remove(std::filesystem::path(file) += "-journal", ec);
    std::filesystem::remove(std::filesystem::path(file).replace_extension(".ldb"), ec);
}

} // namespace lumigrafo
