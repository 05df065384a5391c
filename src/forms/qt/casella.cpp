#include "forms/qt/casella.h"

#include "platform/qt/aspetto.h"

#include <QKeyEvent>

namespace lumigrafo {

namespace {

constexpr auto kFoglio = "QLineEdit { color: %1; background: %2; border: %5px solid %3; border-radius: %6px;"
                         " padding: 0 %7px; }"
                         "QLineEdit:focus { border: %8px solid %4; padding: 0 %9px; }";

} // namespace

void CasellaWidget::mostra(const Controllo& c, const Resa& resa) {
    const QString testo = QString::fromStdString(c.Caption());
    if (text() != testo) { // an equal one would move the cursor under the typing hand
        setText(testo);
        if (!hasFocus())
            setCursorPosition(0); // a long text shows its beginning
    }
    if (font() != resa.carattere)
        setFont(resa.carattere);
    // A palette would be half overruled by the program's style sheet.
    const QColor sfondo = c.BackColor() ? aspetto::colore(*c.BackColor()) : aspetto::kCarta;
    const int filo = qRound(filoCon(resa.raggio));
    const QString foglio = QString::fromLatin1(kFoglio)
                               .arg(aspetto::colore(c.ForeColor()).name(), sfondo.name(),
                                    aspetto::kBordo.name(), aspetto::kAccento.name())
                               .arg(filo)
                               .arg(resa.raggio)
                               .arg(8 * filo)
                               .arg(2 * filo)
                               .arg(7 * filo);
    if (styleSheet() != foglio)
        setStyleSheet(foglio);
    switch (c.disegno().allineamento) {
    case Allineamento::Sinistra:
        setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        break;
    case Allineamento::Centro:
        setAlignment(Qt::AlignCenter);
        break;
    case Allineamento::Destra:
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        break;
    }
}

void CasellaWidget::accogli() {
    if (cursorPosition() == 0)
        selectAll();
}

/// Alt with a letter that no button has is no text.
void CasellaWidget::keyPressEvent(QKeyEvent* evento) {
    if (evento->modifiers() == Qt::AltModifier && !evento->text().isEmpty())
        evento->ignore();
    else
        QLineEdit::keyPressEvent(evento);
}

} // namespace lumigrafo
