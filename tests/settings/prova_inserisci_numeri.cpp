#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "platform/guasto.h"
#include "settings/inserisci_numeri.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <chrono>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

class InserisciNumeriTest : public testing::Test {
protected:
    CartellaTemporanea cartella;
    std::filesystem::path file = cartella.percorso() / kFileArchivio;
    ArchivioProva archivio{file};
    Workspace ws;
    std::unique_ptr<Database> db = ws.OpenDatabase(file.string());
    PompaFinta pompa;
    AvvisiFinti avvisi;
    MessaggiFinti messaggi;
    int chiusure = 0;
    InserisciNumeri inserisci{{ws, *db, pompa, avvisi, messaggi}, [this] { ++chiusure; }};

    void conferma(const char* numero) {
        inserisci.controlli()("txtNumero").Caption(numero);
        inserisci.clic("cmdOK", kSenzaIndice);
    }
    /// How many rows, the first and the last number.
    std::string coda() { return archivio.leggi("select count(*), min(numero), max(numero) from Lumigrafo"); }
};

TEST_F(InserisciNumeriTest, DalNumeroDettoFinoA999) {
    EXPECT_EQ(inserisci.controlli()("txtNumero").Caption(), "1");
    archivio.ordine("A", 12, {{1, 2}});
    avvisi.risposte = {Risposta::Ok, Risposta::No};
    conferma("dodici");
    EXPECT_EQ(avvisi.mostrati.back().testo, "Compilare la casella solo con numeri");
    conferma("7");
    EXPECT_EQ(
        avvisi.mostrati.back().testo,
        "Attenzione, verranno inseriti numeri da 7 a 999 su tutte le categorie del lumigrafo.\r\n\r\nPROCEDERE ?");
    EXPECT_EQ(coda(), "1|12|12") << "nothing is touched without a yes";
    EXPECT_EQ(chiusure, 0);
    int fatti = 0;
    for (const auto& [numero, dopo] : {std::pair("1", "999|1|999"),
                                       {"999", "1|999|999"},
                                       {"1000", "0|NULL|NULL"},
                                       {"2,5", "998|2|999"},
                                       {"-3", "1003|-3|999"}}) {
        conferma(numero);
        EXPECT_EQ(coda(), dopo) << numero;
        EXPECT_EQ(messaggi.mostrati.back(), std::pair(std::string("Inserimento terminato"), std::int16_t{2}));
        EXPECT_EQ(chiusure, ++fatti);
    }
    EXPECT_EQ(archivio.leggi("select distinct sigla, categoria1 + categoria8, categoria9 from Lumigrafo"),
              "|-2|0");
}

TEST_F(InserisciNumeriTest, UnGuastoAMetaLasciaLeRigheFatte) {
    archivio.esegui("create trigger basta before insert on Lumigrafo when new.numero = 333 "
                    "begin select raise(abort, 'basta'); end");
    EXPECT_THROW(conferma("1"), Guasto);
    EXPECT_EQ(coda(), "332|1|332");
    EXPECT_EQ(chiusure, 0);
    archivio.esegui("drop trigger basta");
    EXPECT_THROW(conferma("40000"), Guasto); // beyond 16 bits: the queue is gone by then
    EXPECT_EQ(coda(), "0|NULL|NULL");
}

TEST_F(InserisciNumeriTest, UnAltraStazioneVedeNumeriInOrdineELAvanzamentoSoloSeDura) {
    for (const auto passo : {1ms, 30ms}) {
        auto ora = 0ms;
        int ultima = -1, viste = 0;
        InserisciNumeri lento(
            {ws, *db, pompa, avvisi, messaggi,
             [&] {
                 ora += passo;
                 const int righe = std::stoi(archivio.leggi("select count(*) from Lumigrafo"));
                 EXPECT_GE(righe, ultima); // each state is one that single statements pass through
                 EXPECT_EQ(archivio.leggi("select coalesce(max(numero), 0) from Lumigrafo"),
                           std::to_string(righe));
                 ultima = righe;
                 return ora;
             }},
            [] {});
        lento.allaVista([&] {
            ++viste;
            EXPECT_TRUE(lento.controlli()("lblAvanzamento").Visible());
        });
        lento.clic("cmdOK", kSenzaIndice);
        EXPECT_EQ(viste, passo == 1ms ? 0 : 4) << "from half a second on, at each lot of fifty";
    }
}

} // namespace
} // namespace lumigrafo::prova
