#include "links/collegamento_android.h"
#include "platform/finti/cliente_tcp_finto.h"
#include "platform/finti/scelta_cartella_finta.h"
#include "settings/impo_lumigrafo_android.h"
#include "settings/percorso_archivio.h"
#include "tests/settings/banco_imposta.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>

namespace lumigrafo::prova {
namespace {

using testing::HasSubstr;

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

using LettoriTest = ImpostaTest;

TEST_F(LettoriTest, QuelCheSalvaLoLeggonoConsoleELumigrafi) {
    std::set<std::string> lette;
    std::ofstream(ambiente.file("pubblicita.jpg"))
        << "x"; // the big board stretches nothing without a picture
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

TEST_F(LettoriTest, ArchivioELumigrafiAndroidLeggonoLeLoroFinestre) {
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

} // namespace
} // namespace lumigrafo::prova
