#include "tests/settings/banco_imposta.h"

#include <algorithm>
#include <set>

namespace lumigrafo::prova {
namespace {

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
    Valori scritti{{"TipoLumigrafo", p.tipo}, {"Lumigrafo9Numeri", p.nove}};
    for (int q = 0; q < 4; ++q)
        scritti["Categoria" + std::to_string(q)] = p.categorie.at(static_cast<std::size_t>(q));
    return scritti;
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
        // What each board makes of its font, and the big one of its colours, the boards' own tests tell.
        {"FontNumeri", "VUW", sul("lblNumero3", 0, FontName), "Arial Narrow"},
        {"FontSizeNumeri", "VUW", sul("lblNumero3", 0, FontSize), "100"},
        {"ColoreTesto0", "UWP", sul("lblNumero3", 0, ForeColor), "16777215"},
        {"ColoreTesto0", "A", sul("lblCassa", 0, ForeColor), "16777215"},
        {"ColoreSfondo0", "UW", sfumatura(0, &Controllo::Sfumatura1), "0"},
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
        for (const char* scritta : {"lblNumero3", "lblTitolo"})
            tutti.push_back({"ColoreTesto" + cifra, "VON", sul(scritta, q, ForeColor), "16777215"});
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
    // The big board stretches nothing without a picture.
    std::ofstream(ambiente.file("pubblicita.jpg")) << "x";
    const auto leggono = [&](const Postazione& p, const Valori& scritti) {
        Banco b(cartella.percorso());
        b.tipoVero = true;
        b.caricata();
        EXPECT_EQ(b.tipoChiesto, p.videata);
        for (const Lettore& l : lettori()) {
            if (l.chi != "C" && l.chi.find(p.sigla) == std::string_view::npos)
                continue;
            const auto valore = scritti.find(l.chiave);
            const std::string scritto = valore == scritti.end() ? l.senza : valore->second;
            EXPECT_EQ(l.vede(b), scritto == "1" ? l.conUnaSpunta : scritto)
                << l.chiave << " of board " << p.sigla;
            lette.insert(l.chiave);
        }
    };
    for (const Postazione& p : kPostazioni) {
        Valori scritti = di(p);
        std::filesystem::remove(impostazioni.file());
        for (const auto& [chiave, valore] : scritti)
            imposta(chiave.c_str(), valore);
        leggono(p, scritti);

        scritti.merge(valori(&Caso::altro));
        scritti["BottoneAvanti"] = p.bottone;
        std::ofstream(impostazioni.file(), std::ios::binary) << salvato(scritti);
        const auto i = apri();
        std::filesystem::remove(impostazioni.file());
        applica(*i);
        ASSERT_EQ(file(), salvato(scritti));
        leggono(p, scritti);
    }
    for (const Caso& c : kCasi)
        EXPECT_TRUE(lette.contains(c.chiave)) << "nobody reads " << c.chiave;
}

} // namespace
} // namespace lumigrafo::prova
