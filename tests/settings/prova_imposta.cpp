#include "tests/settings/banco_imposta.h"
#include "tests/sostegno/disco_pieno.h"
#include "tests/sostegno/guasto_atteso.h"

#include <array>
#include <gmock/gmock.h>
#include <unistd.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

TEST_F(ImpostaTest, OgniChiaveHaIlSuoControlloIlSuoPredefinitoEIlSuoPosto) {
    const auto vede = [](Imposta& i, const Valori& attesi) {
        for (const Caso& c : kCasi)
            EXPECT_EQ(mostrato(i.controlli(), c.controllo, c.indice, c.proprieta), attesi.at(c.chiave))
                << c.chiave;
    };
    auto i = apri();
    vede(*i, valori(&Caso::predefinito));
    applica(*i);
    EXPECT_EQ(file(), salvato(valori(&Caso::predefinito))) << "every key, in order";
    EXPECT_THAT(diario,
                ElementsAre("messaggio Salvataggio eseguito", "server chiuso", "cedi ScaricaLumigrafo",
                            "messaggio Riavviare l'applicazione con l'icona sul desktop", "chiusa",
                            "fine 0"));
    EXPECT_EQ(messaggi.mostrati.front().second, 1);
    EXPECT_EQ(messaggi.mostrati.back().second, 2);

    Valori altri = valori(&Caso::altro);
    std::ofstream(impostazioni.file(), std::ios::binary) << salvato(altri);
    i = apri();
    vede(*i, altri);
    for (int q = 1; q < 4; ++q) { // the button of the next number wants one category
        i->controlli()("cboCodCategoria", q).ListIndex(0);
        altri["Categoria" + std::to_string(q)] = "0";
    }
    std::filesystem::remove(impostazioni.file());
    applica(*i);
    EXPECT_EQ(file(), salvato(altri)) << "what is shown is written";
}

TEST_F(ImpostaTest, SeiProveInOrdine) {
    const auto kBig = "Lumigrafo per un reparto big, va impostato per la gestione di una sola categoria";
    const auto kAvanti = "Impostare solo la prima categoria (una a caso) per il sistema -Avanti il prossimo-";
    const auto kBottone = "Impostare solo la prima categoria (una a caso) con spunta Bottone prossimo numero";
    const auto kTipo = "Tipo lumigrafo non valido con spunta Bottone prossimo numero";
    const auto kCasse = "Il numero di casse deve essere numerico!";
    const struct {
        int tipo;
        std::array<int, 4> categorie;
        int nove, bottone;
        const char *casse, *messaggio; ///< no message: it saves
    } casi[] = {
        {3, {1, 1, 0, 0}, 0, 0, "5", kBig},        {3, {1, 0, 2, 0}, 0, 0, "x", kBig},
        {3, {1, 0, 0, 1}, 0, 0, "5", ""},          {0, {1, 2, 3, 1}, 1, 0, "5", ""}, // 9 numbers never fires
        {4, {1, 0, 0, 0}, 0, 0, "5", ""},          {4, {0, 1, 0, 0}, 0, 1, "5", kAvanti},
        {4, {1, 0, 0, 1}, 0, 0, "5", kAvanti},     {1, {1, 0, 1, 0}, 1, 1, "5", kBottone},
        {0, {1, 0, 0, 1}, 0, 1, "5", kBottone},    {0, {1, 0, 0, 0}, 0, 1, "5", kTipo},
        {4, {1, 0, 0, 0}, 0, 1, "5", kTipo},       {1, {1, 0, 0, 0}, 1, 1, "5", ""},
        {2, {1, 0, 0, 0}, 0, 1, "5", ""},          {3, {1, 0, 0, 0}, 0, 1, "5", ""},
        {0, {0, 0, 0, 0}, 0, 0, "cinque", kCasse}, {0, {0, 0, 0, 0}, 0, 0, "3,5", ""},
        {0, {0, 0, 0, 0}, 0, 0, "  ", ""},
    };
    for (int riga = 0; const auto& caso : casi) {
        SCOPED_TRACE(++riga);
        auto i = apri();
        Controlli& c = i->controlli();
        c("cboTipoLumigrafo").ListIndex(caso.tipo);
        for (int q = 0; q < 4; ++q)
            c("cboCodCategoria", q).ListIndex(caso.categorie[static_cast<std::size_t>(q)]);
        c("chk9Numeri").Value(caso.nove);
        c("chkBottoneAvanti").Value(caso.bottone);
        c("txtCasse").Caption(caso.casse);
        avvisi.mostrati.clear();
        std::filesystem::remove(impostazioni.file());
        applica(*i);
        const bool salvato = *caso.messaggio == '\0';
        EXPECT_EQ(std::filesystem::exists(impostazioni.file()), salvato);
        EXPECT_EQ(leggiChiave("Lumigrafo9Numeri"), salvato ? std::to_string(caso.nove) : "manca");
        ASSERT_EQ(avvisi.mostrati.size(), salvato ? 0U : 1U);
        if (!salvato) {
            EXPECT_EQ(avvisi.mostrati[0].testo, caso.messaggio);
            EXPECT_EQ(avvisi.mostrati[0].titolo, "Attenzione");
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
        EXPECT_EQ(guastoDi([&] { apri(); }), caso.guasto) << caso.chiave;
        imposta(caso.chiave, prima == "manca" ? "" : prima);
    }
    imposta("VolumeVocale", 300);
    imposta("Posiziona", -1);
    imposta("Vocale", "true");
    imposta("NumeroMassimoRighe", 1000);
    auto i = apri();
    EXPECT_EQ(i->controlli()("txtNumeroMassimoRighe").Caption(), "100") << "no more than its box shows";
    for (const auto& [nome, preso] : {std::pair("sldVolume", 100), {"chkPosiziona", 1}, {"chkVocale", 1}})
        EXPECT_EQ(i->controlli()(nome).Value(), preso) << nome;
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
    for (const char* nome : {"lblFont", "Label"}) {
        i->clicDestro(nome, 0);
        EXPECT_EQ(c("cmdTestNumeriRandom").Visible(), nome == std::string("Label"));
    }
    for (const auto& [nome, scrive] : {std::pair("txtTitolo", true), {"cboTipoLumigrafo", false}}) {
        i->fuoco(nome);
        EXPECT_EQ(c("picTastiera").Visible(), scrive) << nome;
    }
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
    for (const char* nome : {"txtNumeroLampeggi", "txtNumeroMassimoRighe"}) {
        for (const char32_t c : std::u32string_view(U"0123456789"))
            EXPECT_FALSE(Imposta::rifiuta(nome, c));
        for (const char32_t c : std::u32string_view(U".,-+ aE&\b\r\u20ac"))
            EXPECT_TRUE(Imposta::rifiuta(nome, c)) << static_cast<unsigned>(c);
    }
    EXPECT_FALSE(Imposta::rifiuta("txtCasse", U'a'));
}

TEST_F(ImpostaTest, UnDiscoPienoAMetaLasciaLePrimeChiaviETace) {
    const std::string atteso = salvato(valori(&Caso::predefinito), 10);
    auto i = apri();
    {
        const DiscoPieno pieno(atteso.size());
        applica(*i);
    }
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
