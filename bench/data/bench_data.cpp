// What the archive costs, beside the same statements on the bare engine.
#include "data/cls_recordset.h"
#include "data/istruzioni.h"
#include "data/motore.h"
#include "data/schema.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <vector>

using namespace lumigrafo;

namespace {

/// An archive with that many orders in the queue, gone with the object.
class Archivio {
public:
    explicit Archivio(int ordini, Formato formato = Formato::Sqlite) {
        std::filesystem::remove_all(cartella);
        std::filesystem::create_directory(cartella);
        std::filesystem::copy_file(pronto(ordini, formato), file());
    }
    ~Archivio() { std::filesystem::remove_all(cartella); }
    [[nodiscard]] std::string file() const { return (cartella / kFileArchivio).string(); }
    std::filesystem::path cartella = std::filesystem::temp_directory_path() / "bench-lumigrafo-data";

private:
    /// Such an archive, filled when it is first wanted: each benchmark is set up several times.
    static std::filesystem::path pronto(int ordini, Formato formato) {
        static const struct Fatti {
            Fatti() {
                std::filesystem::remove_all(cartella);
                std::filesystem::create_directory(cartella);
            }
            ~Fatti() { std::filesystem::remove_all(cartella); }
            std::filesystem::path cartella =
                std::filesystem::temp_directory_path() / "bench-lumigrafo-data-pronti";
        } fatti;
        auto file = fatti.cartella / (std::to_string(ordini) + (formato == Formato::Access ? 'a' : 's'));
        if (std::filesystem::exists(file))
            return file;
        creaArchivio(file, formato);
        Workspace ws;
        const auto db = ws.OpenDatabase(file.string());
        ws.BeginTrans();
        for (int i = 1; i <= ordini; ++i)
            db->Execute(
                "INSERT INTO Lumigrafo (Sigla, Numero, Categoria1, Categoria3, Pezzi1, Pezzi2, Pezzi3, Pezzi4, "
                "Pezzi5, Pezzi6, Pezzi7, Pezzi8, Pezzi9, Pezzi10) VALUES ('" +
                std::string(1, static_cast<char>('A' + i * 7 % 5)) + "'," + std::to_string(i) + ",-1,-1," +
                std::to_string(i % 9 + 1) + ",0,2,0,0,0,0,0,0,0)");
        ws.CommitTrans();
        return file;
    }
};

class OrologioFermo : public Orologio {
public:
    [[nodiscard]] DataOra adesso() const override { return {}; }
    void attendi(std::chrono::milliseconds) override {}
};
class NessunAvviso : public Avvisi {
public:
    Risposta chiedi(const Avviso& avviso) override { throw std::runtime_error(avviso.testo); }
};
class NessunaUscita : public Uscita {
public:
    [[noreturn]] void termina(int) override { throw std::runtime_error("fine"); }
};
class NessunSistema : public Sistema {
public:
    bool istanzaPrecedente() override { return false; }
    bool eco(const std::string&) override { return false; }
    std::string NomeUtente() override { return {}; }
    void bip() override {}
};

/// The program's side: the archive through clsRecordset.
struct Programma {
    explicit Programma(const Archivio& a)
        : db(ws.OpenDatabase(a.file())), contesto{*db,    a.cartella.string(), orologio, avvisi, uscita,
                                                  sistema} {}
    Workspace ws;
    std::unique_ptr<Database> db;
    OrologioFermo orologio;
    NessunAvviso avvisi;
    NessunaUscita uscita;
    NessunSistema sistema;
    ContestoDati contesto;
};

/// The floor: SQLite alone, with the same settings.
class Nudo {
public:
    explicit Nudo(const Archivio& a) {
        sqlite3_open_v2(a.file().c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
        esegui("PRAGMA journal_mode=TRUNCATE");
    }
    ~Nudo() {
        for (sqlite3_stmt* s : pronte_)
            sqlite3_finalize(s);
        sqlite3_close(db_);
    }
    void esegui(const char* sql) { sqlite3_exec(db_, sql, nullptr, nullptr, nullptr); }
    sqlite3_stmt* prepara(const char* sql) {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v3(db_, sql, -1, SQLITE_PREPARE_PERSISTENT, &s, nullptr);
        return pronte_.emplace_back(s);
    }

private:
    sqlite3* db_ = nullptr;
    std::vector<sqlite3_stmt*> pronte_;
};

void leggiNudo(benchmark::State& stato) {
    const Archivio archivio(static_cast<int>(stato.range(0)));
    Nudo nudo(archivio);
    sqlite3_stmt* s = nudo.prepara(istruzioni::kLumigrafo);
    const int n = sqlite3_column_count(s);
    for (auto _ : stato) {
        std::int64_t somma = 0;
        while (sqlite3_step(s) == SQLITE_ROW) {
            benchmark::DoNotOptimize(std::string(reinterpret_cast<const char*>(sqlite3_column_text(s, 0))));
            for (int i = 1; i < n; ++i)
                somma += sqlite3_column_int64(s, i);
        }
        sqlite3_reset(s);
        benchmark::DoNotOptimize(somma);
    }
}

template <Formato formato>
void leggiCampi(benchmark::State& stato) {
    const Archivio archivio(static_cast<int>(stato.range(0)), formato);
    Programma p(archivio);
    for (auto _ : stato) {
        std::int64_t somma = 0;
        clsRecordset rs(p.contesto);
        rs.Apri("bench", false, istruzioni::kLumigrafo, false, false);
        auto& campi = rs.ilRecordset().Fields();
        std::vector<const Field*> numeri;
        for (std::size_t i = 1; i < campi.Count(); ++i)
            numeri.push_back(&campi.Item(i));
        const Field& sigla = campi.Item("Sigla");
        for (; rs.Errore() != 10; rs.LeggiNext("bench")) {
            benchmark::DoNotOptimize(sigla.Value().aTesto());
            for (const Field* f : numeri)
                somma += f->Value().aIntero32();
        }
        rs.Chiudi();
        benchmark::DoNotOptimize(somma);
    }
}

/// As above, with each field looked up by its name at each row.
void leggiPerNome(benchmark::State& stato) {
    const Archivio archivio(static_cast<int>(stato.range(0)));
    Programma p(archivio);
    std::vector<std::string> nomi;
    for (const char* serie : {"Categoria", "Pezzi"})
        for (int i = 1; i <= 10; ++i)
            nomi.push_back(serie + std::to_string(i));
    for (auto _ : stato) {
        std::int64_t somma = 0;
        clsRecordset rs(p.contesto);
        rs.Apri("bench", false, istruzioni::kLumigrafo, false, false);
        for (; rs.Errore() != 10; rs.LeggiNext("bench")) {
            auto& campi = rs.ilRecordset().Fields();
            benchmark::DoNotOptimize(campi["Sigla"].Value().aTesto());
            somma += campi["Numero"].Value().aIntero32() + campi["Evidenzia"].Value().aIntero32();
            for (const auto& nome : nomi)
                somma += campi[nome].Value().aIntero32();
        }
        rs.Chiudi();
        benchmark::DoNotOptimize(somma);
    }
}

void depennaNudo(benchmark::State& stato) {
    const Archivio archivio(static_cast<int>(stato.range(0)));
    Nudo nudo(archivio);
    sqlite3_stmt* trova = nudo.prepara("SELECT rowid, * FROM Lumigrafo WHERE Sigla = ?1 AND Numero = ?2");
    sqlite3_stmt* scrivi = nudo.prepara("UPDATE Lumigrafo SET Categoria1 = 0, Pezzi1 = ?2 WHERE rowid = ?1");
    int pezzi = 0;
    for (auto _ : stato) {
        nudo.esegui("BEGIN IMMEDIATE");
        sqlite3_bind_text(trova, 1, "C", 1, SQLITE_STATIC);
        sqlite3_bind_int(trova, 2, 101);
        sqlite3_step(trova);
        const auto riga = sqlite3_column_int64(trova, 0);
        sqlite3_reset(trova);
        sqlite3_bind_int64(scrivi, 1, riga);
        sqlite3_bind_int(scrivi, 2, ++pezzi % 100);
        sqlite3_step(scrivi);
        sqlite3_reset(scrivi);
        nudo.esegui("COMMIT");
    }
}

template <Formato formato>
void depenna(benchmark::State& stato) {
    const Archivio archivio(static_cast<int>(stato.range(0)), formato);
    Programma p(archivio);
    clsRecordset rs(p.contesto);
    rs.Apri("bench", false, istruzioni::kLumigrafo, false, false);
    int pezzi = 0;
    for (auto _ : stato) {
        if (!rs.Start("bench", "Sigla", "=", "'C'", "Numero", "=", "101"))
            stato.SkipWithError("order not found");
        Recordset& r = rs.ilRecordset();
        r.Edit();
        r.Fields()["Categoria1"].Value(false);
        r.Fields()["Pezzi1"].Value(++pezzi % 100);
        r.Update();
    }
}

/// Another reader of such files, a process that prints the same table.
void leggiMdbExport(benchmark::State& stato) {
    const Archivio archivio(static_cast<int>(stato.range(0)), Formato::Access);
    const std::string comando = "mdb-export " + archivio.file() + " Lumigrafo >/dev/null";
    for (auto _ : stato)
        if (std::system(comando.c_str()) != 0)
            stato.SkipWithError("mdb-export failed");
}

/// One row found by its index, of ever larger tables.
void cercaAccess(benchmark::State& stato) {
    const Archivio archivio(static_cast<int>(stato.range(0)), Formato::Access);
    const auto motore = apriMotore(archivio.file(), std::chrono::seconds(1));
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(motore->connessione(),
                       "SELECT Pezzi1 FROM Lumigrafo WHERE Sigla = 'C' AND Numero = 101", -1, &s, nullptr);
    for (auto _ : stato) {
        if (sqlite3_step(s) != SQLITE_ROW)
            stato.SkipWithError("order not found");
        sqlite3_reset(s);
    }
    sqlite3_finalize(s);
}

} // namespace

BENCHMARK(leggiNudo)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(leggiCampi<Formato::Sqlite>)
    ->Name("leggiCampi")
    ->Arg(500)
    ->Arg(5000)
    ->Arg(50000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(leggiCampi<Formato::Access>)
    ->Name("leggiCampiAccess")
    ->Arg(500)
    ->Arg(5000)
    ->Arg(50000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(leggiMdbExport)->Arg(5000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(cercaAccess)->Arg(500)->Arg(5000)->Arg(50000)->Unit(benchmark::kMicrosecond);
BENCHMARK(leggiPerNome)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(depennaNudo)->Arg(1000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(depenna<Formato::Sqlite>)
    ->Name("depenna")
    ->Arg(500)
    ->Arg(5000)
    ->Arg(50000)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
BENCHMARK(depenna<Formato::Access>)
    ->Name("depennaAccess")
    ->Arg(500)
    ->Arg(5000)
    ->Arg(50000)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();

BENCHMARK_MAIN();
