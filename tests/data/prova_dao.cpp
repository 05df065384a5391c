#include "tests/data/con_archivio.h"
#include "tests/sostegno/disco_pieno.h"

#include <fstream>

namespace lumigrafo {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

TEST(Apertura, IlTipoSiVedeDaiPrimiByte) {
    const prova::CartellaTemporanea cartella;
    const auto percorso = [&](const std::string& nome) { return (cartella.percorso() / nome).string(); };
    const auto scrivi = [&](const std::string& nome, const std::string& byte) {
        std::ofstream(percorso(nome), std::ios::binary) << byte;
    };
    scrivi("vuoto.mdb", "");
    scrivi("testo.mdb", "SQLite format 3");
    scrivi("access.mdb", "\0\1\0\0Standard Jet DB\0"s + std::string(4096, '\0'));
    scrivi("rotto.mdb", "SQLite format 3\0"s + std::string(4096, 'x'));
    std::filesystem::create_directory(percorso("cartella.mdb"));
    const std::pair<const char*, int> casi[] = {
        {"manca.mdb", 3024}, {"manca/archivio.mdb", 3044}, {"cartella.mdb", 3051},
        {"vuoto.mdb", 3343}, {"testo.mdb", 3343},          {"access.mdb", 3343}, // cut short
        {"rotto.mdb", 3343},
    };
    Workspace ws;
    for (const auto& [nome, numero] : casi)
        EXPECT_EQ(guastoDi([&] { (void)ws.OpenDatabase(percorso(nome)); }), numero) << nome;
    const prova::ArchivioProva archivio(percorso("qualunque.txt"));
    EXPECT_EQ(guastoDi([&] { (void)ws.OpenDatabase(percorso("qualunque.txt")); }), 0);
    EXPECT_EQ(guastoDi([] { (void)DBEngine::Workspaces(1); }), 3265);
}

class Dao : public ConArchivio {
protected:
    Dao() {
        for (const auto& [sigla, numero] : {std::pair{"A", 1}, {"A", 2}, {"B", 1}, {"C", 7}})
            archivio.ordine(sigla, numero, {{1, numero}});
        rs = db->OpenRecordset("Select * from Lumigrafo Order by Sigla, Numero");
    }
    Field& campo(const char* nome) { return rs->Fields()[nome]; }
    std::string corrente() {
        return campo("Sigla").Value().aTestoOVuoto() + campo("Numero").Value().aTesto();
    }

    std::unique_ptr<Recordset> rs;
};

TEST_F(Dao, IstruzioniErrate) {
    const std::pair<const char*, int> casi[] = {
        {"Delete * from Manca", 3078},
        {"UPDATE Lumigrafo SET Manca = 1", 3061},
        {"Insert into Lumigrafo (Manca) values (1)", 3127},
        {"UPDATE Lumigrafo SET", 3075},
        {"", 3075},
        {"Delete from Lumigrafo Where Numero = ", 3075},
        {"Delete from Lumigrafo Where Sigla = '''", 3075},
        {"Select * from Lumigrafo", 3065},
        {"Delete * from Lumigrafo; Delete * from Dettaglio", 3142},
        {"Insert into Lumigrafo (Sigla, Numero) values ('A', 1)", 3022},
        {"Insert into Lumigrafo (Sigla, Numero) values ('a', 1)", 3022},
        {"Insert into Lumigrafo (Sigla) values ('Z')", 3314},
    };
    for (const auto& [sql, numero] : casi)
        EXPECT_EQ(guastoDi([&] { db->Execute(sql); }), numero) << sql;
    EXPECT_EQ(guastoDi([&] { (void)db->OpenRecordset("Manca"); }), 3078);
    EXPECT_EQ(guastoDi([&] { (void)db->OpenRecordset("Select Manca from Lumigrafo"); }), 3061);
    EXPECT_EQ(archivio.coda(), "A1 A2 B1 C7");
    const auto manca = prova::fallimento([&] { db->Execute("Delete * from Manca"); });
    EXPECT_NE(manca.second.find("'Manca'"), std::string::npos);
    // Shown as it was written, not as it was put right for SQLite.
    const char *toglie = "Delete * from Lumigrafo Where",
               *legge = "Select Numero from Lumigrafo Where Sigla =";
    EXPECT_NE(prova::fallimento([&] { db->Execute(toglie); }).second.find(toglie), std::string::npos);
    const auto lettura = prova::fallimento([&] { (void)db->OpenRecordset(legge); });
    EXPECT_NE(lettura.second.find(legge), std::string::npos) << lettura.second;
}

TEST_F(Dao, Movimento) {
    EXPECT_EQ(rs->RecordCount(), 4);
    EXPECT_EQ(corrente(), "A1");
    rs->MoveLast();
    EXPECT_EQ(corrente(), "C7");
    rs->MoveNext();
    EXPECT_TRUE(rs->Eof());
    EXPECT_EQ(guastoDi([&] { rs->MoveNext(); }), 3021);
    EXPECT_EQ(guastoDi([&] { corrente(); }), 3021);
    EXPECT_EQ(guastoDi([&] { rs->Edit(); }), 3021);
    rs->MoveFirst();
    EXPECT_EQ(corrente(), "A1");
    const auto vuoto = db->OpenRecordset("Select * from Lumigrafo Where Numero < 0");
    EXPECT_TRUE(vuoto->Eof());
    EXPECT_EQ(vuoto->RecordCount(), 0);
    EXPECT_EQ(guastoDi([&] { vuoto->MoveFirst(); }), 3021);
    EXPECT_EQ(guastoDi([&] { vuoto->MoveLast(); }), 3021);
}

TEST_F(Dao, Campi) {
    auto& campi = rs->Fields();
    EXPECT_EQ(campi.Count(), 23u);
    EXPECT_EQ(campi["SIGLA"].Type(), dao::dbText);
    EXPECT_EQ(campi["numero"].Type(), dao::dbLong);
    EXPECT_EQ(campi["Categoria10"].Type(), dao::dbBoolean);
    EXPECT_EQ(campi["Pezzi1"].Type(), dao::dbInteger);
    EXPECT_EQ(campi.Item(1).Name(), "Numero");
    EXPECT_EQ(&campi["Pezzi10"], &campi.Item(21));
    EXPECT_EQ(guastoDi([&] { (void)campi["Categoria11"]; }), 3265);
    EXPECT_EQ(guastoDi([&] { (void)campi[""]; }), 3265);
    EXPECT_EQ(guastoDi([&] { (void)campi.Item(23); }), 3265);
}

TEST_F(Dao, Ricerca) {
    const std::pair<const char*, const char*> trovate[] = {{"Sigla = 'b' and Numero = 1", "B1"},
                                                           {"Numero = 1", "A1"},
                                                           {"Categoria1 = True and Numero > 1", "A2"}};
    for (const auto& [criterio, riga] : trovate) {
        rs->FindFirst(criterio);
        EXPECT_FALSE(rs->NoMatch()) << criterio;
        EXPECT_EQ(corrente(), riga) << criterio;
    }
    archivio.ordine("D", 9, {}); // behind the set's back: no row of it
    archivio.esegui("UPDATE Lumigrafo SET Pezzi1 = 99 WHERE Sigla = 'C'");
    for (const char* criterio : {"Sigla = 'D'", "Sigla = ''", "Numero = 8"}) {
        rs->FindFirst(criterio);
        EXPECT_TRUE(rs->NoMatch()) << criterio;
    }
    EXPECT_EQ(corrente(), "A2"); // the current row stays
    rs->FindFirst("Pezzi1 = 99");
    EXPECT_EQ(campo("Pezzi1").Value().aIntero16(), 99); // with its present values
    EXPECT_EQ(guastoDi([&] { rs->FindFirst("Sigla = 'a' and Numero ="); }), 3077);
    EXPECT_EQ(guastoDi([&] { rs->FindFirst("Sigla = '''"); }), 3077);
    EXPECT_EQ(guastoDi([&] { rs->FindFirst("Manca = 1"); }), 3070);
}

TEST_F(Dao, RequeryVedeLeModificheDiTutti) {
    rs->MoveLast();
    rs->Requery();
    EXPECT_EQ(corrente(), "A1");
    archivio.ordine("A", 0, {});
    rs->Requery();
    EXPECT_EQ(corrente(), "A0");
    db->Execute("Delete * from Lumigrafo Where Numero = 0");
    rs->Requery();
    EXPECT_EQ(corrente(), "A1");
    EXPECT_EQ(rs->RecordCount(), 4);
}

TEST_F(Dao, UnAltroProgrammaCambiaLeColonne) {
    if (prova::archiviAccess())
        GTEST_SKIP() << "no table is changed in such an archive";
    archivio.esegui("ALTER TABLE Lumigrafo DROP COLUMN Categoria1");
    archivio.esegui("UPDATE Lumigrafo SET Evidenzia = -1");
    rs = db->OpenRecordset("Select * from Lumigrafo Order by Numero");
    EXPECT_EQ(campo("Numero").Value().aTesto(), "1");
    EXPECT_EQ(campo("Evidenzia").Value().aTesto(), "-1");
}

TEST_F(Dao, ModificaDiUnaRiga) {
    archivio.esegui("UPDATE Lumigrafo SET Pezzi2 = 5 WHERE Sigla = 'A' AND Numero = 1"); // after it was read
    EXPECT_EQ(guastoDi([&] { campo("Pezzi1").Value(1); }), 3020);
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3020);
    rs->Edit();
    EXPECT_EQ(campo("Pezzi2").Value().aIntero16(), 5);
    campo("Categoria1").Value(false);
    campo("Categoria2").Value(true);
    campo("Categoria3").Value(1); // any number but 0 is stored as -1
    campo("Pezzi1").Value("12");
    EXPECT_EQ(campo("Pezzi1").Value(), Valore(12));
    EXPECT_EQ(guastoDi([&] { campo("Pezzi1").Value("molti"); }), 3421);
    EXPECT_EQ(guastoDi([&] { campo("Pezzi1").Value(40000); }), 3421);
    EXPECT_EQ(guastoDi([&] { campo("Sigla").Value("AB"); }), 3163);
    rs->Update();
    EXPECT_EQ(archivio.leggi("SELECT Categoria1, Categoria2, Categoria3, Pezzi1, Pezzi2 FROM Lumigrafo "
                             "WHERE Sigla = 'A' AND Numero = 1"),
              "0|-1|-1|12|5");
    EXPECT_EQ(campo("Pezzi1").Value().aIntero16(), 12);

    // Given up: by word, by a move, by the set's end.
    const auto modifica = [&] {
        rs->Edit();
        campo("Pezzi1").Value(77);
    };
    modifica();
    rs->CancelUpdate();
    EXPECT_EQ(campo("Pezzi1").Value().aIntero16(), 12);
    modifica();
    rs->MoveNext();
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3020);
    modifica();
    rs.reset();
    EXPECT_EQ(archivio.leggi("SELECT count(*) FROM Lumigrafo WHERE Pezzi1 = 77"), "0");
    archivio.esegui("UPDATE Lumigrafo SET Pezzi1 = 0"); // nothing is locked any more
}

TEST_F(Dao, ChiaveDoppiaNonChiudeLaModifica) {
    rs->Edit();
    campo("Numero").Value(2);
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3022);
    campo("Numero").Value(3);
    rs->Update();
    EXPECT_EQ(archivio.coda(), "A2 A3 B1 C7");
}

TEST_F(Dao, RigaNuova) {
    rs->AddNew();
    EXPECT_TRUE(campo("Sigla").Value().nullo());
    campo("Sigla").Value("E");
    campo("Numero").Value("15");
    campo("Categoria4").Value(true);
    rs->Update();
    EXPECT_EQ(
        archivio.leggi("SELECT Categoria1, Categoria4, Pezzi4, Evidenzia FROM Lumigrafo WHERE Sigla = 'E'"),
        "0|-1|0|0");             // the table's defaults
    EXPECT_EQ(corrente(), "A1"); // the current row stays
    EXPECT_EQ(rs->RecordCount(), 5);
    rs->MoveLast();
    EXPECT_EQ(corrente(), "E15");
    EXPECT_FALSE(campo("Evidenzia").Value().aBooleano());
    rs->AddNew();
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3314); // the number is missing
}

TEST_F(Dao, RigheCancellate) {
    rs->MoveNext();
    rs->Delete();
    EXPECT_EQ(archivio.coda(), "A1 B1 C7");
    EXPECT_EQ(rs->RecordCount(), 3);
    EXPECT_EQ(guastoDi([&] { corrente(); }), 3167);
    EXPECT_EQ(guastoDi([&] { rs->Delete(); }), 3167);
    EXPECT_EQ(guastoDi([&] { rs->Edit(); }), 3167);
    rs->MoveNext();
    EXPECT_EQ(corrente(), "B1");
    archivio.esegui("DELETE FROM Lumigrafo WHERE Sigla = 'B'");
    EXPECT_EQ(guastoDi([&] { rs->Delete(); }), 3167);
    archivio.esegui("DELETE FROM Lumigrafo WHERE Sigla = 'C'");
    rs->MoveLast();
    EXPECT_EQ(corrente(), "C7"); // as it was read
    EXPECT_EQ(guastoDi([&] { rs->Edit(); }), 3167);
    EXPECT_EQ(rs->RecordCount(), 1);
    archivio.esegui("UPDATE Lumigrafo SET Pezzi1 = 0"); // the failures left no lock
}

TEST_F(Dao, DueInsiemiDelloStessoProgramma) {
    const auto altro = db->OpenRecordset("Lumigrafo");
    rs->Edit();
    EXPECT_EQ(guastoDi([&] { altro->Edit(); }), 3188);
    altro->MoveLast();
    altro->Edit(); // another row
    altro->Fields()["Pezzi1"].Value(31);
    campo("Pezzi1").Value(30);
    altro->Update();
    rs->CancelUpdate();
    EXPECT_EQ(archivio.leggi("SELECT count(*) FROM Lumigrafo WHERE Pezzi1 = 31"), "1");
}

TEST_F(Dao, SenzaLockEditsDecideUpdate) {
    rs->LockEdits(false);
    rs->Edit();
    campo("Pezzi1").Value(8);
    archivio.esegui("UPDATE Lumigrafo SET Pezzi2 = 4"); // nothing holds it back
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3197);
    rs->Edit();
    campo("Pezzi1").Value(8);
    rs->Update();
    EXPECT_EQ(archivio.leggi("SELECT Pezzi1, Pezzi2 FROM Lumigrafo WHERE Sigla = 'A' AND Numero = 1"), "8|4");
}

TEST_F(Dao, SommeEVisteSiLeggonoSoltanto) {
    std::vector<std::string> sorgenti = {
        "Select Sigla, count(*) as N from Lumigrafo Group by Sigla Order by Sigla"};
    if (!prova::archiviAccess()) { // queries kept in such an archive are not read
        archivio.esegui("CREATE VIEW Aperti AS SELECT Sigla, Numero FROM Lumigrafo");
        sorgenti.emplace_back("Aperti");
    }
    for (const std::string& sorgente : sorgenti) {
        const auto letto = db->OpenRecordset(sorgente);
        letto->FindFirst("Sigla = 'B'");
        EXPECT_FALSE(letto->NoMatch()) << sorgente;
        EXPECT_EQ(letto->Fields()["Sigla"].Value().aTesto(), "B");
        EXPECT_EQ(guastoDi([&] { letto->Edit(); }), 3027);
        EXPECT_EQ(guastoDi([&] { letto->AddNew(); }), 3027);
        EXPECT_EQ(guastoDi([&] { letto->Delete(); }), 3027);
    }
    const auto parte =
        db->OpenRecordset("Select Numero as N, Sigla from Lumigrafo Where Sigla = 'C' Order by 2");
    parte->Edit();
    parte->Fields()["N"].Value(70);
    parte->Update();
    EXPECT_EQ(archivio.coda(), "A1 A2 B1 C70");
}

TEST_F(Dao, DopoLaChiusuraDellArchivio) {
    rs->Edit();
    campo("Pezzi1").Value(66);
    const Field& sigla = campo("Sigla");
    db->Close();
    db->Close();
    EXPECT_EQ(guastoDi([&] { (void)sigla.Value(); }), 3420);
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3420);
    EXPECT_EQ(guastoDi([&] { rs->MoveFirst(); }), 3420);
    EXPECT_EQ(guastoDi([&] { (void)rs->Fields(); }), 3420);
    EXPECT_EQ(guastoDi([&] { db->Execute("Delete * from Lumigrafo"); }), 3420);
    EXPECT_EQ(guastoDi([&] { (void)db->OpenRecordset("Numero"); }), 3420);
    rs->Close();
    db.reset();
    rs.reset();
    EXPECT_EQ(archivio.leggi("SELECT count(*) FROM Lumigrafo WHERE Pezzi1 = 66"), "0");
}

TEST_F(Dao, Transazioni) {
    ws.BeginTrans();
    db->Execute("Delete * from Lumigrafo");
    ws.Rollback();
    rs->Requery();
    EXPECT_EQ(rs->RecordCount(), 4);
    ws.BeginTrans();
    rs->Delete();
    db->Execute("Delete * from Lumigrafo Where Sigla = 'C'");
    EXPECT_EQ(archivio.coda(), "A1 A2 B1 C7");
    ws.CommitTrans();
    EXPECT_EQ(archivio.coda(), "A2 B1");
}

TEST_F(Dao, UnDiscoPienoDentroUnaTransazioneLaFinisceTutta) {
    const auto altro = db->OpenRecordset("Select * from Lumigrafo Where Sigla = 'C'");
    const std::string prima = archivio.leggi("SELECT Pezzi1 FROM Lumigrafo");
    ws.BeginTrans();
    altro->Edit();
    altro->Fields()["Pezzi1"].Value(44);
    rs->Edit();
    rs->Fields()["Pezzi1"].Value(55);
    {
        const prova::DiscoPieno pieno(0);
        const bool subito = guastoDi([&] { rs->Update(); }) != 0;
        if (!subito) { // an Access archive is written at the transaction's end
            altro->Update();
            EXPECT_NE(guastoDi([&] { ws.CommitTrans(); }), 0);
        }
    }
    for (Recordset* insieme : {rs.get(), altro.get()})
        EXPECT_EQ(guastoDi([&] { insieme->Update(); }), 3020);
    ws.Rollback();
    EXPECT_EQ(archivio.leggi("SELECT Pezzi1 FROM Lumigrafo"), prima);
}

TEST_F(Dao, UnaConfermaSenzaInizioNonLiberaLaRiga) {
    rs->Edit();
    ws.CommitTrans();
    EXPECT_EQ(
        guastoDi([&] { Workspace(0ms).OpenDatabase(file.string())->Execute("Delete * from Lumigrafo"); }),
        3218);
    rs->Update();
}

TEST_F(Dao, UnaTransazioneAnnullataFinisceLeModificheCheTenevanoLeLoroRighe) {
    rs->Edit();
    rs->Fields()["Pezzi1"].Value(66);
    ws.Rollback();
    archivio.esegui("UPDATE Lumigrafo SET Pezzi1 = 77"); // nothing is locked any more
    EXPECT_EQ(guastoDi([&] { rs->Update(); }), 3020);
    ws.BeginTrans();
    db->Execute("UPDATE Lumigrafo SET Pezzi1 = 88");
    rs->Requery(); // gives back no lock of the transaction's
    ws.Rollback();
    EXPECT_EQ(archivio.leggi("SELECT DISTINCT Pezzi1 FROM Lumigrafo"), "77");
}

using ArchivioAltrui = ConArchivio;

TEST_F(ArchivioAltrui, TestiSenzaMaiuscole) {
    if (!prova::archiviAccess()) // there texts always compare so
        archivio.esegui("DROP TABLE Lumigrafo;"
                        "CREATE TABLE Lumigrafo (Sigla VARCHAR(1), Numero INT, Pezzi1 INT)");
    archivio.esegui("INSERT INTO Lumigrafo (Sigla, Numero, Pezzi1) VALUES ('b', 1, 0), ('C', 1, 0), "
                    "('A', 1, 0)");
    db = ws.OpenDatabase(file.string());
    const auto rs = db->OpenRecordset("Select * from Lumigrafo Order by Sigla, Numero");
    std::string letto;
    for (; !rs->Eof(); rs->MoveNext())
        letto += rs->Fields()["Sigla"].Value().aTesto();
    EXPECT_EQ(letto, "AbC");
    rs->FindFirst("Sigla = 'B' and Numero = 1");
    EXPECT_FALSE(rs->NoMatch());
    EXPECT_EQ(db->Execute("UPDATE Lumigrafo SET Lumigrafo.Pezzi1 = 4 WHERE (((Lumigrafo.Sigla)='B'))"), 1);
}

} // namespace
} // namespace lumigrafo
