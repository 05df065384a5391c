// A called number with all that is kept of it, beside the same statements on the bare engine and as many bare
// replacements of a file.
#include "bench/console/nudo.h"
#include "bench/console/serata.h"
#include "data/istruzioni.h"

#include <array>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <stdexcept>
#include <sys/file.h>
#include <unistd.h>

using namespace lumigrafo;
using namespace lumigrafo::misure;

namespace {

constexpr const char* kRiapri = "UPDATE Lumigrafo SET Categoria1 = -1, Pezzi1 = 1";

/// How many keys a call writes: the last called numbers, and the slots of the board.
constexpr int kUltimiScritti = 11;
constexpr int kPostiScritti = 6;

/// Stands on the next called cell: an emptied row goes, so that the next one is always in the first.
bool prossimaCella(Griglia& grid) {
    for (int k = 0; grid.Rows() > 0 && k < grid.Cols(); ++k)
        if (!grid.testo(0, k).empty()) {
            grid.corrente(0, k);
            return true;
        }
    return false;
}

void chiamata(benchmark::State& stato) {
    prova::Banco b;
    prepara(b);
    Console& console = b.caricata();
    Griglia& grid = console.stato().grid[0];
    for (int i = 0; i < kUltimiScritti;
         ++i) // until then the lists have empty places, which aren't written anew
        if (prossimaCella(grid))
            console.clicGriglia(0);
    for (auto _ : stato) {
        if (!prossimaCella(grid)) {
            stato.PauseTiming();
            b.archivio.esegui(kRiapri);
            console.clic("cmdAggiorna", kSenzaIndice);
            prossimaCella(grid);
            stato.ResumeTiming();
        }
        console.clicGriglia(0);
        dimentica(b);
    }
}

void lega(sqlite3_stmt* s, std::initializer_list<std::int64_t> numeri, const std::string& sigla) {
    int p = 0;
    for (const std::int64_t n : numeri)
        sqlite3_bind_int64(s, ++p, n);
    sqlite3_bind_text(s, ++p, sigla.c_str(), -1, SQLITE_TRANSIENT);
}

/// The statements of one call.
class DepennamentoNudo {
public:
    explicit DepennamentoNudo(const std::filesystem::path& archivio) : nudo_(archivio) {}

    void depenna(int numero) {
        const std::string sigla = siglaDi(numero);
        nudo_.scorri(coda_);
        std::int64_t riga = 0;
        lega(trova_, {numero}, sigla);
        nudo_.scorri(trova_, [&](sqlite3_stmt* s) { riga = sqlite3_column_int64(s, 0); });
        nudo_.scorri(inizio_);
        sqlite3_bind_int64(scrivi_, 1, riga);
        nudo_.scorri(scrivi_);
        nudo_.scorri(fine_);
        lega(righe_, {numero, 1}, sigla);
        nudo_.scorri(righe_);
        for (sqlite3_stmt* s : {dettaglio_, scontrino_}) {
            lega(s, {numero, 20260315}, sigla);
            nudo_.scorri(s);
        }
    }
    void riapri() { nudo_.scorri(riapri_); }

private:
    Nudo nudo_;
    sqlite3_stmt* coda_ = nudo_.prepara(istruzioni::kLumigrafo);
    sqlite3_stmt* trova_ = nudo_.prepara("SELECT _rowid_, * FROM Lumigrafo WHERE Numero = ?1 AND Sigla = ?2");
    sqlite3_stmt* inizio_ = nudo_.prepara("BEGIN IMMEDIATE");
    sqlite3_stmt* scrivi_ =
        nudo_.prepara("UPDATE Lumigrafo SET Categoria1 = 0, Pezzi1 = 0 WHERE _rowid_ = ?1");
    sqlite3_stmt* fine_ = nudo_.prepara("COMMIT");
    sqlite3_stmt* righe_ = nudo_.prepara("UPDATE DettaglioLumigrafo SET SERVITO = -1, MinutiServito = 1230 "
                                         "WHERE Numero = ?1 AND CATEGORIA = ?2 AND Sigla = ?3");
    sqlite3_stmt* dettaglio_ = nudo_.prepara("UPDATE Dettaglio SET SERVITO = -1, MinutiServito = 1230 "
                                             "WHERE Numero = ?1 AND DataCompetenza = ?2 AND Sigla = ?3");
    sqlite3_stmt* scontrino_ = nudo_.prepara("UPDATE ScontriniEmessi SET Servito = -1 "
                                             "WHERE Numero = ?1 AND DataCompetenza = ?2 AND Sigla = ?3");
    sqlite3_stmt* riapri_ = nudo_.prepara(kRiapri);
};

void verifica(bool bene) {
    if (!bene)
        throw std::runtime_error("a bare file operation failed");
}

/// One file as a whole, read and replaced with the least that keeps it whole through a crash, under the
/// folder's lock.
class FileNudo {
public:
    FileNudo(const std::filesystem::path& cartella, const char* nome, std::size_t byte)
        : cartella_(cartella), file_(cartella / nome), nuovo_(cartella / (std::string(nome) + ".nuovo")),
          testo_(byte, 'x') {
        sostituisci();
    }
    void leggi() {
        const int f = ::open(file_.c_str(), O_RDONLY | O_CLOEXEC);
        verifica(::read(f, letto_.data(), letto_.size()) >= 0);
        ::close(f);
    }
    void sostituisci() {
        const int blocco = ::open(cartella_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        verifica(::flock(blocco, LOCK_EX) == 0);
        const int f = ::open(nuovo_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        verifica(::write(f, testo_.data(), testo_.size()) == static_cast<ssize_t>(testo_.size()));
        verifica(::fdatasync(f) == 0);
        verifica(::rename(nuovo_.c_str(), file_.c_str()) == 0);
        ::close(f);
        ::close(blocco);
    }

private:
    std::filesystem::path cartella_, file_, nuovo_;
    std::string testo_;
    std::array<char, 16384> letto_{};
};

void chiamataNuda(benchmark::State& stato) {
    prova::Banco b;
    prepara(b);
    DepennamentoNudo archivio(b.cartella.percorso() / kFileArchivio);
    FileNudo ultimi(b.cartella.percorso(), kFileUltimiChiamati, 260);
    FileNudo videata(b.cartella.percorso(), kFileVideata, 110);
    int numero = 0;
    for (auto _ : stato) {
        if (++numero > kOrdini) {
            stato.PauseTiming();
            archivio.riapri();
            numero = 1;
            stato.ResumeTiming();
        }
        for (int i = 0; i < kUltimiScritti; ++i) // the old list
            ultimi.leggi();
        for (int i = 0; i < kUltimiScritti; ++i) {
            ultimi.leggi();
            ultimi.sostituisci();
        }
        for (int i = 0; i < kPostiScritti; ++i) {
            videata.leggi();
            videata.sostituisci();
        }
        archivio.depenna(numero);
    }
}

} // namespace

BENCHMARK(chiamata)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(chiamataNuda)->Unit(benchmark::kMillisecond)->UseRealTime();
