#include "forms/qt/file_figura.h"

#include "platform/guasto.h"

#include <QFile>
#include <QImageReader>

#include <utility>

namespace lumigrafo {

namespace {

/// Most memory for one decoded picture. What can't be decoded smaller needs four bytes a pixel.
constexpr int kMegabyteMassimi = 1024;

[[noreturn]] void guastoDiFile(int numero, const QString& percorso) {
    throw Guasto(numero, Guasto(numero).descrizione() + ":\n" + percorso.toStdString());
}

/// The rectangle of the file's pixels that shows as `visto` once the picture, `misura` in the file, is turned
/// upright.
QRect nelFile(QRect visto, QSize misura, QImageIOHandler::Transformations giro) {
    if (giro & QImageIOHandler::TransformationRotate90)
        visto = QRect(visto.y(), misura.height() - visto.x() - visto.width(), visto.height(), visto.width());
    if (giro & QImageIOHandler::TransformationMirror)
        visto.moveLeft(misura.width() - visto.x() - visto.width());
    if (giro & QImageIOHandler::TransformationFlip)
        visto.moveTop(misura.height() - visto.y() - visto.height());
    return visto;
}

} // namespace

FileFigura::FileFigura(QString percorso, const Inquadratura& inquadratura) : percorso_(std::move(percorso)) {
    if (!QFile::exists(percorso_))
        guastoDiFile(guasti::kFileNonTrovato, percorso_);
    decodifica(inquadratura);
}

QSize FileFigura::occorre(const Inquadratura& i) const {
    const QSize area = i.area.expandedTo({1, 1});
    if (i.modo == Adattamento::Naturale)
        return area.boundedTo(intera_);
    const QSize schermo = area * i.densita;
    const QSize vista =
        i.modo == Adattamento::Stirata ? schermo : intera_.scaled(schermo, Qt::KeepAspectRatio);
    return vista.boundedTo(intera_).expandedTo({1, 1});
}

void FileFigura::decodifica(const Inquadratura& i) {
    QImageReader::setAllocationLimit(kMegabyteMassimi);
    QImageReader lettore(percorso_);
    lettore.setDecideFormatFromContent(true);
    lettore.setAutoTransform(true);
    const QSize nelDisco = lettore.size();
    if (nelDisco.isValid()) {
        const auto giro = lettore.transformation();
        const bool coricata = giro & QImageIOHandler::TransformationRotate90;
        intera_ = coricata ? nelDisco.transposed() : nelDisco;
        const QSize serve = occorre(i);
        if (i.modo == Adattamento::Naturale)
            lettore.setClipRect(nelFile({{0, 0}, serve}, nelDisco, giro));
        else if (serve != intera_)
            lettore.setScaledSize(coricata ? serve.transposed() : serve);
    }
    QImage letta = lettore.read();
    if (letta.isNull())
        guastoDiFile(guasti::kImmagine, percorso_);
    if (!nelDisco.isValid())
        intera_ = letta.size();
    immagine_ = std::move(letta);
}

bool FileFigura::adegua(const Inquadratura& i) {
    const QSize serve = occorre(i);
    if (serve.width() <= immagine_.width() && serve.height() <= immagine_.height())
        return false;
    return ignorandoGuasti([&] { decodifica(i); });
}

} // namespace lumigrafo
