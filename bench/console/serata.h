#pragma once

#include "tests/console/banco.h"

namespace lumigrafo::misure {

/// Open orders at the worst of a very busy evening, and on a usual one.
inline constexpr int kOrdini = 1000;
inline constexpr int kOrdiniUsuali = 100;
inline constexpr int kReparti = 3;

/// Letter of an order, from its number.
[[nodiscard]] std::string siglaDi(int numero);

/// A bench whose queue has the numbers from 1, each open in the categories 1 to 3, with their lines and
/// receipts, and a quadrant for each category, whose grids hold all of it.
void prepara(prova::Banco& banco, int ordini = kOrdini);

/// Forgets what the fakes were told: in a long run the memory for it would grow without end.
void dimentica(prova::Banco& banco);

} // namespace lumigrafo::misure
