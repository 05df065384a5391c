#pragma once

#include "forms/qt/vista.h"

#include <QListWidget>

namespace lumigrafo {

/// A list of which one item is chosen; it follows a finger that drags it. A touch on an item is a click too.
class ListaWidget final : public QListWidget, public Vista {
public:
    ListaWidget(const Controllo& controllo, QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;

    /// What is typed looks for no item: it may be a scanner.
    void keyboardSearch(const QString&) override {}

protected:
    /// Enter is a touch on the chosen item.
    void keyPressEvent(QKeyEvent* evento) override;
};

} // namespace lumigrafo
