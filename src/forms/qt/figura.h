#pragma once

#include "forms/qt/file_figura.h"

#include <QPixmap>

#include <memory>
#include <optional>
#include <string>

class QPainter;
class QSvgRenderer;

namespace lumigrafo {

/// A picture: a drawing of the resources (`:/figure/<name>.svg`) or a file.
class Figura {
public:
    Figura();
    ~Figura();
    /// A name with a separator is a file's path; it is read at once, as large as `inquadratura` needs it.
    /// Throws Guasto 53 where there is no such file, 481 where it is no picture, with its path in the
    /// description; the figure is empty then. A drawing that the resources lack leaves it empty too.
    void carica(const std::string& nome, const Inquadratura& inquadratura);
    [[nodiscard]] bool vuota() const;
    void disegna(QPainter& pennello, const QRect& area, Adattamento modo);

private:
    [[nodiscard]] const QPixmap& pronta(QSize misura, double densita);
    [[nodiscard]] QSize misura(QSize area, Adattamento modo) const;

    std::unique_ptr<QSvgRenderer> disegno_;
    std::optional<FileFigura> file_;
    QPixmap pronta_; ///< as last painted
    QSize misuraPronta_;
};

} // namespace lumigrafo
