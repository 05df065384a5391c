#pragma once

#include <string>

namespace lumigrafo {

/// This machine's name in the network, as others see it; never empty.
[[nodiscard]] std::string nomeComputer();

} // namespace lumigrafo
