// Changing: random work beside a model in memory, and what a station leaves behind that died while it wrote.
#include "data/errori_dao.h"
#include "data/jet/dato.h"
#include "data/jet/ripara.h"
#include "data/jet/testo.h"
#include "tests/data/jet/archivio_jet.h"
#include "tests/data/jet/esporta.h"
#include "tests/sostegno/durata.h"

#include <map>
#include <random>

namespace lumigrafo::jet {
namespace {

const TabellaNuova kSchemi[] = {
    {"Contatore",
     {{"ID", Tipo::Lungo, 0, true},
      {"Nome", Tipo::Testo, 50},
      {"Quando", Tipo::Data},
      {"Fatto", Tipo::Booleano}},
     {{.nome = "PrimaryKey", .colonne = {0}, .primaria = true},
      {.nome = "Nome", .colonne = {1, 3}},
      {.nome = "Quando", .colonne = {2}, .ignoraNulli = true}}},
    {"Lunghi",
     {{"Testo", Tipo::Testo, 255}, {"Altro", Tipo::Testo, 255}, {"N", Tipo::Intero}},
     {{.nome = "Testo", .colonne = {0}}, {.nome = "Due", .colonne = {1, 0}, .unico = true}}},
    {"Numeri",
     {{"A", Tipo::Intero},
      {"B", Tipo::Valuta},
      {"C", Tipo::Doppio},
      {"D", Tipo::Byte},
      {"E", Tipo::Testo, 2}},
     {{.nome = "Unico", .colonne = {0, 3}, .unico = true},
      {.nome = "B", .colonne = {1}},
      {.nome = "Vario", .colonne = {4, 2, 1}}}},
};

/// Works at random on one table and knows what must be in it.
class Lavoro {
public:
    Lavoro(Tabella tabella, unsigned seme)
        : pagine_(tabella.pagine()), tabella_(std::move(tabella)), caso_(seme) {}

    /// One insert, update or delete; `crescita` of ten are inserts.
    void passo(unsigned crescita) {
        try {
            if (modello_.empty() || caso_() % 10 < crescita)
                inserisci();
            else if (caso_() % 2)
                aggiorna();
            else
                elimina();
        } catch (const Guasto& guasto) {
            ASSERT_TRUE(guasto.numero() == dao::kDuplicato || guasto.numero() == dao::kRigaLunga)
                << guasto.descrizione();
        }
        if (caso_() % 40 == 0)
            pagine_.registra();
    }
    void passi(int quanti, unsigned crescita) {
        for (; quanti > 0; --quanti)
            passo(crescita);
    }
    void elimina() {
        auto riga = qualunque();
        tabella_.elimina(riga->first);
        modello_.erase(riga);
    }
    [[nodiscard]] std::size_t righe() const { return modello_.size(); }
    void controlla() {
        std::map<Posizione, Campi> trovate;
        for (const RigaTrovata& r : tabella_.righe())
            trovate[r.posizione] = Riga(tabella_.definizione(), r.riga.byte).campi();
        EXPECT_EQ(trovate, modello_);
    }

private:
    std::map<Posizione, Campi>::iterator qualunque() {
        const auto r =
            modello_.lower_bound(Posizione::da(static_cast<std::uint32_t>(caso_() % pagine_.quante()) << 8));
        return r == modello_.end() ? modello_.begin() : r;
    }
    std::optional<std::string> valore(const Colonna& c) {
        if (caso_() % 12 == 0)
            return std::nullopt;
        switch (c.tipo) {
        case Tipo::Testo: {
            static const char* const kPezzi[] = {"a", "B",  "é", "o'", "-", "zu",
                                                 "Q", "ss", "ß", "9",  " ", "€"};
            std::string t;
            // Some texts are long, and many begin alike: pages with a common prefix, rows that move.
            for (std::size_t n = caso_() % 5 == 0 ? c.lunghezza / 4 : 4; n > 0; --n)
                t += n > 4 ? "lunga" + std::string(n % 3, 'x') : kPezzi[caso_() % std::size(kPezzi)];
            const std::size_t massimi = c.lunghezza / 2u;
            while (aUtf16(t).size() > massimi)
                t = aUtf8(aUtf16(t).substr(0, massimi));
            return scriviDato(c, t);
        }
        case Tipo::Booleano:
            return caso_() % 2 ? std::optional(std::string()) : std::nullopt;
        case Tipo::Byte:
            return scriviDato(c, std::int64_t(caso_() % 256));
        case Tipo::Data:
            return scriviDato(c, 46000 + static_cast<double>(caso_() % 100000) / 1000);
        default:
            return scriviDato(c, static_cast<double>(caso_() % 20000) - 10000);
        }
    }
    void inserisci() {
        Campi campi;
        for (const Colonna& c : tabella_.definizione().colonne)
            campi.push_back(c.contatore ? std::nullopt : valore(c));
        const Posizione p = tabella_.inserisci(campi);
        const auto letta = tabella_.riga(p);
        modello_[p] = Riga(tabella_.definizione(), letta.value().byte).campi();
        for (std::size_t i = 0; i < campi.size(); ++i)
            if (!tabella_.definizione().colonne[i].contatore) {
                EXPECT_EQ(modello_[p][i], campi[i]);
            }
    }
    void aggiorna() {
        const auto riga = qualunque();
        Campi campi = riga->second;
        Tabella::Modifiche modifiche;
        for (std::size_t i = 0; i < campi.size(); ++i)
            if (!tabella_.definizione().colonne[i].contatore && caso_() % 2) {
                campi[i] = valore(tabella_.definizione().colonne[i]);
                modifiche.emplace_back(i, campi[i]);
            }
        tabella_.aggiorna(riga->first, modifiche);
        riga->second = campi;
    }

    Pagine& pagine_;
    Tabella tabella_;
    std::mt19937 caso_;
    std::map<Posizione, Campi> modello_;
};

class JetModifica : public ConArchivioJet, public ::testing::WithParamInterface<std::size_t> {
protected:
    JetModifica() : ConArchivioJet({kSchemi[GetParam()]}, true) {}
    Lavoro lavoro(Pagine& pagine, unsigned seme) const { return {tabella(pagine, nome), seme}; }

    const std::string nome = kSchemi[GetParam()].nome;
};
INSTANTIATE_TEST_SUITE_P(Schemi, JetModifica, ::testing::Range<std::size_t>(0, std::size(kSchemi)),
                         [](const auto& quale) { return kSchemi[quale.param].nome; });

TEST_P(JetModifica, ACasoAccantoAUnModello) {
    Pagine pagine(file, {});
    Lavoro aCaso = lavoro(pagine, 17);
    const auto n = static_cast<unsigned>(prova::giri(1500)); // LUMIGRAFO_GIRI=100000 for a long run
    for (unsigned k = 1; k <= n && !HasFatalFailure(); ++k) {
        aCaso.passo(k < n / 2 ? 7 : 3);
        if (k % 1000 != 0 && k != n)
            continue;
        pagine.registra();
        aCaso.controlla();
        ASSERT_EQ(discordanze(), std::vector<std::string>()) << k;
        if (const std::string righe = prova::mdbExport(file.string(), nome); !righe.empty()) {
            ASSERT_EQ(prova::righeOrdinate(prova::esporta(pagine, nome)), prova::righeOrdinate(righe)) << k;
        }
    }
    while (aCaso.righe() > 0)
        aCaso.elimina();
    pagine.registra();
    aCaso.controlla();
    EXPECT_EQ(discordanze(), std::vector<std::string>());
}

TEST_P(JetModifica, LAnnullamentoNonLasciaTraccia) {
    Pagine pagine(file, {});
    Lavoro prima = lavoro(pagine, 5);
    prima.passi(60, 10);
    const auto segno = pagine.segno();
    const auto toglie = [&](unsigned seme) { // no commit among its steps
        Tabella t = tabella(pagine, nome);
        std::mt19937 caso(seme);
        for (const RigaTrovata& r : t.righe())
            if (caso() % 2)
                t.elimina(r.posizione);
    };
    toglie(1);
    pagine.tornaA(segno);
    prima.controlla();
    toglie(2);
    pagine.tornaA(segno);
    pagine.registra();
    prima.controlla();
    EXPECT_EQ(discordanze(), std::vector<std::string>());
    const std::string byteRegistrati = byte();
    toglie(3);
    pagine.abbandona();
    EXPECT_EQ(byte(), byteRegistrati);
}

TEST_P(JetModifica, UnaScritturaAMetaSiRipara) {
    std::mt19937 caso(3);
    const auto dopoAltri = [&](unsigned seme, int passi, unsigned crescita) {
        Pagine pagine(file, {});
        lavoro(pagine, seme).passi(passi, crescita);
        pagine.registra();
        return byte();
    };
    const std::string prima = dopoAltri(8, 150, 6);
    const std::string dopo = dopoAltri(9, 38, 10); // one transaction for the most part
    int discordi = 0;
    for (int prova = 0; prova < 12; ++prova) {
        std::string meta = prima;
        meta.resize(dopo.size()); // the new end is written first
        for (std::size_t p = 1; p < dopo.size() / kPagina; ++p)
            if (p * kPagina >= prima.size() || caso() % 2)
                meta.replace(p * kPagina, kPagina, dopo, p * kPagina, kPagina);
        meta.replace(kParoleCommit + 2 * 7, 2, 2, '\0'); // of a station that is gone
        std::ofstream(file, std::ios::binary) << meta;
        discordi += discordanze().size() > 1 ? 1 : 0;
        {
            Pagine pagine(file, {});
            EXPECT_FALSE(ripara(pagine).empty());
        }
        EXPECT_EQ(discordanze(), std::vector<std::string>());
        Pagine pagine(file, {});
        lavoro(pagine, 10).passo(10); // it can be worked on
    }
    EXPECT_GT(discordi, 0);
}

using JetVincoli = ConArchivioJet;

TEST_F(JetVincoli, ChiaviTroppoLungheENulliRichiesti) {
    Pagine pagine(file, {.da_soli = true});
    creaTabella(pagine, {"Righe",
                         {{"A", Tipo::Testo, 255}, {"B", Tipo::Testo, 255}, {"N", Tipo::Lungo}},
                         {{.nome = "Testi", .colonne = {0, 1}},
                          {.nome = "N", .colonne = {2}, .richiesto = true, .ignoraNulli = true}}});
    Tabella righe = tabella(pagine, "Righe");
    const auto& colonne = righe.definizione().colonne;
    const auto inserisce = [&](const std::string& a, const std::string& b, const Dato& n) {
        return guastoDi([&] {
            righe.inserisci(
                {scriviDato(colonne[0], a), scriviDato(colonne[1], b), scriviDato(colonne[2], n)});
        });
    };
    // A hyphen takes four bytes of a key, a letter one.
    const std::string trattini(255, '-'), lettere(255, 'x');
    EXPECT_EQ(inserisce("a", "b", {}), dao::kCampoRichiesto);
    EXPECT_EQ(inserisce(trattini, trattini, std::int64_t{1}), dao::kRigaLunga);
    for (int k = 0; k < 20; ++k) {
        EXPECT_EQ(inserisce(trattini, std::string(40, '-'), std::int64_t{k}), 0);
        EXPECT_EQ(inserisce(lettere, lettere, std::int64_t{k}), 0);
        EXPECT_EQ(inserisce("", std::string(static_cast<std::size_t>(10 * k), '-'), std::int64_t{k}), 0);
    }
    EXPECT_EQ(verifica(pagine).discordanze, std::vector<std::string>());
}

TEST_F(JetVincoli, UnaChiaveNuovaInFondoAUnAlberoCheHaPersoLaCoda) {
    Pagine pagine(file, {.da_soli = true});
    creaTabella(pagine, {"Righe", {{"N", Tipo::Lungo}}, {{.nome = "N", .colonne = {0}, .unico = true}}});
    Tabella righe = tabella(pagine, "Righe");
    const auto inserisce = [&](std::int64_t n) {
        return righe.inserisci({scriviDato(righe.definizione().colonne[0], n)});
    };
    std::vector<Posizione> posizioni;
    for (int n = 0; n < 1500; ++n)
        posizioni.push_back(inserisce(n));
    for (std::size_t n = 300; n < posizioni.size(); ++n)
        righe.elimina(posizioni[n]);
    for (const std::int64_t n : {5000, 6000})
        inserisce(n);
    EXPECT_EQ(verifica(pagine).discordanze, std::vector<std::string>());
}

} // namespace
} // namespace lumigrafo::jet
