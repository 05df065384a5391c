#pragma once

#include "forms/qt/vista.h"

#include <QLineEdit>

namespace lumigrafo {

/// A text box of one line; its text is the control's caption.
class CasellaWidget final : public QLineEdit, public Vista {
public:
    explicit CasellaWidget(QWidget* padre) : QLineEdit(padre) {}
    void mostra(const Controllo& controllo, const Resa& resa) override;
    /// The program gave it the focus: what stands in it untouched is replaced by what is typed first.
    void accogli();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
};

} // namespace lumigrafo
