#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <sys/socket.h>
#include <vector>

namespace lumigrafo {

/// Where a host can be reached, ready for a connect.
struct IndirizzoRete {
    sockaddr_storage dati{};
    socklen_t lunghezza = 0;
};

/// The addresses of a host, the system's favourite first; none where `host` is neither an address nor a name,
/// or where its name has no answer until `fine`. Such a look-up goes on behind the caller's back, and the
/// next call for that name waits for it instead of starting another.
[[nodiscard]] std::vector<IndirizzoRete> risolvi(const std::string& host, std::uint16_t porta,
                                                 std::chrono::steady_clock::time_point fine);

} // namespace lumigrafo
