#include "data/cls_recordset.h"
#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "platform/guasto.h"
#include "settings/chiavi_imposta.h"
#include "settings/controllo_imposta.h"
#include "settings/imposta.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/resource.h>
#include <unistd.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;

class RichiamiFinti : public RichiamiConsole {
public:
    RichiamiFinti(Diario& diario, ContestoDati dati) : diario_(diario), dati_(std::move(dati)) {}
    void CaricaVideataInizio(bool) override {}
    void AggiornaDBLumigrafoCucina(const std::string&, const std::string&, std::int16_t,
                                   std::int16_t) override {}
    void SincronizzaLumAndroid(std::int16_t) override {}
    void Parla(const std::string&) override {}
    void ScaricaLumigrafo() override { diario_.emplace_back("ScaricaLumigrafo"); }
    [[nodiscard]] std::string lblReparto(int) const override { return {}; }
    [[nodiscard]] std::int16_t Categoria(int) const override { return 0; }
    [[nodiscard]] Controlli& frmVideata() override { throw Guasto(guasti::kOggettoMancante); }
    void RidisegnaVideata() override {}
    [[nodiscard]] ContestoDati contestoDati() override { return dati_; }

private:
    Diario& diario_;
    ContestoDati dati_;
};

class AzioniFinte : public AzioniImposta {
public:
    explicit AzioniFinte(Diario& diario) : diario_(diario) {}
    std::function<void(ColoriScelti&)> colore = [](ColoriScelti&) {};
    std::function<void(CarattereScelto&)> carattere = [](CarattereScelto&) {};
    void frmColore(ColoriScelti& c) override { colore(c); }
    void frmFontSize(CarattereScelto& c) override { carattere(c); }
    void frmImpoLumigrafoAndroid() override { diario_.emplace_back("frmImpoLumigrafoAndroid"); }
    void frmInserisciNumeri() override { diario_.emplace_back("frmInserisciNumeri"); }
    void frmSagoma() override { diario_.emplace_back("frmSagoma"); }
    void ImpostazioniFiscali() override { diario_.emplace_back("ImpostazioniFiscali"); }
    void UtilitaFiscali() override { diario_.emplace_back("UtilitaFiscali"); }
    void ApriImpostazioniSchermo() override { diario_.emplace_back("ApriImpostazioniSchermo"); }
    void TimerVis() override { diario_.emplace_back("TimerVis"); }

private:
    Diario& diario_;
};

class ImpostaTest : public testing::Test {
protected:
    Diario diario;
    CartellaTemporanea cartella;
    Ambiente ambiente{cartella.percorso(), "/opt/lumigrafo/lumigrafo", ""};
    FileIni ini{ambiente.file(kFileImpostazioni)};
    ArchivioProva archivio{ambiente.file(kFileArchivio)};
    Workspace ws;
    std::unique_ptr<Database> db = ws.OpenDatabase(ambiente.file(kFileArchivio).string());
    OrologioFinto orologio;
    SistemaFinto sistema;
    AvvisiFinti avvisi{&diario};
    MessaggiFinti messaggi{&diario};
    UscitaFinta uscita{&diario};
    RichiamiFinti richiami{diario, {*db, cartella.percorso().string(), orologio, avvisi, uscita, sistema}};
    AzioniFinte azioni{diario};

    std::unique_ptr<Imposta> apri() {
        return std::make_unique<Imposta>(ServiziImposta{ambiente, messaggi, avvisi, uscita, richiami, azioni},
                                         [this] { diario.emplace_back("chiusa"); });
    }
    void imposta(std::string_view chiave, const ValoreIni& valore) {
        ini.ScriviIni(kSezioneImpostazioni, chiave, valore);
    }
    std::string leggiChiave(std::string_view chiave) {
        return ini.LeggiIni(kSezioneImpostazioni, chiave, "manca");
    }
    std::string file() {
        std::stringstream testo;
        testo << std::ifstream(ini.file()).rdbuf();
        return testo.str();
    }
    static void clic(Imposta& i, const char* nome, int indice = kSenzaIndice) { i.clic(nome, indice); }
    /// The dialog said what it says after a save that went well, and ended the program.
    void diSolitoFinisce() {
        EXPECT_EQ(diario.front(), "messaggio Salvataggio eseguito");
        EXPECT_EQ(diario.back(), "fine 0");
        EXPECT_TRUE(avvisi.mostrati.empty());
    }
    /// Saves, as far as the tests let it.
    void applica(Imposta& i) {
        try {
            clic(i, "cmdApplica");
        } catch (const FineProcesso&) {
        }
    }
};

/// What the control's property shows, as the key's text.
std::string mostrato(Controlli& controlli, const char* nome, int indice, Proprieta proprieta) {
    const Controllo& c = controlli(nome, indice);
    switch (proprieta) {
    case Proprieta::Testo:
        return c.Caption();
    case Proprieta::Posizione:
        return std::to_string(c.ListIndex());
    case Proprieta::Valore:
        return std::to_string(c.Value());
    case Proprieta::FontName:
        return c.FontName();
    case Proprieta::FontSize:
        return aTesto(static_cast<float>(c.FontSize()));
    case Proprieta::ForeColor:
        return std::to_string(c.ForeColor().v);
    case Proprieta::BackColor:
        return std::to_string(c.BackColor()->v);
    }
    return {};
}

struct Caso {
    const char *chiave, *controllo;
    int indice;
    Proprieta proprieta;
    const char *predefinito, *altro; ///< another value that the key can hold
};

constexpr int kNo = kSenzaIndice;
// In the order of the saving.
const std::vector<Caso> kCasi{
    {"FontNumeri", "lblFontNumeri", kNo, Proprieta::FontName, "Arial Blank", "Verdana"},
    {"FontSizeNumeri", "lblFontNumeri", kNo, Proprieta::FontSize, "72", "23.5"},
    {"TipoLumigrafo", "cboTipoLumigrafo", kNo, Proprieta::Posizione, "0", "2"},
    {"Categoria0", "cboCodCategoria", 0, Proprieta::Posizione, "0", "1"},
    {"Categoria1", "cboCodCategoria", 1, Proprieta::Posizione, "0", "3"},
    {"Categoria2", "cboCodCategoria", 2, Proprieta::Posizione, "0", "2"},
    {"Categoria3", "cboCodCategoria", 3, Proprieta::Posizione, "0", "1"},
    {"ColoreTesto0", "lblColore", 0, Proprieta::ForeColor, "16777215", "255"},
    {"ColoreTesto1", "lblColore", 1, Proprieta::ForeColor, "16777215", "65280"},
    {"ColoreTesto2", "lblColore", 2, Proprieta::ForeColor, "16777215", "0"},
    {"ColoreSfondo0", "lblColore", 0, Proprieta::BackColor, "0", "128"},
    {"ColoreSfondo1", "lblColore", 1, Proprieta::BackColor, "0", "8388608"},
    {"ColoreSfondo2", "lblColore", 2, Proprieta::BackColor, "0", "16777215"},
    {"FontTesto0", "lblFont", 0, Proprieta::FontName, "Arial Narrow", "Arial"},
    {"FontTesto1", "lblFont", 1, Proprieta::FontName, "Arial Narrow", "Courier New"},
    {"FontTesto2", "lblFont", 2, Proprieta::FontName, "Arial Narrow", "Fantasia"},
    {"FontSizeTesto0", "lblFont", 0, Proprieta::FontSize, "48", "300"},
    {"FontSizeTesto1", "lblFont", 1, Proprieta::FontSize, "48", "8.25"},
    {"FontSizeTesto2", "lblFont", 2, Proprieta::FontSize, "48", "50"},
    {"NumeroMassimoRighe", "txtNumeroMassimoRighe", kNo, Proprieta::Testo, "50", "7"},
    {"NumeroLampeggi", "txtNumeroLampeggi", kNo, Proprieta::Testo, "20", "100"},
    {"Vocale", "chkVocale", kNo, Proprieta::Valore, "0", "1"},
    {"VelocitaVocale", "sldVelocita", kNo, Proprieta::Valore, "0", "-10"},
    {"VolumeVocale", "sldVolume", kNo, Proprieta::Valore, "100", "35"},
    {"DicituraVocale", "txtDicitura", kNo, Proprieta::Testo, "Numero", "È pronto il"},
    {"TitoloLumigrafo", "txtTitolo", kNo, Proprieta::Testo, "STIAMO SERVENDO I NUMERI", "SERVIAMO IL"},
    {"PubblicitaMirtolanda", "chkPubblicitaMirtolanda", kNo, Proprieta::Valore, "0", "1"},
    {"ResizePubblicita", "chkResizePubblicita", kNo, Proprieta::Valore, "0", "1"},
    {"Posiziona", "chkPosiziona", kNo, Proprieta::Valore, "0", "1"},
    {"Lumigrafo9Numeri", "chk9Numeri", kNo, Proprieta::Valore, "0", "1"},
    {"QuanteCasse", "txtCasse", kNo, Proprieta::Testo, "5", "3"},
    {"ColoreNumeriTesto", "lblColoreNumeri", kNo, Proprieta::ForeColor, "0", "16711680"},
    {"ColoreNumeriSfondo", "lblColoreNumeri", kNo, Proprieta::BackColor, "16777215", "1"},
    {"BottoneAvanti", "chkBottoneAvanti", kNo, Proprieta::Valore, "0", "0"},
    {"ScontrinoFiscale", "chkFiscale", kNo, Proprieta::Valore, "0", "1"},
};

TEST_F(ImpostaTest, OgniChiaveHaIlSuoControlloIlSuoPredefinitoEIlSuoPosto) {
    auto i = apri();
    for (const Caso& c : kCasi)
        EXPECT_EQ(mostrato(i->controlli(), c.controllo, c.indice, c.proprieta), c.predefinito) << c.chiave;
    applica(*i);
    std::string atteso = "[Impostazioni]\r\n";
    for (const Caso& c : kCasi)
        atteso += std::string(c.chiave) + "=" + c.predefinito + "\r\n";
    EXPECT_EQ(file(), atteso) << "every key, in order";
    EXPECT_THAT(diario, ElementsAre("messaggio Salvataggio eseguito", "ScaricaLumigrafo",
                                    "messaggio Riavviare l'applicazione con l'icona sul desktop", "chiusa",
                                    "fine 0"));
    EXPECT_EQ(messaggi.mostrati.front().second, 1);
    EXPECT_EQ(messaggi.mostrati.back().second, 2);

    for (const Caso& c : kCasi)
        imposta(c.chiave, c.altro);
    const std::string prima = file();
    i = apri();
    for (const Caso& c : kCasi)
        EXPECT_EQ(mostrato(i->controlli(), c.controllo, c.indice, c.proprieta), c.altro) << c.chiave;
    applica(*i);
    EXPECT_EQ(file(), prima) << "what was read is written back";
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
        std::filesystem::remove(ini.file());
        applica(*i);
        const bool salvato = *caso.messaggio == '\0';
        SCOPED_TRACE(testing::Message()
                     << caso.tipo << categorie[1] << categorie[2] << categorie[3] << caso.casse);
        EXPECT_EQ(std::filesystem::exists(ini.file()), salvato);
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
    clic(*i, "cmdColore", 1);
    EXPECT_EQ(c("lblColore", 1).BackColor(), Colore(255));
    EXPECT_EQ(c("lblColore", 1).ForeColor(), Colore(65280));
    EXPECT_EQ(c("lblColore", 0).BackColor(), kNero);
    azioni.colore = [](ColoriScelti& colori) { colori = {-1, 7}; };
    clic(*i, "cmdColoreNumeri");
    EXPECT_EQ(c("lblColoreNumeri").ForeColor(), kNero) << "no colour below 0 is taken over";
    azioni.carattere = [](CarattereScelto& scelto) {
        EXPECT_EQ(scelto.NomeFontScelto + scelto.DimensioneFontScelta, "Arial Narrow48");
        scelto = {"Verdana", "60"};
    };
    clic(*i, "cmdFont", 2);
    EXPECT_EQ(c("lblFont", 2).FontName(), "Verdana");
    EXPECT_EQ(c("lblFont", 2).FontSize(), 60);
    imposta("FontSizeNumeri", "23,5");
    i = apri();
    azioni.carattere = [](CarattereScelto& scelto) { EXPECT_EQ(aDoppio(scelto.DimensioneFontScelta), 23.5); };
    clic(*i, "cmdFontNumeri");
    EXPECT_EQ(i->controlli()("lblFontNumeri").FontSize(), 23.5);
}

TEST_F(ImpostaTest, BottoniSenzaChiave) {
    auto i = apri();
    for (const char* nome : {"cmdAndroid", "cmdNumeri", "cmdPosiziona", "cmdImpoSchermo", "cmdFiscale",
                             "cmdTestFiscale", "cmdTestNumeriRandom", "cmdResetta", "cmdAnnulla"})
        clic(*i, nome);
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
    EXPECT_FALSE(std::filesystem::exists(ini.file()));
    diSolitoFinisce();
}

} // namespace
} // namespace lumigrafo::prova
