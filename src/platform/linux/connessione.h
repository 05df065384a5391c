#pragma once

#include "platform/linux/attesa.h"

#include <string>

namespace lumigrafo {

/// A TCP connection to an address or a name, without waits of its own; not open where there is none at
/// `fine`. A name is looked up within that time too.
[[nodiscard]] Descrittore connettiTcp(const std::string& host, std::uint16_t porta, Momento fine);

} // namespace lumigrafo
