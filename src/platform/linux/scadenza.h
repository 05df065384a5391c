#pragma once

#include "platform/linux/descrittore.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <poll.h>

namespace lumigrafo {

/// A moment on a clock that nobody sets.
class Scadenza {
public:
    explicit Scadenza(std::chrono::milliseconds fra) : fine_(std::chrono::steady_clock::now() + fra) {}
    /// Milliseconds to go, as poll() takes them; 0 once it is over.
    [[nodiscard]] int resto() const {
        const auto resto = fine_ - std::chrono::steady_clock::now();
        return static_cast<int>(
            std::max<std::int64_t>(0, std::chrono::ceil<std::chrono::milliseconds>(resto).count()));
    }

private:
    std::chrono::steady_clock::time_point fine_;
};

/// Waits until the file is ready for `eventi`, or has failed. False where the time is over.
[[nodiscard]] inline bool pronto(int fd, short eventi, const Scadenza& fine) {
    pollfd attesa{fd, eventi, 0};
    return riprovando([&] { return ::poll(&attesa, 1, fine.resto()); }) > 0;
}

} // namespace lumigrafo
