#pragma once

#include "forms/qt/vista.h"

#include <functional>

namespace lumigrafo {

/// One control's widget; both point to one object, which its Qt parent owns.
struct Costruito {
    QWidget* widget = nullptr;
    Vista* vista = nullptr;
    /// Reads the control's picture again; none for controls without.
    std::function<void()> carica{};
};

/// What a widget reports of the operator.
struct Segnali {
    std::function<void(const Controllo&)> clic;
    std::function<void(const Controllo&)> clicDestro;
    std::function<void(Controllo&, std::string)> testo; ///< typed into a text box
    std::function<void(Controllo&, int)> valore;        ///< chosen in a list, ticked, slid
};

/// Makes the widget of a control inside `padre`. The signals must outlive it.
[[nodiscard]] Costruito costruisci(Controllo& controllo, QWidget* padre, const Segnali& segnali);

} // namespace lumigrafo
