#pragma once

#include "data/dao.h"

#include <cstdint>

namespace lumigrafo::archivio {

/// The usual categories of a festival's kitchen: 1 Bar, 2 Cucina, 3 Griglia, 4 Pizzeria. Throws Guasto.
void scriviCategorie(Database& db);

/// Fills a new archive with that many open orders of one evening: the same ones for the same count and date.
/// Throws Guasto. Many writes: the caller makes them one transaction.
void scriviOrdini(Database& db, int ordini, std::int32_t dataCompetenza);

} // namespace lumigrafo::archivio
