#include "forms/qt/casella_righe.h"

#include "platform/qt/aspetto.h"

#include <QScrollBar>

namespace lumigrafo {

namespace {

const QString kRiga = QStringLiteral("\n");
const QString kRigaCaption = QStringLiteral("\r\n");

// Colours of the text, and a scroll bar made for a finger.
constexpr auto kFoglio = R"(
QPlainTextEdit { color: %1; background: %2; border: 1px solid %3; border-radius: 6px; padding: 2px 4px; }
QPlainTextEdit:focus { border: 2px solid %4; padding: 1px 3px; }
QScrollBar:vertical { width: %5px; background: %6; border: none; margin: 0; }
QScrollBar::handle:vertical { background: %3; border-radius: 6px; min-height: %5px; margin: 3px; }
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }
)";

} // namespace

CasellaRigheWidget::CasellaRigheWidget(QWidget* padre) : QPlainTextEdit(padre) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
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
    const QString foglio = QString::fromUtf8(kFoglio)
                               .arg(aspetto::colore(c.ForeColor()).name(), sfondo.name(),
                                    aspetto::kBordo.name(), aspetto::kAccento.name())
                               .arg(aspetto::kTocco)
                               .arg(aspetto::kFinestra.name());
    if (styleSheet() != foglio)
        setStyleSheet(foglio);
}

std::string CasellaRigheWidget::testo() const {
    return toPlainText().replace(kRiga, kRigaCaption).toStdString();
}

} // namespace lumigrafo
