#pragma once

#include "console/stato.h"
#include "platform/orologio.h"

#include <cstdint>
#include <optional>
#include <string>

namespace lumigrafo {

/// A date as the archive holds it: 15 March 2026 is 20260315. No date is 0.
[[nodiscard]] std::int32_t SqlDate(const std::optional<Data>& data);

/// Writes the served state of an order back to the tables of the cash side. `servito`: -1 marks its lines as
/// served, 0 takes the mark off; the receipt is marked served in both cases. Nothing happens for an empty
/// number or one that doesn't compare above "0" as text. A failing statement throws Guasto.
void AggiornaDBLumigrafoCucina(const StatoConsole& stato, const Orologio& orologio, const std::string& sigla,
                               const std::string& numero, std::int16_t index, std::int16_t servito);

} // namespace lumigrafo
