#include "forms/qt/etichetta.h"
#include "forms/qt/immagine.h"
#include "platform/guasto.h"
#include "tests/boards/banco_finestra.h"

#include <QFontMetricsF>
#include <QImage>
#include <QTest>

#include <chrono>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

/// A picture of one colour in the program folder.
std::filesystem::path figura(const BancoVideata& banco, const char* nome, QSize misura, QColor tinta) {
    const auto file = banco.cartella.percorso() / nome;
    QImage carta(misura, QImage::Format_RGB32);
    carta.fill(tinta);
    carta.save(QString::fromStdString(file.string()), "JPG", 95);
    return file;
}

/// One board as its users know it, apart from the program's own tables.
struct Caso {
    TipoVideata tipo;
    int slot, numeri, grandi;
    const char* carattere; ///< of the big numbers with no settings; empty: the design's own
    double punti;
    const char* piccolo; ///< design font of the smallest numbers
    int scatti;          ///< slots whose number blinks at a call
};

using enum TipoVideata;
// clang-format off
constexpr Caso kCasi[] = {
    {frmLumigrafo, 3, 6, 3, "Arial Narrow", 100, "Arial", 3},
    {frmLumigrafooRIZZ, 3, 6, 3, "Arial Blank", 72, "Franklin Gothic Medium Cond", 3},
    {frmLumigrafoOrizz9numeri, 3, 9, 6, "Arial Blank", 72, "Franklin Gothic Medium Cond", 3},
    {frmLumigrafo1Reparto, 1, 6, 3, "Arial Narrow", 100, "Franklin Gothic Medium Cond", 1},
    {frmLumigrafo1Reparto9numeri, 1, 9, 6, "Arial Narrow", 100, "Verdana", 1},
    {frmLumigrafo1RepartoBig, 1, 6, 3, "Arial Narrow", 160, "Franklin Gothic Medium Cond", 1},
    {frmLumigrafoPerson, 1, 6, 0, "", 0, "Franklin Gothic Medium Cond", 1},
    {frmAvantiProssimo, 5, 1, 1, "Arial Narrow", 100, "", 0},
};
// clang-format on

bool avanti(TipoVideata tipo) {
    return tipo == frmAvantiProssimo;
}

std::string_view nomeNumero(TipoVideata tipo, int n) {
    return avanti(tipo) ? "lblNumero" : etichettaNumero(n);
}

EtichettaWidget& numero(const QWidget* finestra, const Caso& caso, int n, int slot) {
    return dynamic_cast<EtichettaWidget&>(*figlio(finestra, nomeNumero(caso.tipo, n), slot));
}

std::map<QString, QRect> geometria(const QWidget* finestra) {
    std::map<QString, QRect> m;
    for (const QWidget* w : finestra->findChildren<QWidget*>())
        m[w->objectName()] = w->geometry();
    return m;
}

QSize disegno(BancoVideata& banco) {
    const Layout& layout = banco.videata->controlli().layout();
    return {aPixel(layout.larghezza).v, aPixel(layout.altezza).v};
}

class Famiglia : public testing::TestWithParam<Caso> {
protected:
    const Caso& caso = GetParam();
    QWidget* finestra = nullptr; ///< of the board that was shown last
    /// Shows the board; with settings, a wide face at an odd size for the big numbers.
    void mostra(BancoFinestra& banco, bool imposte = false) {
        if (imposte) {
            banco.imposta("FontNumeri", "Courier New");
            banco.imposta("FontSizeNumeri", "133,5");
        }
        finestra = banco.mostra();
    }
};

TEST_P(Famiglia, soloINumeriGrandiPrendonoIlCarattereDelleImpostazioni) {
    for (const bool imposte : {false, true}) {
        BancoFinestra banco(caso.tipo);
        mostra(banco, imposte);
        finestra->resize(disegno(banco));
        for (int slot = 0; slot < caso.slot; ++slot)
            for (int n = 1; n <= caso.numeri; ++n) {
                SCOPED_TRACE(n);
                const Controllo& controllo = banco.controllo(nomeNumero(caso.tipo, n), slot);
                const Carattere& proprio = controllo.disegno().carattere;
                const bool grande = n <= caso.grandi;
                const double punti = !grande ? proprio.dimensione : imposte ? 133.5 : caso.punti;
                EXPECT_EQ(controllo.FontName(), !grande   ? proprio.nome
                                                : imposte ? "Courier New"
                                                          : caso.carattere);
                EXPECT_EQ(controllo.FontSize(), punti);
                EXPECT_NEAR(numero(finestra, caso, n, slot).testo().carattere().pixelSize(), punti * 20 / 15,
                            1);
                if (n > 3 && !grande) {
                    EXPECT_EQ(proprio.nome, caso.piccolo);
                }
            }
    }
}

TEST_P(Famiglia, lampeggianoIPostiCheLoSanno) {
    BancoFinestra banco(caso.tipo);
    banco.imposta("NumeroLampeggi", 1);
    mostra(banco);
    const int rotazione = banco.timers.accesi();
    for (std::int16_t slot = -1; slot <= 3; ++slot)
        banco.videata->Blinka(slot);
    EXPECT_EQ(banco.timers.accesi() - rotazione, caso.scatti);
    for (const char* cassa : {"A", "B", "C", "D", "E"})
        banco.videata->Lampeggia(cassa, "1");
    EXPECT_EQ(banco.timers.accesi() - rotazione, avanti(caso.tipo) ? 5 : caso.scatti);
    banco.timers.avanza(600ms);
    const bool siNasconde = caso.tipo != frmLumigrafo1RepartoBig;
    EXPECT_EQ(numero(finestra, caso, 3, 0).isHidden(), siNasconde);
    banco.videata->Scarica(); // in the middle of it
    EXPECT_EQ(banco.timers.accesi(), 0);
    mostra(banco);
    EXPECT_FALSE(numero(finestra, caso, 3, 0).isHidden());
}

TEST_P(Famiglia, unNumeroNonETagliatoMai) {
    for (const bool imposte : {false, true}) {
        BancoFinestra banco(caso.tipo);
        mostra(banco, imposte);
        for (const QSize misura :
             {QSize(800, 600), QSize(1920, 1080), QSize(3840, 2160), QSize(1080, 1920)}) {
            finestra->resize(misura);
            for (const char* testo : {"1", "12", "123", "1234", "12345", "A 7", "A 12345"})
                for (int n = 1; n <= caso.numeri; ++n) {
                    SCOPED_TRACE(testing::Message() << testo << " " << n << " " << misura.width());
                    const EtichettaWidget& etichetta = numero(finestra, caso, n, caso.slot - 1);
                    banco.controllo(nomeNumero(caso.tipo, n), caso.slot - 1).Caption(testo);
                    const QRect area = etichetta.area();
                    EXPECT_TRUE(etichetta.parentWidget()->rect().contains(area.translated(etichetta.pos())));
                    QFont usato = etichetta.testo().carattere();
                    usato.setPixelSize(etichetta.testo().pixelIn(area.size()));
                    const QRectF inchiostro =
                        QFontMetricsF(usato).tightBoundingRect(QString::fromLatin1(testo));
                    EXPECT_LE(inchiostro.width(), area.width() + 1);
                    EXPECT_LE(inchiostro.height(), area.height() + 1);
                    EXPECT_GE(usato.pixelSize(), 12);
                }
        }
    }
}

TEST_P(Famiglia, dopoOgniMisuraTornaComEra) {
    BancoFinestra banco(caso.tipo);
    mostra(banco);
    EXPECT_EQ(finestra->objectName().toStdString(), famiglia(caso.tipo).nome);
    EXPECT_TRUE(figlio(finestra, "lblChiudi"));
    if (!avanti(caso.tipo)) { // a message covers it all
        finestra->resize(1280, 720);
        banco.controllo("picComunicazione").ZOrder();
        banco.controllo("picComunicazione").Visible(true);
        const QWidget* messaggio = figlio(finestra, "lblComunicazione");
        EXPECT_EQ(messaggio->rect().translated(messaggio->mapTo(finestra, QPoint())), finestra->rect());
        for (const QPoint punto : {QPoint(1, 1), QPoint(1260, 10), QPoint(640, 360)})
            EXPECT_EQ(finestra->childAt(punto), messaggio);
    }
    finestra->resize(disegno(banco));
    const auto prima = geometria(finestra);
    for (const auto& c : banco.videata->controlli().tutti()) {
        const Rettangolo& r = c->Posto();
        const QRect& visto = prima.at(QString::fromStdString(c->NomeCompleto()));
        EXPECT_EQ(visto.topLeft(), QPoint(aPixel(r.left).v, aPixel(r.top).v)) << c->NomeCompleto();
    }
    for (int i = 0; i < 20; ++i)
        finestra->resize(701 + 137 * i, 401 + 83 * i);
    finestra->resize(2 * disegno(banco));
    const EtichettaWidget& grande = numero(finestra, caso, 3, 0);
    EXPECT_NEAR(grande.width(), 2 * prima.at(grande.objectName()).width(), 1);
    finestra->resize(disegno(banco));
    EXPECT_EQ(geometria(finestra), prima);
}

INSTANTIATE_TEST_SUITE_P(Tutte, Famiglia, testing::ValuesIn(kCasi),
                         [](const auto& caso) { return std::string(famiglia(caso.param.tipo).nome); });

QColor tintaIn(QWidget* finestra, QPoint punto) {
    const QColor c = finestra->grab().toImage().pixelColor(punto);
    // What a JPEG keeps of a colour is near enough.
    return QColor(c.red() > 127 ? 255 : 0, c.green() > 127 ? 255 : 0, c.blue() > 127 ? 255 : 0);
}

TEST(NumeriPiccoli, nonToccanoISeparatori) {
    BancoFinestra banco;
    QWidget* finestra = banco.mostra();
    for (const QSize misura : {QSize(800, 600), QSize(3840, 2160), QSize(1080, 1920)}) {
        finestra->resize(misura);
        for (int slot = 0; slot < 3; ++slot)
            for (const char* nome : {"lblNumero4", "lblNumero5", "lblNumero6"})
                for (const int barra : {2 * slot, 2 * slot + 1}) {
                    const auto& e = dynamic_cast<EtichettaWidget&>(*figlio(finestra, nome, slot));
                    EXPECT_FALSE(e.area().translated(e.pos()).intersects(
                        figlio(finestra, "Shape1", barra)->geometry()))
                        << nome << " " << barra;
                }
    }
}

TEST(PubblicitaVista, stirataONaturale) {
    for (const int resize : {1, 0, -1}) {
        BancoFinestra banco(frmLumigrafoOrizz9numeri);
        banco.console.inUso[2] = false;
        banco.imposta("ResizePubblicita", resize);
        banco.imposta("PubblicitaMirtolanda", 1); // the panel ends where the window does
        figura(banco, "pubblicita1.jpg", {100, 50}, Qt::green);
        QWidget* finestra = banco.mostra();
        banco.controllo("picPubblicita").ZOrder();
        finestra->resize(1512, 1066); // half as large again: the strip below stays 40 pixels
        const QRect area = figlio(finestra, "picPubblicita")->geometry();
        EXPECT_EQ(tintaIn(finestra, area.topLeft() + QPoint(5, 5)), QColor(Qt::black)) << "before a tick";
        banco.timers.avanza(10000ms);
        attendiFigura(finestra, "picPubblicita");
        EXPECT_EQ(tintaIn(finestra, area.topLeft() + QPoint(95, 45)), QColor(Qt::green));
        const QColor lontano = resize == 1 ? Qt::green : Qt::black;
        EXPECT_EQ(tintaIn(finestra, area.topLeft() + QPoint(110, 55)), lontano);
        EXPECT_EQ(tintaIn(finestra, QPoint(area.right() - 3, area.top() + 200)), lontano);
        const int fondo = area.top() + area.height() - 40;
        EXPECT_EQ(tintaIn(finestra, QPoint(1499, fondo - 3)), lontano);
        EXPECT_EQ(tintaIn(finestra, QPoint(1499, fondo + 3)), QColor(Qt::black));
        EXPECT_EQ(finestra->children().last(), figlio(finestra, "FraMirtolanda")) << "the strip is in front";
    }
}

TEST(PubblicitaVista, unaFiguraRottaEUnGuasto) {
    BancoFinestra banco(frmLumigrafoPerson); // its hidden panel reads the files all the same
    std::ofstream(banco.cartella.percorso() / "Pubblicita rotta.JPG") << "not a picture";
    banco.videata->Mostra();
    EXPECT_THROW(banco.timers.avanza(32000ms), Guasto);
}

TEST(SfondoVisto, riempieLaFinestraSottoINumeri) {
    BancoFinestra banco(frmLumigrafoPerson);
    const auto file = figura(banco, "mia foto.jpg", {60, 200}, Qt::blue);
    QWidget* finestra = banco.mostra();
    EXPECT_NE(tintaIn(finestra, QPoint(5, 5)), QColor(Qt::blue));
    banco.sceltaFile.scelto = file;
    QTest::mouseDClick(figlio(finestra, "lblNumero3", 0), Qt::LeftButton);
    EXPECT_TRUE(banco.sceltaFile.chieste.empty()) << "a label takes its own clicks";
    QTest::mouseDClick(finestra, Qt::LeftButton, {}, QPoint(finestra->width() - 60, finestra->height() / 2));
    ASSERT_EQ(banco.sceltaFile.chieste.size(), 1U);
    attendiFigura(finestra, "imgSfondo");
    for (const QPoint punto : {QPoint(3, 3), QPoint(finestra->width() - 3, finestra->height() - 3)})
        EXPECT_EQ(tintaIn(finestra, punto), QColor(Qt::blue));

    banco.videata->Scarica();
    finestra = banco.mostra();
    EXPECT_EQ(tintaIn(finestra, QPoint(3, 3)), QColor(Qt::black)) << "the design's picture doesn't flash up";
    attendiFigura(finestra, "imgSfondo");
    EXPECT_EQ(tintaIn(finestra, QPoint(3, 3)), QColor(Qt::blue)) << "kept for later runs";
}

} // namespace
} // namespace lumigrafo::prova
