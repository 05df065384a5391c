#pragma once

#include "forms/qt/vista.h"

#include <QListWidget>

namespace lumigrafo {

/// A list of which one item is chosen; it follows a finger that drags it.
class ListaWidget final : public QListWidget, public Vista {
public:
    ListaWidget(const Controllo& controllo, QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;
};

} // namespace lumigrafo
