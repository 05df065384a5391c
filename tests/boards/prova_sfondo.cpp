#include "boards/percorsi.h"
#include "platform/file.h"
#include "platform/guasto.h"
#include "tests/boards/banco_videata.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace lumigrafo::prova {

namespace {

void scrivi(const std::filesystem::path& file, const char* testo) {
    std::ofstream(file) << testo;
}

class Sfondo : public testing::Test {
protected:
    BancoVideata banco{TipoVideata::frmLumigrafoPerson};
    CartellaTemporanea altrove;

    [[nodiscard]] std::string chiave() const { return banco.impostazioni.LeggiIni("Sfondo", "Sfondo"); }
    [[nodiscard]] std::string figura() { return banco.controllo("imgSfondo").Figura(); }
    [[nodiscard]] std::string disegno() { return std::string(banco.controllo("imgSfondo").disegno().figura); }
};

TEST_F(Sfondo, sceltoConUnDoppioClic) {
    banco.videata->Mostra();
    EXPECT_EQ(figura(), disegno());
    banco.vista.eventi.doppioClicSfondo(); // given up
    EXPECT_EQ(figura(), disegno());
    EXPECT_EQ(chiave(), "");
    ASSERT_EQ(banco.sceltaFile.chieste.size(), 1U);
    const RichiestaFile& richiesta = banco.sceltaFile.chieste[0];
    EXPECT_EQ(richiesta.titolo, "Seleziona immagine di sfondo");
    EXPECT_EQ(richiesta.filtro, "Immagini (*.jpg)");
    EXPECT_EQ(richiesta.cartella, banco.cartella.percorso());

    banco.sceltaFile.scelto = altrove.percorso() / "festa è qui.JPG";
    scrivi(banco.sceltaFile.scelto, "nuova");
    const auto copia = banco.cartella.percorso() / "festa è qui.JPG";
    scrivi(copia, "vecchia, e più lunga");
    banco.vista.eventi.doppioClicSfondo();
    EXPECT_EQ(leggiFile(copia), "nuova");
    EXPECT_EQ(chiave(), testoUtf8(copia));
    EXPECT_EQ(figura(), testoUtf8(copia));

    banco.sceltaFile.scelto = copia; // chosen where it lies already
    banco.vista.eventi.doppioClicSfondo();
    EXPECT_EQ(leggiFile(copia), "nuova");
    EXPECT_EQ(chiave(), testoUtf8(copia));
}

TEST_F(Sfondo, riletteAOgniAttivazione) {
    banco.videata->Mostra();
    for (const char* nome : {"uno.jpg", "due.jpg"}) {
        const auto file = testoUtf8(altrove.percorso() / nome);
        banco.impostazioni.ScriviIni("Sfondo", "Sfondo", file);
        banco.vista.eventi.attivata();
        EXPECT_EQ(figura(), file);
    }
    banco.impostazioni.ScriviIni("Sfondo", "Sfondo", "mio.jpg");
    banco.vista.eventi.attivata();
    EXPECT_EQ(figura(), testoUtf8(banco.cartella.percorso() / "mio.jpg"));
    banco.impostazioni.ScriviIni("Sfondo", "Sfondo", "");
    banco.vista.eventi.attivata();
    EXPECT_NE(figura(), disegno()) << "an empty key loads nothing";
    EXPECT_EQ(banco.vista.posizionata, 1);
}

TEST_F(Sfondo, unaFotografiaUgualeNonSiRilegge) {
    const auto file = altrove.percorso() / "mia.jpg";
    scrivi(file, "una");
    banco.impostazioni.ScriviIni("Sfondo", "Sfondo", testoUtf8(file));
    banco.videata->Mostra();
    Controllo& sfondo = banco.controllo("imgSfondo");
    EXPECT_EQ(sfondo.Figura(), testoUtf8(file));
    sfondo.Figura("segno"); // what a new reading would replace
    banco.videata->Mostra();
    banco.vista.eventi.attivata();
    EXPECT_EQ(figura(), "segno");
    scrivi(file, "un'altra");
    banco.videata->Mostra();
    EXPECT_EQ(figura(), testoUtf8(file)) << "written over";
    sfondo.Figura("segno");
    std::filesystem::remove(file);
    banco.videata->Mostra();
    EXPECT_EQ(figura(), testoUtf8(file)) << "gone: the view says so";
}

TEST_F(Sfondo, conSoloAndroidRestaIlDisegno) {
    banco.console.soloAndroid = true;
    banco.impostazioni.ScriviIni("Sfondo", "Sfondo", "/un/altro.jpg");
    banco.videata->Mostra();
    banco.videata->Riduci(false);
    banco.vista.eventi.attivata();
    EXPECT_EQ(figura(), disegno());
}

TEST_F(Sfondo, videataChiusaMentreSiSceglie) {
    banco.videata->Mostra();
    banco.sceltaFile.scelto = altrove.percorso() / "festa.jpg";
    scrivi(banco.sceltaFile.scelto, "x");
    banco.sceltaFile.durante = [&] { banco.videata->Scarica(); };
    const auto eventi = banco.vista.eventi;
    eventi.doppioClicSfondo();
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_EQ(chiave(), testoUtf8(banco.cartella.percorso() / "festa.jpg"));
}

TEST_F(Sfondo, unaCopiaCheNonRiesceFermaTutto) {
    banco.videata->Mostra();
    banco.sceltaFile.scelto = altrove.percorso() / "manca.jpg";
    EXPECT_THROW(banco.vista.eventi.doppioClicSfondo(), Guasto);
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
