#pragma once

#include <cstdint>
#include <string>

namespace lumigrafo {

/// The small windows that speak to the operator and go away by themselves. Both are modal: the caller waits
/// until the window is gone, and other events run meanwhile.
class Messaggi {
public:
    virtual ~Messaggi() = default;
    /// Shows `testo` (UTF-8) for that many seconds, 1..32, or 2 seconds with 0 or less; a click on it closes
    /// it before. Above 32 throws Guasto 6 and shows nothing.
    virtual void MostraMessaggio(const std::string& testo, std::int16_t secondi) = 0;
    /// The start window, above all others, for 2.5 seconds or until a click.
    virtual void MostraSplash() = 0;
};

} // namespace lumigrafo
