#include "forms/qt/tastiera_widget.h"

#include "forms/qt/battuta.h"
#include "forms/qt/simboli_tastiera.h"
#include "platform/qt/aspetto.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QTouchEvent>

#include <algorithm>

namespace lumigrafo {

namespace {

constexpr int kPrimaRipetizioneMs = 450;
constexpr int kRipetizioneMs = 70;
constexpr double kSimbolo = 1.25; ///< of the type's height
constexpr int kScuroPremuto = 118;
const QColor kOmbra(150, 163, 176);
const QColor kSfondoServizio(208, 218, 227);

Qt::Key codice(AzioneTasto azione, const QString& testo) {
    switch (azione) {
    case AzioneTasto::Cancella:
        return Qt::Key_Backspace;
    case AzioneTasto::Invio:
        return Qt::Key_Return;
    case AzioneTasto::Sinistra:
        return Qt::Key_Left;
    case AzioneTasto::Destra:
        return Qt::Key_Right;
    case AzioneTasto::Su:
        return Qt::Key_Up;
    case AzioneTasto::Giu:
        return Qt::Key_Down;
    default:
        return testo.isEmpty() ? Qt::Key_unknown : Qt::Key(testo.at(0).toUpper().unicode());
    }
}

QString testoTasto(AzioneTasto azione, const QString& testo) {
    return azione == AzioneTasto::Invio      ? QStringLiteral("\r")
           : azione == AzioneTasto::Cancella ? QStringLiteral("\b")
                                             : testo;
}

} // namespace

TastieraWidget::TastieraWidget(Tastiera::Forma forma, QWidget* padre) : QWidget(padre), tastiera_(forma) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_AcceptTouchEvents);
}

void TastieraWidget::mostra(const Controllo&, const Resa& resa) {
    carattere_ = resa.carattere;
    raggio_ = resa.raggio;
    disponi();
}

void TastieraWidget::resizeEvent(QResizeEvent*) {
    disponi();
}

void TastieraWidget::disponi() {
    posti_ = tastiera_.disponi(width(), height(), std::max(2, raggio_ - 1));
    update();
}

QString TastieraWidget::scritta(const Tasto& t) const {
    if (t.azione == AzioneTasto::Simboli)
        return QStringLiteral("#+=");
    if (t.azione == AzioneTasto::Lettere)
        return QStringLiteral("ABC");
    const std::string_view s = tastiera_.scritta(t);
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

QRect TastieraWidget::rettangolo(const QString& testo) const {
    for (const auto& [tasto, r] : posti_)
        if (scritta(*tasto) == testo)
            return {r.x, r.y, r.larghezza, r.altezza};
    return {};
}

QRect TastieraWidget::rettangolo(AzioneTasto azione) const {
    for (const auto& [tasto, r] : posti_)
        if (tasto->azione == azione)
            return {r.x, r.y, r.larghezza, r.altezza};
    return {};
}

void TastieraWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    for (const TastoPosto& tasto : posti_)
        disegna(p, tasto);
}

void TastieraWidget::disegna(QPainter& p, const TastoPosto& t) const {
    const QRectF area(t.posto.x, t.posto.y, t.posto.larghezza, t.posto.altezza);
    const bool acceso =
        t.tasto->azione == AzioneTasto::Maiuscole && tastiera_.maiuscole() != Tastiera::StatoMaiuscole::No;
    QColor sfondo = acceso                                   ? aspetto::kAccento
                    : t.tasto->azione == AzioneTasto::Scrive ? aspetto::kCarta
                                                             : kSfondoServizio;
    if (t.tasto == premuto_)
        sfondo = sfondo.darker(kScuroPremuto);
    p.setPen(Qt::NoPen);
    p.setBrush(kOmbra);
    p.drawRoundedRect(area, raggio_, raggio_);
    p.setBrush(sfondo);
    p.drawRoundedRect(area.adjusted(0, 0, 0, -2), raggio_, raggio_);

    const QColor inchiostro = acceso ? aspetto::kCarta : aspetto::kInchiostro;
    const QPainterPath disegno = simbolo(t.tasto->azione);
    if (disegno.isEmpty()) {
        p.setFont(carattere_);
        p.setPen(inchiostro);
        p.drawText(area, Qt::AlignCenter, scritta(*t.tasto));
        return;
    }
    const double lato = carattere_.pixelSize() * kSimbolo;
    p.setPen(QPen(inchiostro, std::max(1.5, lato / 14), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const bool pieno = acceso && tastiera_.maiuscole() == Tastiera::StatoMaiuscole::Fisse;
    p.setBrush(pieno ? QBrush(inchiostro) : QBrush(Qt::NoBrush));
    p.drawPath(QTransform().translate(area.center().x(), area.center().y()).scale(lato, lato).map(disegno));
}

void TastieraWidget::premi(const QPoint& punto) {
    const auto sotto = std::find_if(posti_.begin(), posti_.end(), [&](const TastoPosto& t) {
        return QRect(t.posto.x, t.posto.y, t.posto.larghezza, t.posto.altezza).contains(punto);
    });
    if (sotto == posti_.end())
        return;
    const Tasto& tasto = *sotto->tasto; // of a table: it outlives the page
    premuto_ = &tasto;
    const QString testo = scritta(tasto);
    const auto battuta = tastiera_.premi(tasto);
    disponi();
    if (siRipete(tasto.azione) && !ripetizione_.isActive())
        ripetizione_.start(kPrimaRipetizioneMs, this);
    if (battuta)
        batti(codice(battuta->azione, testo), testoTasto(battuta->azione, testo));
}

void TastieraWidget::rilascia() {
    ripetizione_.stop();
    premuto_ = nullptr;
    update();
}

void TastieraWidget::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton)
        premi(evento->position().toPoint());
}

void TastieraWidget::mouseReleaseEvent(QMouseEvent*) {
    rilascia();
}

void TastieraWidget::timerEvent(QTimerEvent* evento) {
    if (evento->timerId() != ripetizione_.timerId() || !premuto_)
        return;
    ripetizione_.start(kRipetizioneMs, this);
    batti(codice(premuto_->azione, {}), testoTasto(premuto_->azione, {}));
}

/// Each finger by itself: of a second one that comes before the first is up, no mouse would tell.
bool TastieraWidget::event(QEvent* evento) {
    switch (evento->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
        for (const auto& dito : static_cast<QTouchEvent*>(evento)->points())
            if (dito.state() == QEventPoint::Pressed) {
                rilascia();
                premi(dito.position().toPoint());
            }
        return true;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        rilascia();
        return true;
    case QEvent::Hide:
        rilascia();
        return QWidget::event(evento);
    default:
        return QWidget::event(evento);
    }
}

} // namespace lumigrafo
