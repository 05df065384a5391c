#pragma once

#include "forms/controlli.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace lumigrafo {

/// How a picture is seen, which says how much of its file must be decoded.
struct Inquadratura {
    QSize area; ///< device-independent pixels
    Adattamento modo = Adattamento::Intera;
    double densita = 1; ///< pixels of the screen in each of those
};

/// A picture file, decoded no larger than it is seen: a photograph of tens of megapixels costs little more
/// than reading its bytes. Turned upright where the camera noted how it was held.
class FileFigura {
public:
    /// Throws Guasto 53 where there is no such file, 481 where it is no picture.
    FileFigura(QString percorso, const Inquadratura& inquadratura);
    /// Decodes again where more is seen now than was decoded. What can't be read any more stays as it was.
    /// True if it did.
    bool adegua(const Inquadratura& inquadratura);

    /// Of the whole picture, in its own pixels.
    [[nodiscard]] QSize misura() const { return intera_; }
    /// The whole picture, or with Adattamento::Naturale its top left as far as it is seen.
    [[nodiscard]] const QImage& immagine() const { return immagine_; }

private:
    void decodifica(const Inquadratura& inquadratura);
    [[nodiscard]] QSize occorre(const Inquadratura& inquadratura) const;

    QString percorso_;
    QSize intera_;
    QImage immagine_;
};

} // namespace lumigrafo
