#pragma once

#include <cstdint>

namespace lumigrafo {

/// The Android boards, as the console uses them.
class LumigrafiAndroid {
public:
    virtual ~LumigrafiAndroid() = default;
    /// Pushes the whole state of the board. `last`: the quadrant that changed (0..2), or -1 to reset the
    /// boards.
    virtual void SincronizzaLumAndroid(std::int16_t last) = 0;
};

/// For a station without Android boards.
class LumigrafiAssenti : public LumigrafiAndroid {
public:
    void SincronizzaLumAndroid(std::int16_t) override {}
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
