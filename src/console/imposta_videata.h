#pragma once

#include "boards/famiglia.h"
#include "console/caricatore.h"
#include "console/contesto.h"

#include <functional>
#include <memory>

namespace lumigrafo {

/// Makes the board window of a type.
using FabbricaVideata = std::function<std::unique_ptr<Videata>(TipoVideata)>;

/// Turns the settings into a console: its keys, its layout by categories, its board.
class DispositoreConsole {
public:
    DispositoreConsole(ContestoConsole& contesto, Caricatore& caricatore, FabbricaVideata fabbrica);

    /// Runs once, inside the load. A key that should hold a number and doesn't throws Guasto 13 or 6.
    void ImpostaVideata();
    /// The single-department layout: one wide grid of four columns.
    void ImpostaUnReparto();

private:
    void leggiChiavi();
    void mostraReparti();
    void sceglieVideata();
    void disponiDueReparti();
    void preparaFraMessaggio();
    void disponiBottoneAvanti();

    ContestoConsole& c_;
    Caricatore& caricatore_;
    FabbricaVideata fabbrica_;
};

/// True where this station holds the archive itself: its program folder is the archive's.
[[nodiscard]] bool archivioLocale(const ContestoConsole& contesto);

} // namespace lumigrafo
