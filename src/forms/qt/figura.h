#pragma once

#include "forms/qt/lettore_figura.h"

#include <QPixmap>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QPainter;
class QSvgRenderer;

namespace lumigrafo {

/// A picture: a drawing of the resources (`:/figure/<name>.svg`) or a file.
class Figura {
public:
    /// `pronta` is called when a file's picture has come, and is to be painted.
    explicit Figura(std::function<void()> pronta);
    ~Figura();
    Figura(const Figura&) = delete;
    Figura& operator=(const Figura&) = delete;
    /// A name with a separator is a file's path; it is decoded beside this thread, as large as `inquadratura`
    /// needs it, and until it is ready the picture that people see stays. Throws Guasto 53 where there is no
    /// such file, 481 where it doesn't begin as a picture does, with its path in the description; one that
    /// turns out to be none while it is decoded throws the same from the event loop. A drawing that the
    /// resources lack leaves the figure empty.
    void carica(const std::string& nome, const Inquadratura& inquadratura);
    /// Waits until the file that was asked for is the picture. Throws its failure.
    void attendi() { lettore_.attendi(); }
    [[nodiscard]] bool vuota() const;
    void disegna(QPainter& pennello, const QRect& area, Adattamento modo);

private:
    void svuota();
    void ricevi(FiguraLetta letta);
    [[nodiscard]] const QPixmap& pronta(QSize misura, double densita);
    [[nodiscard]] QSize misura(QSize area, Adattamento modo) const;
    void chiediDiPiu(const Inquadratura& inquadratura);

    std::function<void()> avvisa_;
    LettoreFigura lettore_;
    std::unique_ptr<QSvgRenderer> disegno_;
    FileFigura file_; ///< asked for last
    Inquadratura chiesta_;
    std::optional<FiguraLetta> letta_;
    bool vista_ = false; ///< painted at least once
    QPixmap pronta_;     ///< as last painted
    QSize misuraPronta_;
};

} // namespace lumigrafo
