#pragma once

#include <string>

namespace lumigrafo {

/// Short notices in the corner of the operator's screen.
class Notifiche {
public:
    virtual ~Notifiche() = default;
    /// Shows a message (UTF-8, line ends CR LF or LF) under the program's heading. It goes away by itself and
    /// takes neither the keyboard nor the caller's time.
    void NotificaPopup(const std::string& testo) { mostra("DEMONE LUMIGRAFO CUCINA\r\n\r\n" + testo); }

private:
    /// Shows the whole text.
    virtual void mostra(const std::string& testo) = 0;
};

} // namespace lumigrafo
