#pragma once

#include "fiscale/driver.h"
#include "fiscale/driver_programma.h"
#include "fiscale/impostazioni.h"
#include "fiscale/porte.h"

#include <filesystem>
#include <memory>

namespace lumigrafo {

/// The driver that the settings choose. They mustn't have a `difetto`.
[[nodiscard]] std::unique_ptr<Driver> creaDriver(const ImpostazioniFiscali& impostazioni,
                                                 const PorteComponente& porte,
                                                 const std::filesystem::path& cartellaProgramma,
                                                 const PostoArchivio& archivio);

} // namespace lumigrafo
