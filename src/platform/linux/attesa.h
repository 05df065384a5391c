#pragma once

#include "platform/linux/descrittore.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <poll.h>

namespace lumigrafo {

/// A moment on a clock that nobody sets.
using Momento = std::chrono::steady_clock::time_point;

/// The moment so far from now.
[[nodiscard]] inline Momento fra(std::chrono::milliseconds durata) {
    return std::chrono::steady_clock::now() + durata;
}

/// Milliseconds to go, as poll() takes them; 0 once it is over.
[[nodiscard]] inline int restano(Momento fine) {
    const auto resto =
        std::chrono::ceil<std::chrono::milliseconds>(fine - std::chrono::steady_clock::now()).count();
    return static_cast<int>(std::max<std::int64_t>(0, resto));
}

/// Waits until a file can be read or written, or has failed. False where the time is over.
[[nodiscard]] inline bool pronto(int fd, short eventi, Momento fine) {
    pollfd attesa{fd, eventi, 0};
    return riprovando([&] { return ::poll(&attesa, 1, restano(fine)); }) > 0;
}

} // namespace lumigrafo
