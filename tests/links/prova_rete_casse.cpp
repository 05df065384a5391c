#include "links/server_casse.h"
#include "platform/finti/finti.h"
#include "platform/qt/ascolto_tcp_qt.h"
#include "tests/sostegno/cliente_nudo.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <unistd.h>
#include <vector>

namespace lumigrafo::prova {
namespace {

/// Numbers without end.
struct Contatore : CodaCasse {
    int dati = 0;
    std::function<void()> durante, sempre;
    [[nodiscard]] bool Occupato() const override { return occupato; }
    std::string ProssimoNumero(const std::string&) override {
        occupato = true;
        if (sempre)
            sempre();
        if (const auto d = std::exchange(durante, nullptr))
            d();
        occupato = false;
        return std::to_string(++dati);
    }
    bool occupato = false;
};

/// The server on real sockets, on this machine alone.
class ReteCasse : public testing::Test {
protected:
    ReteTcpQt rete{QHostAddress(QHostAddress::LocalHost)};
    Contatore coda;
    OrologioFinto orologio;
    AvvisiFinti avvisi;
    SistemaFinto sistema;
    std::vector<std::string> log;
    std::unique_ptr<ServerCasseTcp> server = std::make_unique<ServerCasseTcp>(
        rete, coda, orologio, avvisi, sistema,
        [this](const std::string& riga) { log.push_back(riga.substr(0, 60)); }, 0);

    void SetUp() override { server->Apri(); }

    static bool finche(const std::function<bool()>& vero, int ms = 10000) {
        QElapsedTimer orologioVero;
        orologioVero.start();
        bool fatto = vero();
        for (; !fatto && orologioVero.elapsed() < ms; fatto = vero())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
        return fatto;
    }
    std::unique_ptr<ClienteNudo> cassa() { return std::make_unique<ClienteNudo>(server->porta()); }
    /// Sends and waits for so many bytes.
    std::string chiedi(ClienteNudo& c, const std::string& dati, std::size_t byte) {
        c.manda(dati);
        return aspetta(c, byte);
    }
    static std::string aspetta(ClienteNudo& c, std::size_t byte) {
        std::string avuto;
        (void)finche([&] { return (avuto += c.ricevi()).size() >= byte; });
        return avuto;
    }
    [[nodiscard]] long quante(const std::string& inizio) const {
        return std::count_if(log.begin(), log.end(),
                             [&](const auto& riga) { return riga.starts_with(inizio); });
    }
    static long memoriaKiB() {
        long pagine = 0, residenti = 0;
        std::ifstream("/proc/self/statm") >> pagine >> residenti;
        return residenti * (::sysconf(_SC_PAGESIZE) / 1024);
    }
};

TEST_F(ReteCasse, answersAgainAndAgainUntilTheDeskCloses) {
    auto a = cassa();
    EXPECT_EQ(chiedi(*a, "A", 8), "NUMERO 1");
    EXPECT_EQ(chiedi(*a, "a\xFF", 23), "Codice Cassa errato: a\xFF");
    EXPECT_EQ(chiedi(*a, "B", 8), "NUMERO 2");
    EXPECT_NE(std::find(log.begin(), log.end(), "Connected sock. n. 1 127.0.0.1 at 20:30:00"), log.end());
    a.reset();
    EXPECT_TRUE(finche([&] { return log.back() == "Closed socket n. 1 at 20:30:00"; }));

    // One that says at once that it has nothing more to say gets its answer all the same.
    auto b = cassa();
    b->manda("C");
    b->finitoDiMandare();
    EXPECT_EQ(aspetta(*b, 8), "NUMERO 3");
    EXPECT_TRUE(finche([&] { return quante("Closed") == 2; }));
}

TEST_F(ReteCasse, aDeskThatIsResetIsNoFailure) {
    auto a = cassa();
    ASSERT_TRUE(finche([&] { return quante("Connected") == 1; }));
    coda.durante = [&] { a->tronca(); }; // no event tells: the answer finds it
    a->manda("A");
    EXPECT_TRUE(finche([&] { return quante("Closed socket n. 1") == 1; }));

    auto b = cassa();
    coda.durante = [&] {
        b->tronca();
        EXPECT_TRUE(finche([&] { return quante("Closed socket n. 1") == 2; }));
    };
    b->manda("B");
    EXPECT_TRUE(finche([&] { return coda.dati == 2; }));
    EXPECT_EQ(chiedi(*cassa(), "A", 8), "NUMERO 3");
}

TEST_F(ReteCasse, aDeskMayAskAgainInTheMiddleOfItsRequest) {
    auto a = cassa();
    coda.durante = [&] {
        a->manda("A");
        EXPECT_EQ(aspetta(*a, 9), "RIPROVARE");
    };
    EXPECT_EQ(chiedi(*a, "A", 8), "NUMERO 1");
}

TEST_F(ReteCasse, theWindowsAreServedBetweenDesksThatAskAtOnce) {
    std::vector<std::unique_ptr<ClienteNudo>> dieci;
    for (int i = 0; i < 10; ++i)
        dieci.push_back(cassa());
    ASSERT_TRUE(finche([&] { return quante("Connected") == 10; }));
    int turni = 0;
    std::vector<int> quando;
    QTimer finestre;
    QObject::connect(&finestre, &QTimer::timeout, [&] { ++turni; });
    finestre.start(0);
    coda.sempre = [&] { quando.push_back(turni); };
    for (const auto& c : dieci) {
        c->manda("A");
        c->finitoDiMandare(); // and yet is answered, in its turn
    }
    for (const auto& c : dieci)
        EXPECT_TRUE(aspetta(*c, 8).starts_with("NUMERO "));
    EXPECT_EQ(std::adjacent_find(quando.begin(), quando.end()), quando.end()) << "two in one turn";
}

TEST_F(ReteCasse, aPortThatIsTakenIsToldAndOneThatIsGivenFreeIsNot) {
    ServerCasseTcp altro(
        rete, coda, orologio, avvisi, sistema, [](const std::string&) {}, server->porta());
    altro.Apri();
    ASSERT_EQ(avvisi.mostrati.size(), 1u);
    EXPECT_EQ(avvisi.mostrati[0].testo,
              "Errore apertura winsock 10048 Controllare porta " + std::to_string(server->porta()));
    EXPECT_EQ(avvisi.mostrati[0].bottoni, Bottoni::Ok);

    const auto c = cassa();
    c->manda("A");
    EXPECT_EQ(aspetta(*c, 8), "NUMERO 1");
    server->Chiudi(); // while the desk still holds its connection
    altro.Apri();
    EXPECT_EQ(avvisi.mostrati.size(), 1u);
}

TEST_F(ReteCasse, hundredsOfParkedDesksGetNothingAndANewOneGetsTheSlotThatIsFreed) {
    std::vector<std::unique_ptr<ClienteNudo>> dieci, molte;
    for (int i = 0; i < 10; ++i)
        dieci.push_back(cassa());
    ASSERT_TRUE(finche([&] { return quante("Connected") == 10; }));
    for (int i = 0; i < 300; ++i) { // beyond what the system holds, too: their connection stays under way
        molte.push_back(cassa());
        molte.back()->manda("A");
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(chiedi(*dieci[9], "A", 8), "NUMERO 1") << "the others are in the way";
    EXPECT_EQ(quante("***********   RICHIESTA"), 10 + ReteTcpQt::kInSospeso);
    for (const auto& m : molte)
        EXPECT_EQ(m->ricevi(), "");
    molte.clear();
    dieci[4].reset();
    // Those that the system held come first, gone or not; a desk that gets nothing meanwhile asks anew.
    EXPECT_TRUE(finche([&] {
        const auto nuova = cassa();
        nuova->manda("B");
        std::string avuto;
        return finche([&] { return (avuto += nuova->ricevi()).starts_with("NUMERO "); }, 200);
    }));
}

TEST_F(ReteCasse, garbageAndADeskThatNeverReadsCostBoundedMemory) {
    const std::string rifiuti(1 << 20, 'x');
    auto legge = cassa();
    std::size_t avuto = 0;
    std::size_t mandato = 0;
    ASSERT_TRUE(finche([&] {
        mandato += legge->manda(std::string_view(rifiuti).substr(mandato));
        avuto += legge->ricevi().size();
        return mandato == rifiuti.size() && avuto >= rifiuti.size();
    })) << mandato
        << " sent, " << avuto << " received";

    const long prima = memoriaKiB();
    auto muta = cassa(), altra = cassa();
    std::size_t preso = 0;
    QElapsedTimer fermo;
    for (fermo.start(); fermo.elapsed() < 300;) { // until nothing has been taken for a while
        if (const std::size_t n = muta->manda(rifiuti); n > 0) {
            preso += n;
            fermo.restart();
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        ASSERT_LT(preso, 64u << 20) << "it takes without end";
    }
    EXPECT_LT(memoriaKiB() - prima, 4096);
    EXPECT_EQ(chiedi(*altra, "E", 8), "NUMERO 1");
    muta->tronca();
    EXPECT_TRUE(finche([&] { return quante("Closed socket n. 2") == 1; }));
}

} // namespace
} // namespace lumigrafo::prova
