#include "forms/qt/immagine.h"

#include "platform/qt/aspetto.h"

#include <QPainter>

namespace lumigrafo {

void ImmagineWidget::mostra(const Controllo& c, const Resa&) {
    if (sfondo_ == c.BackColor() && modo_ == c.Adatta())
        return;
    sfondo_ = c.BackColor();
    modo_ = c.Adatta();
    update();
}

void ImmagineWidget::carica(const Controllo& c) {
    update();
    figura_.carica(c.Figura());
}

void ImmagineWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (sfondo_)
        p.fillRect(rect(), aspetto::colore(*sfondo_));
    figura_.disegna(p, rect(), modo_);
}

} // namespace lumigrafo
