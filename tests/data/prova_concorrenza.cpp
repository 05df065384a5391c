// What two stations do to each other, with two real processes.
#include "platform/computer.h"
#include "platform/file_condiviso.h"
#include "tests/data/con_archivio.h"
#include "tests/data/stazione.h"

namespace lumigrafo {
namespace {

using namespace std::chrono_literals;
using prova::Stazione;

constexpr auto kAttesa = 150ms;

class Concorrenza : public ConArchivio {
protected:
    Concorrenza() : ConArchivio(kAttesa) { archivio.ordine("A", 12, {{1, 3}, {2, 1}}); }
    std::string pezzi() { return archivio.leggi("SELECT Pezzi1 FROM Lumigrafo"); }
    /// The station does all of this, one line after the other.
    static void fa(Stazione& stazione, std::initializer_list<std::string> righe) {
        for (const std::string& riga : righe)
            ASSERT_EQ(stazione(riga), "fatto") << riga;
    }

    Stazione altra;
    const std::string apri = "apri " + file.string();
};

TEST_F(Concorrenza, UnaRigaInModificaFermaGliAltriPerUnTempoLimitato) {
    const auto rs = db->OpenRecordset("Lumigrafo");
    fa(altra, {apri, "edit Numero = 12"});

    const auto inizio = std::chrono::steady_clock::now();
    EXPECT_EQ(guastoDi([&] { rs->Edit(); }), 3218);
    EXPECT_GE(std::chrono::steady_clock::now() - inizio, kAttesa);
    EXPECT_EQ(guastoDi([&] { rs->Delete(); }), 3218);
    EXPECT_EQ(guastoDi([&] { db->Execute("Delete * from Lumigrafo"); }), 3218);
    const bool pagina = prova::archiviAccess(); // the lock is one page's, else the whole file's
    if (!pagina) {
        EXPECT_EQ(guastoDi([&] { ws.BeginTrans(); }), 3218);
    }
    rs->AddNew();
    rs->Fields()["Numero"].Value(13);
    if (!pagina) {
        EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3186);
    }
    EXPECT_EQ(db->OpenRecordset("Lumigrafo")->RecordCount(), 1); // reading goes on

    fa(altra, {"pezzi 40", "update"});
    rs->Update(); // the new row was kept ready
    rs->MoveFirst();
    rs->Edit();
    EXPECT_EQ(rs->Fields()["Pezzi1"].Value().aIntero16(), 40);
    rs->CancelUpdate();
    EXPECT_EQ(archivio.coda(), "13 A12");
}

TEST_F(Concorrenza, ChiAttendeProsegueQuandoLaRigaSiLibera) {
    const auto rs = db->OpenRecordset("Lumigrafo");
    rs->Edit();
    fa(altra, {apri});
    altra.manda("edit Numero = 12"); // it waits for us
    rs->Fields()["Pezzi1"].Value(9);
    rs->Update();
    EXPECT_EQ(altra.risposta(), "fatto");
    EXPECT_EQ(altra("annulla"), "fatto");
    EXPECT_EQ(pezzi(), "9");
}

TEST_F(Concorrenza, IlBloccoDiUnaPaginaDiceDiChiE) {
    if (!prova::archiviAccess())
        GTEST_SKIP() << "such an archive's lock has no name";
    fa(altra, {apri, "edit Numero = 12"});
    const auto rs = db->OpenRecordset("Lumigrafo");
    const auto [numero, testo] = prova::fallimento([&] { rs->Edit(); });
    EXPECT_NE(testo.find("'" + nomeComputer() + "'"), std::string::npos) << numero << ' ' << testo;
}

TEST_F(Concorrenza, NessunaModificaVaPerduta) {
    Stazione terza;
    archivio.esegui("UPDATE Lumigrafo SET Pezzi1 = 0");
    fa(altra, {apri});
    fa(terza, {apri});
    altra.manda("conta 60");
    terza.manda("conta 60");
    EXPECT_EQ(altra.risposta(), "fatto");
    EXPECT_EQ(terza.risposta(), "fatto");
    EXPECT_EQ(pezzi(), "120");
}

TEST_F(Concorrenza, ChiAttendeDaTantoVienePrimaDiChiRicomincia) {
    if (!prova::archiviAccess())
        GTEST_SKIP() << "who is first to lock such an archive is SQLite's business";
    ASSERT_EQ(altra("apri " + file.string()), "fatto");
    altra.manda("occupa 40");
    Workspace paziente{1s};
    const auto nostro = paziente.OpenDatabase(file.string());
    const auto rs = nostro->OpenRecordset("Lumigrafo");
    for (int i = 0; i < 8; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(guastoDi([&] { nostro->Execute("UPDATE Lumigrafo SET Pezzi2 = Pezzi2 + 1"); }), 0);
        EXPECT_EQ(guastoDi([&] {
                      paziente.cedendo([&] {
                          rs->Edit();
                          rs->Fields()["Pezzi1"].Value(i);
                          rs->Update();
                      });
                  }),
                  0);
    }
    EXPECT_EQ(archivio.leggi("SELECT Pezzi2 FROM Lumigrafo"), "9");
}

TEST_F(Concorrenza, ChiTieneUnaRigaNonTrattieneGliAltri) {
    if (!prova::archiviAccess())
        GTEST_SKIP() << "who holds a row of such an archive has locked all of it";
    fa(altra, {apri});
    altra.manda("occupa 100");
    Workspace paziente{5s};
    const auto nostro = paziente.OpenDatabase(file.string());
    const auto rs = nostro->OpenRecordset("Lumigrafo");
    auto blocchi = file;
    const FileCondiviso ldb(blocchi.replace_extension(".ldb"), FileCondiviso::Modo::Lettura);
    bool libera = false; // now and then the other one has asked for precedence already
    for (int i = 0; i < 5 && !libera; ++i) {
        rs->Edit(); // after a wait that gave it precedence
        libera = !ldb.bloccoAltrui({0x100000000, 1}, false);
        rs->CancelUpdate();
    }
    EXPECT_TRUE(libera);
}

TEST_F(Concorrenza, UnaTransazioneSuDueArchiviIniziaInTuttiEDueOInNessuno) {
    if (prova::archiviAccess())
        GTEST_SKIP() << "to begin locks nothing of such an archive";
    const auto secondo = cartella.percorso() / "secondo.mdb";
    const prova::ArchivioProva la(secondo);
    const auto dbLa = ws.OpenDatabase(secondo.string());
    fa(altra, {"apri " + secondo.string(), "inizia"});
    EXPECT_EQ(guastoDi([&] { ws.BeginTrans(); }), 3218);
    db->Execute("UPDATE Lumigrafo SET Pezzi1 = 5");
    EXPECT_EQ(pezzi(), "5");
}

TEST_F(Concorrenza, UnCollegamentoPortaAgliStessiBlocchi) {
    const auto collegato = cartella.percorso() / "altro nome.mdb";
    std::filesystem::create_symlink(file, collegato);
    fa(altra, {"attesa 50", "apri " + collegato.string()});
    const auto rs = db->OpenRecordset("Lumigrafo");
    rs->Edit();
    EXPECT_EQ(altra("edit Numero = 12").substr(0, 5), "3218 ");
}

TEST_F(Concorrenza, DiDueCheSiAspettanoAVicendaUnoCede) {
    if (!prova::archiviAccess())
        GTEST_SKIP() << "who writes to such an archive has locked all of it";
    fa(altra, {apri, "inizia", "esegui UPDATE DettaglioLumigrafo SET SERVITO = -1"});
    Workspace paziente{2s};
    const auto nostro = paziente.OpenDatabase(file.string());
    int volte = 0;
    paziente.cedendo([&] {
        paziente.BeginTrans();
        try {
            nostro->Execute("UPDATE Lumigrafo SET Pezzi2 = Pezzi2 + 1");
            if (++volte == 1)
                altra.manda("esegui UPDATE Lumigrafo SET Pezzi1 = 9"); // it waits for us, and we for it
            nostro->Execute("UPDATE DettaglioLumigrafo SET MinutiServito = 7");
            paziente.CommitTrans();
        } catch (const Guasto&) {
            paziente.Rollback();
            if (volte == 1) {
                EXPECT_EQ(altra.risposta(), "fatto");
                EXPECT_EQ(altra("conferma"), "fatto");
            }
            throw;
        }
    });
    EXPECT_EQ(volte, 2);
    EXPECT_EQ(archivio.leggi("SELECT Pezzi1, Pezzi2 FROM Lumigrafo"), "9|2");
    EXPECT_EQ(archivio.leggi("SELECT DISTINCT SERVITO, MinutiServito FROM DettaglioLumigrafo"), "-1|7");
}

TEST_F(Concorrenza, UnaStazioneUccisaLasciaLArchivioIntero) {
    fa(altra, {apri, "inizia", "esegui UPDATE Lumigrafo SET Pezzi1 = 99"});
    EXPECT_EQ(guastoDi([&] { db->Execute("UPDATE Lumigrafo SET Pezzi2 = 5"); }), 3218);
    altra.uccidi();
    EXPECT_EQ(db->Execute("UPDATE Lumigrafo SET Pezzi2 = 5"), 1);
    EXPECT_EQ(pezzi(), "3");
}

TEST_F(Concorrenza, ArchivioInUsoEsclusivo) {
    if (prova::archiviAccess())
        GTEST_SKIP() << "readers and writers of such an archive don't keep each other out";
    const auto rs = db->OpenRecordset("Lumigrafo");
    fa(altra, {"esclusivo " + file.string()});
    EXPECT_EQ(guastoDi([&] { (void)ws.OpenDatabase(file.string()); }), 3045);
    EXPECT_EQ(guastoDi([&] { (void)db->OpenRecordset("Lumigrafo"); }), 3187);
    EXPECT_EQ(guastoDi([&] { rs->Requery(); }), 3187);
    EXPECT_EQ(guastoDi([&] { rs->FindFirst("Numero = 12"); }), 3187);
    EXPECT_EQ(rs->Fields()["Pezzi1"].Value().aIntero16(), 3); // what was read stays
}

TEST_F(Concorrenza, UnLettoreEternoFaFallireLaScritturaSenzaMezzeModifiche) {
    if (prova::archiviAccess())
        GTEST_SKIP() << "readers and writers of such an archive don't keep each other out";
    const auto rs = db->OpenRecordset("Lumigrafo");
    fa(altra, {"legge " + file.string()});
    rs->Edit();
    rs->Fields()["Pezzi1"].Value(50);
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3218);
    EXPECT_EQ(rs->Fields()["Pezzi1"].Value().aIntero16(), 3);
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3020);
    altra.uccidi();
    EXPECT_EQ(pezzi(), "3");
    rs->Edit();
    rs->Fields()["Pezzi1"].Value(50);
    rs->Update();
    EXPECT_EQ(pezzi(), "50");
}

TEST_F(Concorrenza, AprireUnSecondoArchivioNonPerdeIlBlocco) {
    // Closing a file can drop all locks that a process holds on it.
    const auto rs = db->OpenRecordset("Lumigrafo");
    fa(altra, {"attesa 50", apri});
    rs->Edit();
    (void)ws.OpenDatabase(file.string());
    EXPECT_EQ(altra("edit Numero = 12").substr(0, 5), "3218 ");
}

} // namespace
} // namespace lumigrafo
