#include "forms/qt/superficie.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace lumigrafo {

Superficie::Superficie(const Controllo& controllo, QWidget* padre)
    : QWidget(padre), cliccabile_(controllo.disegno().cliccabile) {}

void Superficie::mousePressEvent(QMouseEvent* evento) {
    premuto_ = cliccabile_ && evento->button() == Qt::LeftButton;
    evento->setAccepted(cliccabile_);
}

void Superficie::mouseReleaseEvent(QMouseEvent* evento) {
    evento->setAccepted(cliccabile_);
    if (!std::exchange(premuto_, false) || !rect().contains(evento->position().toPoint()))
        return;
    if (const auto azione = clic_)
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
