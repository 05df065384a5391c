#pragma once

#include "data/jet/stazione.h"

#include <chrono>

namespace lumigrafo::jet {

/// Keeps the many busy stations from outrunning one for ever. Who has waited long in some work asks the
/// stations of this program to begin no new transaction up to that work's end. They wait for it once and no
/// longer than kMassima: one that has stopped with it stops nobody.
class Precedenza {
public:
    /// None: nobody else is there. It must outlive the works.
    void di(Stazione* stazione) { stazione_ = stazione; }

    /// Some work that is done by trying; works nest, and the outermost counts.
    class Turno {
    public:
        explicit Turno(Precedenza& precedenza);
        ~Turno();
        Turno(const Turno&) = delete;
        Turno& operator=(const Turno&) = delete;

    private:
        Precedenza& precedenza_;
    };

    /// Before the next try: asks for precedence where the work is long already. Who only reads gives it back
    /// where that was of no use.
    void insisti(bool legge);
    /// Before something new: waits for the station that has asked, at most for that long.
    void lascia(std::chrono::milliseconds alMassimo);

private:
    /// Longer than a hold or two: there are many others, and one of them is always first.
    static constexpr std::chrono::milliseconds kTurnoLungo{50};
    static constexpr std::chrono::milliseconds kMassima{1000};

    Stazione* stazione_ = nullptr;
    int turni_ = 0;
    std::chrono::steady_clock::time_point inizio_;
    bool impaziente_ = false; ///< the station that has precedence was waited for in vain
};

} // namespace lumigrafo::jet
