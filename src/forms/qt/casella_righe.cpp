#include "forms/qt/casella_righe.h"

#include "platform/qt/aspetto.h"

#include <QScrollBar>

#include <algorithm>

namespace lumigrafo {

namespace {

constexpr Twip kBarra = 720; // breadth of the scroll bar: a finger's at the design

const QString kRiga = QStringLiteral("\n");
const QString kRigaCaption = QStringLiteral("\r\n");

// Colours of the text, and a scroll bar made for a finger.
constexpr auto kFoglio = R"(
QPlainTextEdit { color: %1; background: %2; border: %7px solid %3; border-radius: %8px; padding: %9px; }
QPlainTextEdit:focus { border: %9px solid %4; padding: %7px; }
QScrollBar:vertical { width: %5px; background: %6; border: none; margin: 0; }
QScrollBar::handle:vertical { background: %3; border-radius: %8px; min-height: %5px; margin: %9px; }
QScrollBar::handle:vertical:disabled { background: %6; }
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }
)";

} // namespace

CasellaRigheWidget::CasellaRigheWidget(QWidget* padre) : QPlainTextEdit(padre) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    QScrollBar* barra = verticalScrollBar();
    const auto segui = [barra] { barra->setEnabled(barra->maximum() > barra->minimum()); };
    connect(barra, &QScrollBar::rangeChanged, barra, segui);
    segui();
}

void CasellaRigheWidget::mostra(const Controllo& c, const Resa& resa) {
    const QString nuovo = QString::fromStdString(c.Caption()).replace(kRigaCaption, kRiga);
    if (toPlainText() != nuovo) { // an equal one would move the cursor under the typing hand
        inMostra_ = true;
        setPlainText(nuovo);
        moveCursor(QTextCursor::End);
        inMostra_ = false;
    }
    if (font() != resa.carattere)
        setFont(resa.carattere);
    const QColor sfondo = c.BackColor() ? aspetto::colore(*c.BackColor()) : aspetto::kCarta;
    const int filo = qRound(filoCon(resa.raggio));
    const QString foglio = QString::fromUtf8(kFoglio)
                               .arg(aspetto::colore(c.ForeColor()).name(), sfondo.name(),
                                    aspetto::kBordo.name(), aspetto::kAccento.name())
                               .arg(std::max(aspetto::kTocco, resa.scala.altezza(kBarra)))
                               .arg(aspetto::kFinestra.name())
                               .arg(filo)
                               .arg(resa.raggio)
                               .arg(2 * filo);
    document()->setDocumentMargin(4.0 * filo);
    if (styleSheet() != foglio)
        setStyleSheet(foglio);
}

std::string CasellaRigheWidget::testo() const {
    return toPlainText().replace(kRiga, kRigaCaption).toStdString();
}

} // namespace lumigrafo
