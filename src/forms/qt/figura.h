#pragma once

#include "forms/controlli.h"

#include <QPixmap>
#include <QString>

#include <memory>
#include <string>

class QPainter;
class QSvgRenderer;

namespace lumigrafo {

/// A picture: a drawing of the resources (`:/figure/<name>.svg`) or a file.
class Figura {
public:
    Figura();
    ~Figura();
    /// A name with a separator is a file's path. Throws Guasto 53 where there is no such file, 481 where it
    /// is no picture. A drawing that the resources lack leaves the figure empty.
    void carica(const std::string& nome);
    [[nodiscard]] bool vuota() const;
    void disegna(QPainter& pennello, const QRect& area, Adattamento modo) const;

private:
    [[nodiscard]] QPixmap pronta(QSize misura, double densita) const;
    [[nodiscard]] QSize misuraPropria() const;
    void caricaFile(const QString& percorso);

    std::unique_ptr<QSvgRenderer> disegno_;
    QImage immagine_;
    mutable QPixmap pronta_; ///< as last painted
    mutable QSize misuraPronta_;
};

} // namespace lumigrafo
