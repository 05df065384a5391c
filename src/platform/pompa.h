#pragma once

#include <string_view>

namespace lumigrafo {

/// Which pending events a routine lets through.
enum class Ammessi {
    Tutti,
    SenzaTastiera, ///< keys stay in the queue, so that a scanner's next code isn't lost
};

/// Lets pending window events through in the middle of a routine. Everything can happen inside: a click, a
/// timer, a request of a cash desk, the end of the board window.
class Pompa {
public:
    virtual ~Pompa() = default;
    /// `punto` names the place in the code, so that a test can put an event exactly there.
    virtual void cedi(std::string_view punto, Ammessi ammessi = Ammessi::Tutti) = 0;
};

} // namespace lumigrafo
