#pragma once

#include <cstdint>
#include <string>

namespace lumigrafo {

/// Address and font size of one Android board.
struct LumigrafoAndroid {
    std::string Ip; ///< empty: no such board
    std::int16_t Font = 0;
};

/// The Android boards, as the console uses them.
class LumigrafiAndroid {
public:
    virtual ~LumigrafiAndroid() = default;
    /// Pushes the whole state of the board. `last`: the quadrant that changed (0..2), or -1 to reset the
    /// boards.
    virtual void SincronizzaLumAndroid(std::int16_t last) = 0;
};

/// The queue of the next-customer system, as the server of the cash desks uses it.
class CodaCasse {
public:
    virtual ~CodaCasse() = default;
    /// A number is being taken. Another request can arrive meanwhile, and must not take a second one.
    [[nodiscard]] virtual bool Occupato() const = 0;
    /// Takes the next number for the desk with that letter: it leaves the queue, goes up on the board and is
    /// spoken. Empty where there is none. Throws Guasto where the archive refuses, and stays busy then.
    virtual std::string ProssimoNumero(const std::string& Cassa) = 0;
};

/// The server that cash desks ask for the next number.
class ServerCasse {
public:
    virtual ~ServerCasse() = default;
    /// Opens the listening socket; a failure is shown, and the run goes on without a server.
    virtual void Apri() = 0;
    /// Hangs up on all desks and gives the port free; nothing happens where it isn't open.
    virtual void Chiudi() = 0;
};

} // namespace lumigrafo
