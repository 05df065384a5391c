#pragma once

#include "forms/qt/figura.h"
#include "forms/qt/testo_adattato.h"
#include "forms/qt/vista.h"

#include <QAbstractButton>

#include <optional>

namespace lumigrafo {

/// A push button with a text, a picture or both: the picture at the left where the button is wide, else above
/// the text. A touch doesn't take the focus away from the field that a scanner types into; the tabulator
/// reaches it, and then the space bar presses it.
class BottoneWidget final : public QAbstractButton, public Vista {
public:
    explicit BottoneWidget(QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;
    /// Reads the picture that the control names now; see Figura::carica for its failures.
    void carica(const Controllo& controllo);
    /// Where picture and text go; either is empty where the button has none.
    struct Aree {
        QRect figura, testo;
    };
    [[nodiscard]] Aree aree() const;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    [[nodiscard]] QColor sfondoDi(const QColor& base) const;
    void disegnaFuoco(QPainter& p) const;
    void disegnaQuota(QPainter& p, const QRect& testo) const;

    TestoAdattato testo_;
    Figura figura_{[this] { update(); }};
    Colore tinta_;
    std::optional<Colore> sfondo_;
    int raggio_ = 0;
    bool quota_ = false;
};

} // namespace lumigrafo
