#include "platform/ascolto_tcp.h"
#include "strumenti/cassa/programma.h"

#include <deque>
#include <gmock/gmock.h>
#include <sstream>

namespace lumigrafo::cassa {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// A station that answers from a script: each entry is one piece; "" nothing in time, "!" the connection is
/// gone.
struct CollegamentoFinto : Collegamento {
    std::deque<std::string> pezzi;
    int aperture = 0;
    bool assente = false;
    std::string mandato;

    void apri(const std::string& server, std::chrono::milliseconds) override {
        ++aperture;
        if (assente)
            throw Guasto(guasti::kRete, "Nessuna stazione risponde su " + server);
    }
    void manda(const std::string& testo) override { mandato += testo; }
    std::string ricevi(std::chrono::milliseconds) override {
        if (pezzi.empty())
            return {};
        std::string pezzo = pezzi.front();
        pezzi.pop_front();
        if (pezzo == "!")
            throw Guasto(guasti::kConnessioneCaduta, "caduto");
        return pezzo;
    }
};

class Cassa : public testing::Test {
protected:
    CollegamentoFinto stazione;
    std::ostringstream out, err;
    int attese = 0, massimo = 100;

    int esegui(const std::vector<std::string>& parole) {
        return cassa::esegui(
            parole, stazione, [this](std::chrono::milliseconds) { return ++attese <= massimo; }, out, err);
    }
};

TEST_F(Cassa, asksOnceAndPrintsTheAnswer) {
    stazione.pezzi = {"NUM", "ERO 1", "2", ""};
    EXPECT_EQ(esegui({"--sigla", "b"}), 0);
    EXPECT_EQ(out.str(), "NUMERO 12\n");
    EXPECT_EQ(stazione.mandato, "B");
    stazione.pezzi = {"KO", "!"}; // the station ends right behind its answer
    EXPECT_EQ(esegui({"--sigla", "B", "--server", "10.0.0.7"}), 0);
    EXPECT_EQ(out.str(), "NUMERO 12\nKO\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(Cassa, asksABusyStationAgain) {
    stazione.pezzi = {"RIPROVARE", "", "RIPROVARE", "", "NUMERO 5", ""};
    EXPECT_EQ(esegui({"--sigla", "A"}), 0);
    EXPECT_EQ(out.str(), "NUMERO 5\n");
    EXPECT_EQ(attese, 2);
    EXPECT_EQ(stazione.aperture, 1);
    for (int i = 0; i < 100; ++i)
        stazione.pezzi.insert(stazione.pezzi.end(), {"RIPROVARE", ""});
    EXPECT_EQ(esegui({"--sigla", "A"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("sempre occupata"));
    massimo = attese; // broken off
    stazione.mandato.clear();
    EXPECT_EQ(esegui({"--sigla", "A"}), 1);
    EXPECT_EQ(stazione.mandato, "A");
}

TEST_F(Cassa, goesOnThroughARestartOfTheStation) {
    massimo = 3;
    stazione.pezzi = {"NUMERO 1", "", "!", "NUMERO 2", "", "", "KO", ""};
    EXPECT_EQ(esegui({"--sigla", "A", "--ogni", "2"}), 0);
    EXPECT_EQ(out.str(), "NUMERO 1\nNUMERO 2\nKO\n");
    EXPECT_EQ(stazione.mandato, "AAAAA"); // anew over a lost connection, not where the answer was late
    EXPECT_EQ(stazione.aperture, 3);
}

TEST_F(Cassa, saysWhatIsWrong) {
    using Pezzi = std::deque<std::string>;
    for (const auto& [pezzi, testo] : {std::pair(Pezzi{}, "non risponde"), // nothing in time
                                       {Pezzi{"NUMERO "}, "non risponde"},
                                       {Pezzi{"Codice Cassa errato: A"}, "rifiuta la lettera A"}}) {
        err.str("");
        stazione.pezzi = pezzi;
        EXPECT_EQ(esegui({"--sigla", "A"}), 1);
        EXPECT_THAT(err.str(), HasSubstr(testo));
    }
    stazione.assente = true;
    EXPECT_EQ(esegui({"--sigla", "A", "--server", "cucina"}), 1);
    EXPECT_THAT(err.str(), HasSubstr("Nessuna stazione risponde su cucina"));

    const std::pair<std::vector<std::string>, const char*> errate[] = {
        {{}, "Manca la lettera"},
        {{"--sigla"}, "Manca il valore di --sigla"},
        {{"--sigla", "F"}, "dalla A alla E, non 'F'"},
        {{"--sigla", "A", "--ogni", "0"}, "da 1 a 86400, non '0'"},
        {{"--sigla", "A", "--ogni", "86401"}, "da 1 a 86400, non '86401'"},
        {{"--sigla", "A", "--server", ""}, "non può essere vuoto"},
        {{"--sigla", "A", "due"}, "sconosciuto: 'due'"},
    };
    for (const auto& [parole, testo] : errate) {
        err.str("");
        EXPECT_EQ(esegui(parole), 2);
        EXPECT_THAT(err.str(), HasSubstr(testo));
    }
    EXPECT_EQ(esegui({"--help"}), 0);
    EXPECT_THAT(out.str(), StartsWith("Uso: lumigrafo-cassa"));
}

} // namespace
} // namespace lumigrafo::cassa
