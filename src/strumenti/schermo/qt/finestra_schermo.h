#pragma once

#include "strumenti/schermo/tabellone.h"

#include <QTimer>
#include <QWidget>

#include <optional>

namespace lumigrafo::schermo {

/// The board in a window: a title, a panel in its own colours for each department, the newest number large
/// above the older ones. The number just called blinks for some seconds. Escape closes.
class FinestraSchermo final : public QWidget {
public:
    /// `attesa` is what stands there until the first document comes.
    explicit FinestraSchermo(QString attesa);

    void mostra(const Tabellone& tabellone);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void disegnaAttesa(QPainter& p) const;
    void disegnaTabellone(QPainter& p) const;
    /// Heights of the numbers' letters, in pixels.
    struct Corpi {
        qreal nuovo, vecchio;
    };
    void disegnaGruppo(QPainter& p, const Gruppo& gruppo, const QRectF& riquadro, const Corpi& misure,
                       bool acceso) const;
    [[nodiscard]] Corpi corpi(const QRectF& riquadro) const;

    QString attesa_;
    std::optional<Tabellone> tabellone_;
    QTimer lampeggio_;
    int scatti_ = 0; ///< left of the blink
};

} // namespace lumigrafo::schermo
