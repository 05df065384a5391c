#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace lumigrafo::jet {

/// The number of the failure "another station holds it", which goes away by waiting (Guasto 3218).
inline constexpr int kOccupata = 3218;

/// A bounded wait for another station, with growing pauses: most holds last a few milliseconds.
class Pazienza {
public:
    explicit Pazienza(std::chrono::milliseconds attesa) : fine_(Ora::now() + attesa) {}
    [[nodiscard]] bool ancora() const { return Ora::now() < fine_; }
    void attendi() {
        std::this_thread::sleep_for(pausa_);
        pausa_ = std::min(pausa_ * 2, kMassima);
    }

private:
    using Ora = std::chrono::steady_clock;
    static constexpr std::chrono::microseconds kMassima{50000};

    Ora::time_point fine_;
    std::chrono::microseconds pausa_{500};
};

} // namespace lumigrafo::jet
