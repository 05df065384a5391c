#include "forms/qt/casella.h"

#include "platform/qt/aspetto.h"

namespace lumigrafo {

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
    const QString colori =
        QStringLiteral("color: %1; background: %2").arg(aspetto::colore(c.ForeColor()).name(), sfondo.name());
    if (styleSheet() != colori)
        setStyleSheet(colori);
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

} // namespace lumigrafo
