#pragma once

#include "forms/qt/vista.h"
#include "forms/tastiera.h"

#include <QBasicTimer>
#include <QWidget>

namespace lumigrafo {

/// The on-screen keyboard: a touch types into whatever has the focus, and the focus stays there. Keys act
/// when they are touched, so that two quick fingers lose nothing; some go on while they are held.
class TastieraWidget final : public QWidget, public Vista {
public:
    TastieraWidget(Tastiera::Forma forma, QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;
    /// Where the key stands that writes this now, or the first one of that action; empty where there is none.
    [[nodiscard]] QRect rettangolo(const QString& scritta) const;
    [[nodiscard]] QRect rettangolo(AzioneTasto azione) const;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void timerEvent(QTimerEvent* evento) override;
    bool event(QEvent* evento) override;

private:
    void disponi();
    void premi(const QPoint& punto);
    void rilascia();
    void disegna(QPainter& pennello, const TastoPosto& tasto) const;
    [[nodiscard]] QString scritta(const Tasto& tasto) const;

    Tastiera tastiera_;
    std::vector<TastoPosto> posti_;
    const Tasto* premuto_ = nullptr;
    QBasicTimer ripetizione_;
    QFont carattere_;
    int raggio_ = 0;
};

} // namespace lumigrafo
