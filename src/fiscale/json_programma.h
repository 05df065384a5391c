#pragma once

#include "fiscale/driver.h"
#include "fiscale/driver_programma.h"

#include <optional>
#include <string>
#include <string_view>

/// What the external program is told and what it answers.
namespace lumigrafo {

[[nodiscard]] std::string richiestaDiStampa(const Lavoro& lavoro, const PostoArchivio& archivio);
[[nodiscard]] std::string richiestaDiStato();

/// None for anything but one JSON object with a known "esito".
[[nodiscard]] std::optional<EsitoStampa> esitoDa(std::string_view json);
/// None for anything but one JSON object with a truth value "pronta".
[[nodiscard]] std::optional<StatoStampante> statoDa(std::string_view json);

} // namespace lumigrafo
