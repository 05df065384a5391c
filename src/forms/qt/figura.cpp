#include "forms/qt/figura.h"

#include "platform/guasto.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QtDebug>

namespace lumigrafo {

Figura::Figura() = default;
Figura::~Figura() = default;

void Figura::carica(const std::string& nome) {
    disegno_.reset();
    immagine_ = {};
    misuraPronta_ = {};
    if (nome.empty())
        return;
    if (nome.find_first_of("/\\") != std::string::npos) {
        caricaFile(QString::fromStdString(nome));
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

void Figura::caricaFile(const QString& percorso) {
    if (!QFile::exists(percorso))
        throw Guasto(guasti::kFileNonTrovato);
    QImageReader lettore(percorso);
    lettore.setDecideFormatFromContent(true);
    lettore.setAutoTransform(true);
    immagine_ = lettore.read();
    if (immagine_.isNull())
        throw Guasto(guasti::kImmagine);
}

bool Figura::vuota() const {
    return !disegno_ && immagine_.isNull();
}

QSize Figura::misuraPropria() const {
    return disegno_ ? disegno_->defaultSize() : immagine_.size();
}

QPixmap Figura::pronta(QSize misura, double densita) const {
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
        pronta_ =
            QPixmap::fromImage(immagine_.scaled(fisica, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return pronta_;
}

void Figura::disegna(QPainter& pennello, const QRect& area, Adattamento modo) const {
    if (vuota() || area.isEmpty())
        return;
    QSize misura = misuraPropria();
    QPoint angolo = area.topLeft();
    if (modo == Adattamento::Stirata)
        misura = area.size();
    if (modo == Adattamento::Intera) {
        misura.scale(area.size(), Qt::KeepAspectRatio);
        angolo += QPoint((area.width() - misura.width()) / 2, (area.height() - misura.height()) / 2);
    }
    if (misura.isEmpty())
        return;
    pennello.setClipRect(area);
    pennello.drawPixmap(QRect(angolo, misura), pronta(misura, pennello.device()->devicePixelRatioF()));
}

} // namespace lumigrafo
