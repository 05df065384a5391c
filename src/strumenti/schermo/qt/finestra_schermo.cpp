#include "strumenti/schermo/qt/finestra_schermo.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace lumigrafo::schermo {

namespace {

constexpr int kPeriodoMs = 400;
constexpr int kScatti = 20;
constexpr QRgb kFondo = 0xFF1A212B, kChiaro = 0xFFF2F4F7, kTenue = 0xFF93A1B3;
/// Heights and gaps as parts of the window's height.
constexpr qreal kMargine = 0.025, kFascia = 0.11, kTitolo = 0.13, kNuovo = 0.42;
constexpr qreal kRaggio = 0.018;
/// Older numbers stand in rows of two.
constexpr int kPerRiga = 2, kRighe = 4;
constexpr qreal kRespiro = 0.06; ///< free at both sides, as a part of the width
/// The size of an older number, where the newest one's is set.
constexpr qreal kVecchioSuNuovo = 0.6;
/// A point is so much on a screen of this height, so that a size looks alike on every screen.
constexpr qreal kPixelPerPunto = 96.0 / 72.0, kAltezzaDiProgetto = 1080;

QFont carattere(qreal pixel, bool grassetto) {
    QFont f(QStringLiteral("Arial"));
    f.setPixelSize(std::max(1, static_cast<int>(pixel)));
    f.setBold(grassetto);
    return f;
}

QColor colore(Colore c) {
    return QColor(c.rosso(), c.verde(), c.blu());
}

QString qt(const std::string& testo) {
    return QString::fromStdString(testo);
}

/// The largest size, `massimo` at the most, at which a text fits on one line.
qreal adatta(const QString& testo, const QSizeF& spazio, qreal massimo, bool grassetto) {
    constexpr qreal kProva = 100;
    const QFontMetricsF misure(carattere(kProva, grassetto));
    const qreal larga = misure.horizontalAdvance(testo);
    const qreal alta = spazio.height() * kProva / misure.height();
    return std::min({massimo, alta, larga > 0 ? spazio.width() * kProva / larga : alta});
}

void scrivi(QPainter& p, const QRectF& dove, const QString& testo, qreal massimo, bool grassetto) {
    p.setFont(carattere(adatta(testo, dove.size(), massimo, grassetto), grassetto));
    p.drawText(dove, Qt::AlignCenter, testo);
}

QRectF stretto(const QRectF& r) {
    return r.adjusted(r.width() * kRespiro, 0, -r.width() * kRespiro, 0);
}

/// Where the parts of a department stand in its panel.
struct Parti {
    QRectF titolo, nuovo;
    std::array<QRectF, kPerRiga * kRighe> vecchi;

    explicit Parti(const QRectF& riquadro) {
        const QRectF dentro = stretto(riquadro);
        titolo = QRectF(dentro.topLeft(), QSizeF(dentro.width(), dentro.height() * kTitolo));
        nuovo = QRectF(titolo.bottomLeft(), QSizeF(dentro.width(), dentro.height() * kNuovo));
        const qreal larga = dentro.width() / kPerRiga;
        const qreal alta = (dentro.bottom() - nuovo.bottom() - (dentro.left() - riquadro.left())) / kRighe;
        for (std::size_t i = 0; i < vecchi.size(); ++i)
            vecchi[i] = stretto({dentro.left() + larga * static_cast<qreal>(i % kPerRiga),
                                 nuovo.bottom() + alta * static_cast<qreal>(i / kPerRiga), larga, alta});
    }
};

} // namespace

FinestraSchermo::FinestraSchermo(QString attesa) : attesa_(std::move(attesa)) {
    setWindowTitle(QStringLiteral("Lumigrafo schermo"));
    setMinimumSize(320, 240);
    setCursor(Qt::BlankCursor);
    lampeggio_.setInterval(kPeriodoMs);
    connect(&lampeggio_, &QTimer::timeout, this, [this] {
        if (--scatti_ <= 0)
            lampeggio_.stop();
        update();
    });
}

void FinestraSchermo::mostra(const Tabellone& tabellone) {
    tabellone_ = tabellone;
    scatti_ = tabellone.chiamato ? kScatti : 0;
    if (tabellone.chiamato)
        lampeggio_.start();
    else
        lampeggio_.stop();
    update();
}

void FinestraSchermo::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        close();
}

void FinestraSchermo::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    p.fillRect(rect(), QColor::fromRgb(kFondo));
    const bool vuoto = !tabellone_ || std::none_of(tabellone_->gruppi.begin(), tabellone_->gruppi.end(),
                                                   [](const Gruppo& g) { return g.inUso(); });
    if (vuoto)
        disegnaAttesa(p);
    else
        disegnaTabellone(p);
}

void FinestraSchermo::disegnaAttesa(QPainter& p) const {
    const QRectF dentro = stretto(rect());
    const QRectF alto(dentro.left(), height() * 0.34, dentro.width(), height() * 0.14);
    const QRectF basso(dentro.left(), height() * 0.52, dentro.width(), height() * 0.07);
    p.setPen(QColor::fromRgb(kChiaro));
    scrivi(p, alto, QStringLiteral("In attesa dei numeri"), alto.height(), true);
    p.setPen(QColor::fromRgb(kTenue));
    scrivi(p, basso, attesa_, basso.height(), false);
}

void FinestraSchermo::disegnaTabellone(QPainter& p) const {
    const qreal margine = height() * kMargine;
    const QRectF fascia(margine, margine / 2, width() - 2 * margine, height() * kFascia);
    p.setPen(QColor::fromRgb(kChiaro));
    scrivi(p, fascia.adjusted(0, margine / 2, 0, -margine / 2), qt(tabellone_->titolo), fascia.height(),
           true);
    const auto& gruppi = tabellone_->gruppi;
    const auto inUso = std::count_if(gruppi.begin(), gruppi.end(), [](const Gruppo& g) { return g.inUso(); });
    const qreal larga = (width() - margine) / static_cast<qreal>(inUso) - margine;
    QRectF riquadro(margine, fascia.bottom() + margine / 2, larga, 0);
    riquadro.setBottom(height() - margine);
    const Corpi misure = corpi(riquadro);
    for (std::size_t i = 0; i < gruppi.size(); ++i) {
        if (!gruppi[i].inUso())
            continue;
        const bool spento = tabellone_->chiamato == i && scatti_ % 2 != 0;
        disegnaGruppo(p, gruppi[i], riquadro, misure, !spento);
        riquadro.translate(larga + margine, 0);
    }
}

void FinestraSchermo::disegnaGruppo(QPainter& p, const Gruppo& gruppo, const QRectF& riquadro,
                                    const Corpi& misure, bool acceso) const {
    const Parti parti(riquadro);
    const QColor testo = colore(gruppo.testo);
    QColor bordo = testo;
    bordo.setAlphaF(0.25F);
    p.setPen(QPen(bordo, std::max(1.0, height() / 540.0)));
    p.setBrush(colore(gruppo.sfondo));
    p.drawRoundedRect(riquadro, height() * kRaggio, height() * kRaggio);
    p.drawLine(parti.titolo.bottomLeft(), parti.titolo.bottomRight());
    p.setPen(testo);
    const qreal alta = parti.titolo.height();
    scrivi(p, parti.titolo.adjusted(0, alta * 0.15, 0, -alta * 0.1), qt(gruppo.titolo), alta, true);
    for (std::size_t i = 0; i < std::min(gruppo.numeri.size(), parti.vecchi.size() + 1); ++i) {
        const QString numero = qt(gruppo.numeri[i]);
        if (i > 0)
            scrivi(p, parti.vecchi[i - 1], numero, misure.vecchio, false);
        else if (acceso)
            scrivi(p, parti.nuovo, numero, misure.nuovo, true);
    }
}

/// The sizes that the sender asks for; else the largest that suit all departments alike.
FinestraSchermo::Corpi FinestraSchermo::corpi(const QRectF& riquadro) const {
    const Parti parti(riquadro);
    if (tabellone_->font > 0) {
        const qreal chiesto = tabellone_->font * kPixelPerPunto * height() / kAltezzaDiProgetto;
        return {chiesto, chiesto * kVecchioSuNuovo};
    }
    Corpi c{parti.nuovo.height(), parti.vecchi[0].height()};
    for (const Gruppo& g : tabellone_->gruppi)
        for (std::size_t i = 0; i < g.numeri.size(); ++i) {
            qreal& corpo = i == 0 ? c.nuovo : c.vecchio;
            const QSizeF spazio = i == 0 ? parti.nuovo.size() : parti.vecchi[0].size();
            corpo = adatta(qt(g.numeri[i]), spazio, corpo, i == 0);
        }
    return c;
}

} // namespace lumigrafo::schermo
