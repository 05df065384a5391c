#include "forms/qt/superficie.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace lumigrafo {

Superficie::Superficie(const Controllo& controllo, QWidget* padre)
    : QWidget(padre), cliccabile_(controllo.disegno().cliccabile) {}

void Superficie::mousePressEvent(QMouseEvent* evento) {
    premuto_ = cliccabile_ ? evento->button() : Qt::NoButton;
    evento->setAccepted(cliccabile_);
}

void Superficie::mouseReleaseEvent(QMouseEvent* evento) {
    evento->setAccepted(cliccabile_);
    const Qt::MouseButton premuto = std::exchange(premuto_, Qt::NoButton);
    if (premuto != evento->button() || !rect().contains(evento->position().toPoint()))
        return;
    const auto azione = premuto == Qt::LeftButton    ? clic_
                        : premuto == Qt::RightButton ? clicDestro_
                                                     : nullptr;
    if (azione)
        azione();
}

bool Superficie::copreIlPadre() const {
    return parentWidget() && geometry().contains(parentWidget()->rect());
}

void Superficie::riempi(QPainter& pennello, const QBrush& tinta, int raggio) const {
    if (copreIlPadre()) {
        pennello.fillRect(rect(), tinta);
        return;
    }
    pennello.setRenderHint(QPainter::Antialiasing);
    pennello.setPen(Qt::NoPen);
    pennello.setBrush(tinta);
    pennello.drawRoundedRect(rect(), raggio, raggio);
}

} // namespace lumigrafo
