#pragma once

#include <chrono>
#include <string>

namespace lumigrafo {

/// One ICMP echo with a life of one hop to a dotted IPv4 address. True if the answer came within `attesa`;
/// false also for a text that is no such address, and where the system lets this process send no echo.
[[nodiscard]] bool ecoDiUnSalto(const std::string& indirizzo,
                                std::chrono::milliseconds attesa = std::chrono::seconds(1));

} // namespace lumigrafo
