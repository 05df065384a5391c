#include "data/cls_recordset.h"
#include "data/istruzioni.h"
#include "data/jet/nuova_tabella.h"
#include "data/jet/pagine.h"
#include "platform/file.h"
#include "platform/finti/finti.h"
#include "tests/data/con_archivio.h"
#include "tests/data/stazione.h"

namespace lumigrafo {
namespace {

/// Lets a test act while the program waits.
class OrologioConAzione : public OrologioFinto {
public:
    using OrologioFinto::OrologioFinto;
    std::function<void()> allAttesa;
    void attendi(std::chrono::milliseconds durata) override {
        OrologioFinto::attendi(durata);
        if (allAttesa)
            allAttesa();
    }
};

class ClsRecordset : public ConArchivio {
protected:
    void apriCoda() { rs.Apri("prova", false, istruzioni::kLumigrafo, false, false); }
    std::string percorso(const std::string& nome) const { return (cartella.percorso() / nome).string(); }
    bool esiste(const std::string& nome) const { return std::filesystem::exists(percorso(nome)); }
    /// The only box shown; the program ended behind it if `azione` doesn't come back.
    template <typename Azione>
    Avviso ultimoAvviso(Azione&& azione) {
        avvisi.mostrati.clear();
        EXPECT_THROW(azione(), FineProcesso);
        EXPECT_EQ(avvisi.mostrati.size(), 1u);
        return avvisi.mostrati.empty() ? Avviso{} : avvisi.mostrati.back();
    }

    OrologioConAzione orologio;
    AvvisiFinti avvisi;
    UscitaFinta uscita;
    SistemaFinto sistema;
    ContestoDati contesto{*db, cartella.percorso().string(), orologio, avvisi, uscita, sistema};
    clsRecordset rs{contesto};
};

TEST_F(ClsRecordset, CodiciDiLetturaERicerca) {
    apriCoda();
    EXPECT_EQ(rs.Errore(), 10);
    EXPECT_TRUE(rs.ilRecordset().Eof());
    EXPECT_FALSE(rs.Start("prova", "Sigla", "=", "'A'")); // an empty set isn't searched: no column is missed
    EXPECT_FALSE(rs.Start("prova", "Manca", "=", "1"));
    EXPECT_EQ(rs.Errore(), 23);
    rs.Chiudi();
    EXPECT_EQ(rs.Errore(), 0);

    archivio.ordine("B", 2, {{1, 1}});
    archivio.ordine("A", 12, {{1, 1}});
    apriCoda();
    EXPECT_EQ(rs.Errore(), 0);
    EXPECT_EQ(rs.ilRecordset().Fields()["Numero"].Value().aIntero16(), 12);
    rs.LeggiNext("prova");
    EXPECT_EQ(rs.Errore(), 0);
    EXPECT_TRUE(rs.Start("prova", "Sigla", "=", "'A'", "Numero", "=", "12"));
    EXPECT_FALSE(rs.Start("prova", "Sigla", "=", "'A'", "Numero", "=", "13"));
    EXPECT_EQ(rs.Errore(), 23);
    rs.LeggiNext("prova"); // success leaves the code
    EXPECT_EQ(rs.Errore(), 23);
    rs.LeggiNext("prova");
    EXPECT_EQ(rs.Errore(), 10);
    EXPECT_TRUE(rs.ilRecordset().Eof());
    rs.AzzeraErrore();
    EXPECT_EQ(rs.Errore(), 0);

    archivio.ordine(std::nullopt, 5, {{1, 1}});
    archivio.ordine("", 5, {{1, 4}});
    apriCoda();
    EXPECT_TRUE(rs.Start("prova", "Sigla", "=", "''", "Numero", "=", "5"));
    EXPECT_EQ(rs.ilRecordset().Fields()["Pezzi1"].Value().aIntero16(), 4); // not the row with a null letter
    EXPECT_TRUE(avvisi.mostrati.empty());
}

TEST_F(ClsRecordset, CampiEConversioni) {
    if (prova::archiviAccess()) {
        jet::Pagine pagine(percorso(kFileArchivio), {});
        creaTabella(pagine, {"Strana", {{"12", jet::Tipo::Lungo}, {"Nome", jet::Tipo::Testo, 50}}, {}});
        pagine.registra();
    } else {
        archivio.esegui("CREATE TABLE Strana (\"12\" INTEGER, Nome TEXT)");
    }
    const auto dopo =
        ws.OpenDatabase(percorso(kFileArchivio)); // a table made later isn't seen by those before
    ContestoDati suo{*dopo, cartella.percorso().string(), orologio, avvisi, uscita, sistema};
    clsRecordset strana(suo);
    strana.Apri("prova", false, "Strana", false, false);
    EXPECT_EQ(strana.QuantiCampi(), 2);
    EXPECT_EQ(strana.TipoCampo("NOME"), dao::dbText);
    EXPECT_EQ(strana.NomeCampo("12"), 12);
    EXPECT_EQ(guastoDi([&] { (void)strana.NomeCampo("Nome"); }), 13);
    EXPECT_EQ(guastoDi([&] { (void)strana.TipoCampo("Manca"); }), 3265);
    strana.Chiudi();
    EXPECT_EQ(guastoDi([&] { (void)strana.ilRecordset(); }), guasti::kOggettoMancante);
    for (const Valore& vero : {Valore("SI"), Valore(true), Valore("True"), Valore(-1)})
        EXPECT_TRUE(clsRecordset::SiToBool(vero));
    for (const Valore& falso : {Valore(""), Valore("NO"), Valore(false), Valore()})
        EXPECT_FALSE(clsRecordset::SiToBool(falso));
    EXPECT_EQ(clsRecordset::BoolToSi(true) + "/" + clsRecordset::BoolToSi(false), "SI/");
}

TEST_F(ClsRecordset, CancellazioneDiTutteLeRighe) {
    for (int n = 1; n <= 3; ++n)
        archivio.ordine("A", n, {{1, 1}});
    apriCoda();
    archivio.ordine("A", 4, {{1, 1}}); // seen all the same: the set is refreshed first
    rs.CancellazioneRecordSet("prova");
    EXPECT_EQ(archivio.coda(), "");
    EXPECT_TRUE(rs.ilRecordset().Eof());
}

TEST_F(ClsRecordset, UnGuastoDellArchivioTerminaIlProgramma) {
    const Avviso apri = ultimoAvviso([&] { rs.Apri("ChiApre", false, "Manca", false, false); });
    EXPECT_EQ(apri.testo.find("Errore nel metodo Apri (tabella:Manca ) chiamato da ChiApre\r\n3078 "), 0u);
    EXPECT_EQ(apri.titolo, "clsRecordset");
    EXPECT_EQ(apri.icona, Icona::Critica);

    archivio.ordine("A", 1, {{1, 1}});
    apriCoda();
    EXPECT_EQ(ultimoAvviso([&] { rs.Start("ChiCerca", "Sigla", "=", "'''", "Numero", "=", "1"); }).testo,
              "Errore nel metodo Start chiamato da ChiCerca\r\nSigla = ''' and Numero = 1\r\n3077 Errore di "
              "sintassi "
              "(operatore mancante) nell'espressione.");
    rs.LeggiNext("prova");
    const std::string coda =
        std::string("\r\nRecordset:") + istruzioni::kLumigrafo + "\r\n3021 Nessun record corrente.";
    for (const auto& [detto, nome] : {std::pair{"ChiLegge", "ChiLegge"}, {"", "prova"}}) // "": who opened it
        EXPECT_EQ(ultimoAvviso([&, chi = detto] { rs.LeggiNext(chi); }).testo,
                  std::string("Errore nel metodo LeggiNext chiamato da ") + nome + coda);
    rs.Apri("prova", true, istruzioni::kSommaPezzi, false, true);
    EXPECT_EQ(ultimoAvviso([&] { rs.CancellazioneRecordSet("ChiCancella"); }).testo,
              std::string("Errore nel metodo CancellazioneRecordset chiamato da ChiCancella\r\nRecordset:") +
                  istruzioni::kSommaPezzi +
                  "\r\n3027 Impossibile aggiornare. Database o oggetto di sola lettura.");
}

TEST_F(ClsRecordset, ChiudiSenzaBloccoNonTocceNulla) {
    const std::string strana = "Select * from Numero Where Numero <> '/..\\:*?'";
    for (const std::string& sorgente : {std::string(istruzioni::kLumigrafo), strana}) {
        rs.Apri("prova", false, sorgente, false, false);
        rs.Chiudi();
        rs.Chiudi();
    }
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartella.percorso()))
        if (!voce.path().filename().string().starts_with("archivio.")) // its journal or lock file
            nomi.push_back(voce.path().string());
    EXPECT_TRUE(nomi.empty());
    EXPECT_TRUE(avvisi.mostrati.empty());
}

TEST_F(ClsRecordset, IlBloccoTieneFuoriGliAltri) {
    sistema.utente = "mario";
    rs.Apri("prova", false, "Categorie", true, false);
    EXPECT_EQ(rs.Errore(), 0);
    EXPECT_TRUE(esiste("Categorie.txt"));
    EXPECT_EQ(leggiFile(percorso("user_Categorie.txt")), "mario\r\n");

    clsRecordset secondo(contesto);
    secondo.Apri("prova", false, "Categorie", true, false);
    EXPECT_EQ(secondo.Errore(), 93);
    EXPECT_EQ(guastoDi([&] { (void)secondo.ilRecordset(); }), guasti::kOggettoMancante);
    ASSERT_EQ(avvisi.mostrati.size(), 1u);
    EXPECT_EQ(avvisi.mostrati[0].testo, "File Categorie già aperto in uso esclusivo da mario");
    EXPECT_EQ(avvisi.mostrati[0].titolo, "");
    EXPECT_EQ(avvisi.mostrati[0].bottoni, Bottoni::Ok);
    secondo.Chiudi();
    EXPECT_TRUE(esiste("Categorie.txt")); // the holder's file stays

    rs.Chiudi();
    EXPECT_FALSE(esiste("Categorie.txt"));
    EXPECT_TRUE(esiste("user_Categorie.txt"));
    secondo.Apri("prova", false, "Categorie", true, false);
    EXPECT_EQ(secondo.Errore(), 0);
}

TEST_F(ClsRecordset, UnSecondoProcessoTieneIlBlocco) {
    prova::Stazione altra;
    ASSERT_EQ(altra("file " + percorso("Numero.txt")), "fatto");
    rs.Apri("prova", true, "Numero", true, false);
    EXPECT_EQ(rs.Errore(), 93); // no note lies there: the name is empty
    EXPECT_EQ(avvisi.mostrati.at(0).testo, "File Numero già aperto in uso esclusivo da ");

    int attese = 0;
    orologio.allAttesa = [&] {
        if (++attese == 3)
            altra.uccidi(); // its crash releases the lock, the file stays
    };
    rs.Apri("prova", true, "Numero", true, true);
    EXPECT_EQ(rs.Errore(), 0);
    EXPECT_EQ(attese, 3);
    EXPECT_EQ(orologio.atteso, std::chrono::milliseconds(3000));
    EXPECT_EQ(avvisi.mostrati.size(), 1u);
}

TEST_F(ClsRecordset, GliAltriNomiSiAttendonoSenzaPausa) {
    prova::Stazione altra;
    ASSERT_EQ(altra("file " + percorso("Categorie.txt")), "fatto");
    altra.manda("file " + percorso("altro.txt")); // it lets go when it comes to this line
    rs.Apri("prova", true, "Categorie", true, true);
    EXPECT_EQ(rs.Errore(), 0);
    EXPECT_EQ(orologio.atteso.count(), 0);
}

TEST_F(ClsRecordset, UnBloccoImpossibileTerminaIlProgramma) {
    contesto.PathDB = percorso("manca");
    clsRecordset senzaCartella(contesto);
    const Avviso avviso = ultimoAvviso([&] { senzaCartella.Apri("prova", false, "Numero", true, false); });
    EXPECT_EQ(avviso.titolo, "Errore");
    EXPECT_EQ(avviso.icona, Icona::Critica);
    EXPECT_EQ(avviso.testo.find("Errore in BloccaSblocca aprendo Numero.txt\r\n76 "), 0u);
}

} // namespace
} // namespace lumigrafo
