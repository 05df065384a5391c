// What surrounds the rows: rules of a table's design, tables that can't be used or that others keep for
// themselves, and a file that outgrows its map of free pages.
#include "data/dao.h"
#include "data/jet/dato.h"
#include "data/jet/spazio.h"
#include "data/jet/testo.h"
#include "data/schema.h"
#include "platform/file_condiviso.h"
#include "tests/data/jet/archivio_jet.h"
#include "tests/data/jet/esporta.h"
#include "tests/sostegno/archivio_prova.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace lumigrafo::jet {
namespace {

/// An archive with the program's own tables.
class JetTabelle : public ConArchivioJet {
protected:
    JetTabelle() {
        std::filesystem::remove(file);
        creaArchivio(file, Formato::Access);
    }
    /// Number and text of the failure.
    template <typename Azione>
    static std::string testoDi(Azione&& azione) {
        const auto [numero, testo] = prova::fallimento(azione);
        return std::to_string(numero) + ' ' + testo;
    }

    Workspace ws{std::chrono::milliseconds(60)};
};

TEST_F(JetTabelle, PredefinitiECampiRichiesti) {
    cambia([](Pagine& pagine) {
        creaTabella(pagine, {"Regole",
                             {{"Nome", Tipo::Testo, 20, false, R"("senza ""nome""")"},
                              {"Obbligo", Tipo::Lungo, 0, false, "", true},
                              {"Si", Tipo::Booleano, 0, false, "Yes"},
                              {"N", Tipo::Intero, 0, false, "=-1.5e1"},
                              {"Calcolo", Tipo::Intero, 0, false, "=Len(\"x\")"},
                              {"Troppo", Tipo::Intero, 0, false, "70000"}},
                             {}});
    });
    EXPECT_EQ(discordanze(), std::vector<std::string>());
    const auto db = ws.OpenDatabase(file.string());
    EXPECT_EQ(guastoDi([&] { db->Execute("Insert into Regole (Nome) values ('x')"); }), dao::kCampoRichiesto);
    db->Execute("Insert into Regole (Obbligo) values (1)");
    EXPECT_EQ(guastoDi([&] { db->Execute("Update Regole set Obbligo = Null"); }), dao::kCampoRichiesto);
    const auto rs = db->OpenRecordset("Regole");
    ASSERT_EQ(rs->RecordCount(), 1);
    const auto valore = [&](const char* nome) { return rs->Fields()[nome].Value(); };
    EXPECT_EQ(valore("Nome").aTesto(), "senza \"nome\"");
    EXPECT_EQ(valore("Si").aIntero16(), -1);
    EXPECT_EQ(valore("N").aIntero16(), -15);
    EXPECT_TRUE(valore("Calcolo").nullo() && valore("Troppo").nullo());
}

TEST_F(JetTabelle, UnaRigaInteraValeComeICampiUnoPerUno) {
    cambia([](Pagine& pagine) {
        creaTabella(pagine, {"Tipi",
                             {{"Breve", Tipo::Testo, 20},
                              {"N", Tipo::Lungo},
                              {"B", Tipo::Byte},
                              {"I", Tipo::Intero},
                              {"Prezzo", Tipo::Valuta},
                              {"D", Tipo::Doppio},
                              {"Si", Tipo::Booleano},
                              {"Lungo", Tipo::Testo, 100}},
                             {}});
    });
    const auto db = ws.OpenDatabase(file.string());
    db->Execute("Insert into Tipi values ('', 3, 255, -32768, -0.5, 1e300, True, 'prima riga')");
    db->Execute("Insert into Tipi (N, Lungo) values (1, 'perché no?')");
    db->Execute("Insert into Tipi values ('b', 2, 0, 32767, 12, -1.25, False, Null)");
    const std::string nomi = prova::perNome(*db, "Tipi");
    // By a column whose keys SQLite doesn't take as they are; by the place in the list; with a condition.
    for (const char* resto : {"", " Order by D", " Order by 2", " Order by Lungo Desc, N",
                              " Where N > 1 Order by N", " Where Breve = 'B'"})
        EXPECT_EQ(prova::valori(*db, std::string("Select * from Tipi") + resto),
                  prova::valori(*db, nomi + resto))
            << resto;
    EXPECT_EQ(prova::valori(*db, "Select * from Tipi Order by 2")[0],
              (std::vector<Valore>{{}, 1, {}, {}, {}, {}, false, "perché no?"}));
    EXPECT_EQ(prova::valori(*db, "Select Lungo, N from Tipi")[0], (std::vector<Valore>{"prima riga", 3}));
    const auto rs = db->OpenRecordset("Select * from Tipi Order by N");
    rs->FindFirst("N = 2"); // a row read anew among whole ones
    rs->Edit();
    rs->Fields()["Lungo"].Value("nuovo");
    rs->Update();
    EXPECT_EQ(rs->Fields()["Lungo"].Value(), "nuovo");
    rs->MoveNext();
    EXPECT_EQ(rs->Fields()["Lungo"].Value(), "prima riga");
}

TEST_F(JetTabelle, UnaColonnaPuoChiamarsiComeQuellaNascosta) {
    cambia([](Pagine& pagine) {
        creaTabella(pagine, {"Tipi", {{"N", Tipo::Lungo}, {"Riga!", Tipo::Lungo}}, {}});
    });
    const auto sqlite = cartella.percorso() / "altro.mdb";
    creaArchivio(sqlite, Formato::Sqlite);
    prova::ArchivioProva(sqlite).esegui("CREATE TABLE Tipi (N INTEGER, \"riga!\" INTEGER)");
    for (const auto& archivio : {file, sqlite}) {
        const auto db = ws.OpenDatabase(archivio.string());
        db->Execute("Insert into Tipi values (1, 2)");
        EXPECT_EQ(prova::valori(*db, "Tipi"), (std::vector<std::vector<Valore>>{{1, 2}})) << archivio;
    }
}

TEST_F(JetTabelle, QuelleInservibiliNonFermanoLeAltre) {
    const std::uint32_t numero = definizioneDi("Numero");
    cambia([&](Pagine& pagine) {
        Tabella catalogo(pagine, kPaginaCatalogo);
        const Definizione& d = catalogo.definizione();
        Campi campi(d.colonne.size());
        const auto metti = [&](const char* nome, const Dato& dato) {
            campi[*d.cerca(nome)] = scriviDato(d.colonne[*d.cerca(nome)], dato);
        };
        metti("Id", std::int64_t{12345});
        metti("ParentId", std::int64_t{1});
        metti("Name", "Altrui");
        metti("Type", std::int64_t{6});
        const std::string dove = scriviTesto("Z:\\casse.mdb", false);
        std::string memo = {static_cast<char>(dove.size()), '\0', '\0', '\x80'};
        memo.resize(12, '\0');
        campi[*d.cerca("Database")] = memo + dove;
        catalogo.inserisci(campi);
        pagine.cambia([&] {
            pagine.modifica(numero).scrivi16(45, 300); // columns
            return true;
        });
    });
    const auto db = ws.OpenDatabase(file.string());
    const std::string collegata = testoDi([&] { (void)db->OpenRecordset("altrui"); });
    EXPECT_TRUE(collegata.starts_with("3078 ") && collegata.find("'Z:\\casse.mdb'") != collegata.npos)
        << collegata;
    const std::string guasta = testoDi([&] { db->Execute("Update Numero set Numero = 1"); });
    EXPECT_TRUE(guasta.starts_with("3049 La tabella 'Numero' ")) << guasta;
    EXPECT_EQ(db->Execute("Insert into Categorie (Codice) values (4)"), 1);
    EXPECT_EQ(guastoDi([&] { (void)db->OpenRecordset("Nessuna"); }), dao::kTabellaMancante);
}

TEST_F(JetTabelle, ConColonneCambiateDaAltriNonSiUsanoPiu) {
    const auto db = ws.OpenDatabase(file.string());
    const auto rs = db->OpenRecordset("Numero");
    {
        Pagine altra(file, {});
        const std::uint32_t numero = definizioneDi(altra, "Numero");
        altra.cambia([&] {
            auto& byte = altra.modifica(numero).byte;
            const std::string_view nome("N\0u\0m\0e\0r\0o\0", 12);
            *std::search(byte.begin(), byte.end(), nome.begin(), nome.end()) = 'M';
            return true;
        });
        altra.registra();
    }
    for (int volta = 0; volta < 2; ++volta) { // each time, not the first time alone
        EXPECT_EQ(guastoDi([&] { (void)db->OpenRecordset("Numero"); }), dao::kOggettoNonValido);
        EXPECT_EQ(guastoDi([&] { db->Execute("Update Numero set Numero = 5"); }), dao::kOggettoNonValido);
    }
    EXPECT_EQ(ws.OpenDatabase(file.string())->OpenRecordset("Numero")->Fields()["Mumero"].Value(), 0);
}

TEST_F(JetTabelle, StannoAperteSottoGliOcchiDelleAltreStazioni) {
    const std::uint64_t passo = 0x200 * std::uint64_t{definizioneDi("Categorie")};
    const auto db = ws.OpenDatabase(file.string());
    auto ldb = file;
    FileCondiviso altra(ldb.replace_extension(".ldb"), FileCondiviso::Modo::Scrittura);
    const std::string nome = "CASSA7";
    altra.scrivi(6 * 64, {reinterpret_cast<const std::uint8_t*>(nome.c_str()), nome.size() + 1});
    const FileCondiviso::Intervallo tutta{0x40000000 + passo + 1, 0x100 + 7};
    const FileCondiviso::Intervallo nonScrivere{0x60000000 + passo + 7, 1};
    using enum FileCondiviso::Esito;

    ASSERT_EQ(altra.blocca(tutta, true), Preso);
    const std::string letta = testoDi([&] { (void)db->OpenRecordset("Categorie"); });
    EXPECT_TRUE(letta.starts_with("3187 ") && letta.find("'CASSA7'") != letta.npos) << letta;
    EXPECT_EQ(db->OpenRecordset("Numero")->RecordCount(), 1);
    altra.sblocca(tutta);
    EXPECT_EQ(db->OpenRecordset("Categorie")->RecordCount(), 0);
    EXPECT_EQ(altra.blocca(tutta, true), Occupato); // it is being read

    const auto inserisci = [&] { db->Execute("Insert into Categorie (Codice) values (1)"); };
    ASSERT_EQ(altra.blocca(nonScrivere, false), Preso);
    const std::string scritta = testoDi(inserisci);
    EXPECT_TRUE(scritta.starts_with("3186 ") && scritta.find("'CASSA7'") != scritta.npos) << scritta;
    altra.sblocca(nonScrivere);
    EXPECT_EQ(guastoDi(inserisci), 0);
}

TEST_F(JetTabelle, LaMappaDellePagineLibereSuperaLaSuaRiga) {
    constexpr std::uint32_t kPrima = 32500, kNuove = 400; // the row holds about 31,000, a bitmap page 32,736
    cambia([](Pagine& pagine) { // what its map calls free behind the file's end is about to lie inside
        pagine.cambia([&] {
            for (std::uint32_t p = pagine.quante(); p < 512; ++p)
                mappaGlobale(pagine).togli(p);
            return true;
        });
    });
    std::filesystem::resize_file(file, std::uintmax_t{kPrima} * kPagina);
    std::set<std::uint32_t> mie;
    const auto prendi = [&](std::uint32_t quante) {
        cambia([&](Pagine& pagine) {
            pagine.cambia([&] {
                for (std::uint32_t i = 0; i < quante; ++i)
                    EXPECT_TRUE(mie.insert(allocaPagina(pagine)).second);
                return true;
            });
        });
    };
    prendi(kNuove);
    EXPECT_EQ(*mie.begin(), kPrima);
    cambia([&](Pagine& pagine) {
        const Mappa libere = mappaGlobale(pagine);
        EXPECT_TRUE(libere.tutte().empty());
        ASSERT_EQ(libere.pagineDiBit().size(), 2U);
        for (const std::uint32_t p : libere.pagineDiBit())
            EXPECT_FALSE(mie.contains(p));
        EXPECT_EQ(pagine.quante(), kPrima + kNuove + 2);
        pagine.cambia([&] {
            for (const std::uint32_t p : mie)
                liberaPagina(pagine, p);
            return true;
        });
        EXPECT_EQ(libere.tutte(), std::vector<std::uint32_t>(mie.begin(), mie.end()));
    });
    EXPECT_EQ(discordanze(), std::vector<std::string>());
    const auto prima = std::exchange(mie, {});
    prendi(kNuove); // what was given back is used again
    EXPECT_EQ(mie, prima);
}

} // namespace
} // namespace lumigrafo::jet
