#include "platform/qt/finestra_avviso.h"

#include "platform/qt/aspetto.h"
#include "platform/qt/caratteri.h"
#include "platform/qt/icona_avviso.h"

#include <QAbstractTextDocumentLayout>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>

#include <algorithm>
#include <memory>

namespace lumigrafo {

namespace {

// Pixels of the smallest screen.
constexpr double kTestoPixel = 20, kLato = 64, kMargine = 24, kPiuLargo = 560, kPiuStretto = 280;
constexpr double kBottoneLargo = 150, kBottoneAlto = 56, kRaggio = 8;
/// A text that is too long for the monitor is written smaller, down to this.
constexpr double kScalaMinima = 0.5;

/// A text in lines, within its words too where they are as long as a path.
class Scritta final : public QWidget {
public:
    Scritta(const QString& testo, double scala, QWidget* padre) : QWidget(padre) {
        setAccessibleName(testo);
        QTextOption modo;
        modo.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        righe_.setDefaultTextOption(modo);
        righe_.setDefaultFont(carattere(QStringLiteral("Arial"), qRound(kTestoPixel * scala)));
        righe_.setDocumentMargin(0);
        righe_.setPlainText(testo);
        righe_.setTextWidth(kPiuLargo * scala);
        righe_.setTextWidth(std::max(righe_.idealWidth() + 1, kPiuStretto * scala));
        setFixedSize(righe_.size().toSize() + QSize(1, 1));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        QAbstractTextDocumentLayout::PaintContext contesto;
        contesto.palette.setColor(QPalette::Text, aspetto::kInchiostro);
        righe_.documentLayout()->draw(&p, contesto);
    }

private:
    QTextDocument righe_;
};

class Segno final : public QWidget {
public:
    Segno(Icona icona, double scala, QWidget* padre) : QWidget(padre), icona_(icona) {
        setFixedSize(qRound(kLato * scala), qRound(kLato * scala));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        disegnaIcona(p, icona_, rect());
    }

private:
    Icona icona_;
};

QString foglio(double scala) {
    return QStringLiteral(
               "QPushButton { font: bold %1px 'Arial'; min-width: %2px; min-height: %3px; padding: 0; "
               "border-radius: %4px; }"
               "QPushButton:focus { border: %5px solid #1f2933; padding: 0; }"
               "QPushButton[primario=true] { background: #2f6da8; color: #ffffff; }"
               "QPushButton[primario=true]:hover { background: #3a7cba; }"
               "QPushButton[primario=true]:pressed { background: #265a8c; }")
        .arg(qRound(18 * scala))
        .arg(qRound(kBottoneLargo * scala))
        .arg(qRound(kBottoneAlto * scala))
        .arg(qRound(kRaggio * scala))
        .arg(std::max(2, qRound(2 * scala)));
}

} // namespace

FinestraAvviso::FinestraAvviso(const Avviso& avviso, QWidget* sopra)
    : QDialog(sopra),
      testo_(QString::fromStdString(avviso.testo).replace(QStringLiteral("\r\n"), QStringLiteral("\n"))),
      icona_(avviso.icona), bottoni_(avviso.bottoni) {
    setObjectName(QStringLiteral("avviso"));
    setWindowTitle(avviso.titolo.empty() ? QStringLiteral("Lumigrafo")
                                         : QString::fromStdString(avviso.titolo));
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowStaysOnTopHint); // a board may lie over everything
    // Left to itself, a window comes up on the pointer's monitor, which may be the public's.
    const QScreen* schermo = sopra ? sopra->screen() : QGuiApplication::primaryScreen();
    const QRect libero = schermo->availableGeometry();
    double scala = aspetto::ingrandimento(libero.size());
    for (disponi(scala); scala > kScalaMinima && height() > libero.height() - kMargine; disponi(scala))
        scala *= 0.9;
    QRect posto(QPoint(), size());
    posto.moveCenter(libero.center());
    move(posto.topLeft());
}

void FinestraAvviso::disponi(double scala) {
    delete layout();
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
    setStyleSheet(foglio(scala));
    const int margine = qRound(kMargine * scala);
    auto* griglia = new QGridLayout(this);
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->setSpacing(0);
    auto* corpo = new QHBoxLayout;
    corpo->setContentsMargins(margine, margine, margine, margine);
    corpo->setSpacing(margine);
    if (icona_ != Icona::Nessuna)
        corpo->addWidget(new Segno(icona_, scala, this), 0, Qt::AlignTop);
    corpo->addWidget(new Scritta(testo_, scala, this), 1, Qt::AlignVCenter);
    griglia->addLayout(corpo, 0, 0);
    griglia->addWidget(piede(scala), 1, 0);
    setFixedSize(griglia->sizeHint());
}

/// The strip of the buttons. A question has none that a scanner's Enter could press.
QWidget* FinestraAvviso::piede(double scala) {
    auto* striscia = new QWidget(this);
    striscia->setObjectName(QStringLiteral("piede"));
    auto* riga = new QHBoxLayout(striscia);
    const int margine = qRound(kMargine * scala * 0.66);
    riga->setContentsMargins(margine, margine, margine, margine);
    riga->setSpacing(margine);
    riga->addStretch();
    const auto bottone = [&](const char* testo, bool primario, int esito) {
        auto* b = new QPushButton(QLatin1Char('&') + QString::fromUtf8(testo), striscia);
        b->setObjectName(QString::fromUtf8(testo));
        b->setAutoDefault(false);
        b->setProperty("primario", primario);
        b->setFocusPolicy(Qt::TabFocus);
        connect(b, &QPushButton::clicked, this, [this, esito] { done(esito); });
        riga->addWidget(b);
    };
    bottone(domanda() ? "Sì" : "OK", true, Accepted);
    if (domanda())
        bottone("No", false, Rejected);
    return striscia;
}

Risposta FinestraAvviso::chiedi() {
    setFocusPolicy(Qt::ClickFocus); // or Qt would give the focus to the first button
    setFocus();
    const int esito = exec();
    if (!domanda())
        return Risposta::Ok;
    return esito == Accepted ? Risposta::Si : Risposta::No;
}

/// Text on paper, buttons on the ground of the windows.
void FinestraAvviso::paintEvent(QPaintEvent*) {
    const int confine = findChild<QWidget*>(QStringLiteral("piede"))->y();
    QPainter p(this);
    p.fillRect(QRect(0, 0, width(), confine), aspetto::kCarta);
    p.fillRect(QRect(0, confine, width(), height() - confine), aspetto::kFinestra);
    p.fillRect(QRect(0, confine, width(), 1), aspetto::kRigo);
}

void FinestraAvviso::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter)
        QDialog::keyPressEvent(evento);
    else if (!domanda())
        accept();
}

} // namespace lumigrafo
