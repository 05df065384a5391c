#include "forms/qt/bottone.h"
#include "forms/qt/etichetta.h"
#include "forms/qt/finestra.h"
#include "forms/qt/griglia_widget.h"
#include "tests/forms/dimostrativo.h"
#include "tests/sostegno/guasto_atteso.h"

#include <QComboBox>
#include <QDebug>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPainter>
#include <QSlider>
#include <QTest>

#include <gtest/gtest.h>
#include <set>

using namespace lumigrafo;

namespace {

struct FinestraProva : testing::Test {
    Controlli c{dimostrativo::kLayout};
    Finestra f{c};

    QWidget& w(const char* nome, int indice = kSenzaIndice) { return *f.widget(nome, indice); }
    void mostra() {
        f.show();
        f.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    }
    /// Places, sizes and type of all that is there.
    QString stato() {
        QString s;
        QDebug scrive(&s);
        for (const auto& x : c.tutti()) {
            const QWidget* v = f.widget(x->disegno().nome, x->disegno().indice);
            scrive << v->objectName() << v->geometry() << v->isHidden();
            if (const auto* e = dynamic_cast<const EtichettaWidget*>(v))
                scrive << e->testo().carattere().pixelSize();
        }
        return s;
    }
};

TEST_F(FinestraProva, NomiEMisureDelDisegno) {
    EXPECT_EQ(f.size(), QSize(1008, 693));
    EXPECT_EQ(f.widget("lblNumero3"), nullptr);
    EXPECT_EQ(w("lblNumero3", 1).parentWidget(), f.widget("picPannello", 0));
    EXPECT_GE(w("Line", 0).height(), 1);
    EXPECT_TRUE(w("lblMessaggio").isHidden());
    EXPECT_EQ(w("grid", 0).accessibleName(), QStringLiteral("Ordini"));
    EXPECT_EQ(w("picPannello", 0).accessibleName(), QStringLiteral("picPannello(0)"));
}

TEST_F(FinestraProva, TuttoSegueLaFinestraSenzaDeriva) {
    mostra();
    const QString prima = stato();
    f.resize(2016, 1386);
    EXPECT_EQ(w("grid", 0).geometry(), QRect(4, 640, 778, 720));
    auto& numero = dynamic_cast<EtichettaWidget&>(w("lblNumero3", 0));
    EXPECT_EQ(numero.testo().carattere().pixelSize(), 267);
    f.resize(2016, 693);
    EXPECT_EQ(numero.testo().carattere().pixelSize(), 133) << "type follows the smaller axis";
    for (int i = 0; i < 100; ++i)
        f.resize(300 + 17 * i, 200 + 13 * (i % 37));
    f.resize(1008, 693);
    EXPECT_EQ(stato(), prima);
    c("lblReparto", 0).Left(1530);
    EXPECT_EQ(w("lblReparto", 0).x(), 102);
    f.resize(2016, 1386);
    EXPECT_EQ(w("lblReparto", 0).x(), 204) << "a moved control scales from where it was put";
}

TEST_F(FinestraProva, LaVistaSegueIlModello) {
    mostra();
    QWidget &reparto = w("lblReparto", 0), &barcode = w("txtBarCode");
    c("lblReparto", 0).Caption("BAR");
    EXPECT_EQ(reparto.accessibleName(), QStringLiteral("BAR"));
    c("lblMessaggio").Visible(true);
    c("picPannello", 0).Visible(false);
    EXPECT_FALSE(w("lblMessaggio").isHidden());
    EXPECT_TRUE(w("picPannello", 0).isHidden());
    c("cmdSpegni").Enabled(false);
    EXPECT_FALSE(w("cmdSpegni").isEnabled());
    c("txtBarCode").Caption("599");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(barcode).text(), QStringLiteral("599"));
    c("txtBarCode").BackColor(rgb(250, 240, 10));
    EXPECT_EQ(barcode.grab().toImage().pixelColor(barcode.rect().center()), QColor(250, 240, 10));
    c("lblReparto", 0).BackColor(rgb(10, 200, 30));
    EXPECT_EQ(reparto.grab().toImage().pixelColor(20, 4), QColor(10, 200, 30));
    c("picPannello", 0).Visible(true);
    c("picPannello", 0).Sfumatura2(kBianco);
    const QRect p = w("picPannello", 0).geometry();
    const QImage scatto = f.grab().toImage();
    EXPECT_LT(scatto.pixelColor(p.center().x(), p.top() + 2).red(), 30);
    EXPECT_GT(scatto.pixelColor(p.center().x(), p.bottom() - 2).red(), 240);
    c("lblReparto", 0).ZOrder();
    EXPECT_EQ(f.children().last(), &reparto);
}

/// Notes what is painted of a widget.
struct Pittore : QObject {
    QRegion area;
    explicit Pittore(QWidget& w) { w.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint)
            area += static_cast<QPaintEvent*>(e)->region();
        return false;
    }
};

TEST_F(FinestraProva, SoloCioCheCambiaSiRidipinge) {
    Griglia modello(3);
    modello.Rows(2);
    const GrigliaWidget& g = f.collegaGriglia("grid", 0, modello);
    mostra();
    QTest::qWait(0);
    const Pittore finestra(f), griglia(w("grid", 0));
    modello.testo(1, 1, "B  7");
    c("lblTitolo").Caption("X");
    c("lblReparto", 0).Caption("Y");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !finestra.area.isEmpty(); }));
    const QRect cella = g.rettangolo(1, 1);
    EXPECT_EQ(griglia.area, QRegion(cella));
    EXPECT_TRUE(finestra.area.subtracted(w("lblTitolo").geometry())
                    .subtracted(w("lblReparto", 0).geometry())
                    .subtracted(cella.translated(g.pos()))
                    .isEmpty());
}

TEST_F(FinestraProva, ClicSuCioCheLiAccetta) {
    mostra();
    std::vector<std::string> clic;
    f.alClic([&](const Controllo& x) { clic.push_back(x.NomeCompleto()); });
    for (QWidget* clicca : {&w("lblReparto", 0), &w("cmdAggiorna"), &w("lblTitolo"),
                            &w("lblNumero3", 0)}) // the last lies in a box that takes clicks
        QTest::mouseClick(clicca, Qt::LeftButton);
    QTest::mousePress(&w("lblReparto", 0), Qt::LeftButton);
    QTest::mouseRelease(&w("lblReparto", 0), Qt::LeftButton, {}, QPoint(-20, 5));
    QTest::keyClick(&w("cmdSpegni"), Qt::Key_Return); // what a scanner sends
    QTest::keyClick(&w("cmdAggiorna"), Qt::Key_Space);
    EXPECT_EQ(clic,
              (std::vector<std::string>{"lblReparto(0)", "cmdAggiorna", "picNumero(0)", "cmdAggiorna"}));
}

TEST_F(FinestraProva, ITastiPassanoPrimaDallaFinestra) {
    mostra();
    c("txtBarCode").SetFocus();
    ASSERT_TRUE(w("txtBarCode").hasFocus());
    QTest::mouseClick(&w("cmdAggiorna"), Qt::LeftButton);
    EXPECT_TRUE(w("txtBarCode").hasFocus()) << "a touch on a button leaves the scanner's field alone";
    QString visti, scritti;
    f.alTasto([&](const QKeyEvent& e) {
        visti += e.text();
        return e.text() == QStringLiteral("x");
    });
    f.alCambioTesto([&](const Controllo& x) { scritti = QString::fromStdString(x.Caption()); });
    for (const char k : {'1', 'x', '2', '\r'})
        QTest::keyClick(f.windowHandle(), k);
    EXPECT_EQ(visti, QStringLiteral("1x2\r")) << "each key once, though Enter climbs on to the window";
    EXPECT_EQ(c("txtBarCode").Caption(), "12");
    EXPECT_EQ(scritti, QStringLiteral("12"));
}

TEST_F(FinestraProva, ListeSpunteECursoriVannoNeiDueVersi) {
    for (const char* voce : {"VERTICALE", "ORIZZONTALE", "BIG"}) {
        c("cboTipo").AddItem(voce);
        c("lstFont").AddItem(voce);
    }
    std::vector<std::string> cambi;
    f.alCambioValore(
        [&](const Controllo& x) { cambi.push_back(x.NomeCompleto() + "=" + std::to_string(x.Value())); });
    c("cboTipo").ListIndex(1);
    c("lstFont").ListIndex(2);
    c("chkVocale").Value(1);
    c("sldVelocita").Value(-4);
    EXPECT_TRUE(cambi.empty()) << "what the logic sets is no choice of the operator";
    auto& combo = dynamic_cast<QComboBox&>(w("cboTipo"));
    auto& lista = dynamic_cast<QListWidget&>(w("lstFont"));
    auto& cursore = dynamic_cast<QSlider&>(w("sldVelocita"));
    EXPECT_EQ(combo.currentText(), QStringLiteral("ORIZZONTALE"));
    EXPECT_EQ(lista.currentRow(), 2);
    EXPECT_EQ(cursore.value(), -4);

    mostra();
    QTest::mouseClick(&w("chkVocale"), Qt::LeftButton);
    QTest::keyClick(&f, Qt::Key_P, Qt::AltModifier); // the press shows for a moment before it counts
    ASSERT_TRUE(QTest::qWaitFor([&] { return c("chkVocale").Value() == 1; }));
    QTest::keyClick(&cursore, Qt::Key_Right);
    QTest::keyClick(&cursore, Qt::Key_PageUp);
    QTest::keyClick(&combo, Qt::Key_Down);
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(0)).center());
    EXPECT_EQ(cambi, (std::vector<std::string>{"chkVocale=0", "chkVocale=1", "sldVelocita=-3",
                                               "sldVelocita=2", "cboTipo=2", "lstFont=0"}));
    for (QWidget* scansionato : {&w("cboTipo"), &w("lstFont"), &w("chkVocale")}) {
        scansionato->setFocus();
        QTest::keyClicks(scansionato, QStringLiteral("VAO12"));
        QTest::keyClick(scansionato, Qt::Key_Return);
    }
    EXPECT_EQ(cambi.size(), 6U) << "a scanned code chooses and ticks nothing";
    c("cboTipo").Clear();
    EXPECT_EQ(combo.count(), 0);
    QTest::keyClicks(&w("txtBarCode"), QStringLiteral("59965010012334"));
    EXPECT_EQ(c("txtBarCode").Caption(), "5996501001233") << "no longer than its limit";
}

TEST_F(FinestraProva, ChiusuraAttivazioneESfondo) {
    int attivazioni = 0, doppi = 0, movimenti = 0;
    bool concessa = false;
    f.allaAttivazione([&] { ++attivazioni; });
    f.allaChiusura([&] { return concessa; });
    f.alDoppioClicSfondo([&] { ++doppi; });
    f.alMovimentoPuntatore([&] { ++movimenti; });
    mostra();
    EXPECT_EQ(attivazioni, 1);
    QTest::mouseDClick(&f, Qt::LeftButton, {}, QPoint(1000, 680));
    QTest::mouseDClick(&w("picLogo"), Qt::LeftButton);
    QTest::mouseDClick(&w("lblTitolo"), Qt::LeftButton);
    EXPECT_EQ(doppi, 2) << "a label is no ground";
    movimenti = 0;
    QTest::mouseMove(&w("lblTitolo"), QPoint(5, 5));
    EXPECT_GT(movimenti, 0);
    EXPECT_FALSE(f.close());
    EXPECT_TRUE(f.isVisible());
    concessa = true;
    EXPECT_TRUE(f.close());
}

TEST_F(FinestraProva, IlFuocoPortaLaFinestraDavantiAncheSeEGiaAttiva) {
    struct Ordini : QObject {
        int quanti = 0;
        bool eventFilter(QObject*, QEvent* e) override {
            quanti += e->type() == QEvent::ZOrderChange ? 1 : 0;
            return false;
        }
    } ordini;
    mostra();
    f.installEventFilter(&ordini);
    c("txtBarCode").SetFocus();
    EXPECT_EQ(ordini.quanti, 1) << "a window shown without being activated may lie over it";
}

TEST(FinestraDentroUnAltra, HaGliAgganciDiQuella) {
    Controlli c(dimostrativo::kLayout);
    QMainWindow esterna;
    auto* f = new Finestra(c);
    esterna.menuBar()->addMenu(QStringLiteral("Opzioni"));
    esterna.setCentralWidget(f);
    int chiusure = 0, tasti = 0;
    f->allaChiusura([&] { return ++chiusure > 1; });
    f->alTasto([&](const QKeyEvent&) { return ++tasti > 0; });
    esterna.resize(1008, 800);
    esterna.show();
    esterna.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&esterna));
    QTest::keyClick(esterna.windowHandle(), Qt::Key_5);
    EXPECT_EQ(tasti, 1);
    EXPECT_FALSE(esterna.close());
    EXPECT_TRUE(esterna.close());
    EXPECT_EQ(f->height(), 800 - esterna.menuBar()->height());
}

TEST_F(FinestraProva, UnNumeroESempreIntero) {
    mostra();
    for (const QSize misura : {QSize(1008, 693), QSize(640, 480), QSize(3840, 2160)}) {
        f.resize(misura);
        auto& e = dynamic_cast<EtichettaWidget&>(w("lblNumero3", 1));
        const int pieno = e.testo().carattere().pixelSize();
        const int usato = e.testo().pixelIn(e.area().size());
        EXPECT_LT(usato, pieno);
        EXPECT_GT(usato, pieno / 2);
        QImage carta(e.size() + QSize(80, 80), QImage::Format_RGB32);
        carta.fill(Qt::black);
        QPainter p(&carta);
        e.testo().disegna(p, QRect(QPoint(40, 40), e.size()), Qt::white);
        int fuori = 0;
        for (int y = 0; y < carta.height(); ++y)
            for (int x = 0; x < carta.width(); ++x)
                if (!QRect(QPoint(39, 39), e.size() + QSize(2, 2)).contains(x, y))
                    fuori += qRed(carta.pixel(x, y)) > 64;
        EXPECT_EQ(fuori, 0) << misura.width();
    }
}

TEST(TestoAdattato, FrasiVannoACapoNumeriNo) {
    QFont grande(QStringLiteral("Liberation Sans"));
    grande.setPixelSize(40);
    struct Caso {
        const char* testo;
        QSize area;
        bool intero; ///< at its own size
    };
    for (const auto& [testo, area, intero] : {
             Caso{"A 123", {300, 100}, true},
             Caso{"A 12345", {100, 200}, false},
             Caso{"BAR PANINI", {150, 200}, false}, // two words are a name
             Caso{"NNNNN NNNNN NNNNN", {290, 100}, false},
             Caso{"venite al banco", {180, 200}, true},
             Caso{"venite al banco", {180, 60}, false},
             Caso{"uno\r\ndue", {200, 100}, true},
             Caso{"uno\ndue\ntre", {200, 100}, false},
             Caso{"88", {200, 32}, true}, // the ink fits, though the line's full height doesn't
             Caso{"88", {200, 20}, false},
         }) {
        TestoAdattato t;
        t.imposta(QString::fromUtf8(testo), grande, Allineamento::Centro);
        EXPECT_EQ(t.pixelIn(area) == 40, intero) << testo << " " << area.width() << "x" << area.height();
    }
    TestoAdattato diBottone;
    diBottone.frase(2);
    diBottone.imposta(QStringLiteral("BAR PANINI"), grande, Allineamento::Centro);
    EXPECT_EQ(diBottone.pixelIn({200, 200}), 40);
    // Of thousands of characters without a blank a single line could not be read.
    TestoAdattato lungo;
    lungo.imposta(QString(5000, QLatin1Char('\\')), grande, Allineamento::Centro);
    EXPECT_GE(lungo.pixelIn({1000, 700}), 20);
}

TEST(Campione, UnaGrandezzaPiuGrandeSiVedePiuGrandeETuttaIntera) {
    static constexpr std::array<Descrizione, 1> kUno{
        {{.nome = "lblFont", .rett = {0, 0, 1440, 720}, .caption = "XXX", .corsa = {24, 250}}}};
    static constexpr Layout kLayout{"frmProva", "", 1440, 720, kBianco, kUno};
    Controlli c(kLayout);
    const Finestra f(c);
    const auto& e = dynamic_cast<const EtichettaWidget&>(*f.widget("lblFont"));
    int prima = 0;
    for (const double punti : {24.0, 48.0, 72.0, 160.0, 250.0}) {
        c("lblFont").FontSize(punti);
        const int pixel = e.testo().pixelIn(e.area().size());
        EXPECT_EQ(pixel, e.testo().carattere().pixelSize()) << punti;
        EXPECT_GT(pixel, prima) << punti;
        prima = pixel;
    }
}

TEST_F(FinestraProva, UnaFiguraCheNonCeEUnGuastoCheLaNomina) {
    for (const auto& [figura, numero] :
         {std::pair("/manca/davvero.jpg", 53), {FIGLIO_GUASTO, 481}, {"prova", 0}, {"", 0}}) {
        const auto [trovato, testo] = prova::fallimento([&, f = figura] { c("picLogo").Figura(f); });
        EXPECT_EQ(trovato, numero) << figura;
        EXPECT_TRUE(numero == 0 || testo.ends_with(figura)) << testo;
    }
}

} // namespace
