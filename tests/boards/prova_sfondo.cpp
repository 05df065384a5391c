#include "boards/percorsi.h"
#include "platform/file.h"
#include "platform/guasto.h"
#include "tests/boards/banco_videata.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {
namespace {

class Sfondo : public testing::Test {
protected:
    BancoVideata banco{TipoVideata::frmLumigrafoPerson};
    CartellaTemporanea altrove;
    const std::filesystem::path fuori = altrove.percorso() / "festa è qui.JPG",
                                dentro = banco.cartella.percorso() / "festa è qui.JPG";

    static void scrivi(const std::filesystem::path& file, const char* testo) { std::ofstream(file) << testo; }
    /// The key of the settings, and what the board shows once it is looked at again.
    void chiave(const std::string& file) {
        banco.impostazioni.ScriviIni("Sfondo", "Sfondo", file);
        if (banco.vista.eventi.attivata)
            banco.vista.eventi.attivata();
    }
    [[nodiscard]] std::string chiave() const { return banco.impostazioni.LeggiIni("Sfondo", "Sfondo"); }
    /// The operator's double click, and the file that he picks; none: he gives up.
    void scegli(const std::filesystem::path& file) {
        banco.sceltaFile.scelto = file;
        const auto eventi = banco.vista.eventi;
        eventi.doppioClicSfondo();
    }
    [[nodiscard]] std::string figura() { return banco.controllo("imgSfondo").Figura(); }
    [[nodiscard]] std::string disegno() { return std::string(banco.controllo("imgSfondo").disegno().figura); }
};

TEST_F(Sfondo, sceltoConUnDoppioClic) {
    banco.videata->Mostra();
    EXPECT_EQ(figura(), disegno());
    scegli({});
    EXPECT_EQ(figura(), disegno());
    EXPECT_EQ(chiave(), "");
    ASSERT_EQ(banco.sceltaFile.chieste.size(), 1U);
    const RichiestaFile& richiesta = banco.sceltaFile.chieste[0];
    EXPECT_EQ(richiesta.titolo, "Seleziona immagine di sfondo");
    EXPECT_EQ(richiesta.filtro, "Immagini (*.jpg)");
    EXPECT_EQ(richiesta.cartella, banco.cartella.percorso());

    scrivi(fuori, "nuova");
    scrivi(dentro, "vecchia, e più lunga");
    for (const auto& scelto : {fuori, dentro}) { // then again where it lies already
        scegli(scelto);
        EXPECT_EQ(leggiFile(dentro), "nuova");
        EXPECT_EQ(chiave(), testoUtf8(dentro));
        EXPECT_EQ(figura(), testoUtf8(dentro));
    }
}

TEST_F(Sfondo, unNomeCheLeImpostazioniNonTengonoSiRitrova) {
    const auto scelto =
        altrove.percorso() / percorsoUtf8("liberta\xCC\x80 \xE2\x98\x80.jpg"); // an accent apart
    scrivi(scelto, "nuova");
    banco.videata->Mostra();
    scegli(scelto);
    const auto copia = banco.cartella.percorso() / "liberta_ _.jpg";
    EXPECT_EQ(leggiFile(copia), "nuova");
    banco.controllo("imgSfondo").Figura("segno"); // what another reading would replace
    banco.vista.eventi.attivata();
    EXPECT_EQ(figura(), "segno");
    EXPECT_EQ(chiave(), testoUtf8(copia));
}

TEST_F(Sfondo, riletteAOgniAttivazione) {
    banco.videata->Mostra();
    for (const auto& [valore, file] :
         {std::pair(testoUtf8(fuori), fuori),
          {testoUtf8(altrove.percorso() / "due.jpg"), altrove.percorso() / "due.jpg"},
          {"mio.jpg", banco.cartella.percorso() / "mio.jpg"}, // a bare name
          {"", banco.cartella.percorso() / "mio.jpg"}}) {     // loads nothing
        chiave(valore);
        EXPECT_EQ(figura(), testoUtf8(file));
    }
    EXPECT_EQ(banco.vista.posizionata, 1);
}

TEST_F(Sfondo, unaFotografiaUgualeNonSiRilegge) {
    scrivi(fuori, "una");
    chiave(testoUtf8(fuori));
    banco.videata->Mostra();
    EXPECT_EQ(figura(), testoUtf8(fuori));
    banco.controllo("imgSfondo").Figura("segno"); // what a new reading would replace
    banco.videata->Mostra();
    banco.vista.eventi.attivata();
    EXPECT_EQ(figura(), "segno");
    scrivi(fuori, "un'altra");
    banco.videata->Mostra();
    EXPECT_EQ(figura(), testoUtf8(fuori)) << "written over";
    banco.controllo("imgSfondo").Figura("segno");
    std::filesystem::remove(fuori);
    banco.videata->Mostra();
    EXPECT_EQ(figura(), testoUtf8(fuori)) << "gone: the view says so";
}

TEST_F(Sfondo, conSoloAndroidRestaIlDisegno) {
    banco.console.soloAndroid = true;
    chiave("/un/altro.jpg");
    banco.videata->Mostra();
    banco.videata->Riduci(false);
    banco.vista.eventi.attivata();
    EXPECT_EQ(figura(), disegno());
}

TEST_F(Sfondo, videataChiusaMentreSiSceglie) {
    banco.videata->Mostra();
    scrivi(fuori, "x");
    banco.sceltaFile.durante = [&] { banco.videata->Scarica(); };
    scegli(fuori);
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_EQ(chiave(), testoUtf8(dentro));
}

TEST_F(Sfondo, unaCopiaCheNonRiesceFermaTutto) {
    banco.videata->Mostra();
    EXPECT_THROW(scegli(fuori), Guasto); // there is no such file
    EXPECT_EQ(chiave(), "");
}

TEST_F(Sfondo, nonHaTitoloESoloIlColoreDelTesto) {
    banco.imposta("ColoreTesto0", 255);
    banco.imposta("FontSizeNumeri", "non letta");
    banco.imposta("ColoreSfondo0", "non letto");
    banco.stato.ScriviIni("0", "Numero6", "A 6");
    EXPECT_EQ(banco.controllo("lblNumero6", 0).Caption(), "A 6");
    EXPECT_EQ(banco.controllo("lblNumero1", 0).ForeColor(), Colore(255));
}

} // namespace
} // namespace lumigrafo::prova
