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

/// The pixels that are needed of a picture of `intera`.
QSize occorre(QSize intera, const Inquadratura& i) {
    const QSize area = i.area.expandedTo({1, 1});
    if (i.modo == Adattamento::Naturale)
        return area.boundedTo(intera);
    const QSize schermo = area * i.densita;
    const QSize vista =
        i.modo == Adattamento::Stirata ? schermo : intera.scaled(schermo, Qt::KeepAspectRatio);
    return vista.boundedTo(intera).expandedTo({1, 1});
}

} // namespace

bool FiguraLetta::basta(const Inquadratura& i) const {
    const QSize serve = occorre(intera, i);
    return serve.width() <= immagine.width() && serve.height() <= immagine.height();
}

FileFigura::FileFigura(QString percorso) : percorso_(std::move(percorso)) {
    if (!QFile::exists(percorso_))
        guastoDiFile(guasti::kFileNonTrovato, percorso_);
    QImageReader::setAllocationLimit(kMegabyteMassimi);
    QImageReader lettore(percorso_);
    lettore.setDecideFormatFromContent(true);
    if (!lettore.canRead())
        guastoDiFile(guasti::kImmagine, percorso_);
}

FiguraLetta FileFigura::leggi(const Inquadratura& i) const {
    QImageReader lettore(percorso_);
    lettore.setDecideFormatFromContent(true);
    lettore.setAutoTransform(true);
    FiguraLetta letta;
    const QSize nelDisco = lettore.size();
    if (nelDisco.isValid()) {
        const auto giro = lettore.transformation();
        const bool coricata = giro & QImageIOHandler::TransformationRotate90;
        letta.intera = coricata ? nelDisco.transposed() : nelDisco;
        const QSize serve = occorre(letta.intera, i);
        if (i.modo == Adattamento::Naturale)
            lettore.setClipRect(nelFile({{0, 0}, serve}, nelDisco, giro));
        else if (serve != letta.intera)
            lettore.setScaledSize(coricata ? serve.transposed() : serve);
    }
    letta.immagine = lettore.read();
    if (letta.immagine.isNull())
        guastoDiFile(guasti::kImmagine, percorso_);
    if (!nelDisco.isValid())
        letta.intera = letta.immagine.size();
    return letta;
}

} // namespace lumigrafo
