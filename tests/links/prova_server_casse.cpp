#include "links/server_casse.h"
#include "platform/finti/ascolto_finto.h"
#include "platform/finti/finti.h"

#include <algorithm>
#include <deque>
#include <gmock/gmock.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A queue that gives what the test put in, and lets something happen in the middle.
struct CodaFinta : CodaCasse {
    std::deque<std::string> numeri;
    std::function<void()> durante;
    std::vector<std::string> chiesti; ///< letters
    bool occupato = false;

    [[nodiscard]] bool Occupato() const override { return occupato; }
    std::string ProssimoNumero(const std::string& Cassa) override {
        chiesti.push_back(Cassa);
        occupato = true;
        if (const auto d = std::exchange(durante, nullptr))
            d();
        occupato = false;
        if (numeri.empty())
            return {};
        std::string numero = numeri.front();
        numeri.pop_front();
        return numero;
    }
};

class Server : public testing::Test {
protected:
    ReteTcpFinta rete;
    CodaFinta coda;
    OrologioFinto orologio;
    AvvisiFinti avvisi;
    SistemaFinto sistema;
    std::vector<std::string> log;
    std::string logRotto; ///< lines that begin so can't be written
    ServerCasseTcp server{rete, coda, orologio, avvisi, sistema, [this](const std::string& riga) {
                              if (!logRotto.empty() && riga.starts_with(logRotto))
                                  throw Guasto(guasti::kAccesso);
                              log.push_back(riga);
                          }};

    void SetUp() override { server.Apri(); }
    ReteTcpFinta::Presa& posto(std::size_t n) { return *rete.prese.at(n); }
    std::string risposta(std::size_t n, const std::string& dati) {
        posto(n).arriva(dati);
        return posto(n).inviati.empty() ? "(nothing)" : posto(n).inviati.back();
    }
};

TEST_F(Server, opensItsPort) {
    EXPECT_EQ(posto(0).LocalPort(), 2222);
    EXPECT_EQ(posto(0).State(), StatoPresa::InAscolto);
    EXPECT_EQ(rete.prese.size(), 11u);
    EXPECT_THAT(avvisi.mostrati, IsEmpty());
}

TEST_F(Server, anExchangeAndItsLog) {
    coda.numeri = {"17"};
    rete.chiede(815, "192.168.1.31");
    EXPECT_EQ(risposta(1, "B"), "NUMERO 17");
    EXPECT_EQ(risposta(1, "E"), "KO");
    posto(1).eventi.Close();
    EXPECT_THAT(coda.chiesti, ElementsAre("B", "E"));
    EXPECT_THAT(log, ElementsAre("***********   RICHIESTA 815", "Cassa IP: 192.168.1.31",
                                 "Connected sock. n. 1 192.168.1.31 at 20:30:00", "Received: B",
                                 "Received: E", "Closed socket n. 1 at 20:30:00"));
}

TEST_F(Server, whatIsNoLetterComesBackAsItCame) {
    rete.chiede(1);
    using namespace std::string_literals;
    for (const std::string& dati :
         {"a"s, "AB"s, "F"s, "A\r\n"s, " A"s, "\xC3\xA8"s, "\xFF\0\xFE"s, std::string(100'000, 'A')}) {
        EXPECT_EQ(risposta(1, dati), "Codice Cassa errato: " + dati);
        EXPECT_EQ(log.back(), "Received: " + dati);
    }
    const auto prima = posto(1).inviati.size();
    posto(1).arriva("");
    EXPECT_EQ(log.back(), "Received: ");
    EXPECT_EQ(posto(1).inviati.size(), prima);
    EXPECT_THAT(coda.chiesti, IsEmpty());
}

TEST_F(Server, theLowestFreeSlotIsTakenAndAnEleventhDeskGetsNothing) {
    for (int n = 1; n <= 10; ++n)
        rete.chiede(n, "10.0.0." + std::to_string(n));
    log.clear();
    rete.chiede(11, "10.0.0.11");
    EXPECT_THAT(log, ElementsAre("***********   RICHIESTA 11", "Cassa IP: 10.0.0.11"));
    EXPECT_EQ(sistema.bips, 0);
    for (const std::size_t n : {7u, 3u})
        posto(n).eventi.Close();
    rete.chiede(12, "10.0.0.12");
    EXPECT_EQ(posto(3).RemoteHostIP(), "10.0.0.12");
    EXPECT_EQ(posto(7).State(), StatoPresa::Chiusa);
}

TEST_F(Server, aFailedRequestIsLoggedAndBeeped) {
    rete.guastoAccept = true;
    rete.chiede(1);
    EXPECT_EQ(log.back(), "Error in ConnectionRequest");
    EXPECT_EQ(sistema.bips, 1);
    rete.guastoAccept = false;
    logRotto = "Cassa IP";
    rete.chiede(2);
    EXPECT_EQ(sistema.bips, 2);
    logRotto.clear();
    rete.chiede(3); // nothing is left of the failures
    EXPECT_EQ(posto(1).State(), StatoPresa::Connessa);
}

TEST_F(Server, aDeskThatIsGoneWhenItIsAnsweredIsNoFailure) {
    coda.numeri = {"1", "2", "3", "4"};
    const auto siPerde = [this] { posto(1).rotta = true; };
    const auto chiude = [this] { posto(1).eventi.Close(); };
    const auto chiudeEAltraArriva = [&] {
        chiude();
        rete.chiede(3);
    };
    for (const std::function<void()>& durante :
         {std::function<void()>(siPerde), {chiude}, {chiudeEAltraArriva}}) {
        rete.chiede(2);
        coda.durante = durante;
        EXPECT_NO_THROW(posto(1).arriva("A"));
        EXPECT_EQ(std::count(log.begin(), log.end(), "Closed socket n. 1 at 20:30:00"), coda.chiesti.size());
        EXPECT_THAT(posto(1).inviati, IsEmpty()) << "another desk got the answer";
    }
    EXPECT_EQ(risposta(1, "B"), "NUMERO 4") << "the one that has the slot now";
}

} // namespace
} // namespace lumigrafo::prova
