#include "forms/qt/testo_adattato.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumigrafo {

namespace {

constexpr int kPixelMinimi = 6;
constexpr int kRigheSmisurate = 10;

QFont conPixel(QFont f, int pixel) {
    f.setPixelSize(std::max(pixel, kPixelMinimi));
    return f;
}

/// Room that one line takes: its ink can be wider than its advance (italics) and is far less high than a
/// line.
QSizeF ingombro(const QString& testo, const QFont& carattere) {
    const QFontMetricsF m(carattere);
    const QRectF inchiostro = m.tightBoundingRect(testo);
    return {std::max(m.horizontalAdvance(testo), inchiostro.width()), inchiostro.height()};
}

QFont inUnaRiga(const QString& testo, const QFont& carattere, QSize area) {
    const QSizeF naturale = ingombro(testo, carattere);
    const double fattore = std::min({1.0, area.width() / std::max(1.0, naturale.width()),
                                     area.height() / std::max(1.0, naturale.height())});
    if (fattore == 1.0)
        return carattere;
    QFont f = conPixel(carattere, static_cast<int>(carattere.pixelSize() * fattore));
    // Hinted widths don't shrink quite in proportion.
    while (f.pixelSize() > kPixelMinimi && ingombro(testo, f).width() > area.width())
        f.setPixelSize(f.pixelSize() - 1);
    return f;
}

/// The share of its size beyond which a text surely doesn't fit, however its lines break.
double quotaMassima(const QString& testo, const QFontMetricsF& m, double lunghezza, QSize area) {
    constexpr double kAgio = 1.1;
    const auto righe = static_cast<double>(testo.count(QLatin1Char('\n')) + 1);
    const double superficie = std::max(1.0, lunghezza * m.height());
    return kAgio * std::min(std::sqrt(area.width() * static_cast<double>(area.height()) / superficie),
                            area.height() / (righe * m.height()));
}

/// Breaks a text into lines of that width; the room that they take. The layout keeps the lines for drawing.
QSizeF spezza(QTextLayout& testo, const QFont& carattere, int larghezza) {
    const double interlinea = QFontMetricsF(carattere).leading();
    testo.setFont(carattere);
    testo.beginLayout();
    double alta = -interlinea, larga = 0;
    for (QTextLine riga = testo.createLine(); riga.isValid(); riga = testo.createLine()) {
        riga.setLineWidth(larghezza);
        alta = std::ceil(alta + interlinea);
        riga.setPosition({0, alta});
        alta += riga.height();
        larga = std::max(larga, riga.naturalTextWidth());
    }
    testo.endLayout();
    return {larga, alta};
}

/// The next smaller size to try, from the room that a text takes at this one: its lines, and how many they
/// are, both go with the size, so that a long text is measured two or three times, not at every size.
int pixelMinori(int pixel, const QSizeF& occupato, QSize area) {
    const double quota = std::min(std::sqrt(area.height() / std::max(1.0, occupato.height())),
                                  area.width() / std::max(1.0, occupato.width()));
    return std::min(pixel - 1, static_cast<int>(pixel * quota));
}

} // namespace

bool TestoAdattato::imposta(const QString& testo, const QFont& carattere, Allineamento allineamento) {
    QString righe = testo;
    righe.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (righe == testo_ && carattere == carattere_ && allineamento == allineamento_)
        return false;
    testo_ = std::move(righe);
    carattere_ = carattere;
    allineamento_ = allineamento;
    misurata_ = {};
    return true;
}

Qt::Alignment TestoAdattato::orizzontale() const {
    switch (allineamento_) {
    case Allineamento::Centro:
        return Qt::AlignHCenter;
    case Allineamento::Destra:
        return Qt::AlignRight;
    case Allineamento::Sinistra:
        break;
    }
    return Qt::AlignLeft;
}

void TestoAdattato::adatta(QSize area) const {
    if (misurata_ == area)
        return;
    misurata_ = area;
    adattato_ = carattere_;
    righe_.reset();
    const QFontMetricsF m(carattere_);
    const auto parole = testo_.split(QLatin1Char(' '), Qt::SkipEmptyParts).size();
    const double lunghezza = m.horizontalAdvance(testo_);
    const bool spazio = 2 * m.height() <= area.height();
    const bool frase = parole >= paroleDiFrase_ && lunghezza > area.width() && spazio;
    const bool smisurato = lunghezza > kRigheSmisurate * area.width() && spazio;
    if (frase || smisurato || testo_.contains(QLatin1Char('\n')))
        adattaInRighe(area, lunghezza,
                      smisurato ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::WordWrap);
    else
        adattato_ = inUnaRiga(testo_, carattere_, area);
}

void TestoAdattato::adattaInRighe(QSize area, double lunghezza, QTextOption::WrapMode modo) const {
    QString testo = testo_;
    righe_ = std::make_unique<QTextLayout>(testo.replace(QLatin1Char('\n'), QChar::LineSeparator));
    QTextOption opzioni(orizzontale());
    opzioni.setWrapMode(modo);
    righe_->setTextOption(opzioni);
    righe_->setCacheEnabled(true); // what was shaped for measuring is drawn
    adattato_ = carattere_;
    if (const double quota = quotaMassima(testo_, QFontMetricsF(carattere_), lunghezza, area); quota < 1)
        adattato_ = conPixel(carattere_, static_cast<int>(carattere_.pixelSize() * quota));
    for (;;) {
        const QSizeF occupato = spezza(*righe_, adattato_, area.width());
        altezza_ = occupato.height();
        if (adattato_.pixelSize() <= kPixelMinimi ||
            (occupato.height() <= area.height() && occupato.width() <= area.width()))
            return;
        adattato_ = conPixel(carattere_, pixelMinori(adattato_.pixelSize(), occupato, area));
    }
}

int TestoAdattato::pixelIn(QSize area) const {
    adatta(area);
    return adattato_.pixelSize();
}

void TestoAdattato::disegna(QPainter& pennello, const QRect& area, const QColor& colore) const {
    if (testo_.isEmpty() || area.isEmpty())
        return;
    adatta(area.size());
    pennello.setFont(adattato_);
    pennello.setPen(colore);
    if (righe_) {
        righe_->draw(&pennello,
                     QPointF(area.left(), area.top() + std::round((area.height() - altezza_) / 2)));
        sottolineaNelleRighe(pennello, area);
        return;
    }
    // Capitals and figures are centred, whatever their neighbours hang below the line; then the ink is kept
    // inside.
    const QFontMetricsF m(adattato_);
    const QRectF inchiostro = m.tightBoundingRect(testo_);
    double base = area.top() + (area.height() + m.capHeight()) / 2;
    base = std::min(base, area.top() + area.height() - inchiostro.bottom());
    base = std::max(base, area.top() - inchiostro.top());
    const double avanzo = area.width() - m.horizontalAdvance(testo_);
    const double quota = allineamento_ == Allineamento::Centro   ? 0.5
                         : allineamento_ == Allineamento::Destra ? 1
                                                                 : 0;
    const QPointF inizio(area.left() + std::round(avanzo * quota), std::round(base));
    pennello.drawText(inizio, testo_);
    sottolinea(pennello, inizio);
}

qsizetype TestoAdattato::postoSottolineato() const {
    return sottolineata_ ? testo_.indexOf(QLatin1Char(sottolineata_), 0, Qt::CaseInsensitive) : -1;
}

void TestoAdattato::sottolinea(QPainter& pennello, QPointF inizio) const {
    const auto posto = postoSottolineato();
    if (posto < 0)
        return;
    const QFontMetricsF m(adattato_);
    tratto(pennello, inizio + QPointF(m.horizontalAdvance(testo_.left(posto)), 0),
           m.horizontalAdvance(testo_.at(posto)));
}

void TestoAdattato::sottolineaNelleRighe(QPainter& pennello, const QRect& area) const {
    const auto posto = static_cast<int>(postoSottolineato());
    const QTextLine riga = posto < 0 ? QTextLine() : righe_->lineForTextPosition(posto);
    if (!riga.isValid())
        return;
    const double prima = riga.cursorToX(posto);
    const QPointF alto(area.left(), area.top() + std::round((area.height() - altezza_) / 2));
    tratto(pennello, alto + QPointF(prima, riga.y() + riga.ascent()), riga.cursorToX(posto + 1) - prima);
}

/// `inizio` is where the letter stands on its line.
void TestoAdattato::tratto(QPainter& pennello, QPointF inizio, double lungo) const {
    const double spesso = std::max(1.0, std::round(adattato_.pixelSize() / 16.0));
    pennello.fillRect(QRectF(inizio.x(), inizio.y() + 1.5 * spesso, lungo, spesso), pennello.pen().color());
}

} // namespace lumigrafo
