#pragma once

#include <QProcess>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumigrafo::prova {

/// How loud a piece of sound is over time: one value (root mean square, 0 to 32767) each 10 ms.
using Profilo = std::vector<double>;

inline constexpr double kSecondiPasso = 0.01;

/// The audible steps alone. A busy sound server stops for a moment in the middle of a word: that isn't the
/// voice's doing, and so no pause counts.
[[nodiscard]] Profilo senzaSilenzi(const Profilo& profilo);
[[nodiscard]] double secondi(const Profilo& profilo);

struct Posto {
    std::size_t inizio = 0, fine = 0; ///< steps; `fine` is the one behind the last
    double somiglianza = 0;           ///< 1: the same piece; 0: nothing in common
};
/// Where in `tutto` the piece sounds most alike, where either may run a little faster here and there. Both
/// without silences; the piece isn't empty.
[[nodiscard]] Posto cerca(const Profilo& pezzo, const Profilo& tutto);

/// Records what a sound source of the PulseAudio server gives, from `avvia` on.
class Registrazione {
public:
    ~Registrazione();
    /// False if nothing comes.
    bool avvia(const QString& sorgente);
    /// Steps recorded so far.
    [[nodiscard]] std::size_t passi() const;
    /// What was recorded from that step on.
    [[nodiscard]] Profilo da(std::size_t passo) const;

private:
    QProcess parec_;
    QByteArray dati_;
};

} // namespace lumigrafo::prova
