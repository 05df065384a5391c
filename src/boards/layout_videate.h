#pragma once

#include "boards/famiglia.h"
#include "forms/descrizione.h"

namespace lumigrafo {

/// The standard board: three departments side by side.
extern const Layout kLayoutLumigrafo;
/// One row a department, with six or nine numbers.
extern const Layout kLayoutOrizzontale;
extern const Layout kLayoutOrizzontale9;
/// One department over the whole window: six or nine numbers, or one very large.
extern const Layout kLayoutUnReparto;
extern const Layout kLayoutUnReparto9;
extern const Layout kLayoutBig;
/// Six numbers over a picture.
extern const Layout kLayoutPerson;
/// One row a cash desk.
extern const Layout kLayoutAvantiProssimo;

/// The table from which a board's window is built.
[[nodiscard]] const Layout& layoutDi(TipoVideata tipo);

} // namespace lumigrafo
