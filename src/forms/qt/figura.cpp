#include "forms/qt/figura.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QtDebug>

#include <algorithm>
#include <utility>

namespace lumigrafo {

namespace {

/// A drawing's definitions "intatto1", "intatto2".. stand at their places over the rest, in their own
/// proportions even where the rest is stretched.
void disegnaIntatti(QSvgRenderer& disegno, QPainter& pennello, QSizeF misura) {
    const QRectF tutto = disegno.viewBoxF();
    const double x = misura.width() / tutto.width(), y = misura.height() / tutto.height();
    for (int i = 1;; ++i) {
        const QString nome = QStringLiteral("intatto%1").arg(i);
        if (!disegno.elementExists(nome))
            return;
        const QRectF suo = disegno.boundsOnElement(nome).translated(-tutto.topLeft());
        QRectF dove(QPointF(0, 0), suo.size() * std::min(x, y));
        dove.moveCenter({suo.center().x() * x, suo.center().y() * y});
        disegno.render(&pennello, nome, dove);
    }
}

} // namespace

Figura::Figura(std::function<void()> pronta)
    : avvisa_(std::move(pronta)), lettore_([this](FiguraLetta letta) { ricevi(std::move(letta)); }) {}

Figura::~Figura() = default;

void Figura::svuota() {
    disegno_.reset();
    letta_.reset();
    misuraPronta_ = {};
}

void Figura::carica(const std::string& nome, const Inquadratura& inquadratura) {
    if (nome.find_first_of("/\\") != std::string::npos) {
        file_ = FileFigura(QString::fromStdString(nome));
        chiesta_ = inquadratura;
        if (!vista_)
            svuota(); // a picture that nobody has seen yet doesn't flash up before the one that is wanted
        lettore_.chiedi(file_, inquadratura, LettoreFigura::SeGuasta::Ferma);
        return;
    }
    lettore_.lascia();
    svuota();
    if (nome.empty())
        return;
    const QString risorsa = QStringLiteral(":/figure/%1.svg").arg(QString::fromStdString(nome));
    if (!QFile::exists(risorsa)) {
        qWarning() << "missing figure" << risorsa;
        return;
    }
    disegno_ = std::make_unique<QSvgRenderer>(risorsa);
    disegno_->setAspectRatioMode(Qt::IgnoreAspectRatio);
}

void Figura::ricevi(FiguraLetta letta) {
    svuota();
    letta_ = std::move(letta);
    avvisa_();
}

bool Figura::vuota() const {
    return !disegno_ && !letta_;
}

QSize Figura::misura(QSize area, Adattamento modo) const {
    if (modo == Adattamento::Stirata)
        return area;
    const QSize propria = disegno_ ? disegno_->defaultSize() : letta_->intera;
    if (modo == Adattamento::Intera)
        return propria.scaled(area, Qt::KeepAspectRatio);
    return disegno_ ? propria : letta_->immagine.size();
}

const QPixmap& Figura::pronta(QSize misura, double densita) {
    const QSize fisica = misura * densita;
    if (misuraPronta_ == fisica)
        return pronta_;
    misuraPronta_ = fisica;
    if (disegno_) {
        pronta_ = QPixmap(fisica);
        pronta_.fill(Qt::transparent);
        QPainter p(&pronta_);
        disegno_->render(&p, QRectF(QPointF(0, 0), fisica));
        disegnaIntatti(*disegno_, p, fisica);
    } else {
        pronta_ = QPixmap::fromImage(
            letta_->immagine.scaled(fisica, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return pronta_;
}

/// The file is decoded again where more of it is seen now than was decoded. What can't be read any more stays
/// as it was, and isn't asked for a second time.
void Figura::chiediDiPiu(const Inquadratura& inquadratura) {
    if (!letta_ || lettore_.inCorso() || chiesta_ == inquadratura || letta_->basta(inquadratura))
        return;
    chiesta_ = inquadratura;
    lettore_.chiedi(file_, inquadratura, LettoreFigura::SeGuasta::Lascia);
}

void Figura::disegna(QPainter& pennello, const QRect& area, Adattamento modo) {
    if (vuota() || area.isEmpty())
        return;
    vista_ = true;
    const double densita = pennello.device()->devicePixelRatioF();
    chiediDiPiu({area.size(), modo, densita});
    const QSize grande = misura(area.size(), modo);
    if (grande.isEmpty())
        return;
    QRect dove(area.topLeft(), grande);
    if (modo == Adattamento::Intera)
        dove.moveCenter(area.center());
    pennello.setClipRect(area);
    pennello.drawPixmap(dove, pronta(grande, densita));
}

} // namespace lumigrafo
