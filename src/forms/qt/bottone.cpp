#include "forms/qt/bottone.h"

#include "platform/qt/aspetto.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace lumigrafo {

namespace {

/// Wider than this many heights, the picture stands beside the text.
constexpr double kLargo = 1.8;
constexpr int kScuroPremuto = 115;
constexpr int kChiaroSopra = 104;
constexpr int kScuroBordo = 118;
constexpr double kVeloDisabilitato = 0.35;
constexpr int kChiaroDisabilitato = 106;

} // namespace

BottoneWidget::BottoneWidget(QWidget* padre) : QAbstractButton(padre) {
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

void BottoneWidget::mostra(const Controllo& c, const Resa& resa) {
    const bool testo =
        testo_.imposta(QString::fromStdString(c.Caption()), resa.carattere, Allineamento::Centro);
    if (!testo && tinta_ == c.ForeColor() && sfondo_ == c.BackColor() && raggio_ == resa.raggio)
        return;
    // For accessibility; the doubled sign keeps Qt from taking it for a shortcut.
    setText(QString(testo_.testo()).replace(QLatin1Char('&'), QLatin1String("&&")));
    setShortcut(scorciatoia(c)); // a new text drops the old one
    testo_.sottolinea(c.disegno().scelta);
    testo_.taglia(c.disegno().tagliato);
    tinta_ = c.ForeColor();
    sfondo_ = c.BackColor();
    raggio_ = resa.raggio;
    update();
}

void BottoneWidget::carica(const Controllo& c) {
    update();
    figura_.carica(c.Figura(), {size(), Adattamento::Intera, devicePixelRatioF()});
}

BottoneWidget::Aree BottoneWidget::aree() const {
    const int margine = std::max(3, std::min(width(), height()) / 12);
    const QRect dentro = rect().adjusted(margine, margine, -margine, -margine);
    if (figura_.vuota())
        return {{}, dentro};
    if (testo_.testo().isEmpty())
        return {dentro.adjusted(margine, margine, -margine, -margine), {}};
    if (width() > kLargo * height()) {
        const int lato = std::min(dentro.height(), dentro.width() / 3);
        return {QRect(dentro.left() + margine, dentro.top(), lato, dentro.height()),
                dentro.adjusted(lato + 2 * margine, 0, 0, 0)};
    }
    const int alto = dentro.height() * 3 / 5;
    return {QRect(dentro.left(), dentro.top(), dentro.width(), alto),
            dentro.adjusted(0, alto + margine / 2, 0, 0)};
}

QColor BottoneWidget::sfondoDi(const QColor& base) const {
    if (!isEnabled())
        return base.lighter(kChiaroDisabilitato);
    if (isDown())
        return base.darker(kScuroPremuto);
    return underMouse() ? base.lighter(kChiaroSopra) : base;
}

void BottoneWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor base = sfondo_ ? aspetto::colore(*sfondo_) : aspetto::kBottone;
    p.setBrush(sfondoDi(base));
    const double filo = filoCon(raggio_) * (hasFocus() ? 2.5 : 1);
    p.setPen(QPen(hasFocus() ? aspetto::kAccento : base.darker(kScuroBordo), filo));
    p.drawRoundedRect(QRectF(rect()).adjusted(filo / 2, filo / 2, -filo / 2, -filo / 2), raggio_, raggio_);
    const auto [figura, testo] = aree();
    if (isDown())
        p.translate(0, 1);
    if (!isEnabled())
        p.setOpacity(kVeloDisabilitato);
    testo_.disegna(p, testo, aspetto::colore(tinta_));
    figura_.disegna(p, figura, Adattamento::Intera);
}

/// The space bar alone presses it. A scanner ends each code with Return: it must not press whatever button
/// has the focus.
void BottoneWidget::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        evento->ignore();
    else
        QAbstractButton::keyPressEvent(evento);
}

} // namespace lumigrafo
