#pragma once

#include "forms/griglia.h"
#include "forms/qt/vista.h"
#include "forms/scorrimento.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QWidget>

#include <functional>
#include <optional>

namespace lumigrafo {

/// A whole order grid as one widget: it paints the cells that are seen and changed, and follows a finger, a
/// mouse or the wheel. A cell's text is centred, and drawn smaller where it is too wide.
class GrigliaWidget final : public QWidget, public Vista {
public:
    /// Row and column, both -1 beside the cells.
    using SuCella = std::function<void(int riga, int colonna)>;

    explicit GrigliaWidget(QWidget* padre);
    ~GrigliaWidget() override;
    void mostra(const Controllo& controllo, const Resa& resa) override;

    /// Shows that model from now on; it must outlive the widget, which takes its observer.
    void collega(Griglia& griglia);
    /// A press and a release on one cell, which is the model's current one by then; a drag is no click.
    void alClic(SuCella azione) { clic_ = std::move(azione); }
    /// Any event of the pointer over the grid: moved, pressed, released, wheel.
    void alPuntatore(std::function<void()> azione) { puntatore_ = std::move(azione); }

    /// Where a cell stands in the widget now; empty without a model or beyond its cells.
    [[nodiscard]] QRect rettangolo(int riga, int colonna) const;
    [[nodiscard]] int altezzaRiga() const;
    /// Pixels scrolled away above the first row seen.
    [[nodiscard]] int scarto() const { return scorrimento_.posizione(); }

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void timerEvent(QTimerEvent* evento) override;

private:
    struct Cella {
        int riga = -1, colonna = -1;
        friend bool operator==(const Cella&, const Cella&) = default;
    };
    [[nodiscard]] Cella cellaIn(const QPoint& punto) const;
    void cambiata(int riga, int colonna);
    void misura();
    void avvisaPuntatore();
    void disegnaCella(QPainter& pennello, Cella cella, const QRect& area) const;
    void disegnaBarra(QPainter& pennello) const;
    [[nodiscard]] double adesso() const { return static_cast<double>(orologio_.elapsed()); }

    Griglia* griglia_ = nullptr;
    std::optional<Resa> resa_;
    QColor testo_, sfondo_;
    std::vector<int> bordi_;
    Scorrimento scorrimento_;
    Cella premuta_;
    QBasicTimer corsa_;
    QElapsedTimer orologio_;
    SuCella clic_;
    std::function<void()> puntatore_;
};

} // namespace lumigrafo
