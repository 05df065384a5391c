#include "links/collegamento_android.h"
#include "platform/finti/cliente_tcp_finto.h"
#include "platform/finti/scelta_cartella_finta.h"
#include "platform/guasto.h"
#include "settings/chiavi_imposta.h"
#include "settings/controllo_imposta.h"
#include "settings/impo_lumigrafo_android.h"
#include "settings/imposta.h"
#include "settings/ini/cp1252.h"
#include "settings/percorso_archivio.h"
#include "tests/console/banco.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <sys/resource.h>
#include <unistd.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class AzioniFinte : public AzioniImposta, Annotatore {
public:
    explicit AzioniFinte(Diario& diario) : Annotatore(diario) {}
    std::function<void(ColoriScelti&)> colore = [](ColoriScelti&) {};
    std::function<void(CarattereScelto&)> carattere = [](CarattereScelto&) {};
    void frmColore(ColoriScelti& c) override { colore(c); }
    void frmFontSize(CarattereScelto& c) override { carattere(c); }
    void frmImpoLumigrafoAndroid() override { annota("frmImpoLumigrafoAndroid"); }
    void frmInserisciNumeri() override { annota("frmInserisciNumeri"); }
    void frmSagoma() override { annota("frmSagoma"); }
    void ImpostazioniFiscali() override { annota("ImpostazioniFiscali"); }
    void UtilitaFiscali() override { annota("UtilitaFiscali"); }
    void ApriImpostazioniSchermo() override { annota("ApriImpostazioniSchermo"); }
    void TimerVis() override { annota("TimerVis"); }
};

/// The dialog over a console that has opened its archive and no board.
class ImpostaTest : public testing::Test, protected Banco {
protected:
    AzioniFinte azioni{diario};

    ImpostaTest() {
        stato.Ws = &DBEngine::Workspaces(0);
        stato.Db = stato.Ws->OpenDatabase(ambiente.file(kFileArchivio).string());
    }
    std::unique_ptr<Imposta> apri() {
        return std::make_unique<Imposta>(
            ServiziImposta{ambiente, messaggi, avvisi, uscita, console().richiami(), azioni},
            [this] { diario.emplace_back("chiusa"); });
    }
    std::string leggiChiave(std::string_view chiave) {
        return impostazioni.LeggiIni(kSezioneImpostazioni, chiave, "manca");
    }
    std::string file() {
        std::stringstream testo;
        testo << std::ifstream(impostazioni.file()).rdbuf();
        return testo.str();
    }
    /// The dialog said what it says after a save that went well, and ended the program.
    void diSolitoFinisce() {
        EXPECT_EQ(diario.front(), "messaggio Salvataggio eseguito");
        EXPECT_EQ(diario.back(), "fine 0");
        EXPECT_TRUE(avvisi.mostrati.empty());
    }
    /// Saves, as far as the tests let it.
    void applica(Imposta& i) {
        try {
            i.clic("cmdApplica", kSenzaIndice);
        } catch (const FineProcesso&) {
        }
    }
};

/// What the control's property shows, as the key's text.
std::string mostrato(Controlli& controlli, std::string_view nome, int indice, Proprieta proprieta) {
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
    {"NumeroLampeggi", "txtNumeroLampeggi", kNo, Proprieta::Testo, "20", "3"},
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
    {"BottoneAvanti", "chkBottoneAvanti", kNo, Proprieta::Valore, "0", "1"},
    {"ScontrinoFiscale", "chkFiscale", kNo, Proprieta::Valore, "0", "1"},
};

using Valori = std::map<std::string, std::string>;

Valori altriValori() {
    Valori valori;
    for (const Caso& c : kCasi)
        valori[c.chiave] = c.altro;
    return valori;
}

/// The file as the dialog writes it.
std::string salvato(const Valori& valori) {
    std::string testo = "[Impostazioni]\r\n";
    for (const Caso& c : kCasi)
        testo += std::string(c.chiave) + "=" + valori.at(c.chiave) + "\r\n";
    return aCp1252(testo);
}

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

/// Settings that make up one station, and its board.
struct Postazione {
    TipoVideata videata;
    char sigla;
    const char *tipo, *nove, *bottone;
    std::array<const char*, 4> categorie;
};

constexpr std::array<Postazione, 8> kPostazioni{{
    {TipoVideata::frmLumigrafo, 'V', "0", "1", "0", {"2", "1", "3", "1"}},
    {TipoVideata::frmLumigrafooRIZZ, 'O', "1", "0", "0", {"1", "3", "2", "0"}},
    {TipoVideata::frmLumigrafoOrizz9numeri, 'N', "1", "1", "0", {"3", "2", "1", "2"}},
    {TipoVideata::frmLumigrafo1Reparto, 'U', "1", "0", "1", {"2", "0", "0", "0"}},
    {TipoVideata::frmLumigrafo1Reparto9numeri, 'W', "1", "1", "1", {"3", "0", "0", "0"}},
    {TipoVideata::frmLumigrafo1RepartoBig, 'B', "3", "0", "0", {"1", "0", "0", "2"}},
    {TipoVideata::frmLumigrafoPerson, 'P', "2", "0", "1", {"1", "0", "0", "0"}},
    {TipoVideata::frmAvantiProssimo, 'A', "4", "0", "0", {"1", "0", "0", "0"}},
}};

Valori di(const Postazione& p) {
    Valori valori{{"TipoLumigrafo", p.tipo}, {"Lumigrafo9Numeri", p.nove}};
    for (int q = 0; q < 4; ++q)
        valori["Categoria" + std::to_string(q)] = p.categorie.at(static_cast<std::size_t>(q));
    return valori;
}

/// Who reads a key while the station works, and what it takes the key for.
struct Lettore {
    std::string chiave;
    std::string_view chi; ///< boards, by letter; 'C' the console, whatever its board
    std::function<std::string(Banco&)> vede;
    const char* senza;              ///< what it takes where there is no key
    const char* conUnaSpunta = "1"; ///< what it takes for a 1 that the dialog wrote
};

/// As a property of the board's control.
auto sul(const char* controllo, int indice, Proprieta proprieta) {
    return [=](Banco& b) { return mostrato(b.board().controlli(), controllo, indice, proprieta); };
}
/// As the console's running state.
template <typename T>
auto nello(T StatoConsole::*campo) {
    return [campo](Banco& b) {
        if constexpr (std::is_same_v<T, std::string>)
            return b.stato.*campo;
        else
            return std::to_string(b.stato.*campo);
    };
}
auto sfumatura(int q, Colore (Controllo::*quale)() const) {
    return [=](Banco& b) { return std::to_string((b.board().controlli()("picPannello", q).*quale)().v); };
}
std::string inVista(Controlli& controlli, const char* nome, int quanti) {
    int n = 0;
    for (int i = 0; i < quanti; ++i)
        n += controlli(nome, quanti == 1 ? kNo : i).Visible();
    return std::to_string(n);
}
std::string lampeggi(Banco& b) {
    const int prima = b.timers.accesi();
    b.board().Blinka(0);
    b.board().Lampeggia("A", "1");
    int scatti = 0;
    for (; b.timers.accesi() > prima && scatti < 200; ++scatti)
        b.timers.avanza(std::chrono::milliseconds(300));
    return std::to_string(scatti / 2 - 1); // one cycle more than is set
}

std::vector<Lettore> lettori() {
    using enum Proprieta;
    using S = StatoConsole;
    std::vector<Lettore> tutti{
        {"TipoLumigrafo", "C", nello(&S::TipoLumigrafo), "0"},
        {"Lumigrafo9Numeri", "C", nello(&S::Lumigrafo9Numeri), "0"},
        {"NumeroMassimoRighe", "C", nello(&S::NumeroMassimoRighe), "50"},
        {"Vocale", "C", nello(&S::Vocale), "0"},
        {"VelocitaVocale", "C", nello(&S::VelocitaVocale), "0"},
        {"VolumeVocale", "C", nello(&S::VolumeVocale), "100"},
        {"DicituraVocale", "C", nello(&S::DicituraVocale), "Numero"},
        {"ScontrinoFiscale", "C", nello(&S::ScontrinoFiscale), "0"},
        {"BottoneAvanti", "C", [](Banco& b) { return inVista(b.console().controlli(), "cmdAvanti", 1); },
         "0"},
        {"Posiziona", "C", // the console takes the truth value -1 alone
         [](Banco& b) {
             b.diario.clear();
             b.console().attiva();
             return std::to_string(std::count(b.diario.begin(), b.diario.end(), "frmSagoma"));
         },
         "0", "0"},
        {"TitoloLumigrafo", "VONUWB", sul("lblTitoloLumigrafo", kNo, Testo), "STIAMO SERVENDO I NUMERI"},
        {"FontNumeri", "VUWB", sul("lblNumero3", 0, FontName), "Arial Narrow"},
        {"FontNumeri", "ON", sul("lblNumero3", 0, FontName), "Arial Blank"},
        {"FontNumeri", "A", sul("lblNumero", 0, FontName), "Arial Narrow"},
        {"FontSizeNumeri", "VUW", sul("lblNumero3", 0, FontSize), "100"},
        {"FontSizeNumeri", "B", sul("lblNumero3", 0, FontSize), "160"},
        {"FontSizeNumeri", "ON", sul("lblNumero3", 0, FontSize), "72"},
        {"FontSizeNumeri", "A", sul("lblNumero", 0, FontSize), "100"},
        {"ColoreTesto0", "UWP", sul("lblNumero3", 0, ForeColor), "16777215"},
        {"ColoreTesto0", "B", sul("lblNumero3", 0, ForeColor), "0"},
        {"ColoreTesto0", "B", sul("lblChiamati", kNo, ForeColor), "16777215"},
        {"ColoreTesto0", "A", sul("lblCassa", 0, ForeColor), "16777215"},
        {"ColoreSfondo0", "UWB", sfumatura(0, &Controllo::Sfumatura1), "0"},
        {"ColoreSfondo0", "A", sfumatura(0, &Controllo::Sfumatura2), "65280"},
        {"ColoreNumeriTesto", "A", sul("lblNumero", 0, ForeColor), "0"},
        {"ColoreNumeriSfondo", "A", sul("picNumero", 0, BackColor), "16777215"},
        {"QuanteCasse", "A", [](Banco& b) { return inVista(b.board().controlli(), "picPannello", 5); }, "5"},
        {"NumeroLampeggi", "VONUWBPA", lampeggi, "20"},
        {"PubblicitaMirtolanda", "ONU",
         [](Banco& b) { return inVista(b.board().controlli(), "FraMirtolanda", 1); }, "0"},
        {"ResizePubblicita", "ONUB",
         [](Banco& b) {
             return std::to_string(b.board().controlli()("picPubblicita").Adatta() == Adattamento::Stirata);
         },
         "0"},
    };
    for (int q = 0; q < 4; ++q)
        tutti.push_back(
            {"Categoria" + std::to_string(q), "C",
             [q](Banco& b) { return std::to_string(b.stato.Categoria.at(static_cast<std::size_t>(q))); },
             "0"});
    for (int q = 0; q < 3; ++q) {
        const std::string cifra = std::to_string(q);
        tutti.push_back({"ColoreTesto" + cifra, "VON", sul("lblNumero3", q, ForeColor), "16777215"});
        tutti.push_back({"ColoreSfondo" + cifra, "V", sul("picPannello", q, BackColor), "0"});
        tutti.push_back({"ColoreSfondo" + cifra, "ON", sfumatura(q, &Controllo::Sfumatura1), "0"});
        tutti.push_back({"FontTesto" + cifra, "VON", sul("lblTitolo", q, FontName), "Arial Narrow"});
        tutti.push_back({"FontSizeTesto" + cifra, "VON", sul("lblTitolo", q, FontSize), "48"});
    }
    return tutti;
}

TEST_F(ImpostaTest, QuelCheSalvaLoLeggonoConsoleELumigrafi) {
    std::set<std::string> lette;
    std::ofstream(ambiente.file("pubblicita.jpg")) << "x"; // the big board stretches nothing without a picture
    const auto leggono = [&](const Postazione& p, const Valori& valori) {
        Banco b(cartella.percorso());
        b.tipoVero = true;
        b.caricata();
        EXPECT_EQ(b.tipoChiesto, p.videata);
        for (const Lettore& l : lettori()) {
            if (l.chi != "C" && l.chi.find(p.sigla) == std::string_view::npos)
                continue;
            const auto valore = valori.find(l.chiave);
            const std::string atteso = valore == valori.end()  ? l.senza
                                       : valore->second == "1" ? l.conUnaSpunta
                                                               : valore->second;
            EXPECT_EQ(l.vede(b), atteso) << l.chiave << " of board " << p.sigla;
            lette.insert(l.chiave);
        }
    };
    for (const Postazione& p : kPostazioni) {
        Valori valori = di(p);
        std::filesystem::remove(impostazioni.file());
        for (const auto& [chiave, valore] : valori)
            imposta(chiave.c_str(), valore);
        leggono(p, valori);

        valori.merge(altriValori());
        valori["BottoneAvanti"] = p.bottone;
        std::ofstream(impostazioni.file(), std::ios::binary) << salvato(valori);
        const auto i = apri();
        std::filesystem::remove(impostazioni.file());
        applica(*i);
        ASSERT_EQ(file(), salvato(valori));
        leggono(p, valori);
    }
    for (const Caso& c : kCasi)
        EXPECT_TRUE(lette.contains(c.chiave)) << "nobody reads " << c.chiave;
}

class NotificheFinte : public Notifiche {
    void mostra(const std::string& testo) override { ADD_FAILURE() << testo; }
};

TEST_F(ImpostaTest, ArchivioELumigrafiAndroidLeggonoLeLoroFinestre) {
    const CartellaTemporanea altrove;
    std::filesystem::copy(ambiente.file(kFileArchivio), altrove.percorso() / kFileArchivio);
    SceltaCartellaFinta nessuna;
    PercorsoArchivio percorso({ambiente, messaggi, processi, nessuna}, [] {});
    percorso.controlli()("txtPathDB").Caption(altrove.percorso().string());
    percorso.clic("cmdApplica", kNo);
    ImpoLumigrafoAndroid tablet(ambiente, nessuna, [] {});
    for (int i = 0; i < 3; ++i) {
        tablet.controlli()("txtIP", i).Caption("10.0.0." + std::to_string(i));
        tablet.controlli()("sldFont", i).Value(20 * i);
    }
    tablet.controlli()("txtPathPubblicita").Caption("\\\\Server\\Foto");
    tablet.controlli()("chkSoloAndroid").Value(1);
    tablet.clic("cmdApplica", kNo);
    for (const auto& [chiave, valore] : altriValori())
        imposta(chiave.c_str(), valore);
    imposta("BottoneAvanti", 0);
    applica(*apri());

    Banco b(cartella.percorso());
    b.caricata();
    EXPECT_EQ(b.stato.PathDB, altrove.percorso().string());
    EXPECT_TRUE(b.stato.SoloAndroid);
    ClienteTcpFinto rete{b.diario};
    NotificheFinte notifiche;
    for (int i = 0; i < 3; ++i)
        rete.host["10.0.0." + std::to_string(i)] = {};
    CollegamentoAndroid(b.impostazioni, b.dati, b.orologio, rete, notifiche).SincronizzaLumAndroid(-1);
    for (int i = 0; i < 3; ++i) {
        const std::string& spedito = rete.host["10.0.0." + std::to_string(i)].ricevuto;
        // The colours travel one place further down than the boards wear them.
        for (const char* parte :
             {"\"ServerDir\":\"\\\\\\\\server\\\\foto\"", "\"TitoloLumigrafo\":\"SERVIAMO IL\"",
              "\"BackColorCategoria1\":\"8388608\"", "\"ForeColorCategoria1\":\"65280\"",
              "\"BackColorCategoria2\":\"16777215\"", "\"ForeColorCategoria2\":\"0\"",
              "\"BackColorCategoria3\":\"0\"", "\"ForeColorCategoria3\":\"16777215\""})
            EXPECT_THAT(spedito, HasSubstr(parte));
        EXPECT_THAT(spedito, HasSubstr("\"FontNumeri\":" + std::to_string(20 * i)));
    }
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
