#include "forms/qt/griglia_widget.h"

#include "forms/colonne.h"
#include "platform/qt/aspetto.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>

namespace lumigrafo {

namespace {

constexpr int kPassoCorsaMs = 16;
constexpr int kRigheRotella = 2;
constexpr double kScattoRotella = 120;
constexpr int kBarraMinima = 36;
const QColor kColoreBarra(47, 65, 84, 110);

} // namespace

GrigliaWidget::GrigliaWidget(QWidget* padre) : QWidget(padre) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    orologio_.start();
}

GrigliaWidget::~GrigliaWidget() {
    if (griglia_)
        griglia_->osserva(nullptr);
}

void GrigliaWidget::collega(Griglia& griglia) {
    if (griglia_)
        griglia_->osserva(nullptr);
    griglia_ = &griglia;
    griglia.osserva([this](int riga, int colonna) { cambiata(riga, colonna); });
    cambiata(-1, -1);
}

void GrigliaWidget::mostra(const Controllo& c, const Resa& resa) {
    resa_ = resa;
    testo_ = aspetto::colore(c.ForeColor());
    sfondo_ = c.BackColor() ? aspetto::colore(*c.BackColor()) : aspetto::kCarta;
    cambiata(-1, -1);
}

void GrigliaWidget::resizeEvent(QResizeEvent*) {
    bordi_.clear();
}

void GrigliaWidget::cambiata(int riga, int colonna) {
    if (riga < 0) {
        bordi_.clear();
        update();
    } else if (!bordi_.empty()) { // else all is painted anyway
        update(rettangolo(riga, colonna));
    }
}

/// The model may be emptied and filled again in one go: the position is fitted only to what is looked at, so
/// that a rebuild leaves the operator where he was.
void GrigliaWidget::misura() {
    if (!griglia_ || !resa_)
        return;
    if (bordi_.empty())
        bordi_ = bordiColonne(*griglia_, resa_->scala, width());
    scorrimento_.misure(griglia_->Rows() * altezzaRiga(), height());
}

int GrigliaWidget::altezzaRiga() const {
    if (!griglia_ || !resa_)
        return aspetto::kTocco;
    const int riga = QFontMetrics(resa_->carattere).height();
    return std::max({resa_->scala.altezza(griglia_->altezzaMinima()), riga, aspetto::kTocco});
}

QRect GrigliaWidget::rettangolo(int riga, int colonna) const {
    if (!griglia_ || riga < 0 || riga >= griglia_->Rows() || colonna < 0 ||
        colonna + 1 >= static_cast<int>(bordi_.size()))
        return {};
    const int sinistra = bordi_[static_cast<std::size_t>(colonna)];
    const int destra = bordi_[static_cast<std::size_t>(colonna) + 1];
    return {sinistra, riga * altezzaRiga() - scarto(), destra - sinistra, altezzaRiga()};
}

GrigliaWidget::Cella GrigliaWidget::cellaIn(const QPoint& punto) const {
    if (!griglia_ || bordi_.empty() || !rect().contains(punto))
        return {};
    const int riga = (punto.y() + scarto()) / altezzaRiga();
    const auto bordo = std::upper_bound(bordi_.begin(), bordi_.end(), punto.x());
    if (riga >= griglia_->Rows() || bordo == bordi_.end())
        return {};
    return {riga, static_cast<int>(bordo - bordi_.begin()) - 1};
}

void GrigliaWidget::paintEvent(QPaintEvent* evento) {
    QPainter p(this);
    misura();
    const QRect area = evento->rect();
    p.fillRect(area, sfondo_.isValid() ? sfondo_ : aspetto::kCarta);
    if (!griglia_ || !resa_)
        return;
    const int prima = (area.top() + scarto()) / altezzaRiga();
    const int ultima = std::min(griglia_->Rows() - 1, (area.bottom() + scarto()) / altezzaRiga());
    for (int riga = prima; riga <= ultima; ++riga)
        for (int colonna = 0; colonna < griglia_->Cols(); ++colonna)
            if (const QRect cella = rettangolo(riga, colonna); evento->region().intersects(cella))
                disegnaCella(p, {riga, colonna}, cella);
    disegnaBarra(p);
}

void GrigliaWidget::disegnaCella(QPainter& p, Cella cella, const QRect& area) const {
    const bool corrente = cella == Cella{griglia_->Row(), griglia_->Col()};
    const auto propria = corrente && griglia_->coloreSelezione()
                             ? griglia_->coloreSelezione()
                             : griglia_->sfondo(cella.riga, cella.colonna);
    if (propria)
        p.fillRect(area, aspetto::colore(*propria));
    p.setPen(aspetto::kRigo);
    p.drawLine(area.bottomLeft(), area.bottomRight());
    p.drawLine(area.topRight(), area.bottomRight());

    const std::string& contenuto = griglia_->testo(cella.riga, cella.colonna);
    if (contenuto.empty())
        return;
    const QString testo = QString::fromStdString(contenuto);
    QFont f = resa_->carattere;
    const double larghezza = QFontMetricsF(f).horizontalAdvance(testo);
    const double spazio = area.width() - 2 * resa_->raggio;
    if (larghezza > spazio && spazio > 0)
        f.setPixelSize(std::max(1, static_cast<int>(f.pixelSize() * spazio / larghezza)));
    p.setFont(f);
    p.setPen(testo_);
    p.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, testo);
}

void GrigliaWidget::disegnaBarra(QPainter& p) const {
    const int massimo = scorrimento_.massimo();
    if (massimo == 0)
        return;
    const int lunga = std::min(height(), std::max(kBarraMinima, height() * height() / (height() + massimo)));
    const int y = static_cast<int>(static_cast<double>(height() - lunga) * scarto() / massimo);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(kColoreBarra);
    const int larga = resa_->raggio;
    p.drawRoundedRect(QRect(width() - larga - 2, y + 2, larga, lunga - 4), larga / 2.0, larga / 2.0);
}

void GrigliaWidget::avvisaPuntatore() {
    if (const auto azione = puntatore_)
        azione();
}

void GrigliaWidget::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton) {
        misura();
        corsa_.stop();
        premuta_ = cellaIn(evento->position().toPoint());
        scorrimento_.premi(evento->position().toPoint().y(), adesso());
    }
    avvisaPuntatore();
}

void GrigliaWidget::mouseMoveEvent(QMouseEvent* evento) {
    if (scorrimento_.muovi(evento->position().toPoint().y(), adesso()))
        update();
    avvisaPuntatore();
}

void GrigliaWidget::mouseReleaseEvent(QMouseEvent* evento) {
    avvisaPuntatore();
    if (evento->button() != Qt::LeftButton)
        return;
    misura(); // the rows may have changed under the finger
    const QPoint punto = evento->position().toPoint();
    const bool clic = scorrimento_.rilascia(adesso()) && rect().contains(punto);
    if (scorrimento_.inMoto())
        corsa_.start(kPassoCorsaMs, this);
    const Cella cella = cellaIn(punto);
    if (!clic || cella != premuta_)
        return;
    if (cella.riga >= 0)
        griglia_->corrente(cella.riga, cella.colonna);
    if (const auto azione = clic_)
        azione(cella.riga, cella.colonna);
}

void GrigliaWidget::wheelEvent(QWheelEvent* evento) {
    misura();
    const double passo = evento->pixelDelta().isNull()
                             ? evento->angleDelta().y() / kScattoRotella * kRigheRotella * altezzaRiga()
                             : evento->pixelDelta().y();
    scorrimento_.vai(scorrimento_.posizione() - passo);
    update();
    avvisaPuntatore();
}

void GrigliaWidget::timerEvent(QTimerEvent* evento) {
    if (evento->timerId() != corsa_.timerId())
        return;
    scorrimento_.passo(adesso());
    if (!scorrimento_.inMoto())
        corsa_.stop();
    update();
}

} // namespace lumigrafo
