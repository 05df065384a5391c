// One request of a cash desk, from its letter to its number, with the board and the archive and without the
// voice, beside the bare delete statement and a bare exchange over the loopback.
#include "bench/console/nudo.h"
#include "console/avanti_prossimo.h"
#include "links/server_casse.h"
#include "platform/qt/ascolto_tcp_qt.h"
#include "tests/console/banco.h"
#include "tests/sostegno/cliente_nudo.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <benchmark/benchmark.h>
#include <future>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <thread>

using namespace lumigrafo;
using namespace lumigrafo::misure;

namespace {

/// A full archive.
constexpr int kNumeri = 5000;

void prepara(prova::Banco& b) {
    b.tipoVero = true;
    b.imposta("TipoLumigrafo", 4);
    b.imposta("Categoria0", 1);
    b.imposta("NumeroMassimoRighe", 1300);
}

void riempi(prova::ArchivioProva& archivio) {
    archivio.esegui("DELETE FROM Lumigrafo");
    archivio.esegui("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                    std::to_string(kNumeri) +
                    ") INSERT INTO Lumigrafo (Sigla, Numero, Categoria1) SELECT '', i, -1 FROM n");
}

struct Muta : Parlante {
    void Parla(const std::string&) override {}
};

/// The station on a thread with an event loop of its own; this one is the desk's.
class Stazione {
public:
    Stazione() {
        prepara(banco_);
        riempi(banco_.archivio);
        std::promise<int> porta;
        filo_.reset(QThread::create([this, &porta] {
            ReteTcpQt rete{QHostAddress(QHostAddress::LocalHost)};
            RegistroLog log(banco_.cartella.percorso(), banco_.orologio);
            Muta muta;
            AvantiProssimo coda(banco_.stato, muta);
            ServerCasseTcp server(
                rete, coda, banco_.orologio, banco_.avvisi, banco_.sistema,
                [&log](const std::string& riga) { log.ScriviLogConnessioni(riga); }, 0);
            banco_.caricata();
            server.Apri();
            QObject qui;
            qui_ = &qui;
            porta.set_value(server.porta());
            QEventLoop().exec();
        }));
        filo_->start();
        porta_ = porta.get_future().get();
    }
    ~Stazione() {
        filo_->quit();
        filo_->wait();
    }
    [[nodiscard]] int porta() const { return porta_; }
    /// All numbers again.
    void ricomincia() {
        QMetaObject::invokeMethod(
            qui_,
            [this] {
                riempi(banco_.archivio);
                banco_.console().clic("cmdAggiorna", kSenzaIndice);
                banco_.diario.clear();
                banco_.pompa.punti.clear();
            },
            Qt::BlockingQueuedConnection);
    }

private:
    prova::Banco banco_;
    std::unique_ptr<QThread> filo_;
    QObject* qui_ = nullptr;
    int porta_ = 0;
};

void verifica(bool bene, const char* cosa) {
    if (!bene)
        throw std::runtime_error(cosa);
}

void richiesta(benchmark::State& stato) {
    Stazione stazione;
    const prova::ClienteNudo cassa(stazione.porta(), true);
    for (auto _ : stato) {
        cassa.manda("A");
        std::string risposta = cassa.ricevi();
        if (risposta == "KO") {
            stato.PauseTiming();
            stazione.ricomincia();
            stato.ResumeTiming();
        } else {
            verifica(risposta.starts_with("NUMERO "), "no number");
        }
    }
}

/// A thread that waits for a letter, deletes the next number and answers: nothing else.
class StazioneNuda {
public:
    StazioneNuda() : presa_(::socket(AF_INET, SOCK_STREAM, 0)) {
        prepara(banco_);
        riempi(banco_.archivio);
        sockaddr_in dove{};
        dove.sin_family = AF_INET;
        dove.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t lungo = sizeof dove;
        verifica(::bind(presa_, reinterpret_cast<sockaddr*>(&dove), sizeof dove) == 0 &&
                     ::listen(presa_, 1) == 0 &&
                     ::getsockname(presa_, reinterpret_cast<sockaddr*>(&dove), &lungo) == 0,
                 "no bare listener");
        porta_ = ntohs(dove.sin_port);
        filo_ = std::thread([this] { servi(); });
    }
    ~StazioneNuda() {
        filo_.join(); // its desk has gone by now
        ::close(presa_);
    }
    [[nodiscard]] int porta() const { return porta_; }

private:
    void servi() {
        Nudo nudo(banco_.cartella.percorso() / kFileArchivio);
        sqlite3_stmt* togli = nudo.prepara("Delete from Lumigrafo Where Numero = ?1");
        const int cassa = ::accept(presa_, nullptr, nullptr);
        int numero = 0;
        for (char lettera; ::recv(cassa, &lettera, 1, 0) == 1;) {
            if (++numero > kNumeri) {
                riempi(banco_.archivio);
                numero = 0;
                (void)::send(cassa, "KO", 2, MSG_NOSIGNAL);
                continue;
            }
            sqlite3_bind_int(togli, 1, numero);
            nudo.scorri(togli);
            const std::string risposta = "NUMERO " + std::to_string(numero);
            (void)::send(cassa, risposta.data(), risposta.size(), MSG_NOSIGNAL);
        }
        ::close(cassa);
    }

    prova::Banco banco_;
    int presa_;
    int porta_ = 0;
    std::thread filo_;
};

void richiestaNuda(benchmark::State& stato) {
    StazioneNuda stazione;
    const prova::ClienteNudo cassa(stazione.porta(), true);
    for (auto _ : stato) {
        cassa.manda("A");
        verifica(!cassa.ricevi().empty(), "no answer");
    }
}

} // namespace

BENCHMARK(richiesta)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(richiestaNuda)->Unit(benchmark::kMicrosecond)->UseRealTime();

int main(int argc, char** argv) {
    QCoreApplication applicazione(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
