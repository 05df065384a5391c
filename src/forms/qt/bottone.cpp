#include "forms/qt/bottone.h"

#include "platform/qt/aspetto.h"
#include "platform/qt/caratteri.h"

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
    testo_.frase(2); // a caption of two words is read better in two lines than small
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
    quota_ = c.disegno().quota;
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
    const double filo = filoCon(raggio_);
    p.setPen(QPen(base.darker(kScuroBordo), filo));
    p.drawRoundedRect(QRectF(rect()).adjusted(filo / 2, filo / 2, -filo / 2, -filo / 2), raggio_, raggio_);
    if (hasFocus())
        disegnaFuoco(p);
    const auto [figura, testo] = aree();
    if (isDown())
        p.translate(0, 1);
    if (!isEnabled())
        p.setOpacity(kVeloDisabilitato);
    testo_.disegna(p, testo, aspetto::colore(tinta_));
    figura_.disegna(p, figura, Adattamento::Intera);
    if (quota_)
        disegnaQuota(p, testo);
}

/// A dark ring with a light one inside it: one of the two is seen on whatever colour the button has.
void BottoneWidget::disegnaFuoco(QPainter& p) const {
    const double filo = filoCon(raggio_) * 2;
    const auto anello = [&](const QColor& colore, double dentro) {
        p.setPen(QPen(colore, filo));
        p.drawRoundedRect(QRectF(rect()).adjusted(dentro, dentro, -dentro, -dentro), raggio_, raggio_);
    };
    p.setBrush(Qt::NoBrush);
    anello(aspetto::kFuoco, filo / 2);
    anello(aspetto::kCarta, filo * 1.5);
}

void BottoneWidget::disegnaQuota(QPainter& p, const QRect& testo) const {
    constexpr double kAltoNota = 2.2; // radii of the corners
    const int pieno = testo_.carattere().pixelSize(), usato = testo_.pixelIn(testo.size());
    if (usato >= pieno)
        return;
    QFont nota = carattere(QStringLiteral("Arial"), qRound(kAltoNota * raggio_), false, false);
    p.setFont(nota);
    p.setPen(aspetto::kQuieto);
    p.drawText(testo, Qt::AlignRight | Qt::AlignBottom,
               QStringLiteral("%1 %").arg(std::max(1, 100 * usato / pieno)));
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
