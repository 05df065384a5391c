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
    friend bool operator==(const Inquadratura&, const Inquadratura&) = default;
};

/// What was decoded of a picture file, turned upright where the camera noted how it was held.
struct FiguraLetta {
    QSize intera;    ///< of the whole picture, in its own pixels
    QImage immagine; ///< the whole picture, or with Adattamento::Naturale its top left as far as it is seen
    /// True if a picture seen that way needs no more pixels than these.
    [[nodiscard]] bool basta(const Inquadratura& inquadratura) const;
};

/// A picture file, decoded no larger than it is seen: most photographs of tens of megapixels cost little more
/// than reading their bytes.
class FileFigura {
public:
    FileFigura() = default;
    /// Reads no more than the file's first bytes. Throws Guasto 53 where there is no such file, 481 where it
    /// doesn't begin as a picture does; both name it.
    explicit FileFigura(QString percorso);
    /// Decodes the picture, on whatever thread this is. Throws Guasto 481 where it can't be.
    [[nodiscard]] FiguraLetta leggi(const Inquadratura& inquadratura) const;

private:
    QString percorso_;
};

} // namespace lumigrafo
