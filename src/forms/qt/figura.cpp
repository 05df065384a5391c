#include "forms/qt/figura.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QtDebug>

namespace lumigrafo {

Figura::Figura() = default;
Figura::~Figura() = default;

void Figura::carica(const std::string& nome, const Inquadratura& inquadratura) {
    disegno_.reset();
    file_.reset();
    misuraPronta_ = {};
    if (nome.empty())
        return;
    if (nome.find_first_of("/\\") != std::string::npos) {
        file_.emplace(QString::fromStdString(nome), inquadratura);
        return;
    }
    const QString risorsa = QStringLiteral(":/figure/%1.svg").arg(QString::fromStdString(nome));
    if (!QFile::exists(risorsa)) {
        qWarning() << "missing figure" << risorsa;
        return;
    }
    disegno_ = std::make_unique<QSvgRenderer>(risorsa);
    disegno_->setAspectRatioMode(Qt::IgnoreAspectRatio);
}

bool Figura::vuota() const {
    return !disegno_ && !file_;
}

QSize Figura::misura(QSize area, Adattamento modo) const {
    if (modo == Adattamento::Stirata)
        return area;
    const QSize propria = disegno_ ? disegno_->defaultSize() : file_->misura();
    if (modo == Adattamento::Intera)
        return propria.scaled(area, Qt::KeepAspectRatio);
    return disegno_ ? propria : file_->immagine().size();
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
    } else {
        pronta_ = QPixmap::fromImage(
            file_->immagine().scaled(fisica, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return pronta_;
}

void Figura::disegna(QPainter& pennello, const QRect& area, Adattamento modo) {
    if (vuota() || area.isEmpty())
        return;
    const double densita = pennello.device()->devicePixelRatioF();
    if (file_ && file_->adegua({area.size(), modo, densita}))
        misuraPronta_ = {};
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
