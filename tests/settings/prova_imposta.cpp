#include "platform/guasto.h"
#include "settings/controllo_imposta.h"
#include "tests/settings/banco_imposta.h"

#include <csignal>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <unistd.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

TEST_F(ImpostaTest, OgniChiaveHaIlSuoControlloIlSuoPredefinitoEIlSuoPosto) {
    auto i = apri();
    Valori valori;
    for (const Caso& c : kCasi) {
        EXPECT_EQ(mostrato(i->controlli(), c.controllo, c.indice, c.proprieta), c.predefinito) << c.chiave;
        valori[c.chiave] = c.predefinito;
    }
    applica(*i);
    EXPECT_EQ(file(), salvato(valori)) << "every key, in order";
    EXPECT_THAT(diario, ElementsAre("messaggio Salvataggio eseguito", "cedi ScaricaLumigrafo",
                                    "messaggio Riavviare l'applicazione con l'icona sul desktop", "chiusa",
                                    "fine 0"));
    EXPECT_EQ(messaggi.mostrati.front().second, 1);
    EXPECT_EQ(messaggi.mostrati.back().second, 2);

    valori = altriValori();
    std::ofstream(impostazioni.file(), std::ios::binary) << salvato(valori);
    i = apri();
    for (const Caso& c : kCasi)
        EXPECT_EQ(mostrato(i->controlli(), c.controllo, c.indice, c.proprieta), c.altro) << c.chiave;
    for (int q = 1; q < 4; ++q) { // the button of the next number wants one category
        i->controlli()("cboCodCategoria", q).ListIndex(0);
        valori["Categoria" + std::to_string(q)] = "0";
    }
    std::filesystem::remove(impostazioni.file());
    applica(*i);
    EXPECT_EQ(file(), salvato(valori)) << "what is shown is written";
}

TEST_F(ImpostaTest, SeiProveInOrdine) {
    const auto kBig = "Lumigrafo per un reparto big, va impostato per la gestione di una sola categoria";
    const auto kAvanti = "Impostare solo la prima categoria (una a caso) per il sistema -Avanti il prossimo-";
    const auto kBottone = "Impostare solo la prima categoria (una a caso) con spunta Bottone prossimo numero";
    const auto kTipo = "Tipo lumigrafo non valido con spunta Bottone prossimo numero";
    const auto kCasse = "Il numero di casse deve essere numerico!";
    const struct {
        int tipo, c0, c1, c2, c3, nove, bottone;
        const char *casse, *messaggio;
    } casi[] = {
        {3, 1, 1, 0, 0, 0, 0, "5", kBig},        {3, 1, 0, 2, 0, 0, 0, "x", kBig},
        {3, 1, 0, 0, 1, 0, 0, "5", ""},          {0, 1, 2, 3, 1, 1, 0, "5", ""}, // 9 numbers never fires
        {4, 1, 0, 0, 0, 0, 0, "5", ""},          {4, 0, 1, 0, 0, 0, 1, "5", kAvanti},
        {4, 1, 0, 0, 1, 0, 0, "5", kAvanti},     {1, 1, 0, 1, 0, 1, 1, "5", kBottone},
        {0, 1, 0, 0, 1, 0, 1, "5", kBottone},    {0, 1, 0, 0, 0, 0, 1, "5", kTipo},
        {4, 1, 0, 0, 0, 0, 1, "5", kTipo},       {1, 1, 0, 0, 0, 1, 1, "5", ""},
        {2, 1, 0, 0, 0, 0, 1, "5", ""},          {3, 1, 0, 0, 0, 0, 1, "5", ""},
        {0, 0, 0, 0, 0, 0, 0, "cinque", kCasse}, {0, 0, 0, 0, 0, 0, 0, "3,5", ""},
        {0, 0, 0, 0, 0, 0, 0, "  ", ""},
    };
    for (const auto& caso : casi) {
        auto i = apri();
        Controlli& c = i->controlli();
        c("cboTipoLumigrafo").ListIndex(caso.tipo);
        const int categorie[] = {caso.c0, caso.c1, caso.c2, caso.c3};
        for (int q = 0; q < 4; ++q)
            c("cboCodCategoria", q).ListIndex(categorie[q]);
        c("chk9Numeri").Value(caso.nove);
        c("chkBottoneAvanti").Value(caso.bottone);
        c("txtCasse").Caption(caso.casse);
        avvisi.mostrati.clear();
        std::filesystem::remove(impostazioni.file());
        applica(*i);
        const bool salvato = *caso.messaggio == '\0';
        SCOPED_TRACE(testing::Message()
                     << caso.tipo << categorie[1] << categorie[2] << categorie[3] << caso.casse);
        EXPECT_EQ(std::filesystem::exists(impostazioni.file()), salvato);
        ASSERT_EQ(avvisi.mostrati.size(), salvato ? 0U : 1U);
        if (!salvato) {
            EXPECT_EQ(avvisi.mostrati[0].testo, caso.messaggio);
            EXPECT_EQ(avvisi.mostrati[0].titolo, "Attenzione");
        } else if (caso.nove) {
            EXPECT_EQ(leggiChiave("Lumigrafo9Numeri"), "1");
        }
    }
    EXPECT_EQ(leggiChiave("QuanteCasse"), "0") << "a blank number of cash desks";
}

TEST_F(ImpostaTest, ListeDelleCategorieConBuchiVuoteELunghe) {
    const auto voci = [&] { return apri()->controlli()("cboCodCategoria", 3).Voci(); };
    archivio.esegui("delete from Categorie where Codice = 2");
    EXPECT_THAT(voci(), ElementsAre("Non attivo", "Cucina", "Pizzeria")) << "a position is no code";
    imposta("Categoria1", 2);
    EXPECT_EQ(apri()->controlli()("cboCodCategoria", 1).ListIndex(), 2);
    archivio.esegui("delete from Categorie");
    imposta("Categoria1", 0);
    EXPECT_THAT(voci(), ElementsAre("Non attivo"));
    for (int i = 1; i <= 30; ++i)
        archivio.esegui("insert into Categorie (Codice, Descrizione) values (" + std::to_string(i) +
                        ", 'Cat" + std::to_string(i) + "')");
    EXPECT_EQ(voci().size(), 31U);
    imposta("Categoria2", 30);
    EXPECT_EQ(apri()->controlli()("cboCodCategoria", 2).ListIndex(), 30);
}

TEST_F(ImpostaTest, ValoriCheIlCaricamentoNonTiene) {
    const struct {
        const char *chiave, *valore;
        int guasto;
    } casi[] = {{"Categoria1", "4", 380},         {"Categoria0", "-2", 380},     {"TipoLumigrafo", "5", 380},
                {"FontSizeNumeri", "grande", 13}, {"ColoreTesto1", "rosso", 13}, {"Vocale", "40000", 6}};
    for (const auto& caso : casi) {
        const std::string prima = leggiChiave(caso.chiave);
        imposta(caso.chiave, caso.valore);
        try {
            apri();
            ADD_FAILURE() << caso.chiave;
        } catch (const Guasto& g) {
            EXPECT_EQ(g.numero(), caso.guasto) << caso.chiave;
        }
        imposta(caso.chiave, prima == "manca" ? "" : prima);
    }
    imposta("VolumeVocale", 300);
    imposta("Posiziona", -1);
    imposta("Vocale", "true");
    auto i = apri();
    EXPECT_EQ(i->controlli()("sldVolume").Value(), 100);
    EXPECT_EQ(i->controlli()("chkPosiziona").Value(), 1);
    EXPECT_EQ(i->controlli()("chkVocale").Value(), 1);
}

TEST_F(ImpostaTest, CioCheSiVedeSegueTipoEFiscale) {
    auto i = apri();
    Controlli& c = i->controlli();
    for (int tipo = 0; tipo < 5; ++tipo) {
        c("cboTipoLumigrafo").ListIndex(tipo);
        i->cambio("cboTipoLumigrafo", kNo);
        EXPECT_EQ(c("chk9Numeri").Visible(), tipo == 1);
        EXPECT_EQ(c("fraColoreNumeri").Visible(), tipo == 4);
    }
    EXPECT_FALSE(c("cmdFiscale").Visible() || c("cmdTestFiscale").Visible() ||
                 c("cmdTestNumeriRandom").Visible());
    c("chkFiscale").Value(1);
    i->cambio("chkFiscale", kNo);
    EXPECT_TRUE(c("cmdFiscale").Visible() && c("cmdTestFiscale").Visible());
    i->clicDestro("Label", 0);
    EXPECT_TRUE(c("cmdTestNumeriRandom").Visible());
    EXPECT_FALSE(c("picTastiera").Visible());
    i->fuoco("txtTitolo");
    EXPECT_TRUE(c("picTastiera").Visible());
    i->fuoco("cboTipoLumigrafo");
    EXPECT_FALSE(c("picTastiera").Visible());
}

TEST_F(ImpostaTest, CampioniEScelte) {
    auto i = apri();
    Controlli& c = i->controlli();
    azioni.colore = [](ColoriScelti& colori) {
        EXPECT_EQ(colori.ColoreTestoScelto, 16777215);
        colori = {255, 65280};
    };
    i->clic("cmdColore", 1);
    EXPECT_EQ(c("lblColore", 1).BackColor(), Colore(255));
    EXPECT_EQ(c("lblColore", 1).ForeColor(), Colore(65280));
    EXPECT_EQ(c("lblColore", 0).BackColor(), kNero);
    azioni.colore = [](ColoriScelti& colori) { colori = {-1, 7}; };
    i->clic("cmdColoreNumeri", kNo);
    EXPECT_EQ(c("lblColoreNumeri").ForeColor(), kNero) << "no colour below 0 is taken over";
    azioni.carattere = [](CarattereScelto& scelto) {
        EXPECT_EQ(scelto.NomeFontScelto + scelto.DimensioneFontScelta, "Arial Narrow48");
        scelto = {"Verdana", "60"};
    };
    i->clic("cmdFont", 2);
    EXPECT_EQ(c("lblFont", 2).FontName(), "Verdana");
    EXPECT_EQ(c("lblFont", 2).FontSize(), 60);
    imposta("FontSizeNumeri", "23,5");
    i = apri();
    azioni.carattere = [](CarattereScelto& scelto) { EXPECT_EQ(aDoppio(scelto.DimensioneFontScelta), 23.5); };
    i->clic("cmdFontNumeri", kNo);
    EXPECT_EQ(i->controlli()("lblFontNumeri").FontSize(), 23.5);
}

TEST_F(ImpostaTest, BottoniSenzaChiave) {
    auto i = apri();
    for (const char* nome : {"cmdAndroid", "cmdNumeri", "cmdPosiziona", "cmdImpoSchermo", "cmdFiscale",
                             "cmdTestFiscale", "cmdTestNumeriRandom", "cmdResetta", "cmdAnnulla"})
        i->clic(nome, kNo);
    EXPECT_THAT(diario, ElementsAre("frmImpoLumigrafoAndroid", "frmInserisciNumeri", "frmSagoma",
                                    "ApriImpostazioniSchermo", "ImpostazioniFiscali", "UtilitaFiscali",
                                    "TimerVis", "chiusa", "messaggio Nessuna modifica salvata", "chiusa"));
    EXPECT_EQ(file(), "[FormLumigrafo]\r\nTop=0\r\nLeft=0\r\nWidth=12000\r\nHeight=9000\r\n")
        << "the board's place alone is written, and stays";
}

TEST_F(ImpostaTest, FiltroCifra) {
    for (const char32_t c : std::u32string_view(U"0123456789"))
        EXPECT_FALSE(Imposta::rifiuta("txtNumeroLampeggi", c));
    for (const char32_t c : std::u32string_view(U".,-+ aE&\b\r\u20ac"))
        EXPECT_TRUE(Imposta::rifiuta("txtNumeroMassimoRighe", c)) << static_cast<unsigned>(c);
    EXPECT_FALSE(Imposta::rifiuta("txtCasse", U'a'));
}

TEST_F(ImpostaTest, UnDiscoPienoAMetaLasciaLePrimeChiaviETace) {
    constexpr std::size_t kScritte = 10;
    std::string atteso = "[Impostazioni]\r\n";
    for (std::size_t i = 0; i < kScritte; ++i)
        atteso += std::string(kCasi[i].chiave) + "=" + kCasi[i].predefinito + "\r\n";
    auto i = apri();
    rlimit prima{};
    ::getrlimit(RLIMIT_FSIZE, &prima);
    const rlimit pieno{atteso.size(), prima.rlim_max};
    const auto segnale = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &pieno);
    applica(*i);
    ::setrlimit(RLIMIT_FSIZE, &prima);
    std::signal(SIGXFSZ, segnale);
    EXPECT_EQ(file(), atteso);
    diSolitoFinisce();
}

TEST_F(ImpostaTest, UnaCartellaDiSolaLetturaTace) {
    using std::filesystem::perms;
    auto i = apri();
    std::filesystem::permissions(cartella.percorso(), perms::owner_read | perms::owner_exec |
                                                          perms::others_read | perms::others_exec);
    constexpr uid_t kNessuno = 65534;
    const uid_t chi = ::geteuid();
    if (chi == 0) { // to whom no folder is read-only
        ASSERT_EQ(::seteuid(kNessuno), 0);
    }
    applica(*i);
    ASSERT_EQ(::seteuid(chi), 0);
    std::filesystem::permissions(cartella.percorso(), perms::owner_all);
    EXPECT_FALSE(std::filesystem::exists(impostazioni.file()));
    diSolitoFinisce();
}

} // namespace
} // namespace lumigrafo::prova
