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

/// The server that cash desks ask for the next number.
class ServerCasse {
public:
    virtual ~ServerCasse() = default;
    /// Opens the listening socket; a failure is shown, and the run goes on without a server.
    virtual void Apri() = 0;
};

/// For a station whose operator calls the numbers.
class ServerAssente : public ServerCasse {
public:
    void Apri() override {}
};

} // namespace lumigrafo
