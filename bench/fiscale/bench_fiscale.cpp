// What a receipt's preparation costs, from the archive to the printer's bytes, beside the bare reads of the
// same rows.
#include "data/dao.h"
#include "fiscale/escpos.h"
#include "fiscale/lettura.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

using namespace lumigrafo;

namespace {

/// An evening's archive: a thousand orders of eight lines.
struct Serata {
    prova::CartellaTemporanea cartella;
    std::string file = (cartella.percorso() / kFileArchivio).string();
    Serata() {
        prova::ArchivioProva archivio{file};
        archivio.esegui(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
            "INSERT INTO ScontriniEmessi (ID_Scontrino, Sigla, Numero, DataCompetenza, Totale) "
            "SELECT i, 'A', i, 20260315, 64 FROM n;"
            "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 7999) "
            "INSERT INTO Dettaglio (Sigla, Numero, DataCompetenza, Descrizione, Quantita, Prezzo, Totale) "
            "SELECT 'A', i / 8 + 1, 20260315, 'Tagliatelle ai funghi', 2, 4, 8 FROM n");
    }
};

const Serata& serata() {
    static const Serata s;
    return s;
}

void preparazione(benchmark::State& stato) {
    Workspace ws;
    const auto db = ws.OpenDatabase(serata().file);
    const ImpostazioniFiscali impostazioni;
    std::int32_t id = 0;
    for (auto _ : stato) {
        id = id % 1000 + 1;
        const Scontrino s = leggiScontrino(*db, id);
        const DataOra adesso{{2026, 3, 15}, 20, 30, 0};
        benchmark::DoNotOptimize(escpos::scontrino(impagina(s, impostazioni, adesso, false), impostazioni));
    }
}

void lettureNude(benchmark::State& stato) {
    sqlite3* db = nullptr;
    sqlite3_stmt *testata = nullptr, *righe = nullptr;
    if (sqlite3_open_v2(serata().file.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
        sqlite3_prepare_v2(db, "SELECT * FROM ScontriniEmessi WHERE ID_Scontrino = ?", -1, &testata,
                           nullptr) != SQLITE_OK ||
        sqlite3_prepare_v2(
            db, "SELECT * FROM Dettaglio WHERE Numero = ? AND Sigla = 'A' AND DataCompetenza = 20260315", -1,
            &righe, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(db));
    const auto leggi = [](sqlite3_stmt* stmt, int id) {
        sqlite3_bind_int(stmt, 1, id);
        while (sqlite3_step(stmt) == SQLITE_ROW)
            for (int k = 0; k < sqlite3_column_count(stmt); ++k)
                benchmark::DoNotOptimize(sqlite3_column_text(stmt, k));
        sqlite3_reset(stmt);
    };
    int id = 0;
    for (auto _ : stato) {
        id = id % 1000 + 1;
        leggi(testata, id);
        leggi(righe, id);
        leggi(testata, id); // it is looked at again behind the lines
    }
    sqlite3_finalize(testata);
    sqlite3_finalize(righe);
    sqlite3_close(db);
}

BENCHMARK(preparazione);
BENCHMARK(lettureNude);

} // namespace
