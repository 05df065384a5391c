// What goes wrong outside: a disk that fills up in the midst of a commit, a station that leaves the commit
// words alone, files that were cut short or whose maps are damaged.
#include "data/errori_dao.h"
#include "data/jet/dato.h"
#include "data/jet/mappa.h"
#include "data/verifica_archivio.h"
#include "tests/data/jet/archivio_jet.h"
#include "tests/sostegno/disco_pieno.h"

namespace lumigrafo::jet {
namespace {

TabellaNuova conDueIndici(const char* nome) {
    return {nome,
            {{"N", Tipo::Lungo}, {"M", Tipo::Lungo}, {"T", Tipo::Testo, 255}},
            {{.nome = "N", .colonne = {0}, .unico = true}, {.nome = "T", .colonne = {2}}}};
}

class JetGuasti : public ConArchivioJet {
protected:
    JetGuasti() : ConArchivioJet({conDueIndici("Prima"), conDueIndici("Seconda")}) {
        cambia([](Pagine& pagine) {
            aggiungi(pagine, "Prima", 1, 60);
            aggiungi(pagine, "Seconda", 1, 60);
        });
    }
    static void aggiungi(Pagine& pagine, const std::string& nome, int da, int fine) {
        Tabella t = tabella(pagine, nome);
        const auto& colonne = t.definizione().colonne;
        for (std::int64_t n = da; n <= fine; ++n)
            t.inserisci({scriviDato(colonne[0], n), scriviDato(colonne[1], std::int64_t{0}),
                         scriviDato(colonne[2], std::string(200, static_cast<char>('a' + n % 26)))});
    }
};

TEST_F(JetGuasti, DiscoPienoNelMezzoDiUnaScrittura) {
    const std::string prima = byte();
    Pagine pagine(file, {});
    aggiungi(pagine, "Prima", 61, 200);
    {
        const prova::DiscoPieno pieno(prima.size() + kPagina + 1000); // a page and a part of one go through
        EXPECT_EQ(guastoDi([&] { pagine.registra(); }), guasti::kDiscoPieno);
    }
    const std::string dopo = byte();
    EXPECT_EQ(dopo.size(), prima.size());
    EXPECT_EQ(dopo.substr(kPagina), prima.substr(kPagina));
    EXPECT_NE(dopo.substr(kParoleCommit, 4), prima.substr(kParoleCommit, 4)); // others must read again
    EXPECT_EQ(discordanze(), std::vector<std::string>());
    aggiungi(pagine, "Prima", 61, 200);
    pagine.registra();
    EXPECT_EQ(tabella(pagine, "Prima").righe().size(), 200u);
}

TEST_F(JetGuasti, UnaStazioneCheLasciaStareLeParole) {
    Pagine pagine(file, {});
    Tabella qui = tabella(pagine, "Prima");
    const Posizione riga = qui.righe().front().posizione;
    const std::string parole = byte().substr(0, kPagina);
    const auto cambia = [&](Tabella& t, std::size_t colonna, std::int64_t n) {
        t.aggiorna(riga, {{colonna, scriviDato(t.definizione().colonne[colonna], n)}});
        t.pagine().registra();
    };
    {
        Pagine altrove(file, {});
        Tabella la = tabella(altrove, "Prima");
        cambia(la, 1, 77);
    }
    std::fstream(file, std::ios::in | std::ios::out | std::ios::binary) << parole;
    cambia(qui, 0, 1000);
    const Campi campi = Riga(qui.definizione(), qui.riga(riga)->byte).campi();
    EXPECT_EQ(campi[0], scriviDato(qui.definizione().colonne[0], std::int64_t{1000}));
    EXPECT_EQ(campi[1], scriviDato(qui.definizione().colonne[1], std::int64_t{77}));
}

TEST_F(JetGuasti, ChiRegistraVedeQuelCheGliAltriHannoRegistratoIntanto) {
    Pagine qui(file, {});
    Tabella seconda = tabella(qui, "Seconda");
    aggiungi(qui, "Prima", 61, 61);
    EXPECT_EQ(seconda.righe().size(), 60u);
    {
        Pagine altrove(file, {});
        Tabella la = tabella(altrove, "Seconda");
        la.aggiorna(la.righe().front().posizione,
                    {{1, scriviDato(la.definizione().colonne[1], std::int64_t{77})}});
        altrove.registra();
    }
    qui.registra();
    const auto prima = seconda.righe().front();
    EXPECT_EQ(Riga(seconda.definizione(), prima.riga.byte).campi()[1],
              scriviDato(seconda.definizione().colonne[1], std::int64_t{77}));
}

TEST_F(JetGuasti, UnFileSostituitoMentreEInUsoNonSiUsaPiu) {
    for (const char* estensione : {".mdb", ".ldb"}) {
        Pagine pagine(file, {});
        Tabella t = tabella(pagine, "Prima");
        auto sostituito = file;
        sostituito.replace_extension(estensione);
        const auto copia = cartella.percorso() / "copia";
        std::filesystem::copy_file(sostituito, copia);
        std::filesystem::rename(copia, sostituito);
        EXPECT_EQ(guastoDi([&] { t.elimina(Posizione{}); }), dao::kDisco) << estensione;
    }
}

TEST_F(JetGuasti, UnFileTroncatoFraDuePagineNonPerdeRigheInSilenzio) {
    const std::string intero = byte();
    std::uint32_t ultima = 0;
    {
        Pagine pagine(file, {.sola_lettura = true});
        ultima = Mappa(pagine, tabella(pagine, "Seconda").definizione().possedute).tutte().back();
    }
    std::filesystem::resize_file(file, std::size_t{ultima} * kPagina);
    Pagine pagine(file, {.attesa = std::chrono::milliseconds(0)});
    EXPECT_EQ(guastoDi([&] { (void)tabella(pagine, "Seconda").righe(); }), dao::kDanneggiato);
    EXPECT_FALSE(verifica(pagine).discordanze.empty());
}

TEST_F(JetGuasti, QuelCheRestaDiUnFileDannoso) {
    std::uint32_t pagina = 0;
    {
        Pagine pagine(file, {.sola_lettura = true});
        pagina = Mappa(pagine, tabella(pagine, "Seconda").definizione().possedute).tutte().back();
    }
    std::string dannoso = byte();
    dannoso.replace(std::size_t{pagina} * kPagina, kPagina, kPagina, '\0');
    std::ofstream(file, std::ios::binary) << dannoso << "a page half written";
    EXPECT_EQ(guastoDi([&] { (void)verificaArchivio(file); }), dao::kDanneggiato);
    const auto copia = cartella.percorso() / "prima.mdb";
    EXPECT_EQ(riparaArchivio(file, copia).front(), "Tagliata l'ultima pagina, scritta a metà.");
    EXPECT_EQ(discordanze(), std::vector<std::string>());
    EXPECT_EQ(tabella(*std::make_unique<Pagine>(file, Pagine::Apertura{}), "Prima").righe().size(), 60u);
    // Without its catalog nothing can be told of the tables.
    dannoso.replace(2 * kPagina, kPagina, kPagina, '\0');
    std::ofstream(file, std::ios::binary) << dannoso << "a page half written";
    const std::string prima = byte();
    const auto [numero, testo] = prova::fallimento([&] { (void)riparaArchivio(file, copia); });
    EXPECT_EQ(numero, dao::kDanneggiato);
    EXPECT_EQ(byte(), prima); // also the half page, which may be all that is left of a row
    EXPECT_TRUE(testo.ends_with("Non si può riparare: va ripresa una copia.")) << testo;
}

TEST_F(JetGuasti, RiparareUnaMappaDannosaNonToccaLeTabelleAltrui) {
    cambia([](Pagine& pagine) {
        const Definizione prima = tabella(pagine, "Prima").definizione();
        const Definizione seconda = tabella(pagine, "Seconda").definizione();
        pagine.cambia([&] {
            // Its index claims the other's rows and its own other index, and has lost its entries.
            Mappa mappa(pagine, prima.indici[1].mappa);
            for (const Posizione altrui : {seconda.possedute, prima.indici[0].mappa})
                for (const std::uint32_t p : Mappa(pagine, altrui).tutte())
                    mappa.aggiungi(p);
            pagine.modifica(prima.indici[1].radice).scrivi16(24, 900);
            return true;
        });
    });
    // The copy is of the damaged file, also when there is nothing left to mend.
    const auto copia = cartella.percorso() / "prima.mdb";
    EXPECT_FALSE(riparaArchivio(file, copia).empty());
    EXPECT_TRUE(riparaArchivio(file, copia).empty());
    EXPECT_FALSE(verificaArchivio(copia).discordanze.empty());
    EXPECT_EQ(discordanze(), std::vector<std::string>());
    Pagine pagine(file, {});
    for (const char* nome : {"Prima", "Seconda"})
        EXPECT_EQ(tabella(pagine, nome).righe().size(), 60u);
}

} // namespace
} // namespace lumigrafo::jet
