#include "boards/qt/finestra_videata_qt.h"
#include "tests/boards/banco_videata.h"

#include <QApplication>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace lumigrafo::prova {

namespace {

/// A board with its real window.
class BancoFinestra : public BancoVideata {
public:
    explicit BancoFinestra(TipoVideata tipo = TipoVideata::frmLumigrafo) {
        videata = creaVideata(tipo, servizi, fabbricaFinestreQt());
    }
    ~BancoFinestra() {
        videata.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    }
    static QWidget* finestra() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String("frmLumigrafo") && w->isVisible())
                return w;
        return nullptr;
    }
};

QWidget* figlio(const QWidget* finestra, std::string_view nome, int indice = kSenzaIndice) {
    return finestra->findChild<QWidget*>(QString::fromStdString(nomeCompleto(nome, indice)));
}

std::map<QString, QRect> geometria(const QWidget* finestra) {
    std::map<QString, QRect> m;
    for (const QWidget* w : finestra->findChildren<QWidget*>())
        m[w->objectName()] = w->geometry();
    return m;
}

class OgniVideata : public testing::TestWithParam<TipoVideata> {};

TEST_P(OgniVideata, haIControlliDelPattoEDopoOgniMisuraTornaComEra) {
    BancoFinestra banco(GetParam());
    banco.videata->Mostra();
    QWidget* finestra = BancoFinestra::finestra();
    ASSERT_TRUE(finestra);
    const RigaFamiglia& riga = famiglia(GetParam());
    for (int slot = 0; slot < riga.slot; ++slot)
        for (int n = 1; n <= riga.numeri; ++n)
            EXPECT_TRUE(figlio(finestra, etichettaNumero(n), slot)) << n << " " << slot;
    for (const char* nome :
         {"lblTitoloLumigrafo", "lblChiudi", "picChiudi", "picComunicazione", "lblComunicazione"})
        EXPECT_TRUE(figlio(finestra, nome)) << nome;

    finestra->resize(1008, 693); // the design's size
    EXPECT_EQ(figlio(finestra, "lblNumero3", 0)->geometry(), QRect(23, 45, 306, 167));
    const auto prima = geometria(finestra);
    for (int i = 0; i < 100; ++i)
        finestra->resize(701 + 37 * i, 401 + 23 * i);
    finestra->resize(2016, 1386);
    EXPECT_EQ(figlio(finestra, "lblNumero3", 0)->geometry(), QRect(46, 90, 612, 334));
    finestra->resize(1008, 693);
    EXPECT_EQ(geometria(finestra), prima);
}

INSTANTIATE_TEST_SUITE_P(Famiglia, OgniVideata, testing::Values(TipoVideata::frmLumigrafo),
                         [](const auto& caso) { return std::string(famiglia(caso.param).nome); });

TEST(FinestraVideata, siMostraDovEraESiSalvaAlClicSuChiudi) {
    BancoFinestra banco;
    banco.impostaPosto("150", "300", "9000", "6000");
    banco.videata->Mostra();
    QPointer<QWidget> finestra = BancoFinestra::finestra();
    ASSERT_TRUE(finestra);
    EXPECT_EQ(finestra->geometry(), QRect(20, 10, 600, 400));
    EXPECT_TRUE(finestra->windowTitle().isEmpty());
    finestra->move(-800, 40);
    QTest::mouseClick(figlio(finestra, "lblNumero1", 0), Qt::LeftButton);
    EXPECT_TRUE(finestra->isVisible());
    QTest::mouseClick(figlio(finestra, "lblChiudi"), Qt::LeftButton);
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_EQ(banco.postoSalvato(), "600 -12000 9000 6000 ");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(finestra) << "the window is gone, not only out of sight";
    banco.controllo("lblNumero3", 0).Caption("A 1");
    EXPECT_TRUE(banco.videata->caricata());
}

TEST(FinestraVideata, chiusaDalSistemaSiSalva) {
    BancoFinestra banco;
    banco.videata->Mostra();
    BancoFinestra::finestra()->close();
    EXPECT_FALSE(banco.videata->caricata());
    EXPECT_EQ(banco.postoSalvato(), "0 0 12000 9000 ");
}

TEST(FinestraVideata, laComunicazioneCopreTutto) {
    BancoFinestra banco;
    banco.videata->Mostra();
    QWidget* finestra = BancoFinestra::finestra();
    finestra->resize(1280, 720);
    banco.controllo("lblComunicazione").Caption("Si chiude alle 23");
    banco.controllo("picComunicazione").ZOrder();
    banco.controllo("picComunicazione").Visible(true);
    EXPECT_EQ(figlio(finestra, "picComunicazione")->geometry(), finestra->rect());
    EXPECT_EQ(figlio(finestra, "lblComunicazione")->size(), finestra->size());
    for (const QPoint punto : {QPoint(1, 1), QPoint(1260, 10), QPoint(640, 360)})
        EXPECT_TRUE(figlio(finestra, "picComunicazione")->isAncestorOf(finestra->childAt(punto)) ||
                    finestra->childAt(punto) == figlio(finestra, "picComunicazione"));
}

TEST(FinestraVideata, ridottaNonCompare) {
    BancoFinestra banco;
    banco.console.soloAndroid = true;
    banco.videata->Mostra();
    ASSERT_TRUE(BancoFinestra::finestra());
    EXPECT_TRUE(BancoFinestra::finestra()->isMinimized());
    banco.videata->Riduci(false);
    EXPECT_FALSE(BancoFinestra::finestra()->isMinimized());
}

} // namespace

} // namespace lumigrafo::prova
