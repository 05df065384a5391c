#include "settings/comunicazione.h"
#include "tests/console/banco.h"

#include <fstream>

namespace lumigrafo::prova {
namespace {

constexpr const char* kEsempio = "C'è da spostare al più presto una  FIAT BIANCHINA targata EG 121 BT";

/// The message window over a console with its board; each opening loads it anew.
class Messaggio : public testing::Test {
protected:
    Banco b;
    std::optional<Comunicazione> finestra;
    int chiusure = 0;

    void SetUp() override {
        b.caricata();
        apri();
    }
    void apri() {
        finestra.emplace(
            ServiziComunicazione{b.ambiente, b.console().richiami(), b.desktop, b.messaggi},
            [this] { b.diario.emplace_back("invio"); }, [this] { ++chiusure; });
    }
    void clic(const char* nome, int indice = kSenzaIndice) { finestra->clic(nome, indice); }
    Controllo& testo() { return finestra->controlli()("txtComunicazione"); }
    Controllo& board(const char* nome) { return b.board().controlli()(nome); }
    std::string letto(int posto) {
        return FileIni(b.ambiente.file(kFileMessaggi))
            .LeggiIni(kSezioneImpostazioni, "Messaggio" + std::to_string(posto));
    }
};

TEST_F(Messaggio, IsOnTheBoardForAsLongAsTheWindowIsOpen) {
    testo().Caption("Si chiude\r\nalle 23");
    clic("cmdVisualizza");
    EXPECT_EQ(board("lblComunicazione").Caption(), "Si chiude\r\nalle 23");
    EXPECT_TRUE(board("picComunicazione").Visible());
    EXPECT_THAT(b.diario, Contains("videata ridisegnata"));
    testo().Caption("Alle 24");
    EXPECT_EQ(board("lblComunicazione").Caption(), "Si chiude\r\nalle 23");
    clic("cmdVisualizza");
    EXPECT_EQ(board("lblComunicazione").Caption(), "Alle 24");
    clic("cmdUscita");
    EXPECT_FALSE(board("picComunicazione").Visible());
    EXPECT_EQ(chiusure, 1);
}

TEST_F(Messaggio, TheFirstOneTypedIsTheOneThatComesBack) {
    clic("cmdUscita"); // empty
    EXPECT_FALSE(std::filesystem::exists(b.ambiente.file(kFileMessaggi)));
    const struct {
        std::string scritto, etichetta, riletto;
    } casi[] = {
        {"uno\r\n\r\nperché", "uno\\\\perché", "uno\r\n\r\nperché"},
        {"C:\\dati", "C:\\dati", "C:\r\ndati"},
        {"\r\n\r\n", "\\\\", "\r\n\r\n"},
        {std::string(5000, '\\'), std::string(255, '\\'), {}},
        {std::string(5000, 'x') + "\xF0\x9F\x98\x80", std::string(255, 'x'), std::string(255, 'x')},
        {"  auto \xF0\x9F\x9A\x97 ", "auto ?", "auto ?"},
    };
    for (const auto& caso : casi) {
        std::filesystem::remove(b.ambiente.file(kFileMessaggi));
        apri();
        testo().Caption(caso.scritto);
        clic("cmdUscita");
        apri();
        EXPECT_EQ(finestra->controlli()("lblMessaggio", 0).Caption(), caso.etichetta);
        clic("lblMessaggio", 0);
        if (!caso.riletto.empty())
            EXPECT_EQ(testo().Caption(), caso.riletto);
        else
            EXPECT_EQ(testo().Caption().size(), 2U * 255);
        testo().Caption("un altro");
        clic("cmdUscita"); // the second place has its built-in text: the third
        EXPECT_EQ(letto(0), caso.etichetta);
        EXPECT_EQ(letto(1), "");
        EXPECT_EQ(letto(2), "un altro");
    }
    clic("lblMessaggio", 1);
    EXPECT_EQ(testo().Caption(), kEsempio);
    clic("lblMessaggio", 2);
    EXPECT_EQ(testo().Caption(), "");
}

TEST_F(Messaggio, IsSpokenWhateverTheSetting) {
    EXPECT_FALSE(b.stato.Vocale);
    testo().Caption("Si chiude");
    clic("cmdLeggi");
    clic("lblEnter");
    EXPECT_EQ(b.diario, (Diario{"parla Si chiude", "invio"}));
}

TEST_F(Messaggio, FailsAloudBeforeTheBoardIsClearAndSilentlyAfter) {
    std::filesystem::create_directory(b.ambiente.file(kFileMessaggi)); // can't be read nor written
    apri();
    testo().Caption("x");
    clic("cmdUscita");
    EXPECT_EQ(chiusure, 1);
    b.desktop.capace = false;
    clic("cmdTastiera");
    EXPECT_EQ(b.messaggi.mostrati.size(), 1U); // no keyboard here: a notice, no end of the program
    b.console().richiami().ScaricaLumigrafo();
    EXPECT_THROW(clic("cmdVisualizza"), Guasto);
    EXPECT_THROW(clic("cmdUscita"), Guasto);
    EXPECT_EQ(chiusure, 1);
}

} // namespace
} // namespace lumigrafo::prova
