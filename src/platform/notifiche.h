#pragma once

#include <string>

namespace lumigrafo {

/// Short notices in the corner of the operator's screen.
class Notifiche {
public:
    virtual ~Notifiche() = default;
    /// Shows `testo` (UTF-8, line ends CR LF or LF) and goes away by itself; it takes neither the keyboard
    /// nor the caller's time.
    virtual void NotificaPopup(const std::string& testo) = 0;
};

} // namespace lumigrafo
