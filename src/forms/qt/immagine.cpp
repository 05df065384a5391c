#include "forms/qt/immagine.h"

#include "platform/qt/aspetto.h"

#include <QPainter>

namespace lumigrafo {

void ImmagineWidget::mostra(const Controllo& c, const Resa&) {
    if (sfondo_ == c.BackColor())
        return;
    sfondo_ = c.BackColor();
    update();
}

void ImmagineWidget::carica(const Controllo& c) {
    update();
    modo_ = c.Adatta();
    margine_ = modo_ == Adattamento::Stirata ? aPixel(c.MargineFigura()).v : 0;
    figura_.carica(c.Figura(), {area().size(), modo_, devicePixelRatioF()});
}

QRect ImmagineWidget::area() const {
    return rect().adjusted(0, 0, 0, -margine_);
}

void ImmagineWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (sfondo_)
        p.fillRect(rect(), aspetto::colore(*sfondo_));
    figura_.disegna(p, area(), modo_);
}

} // namespace lumigrafo
