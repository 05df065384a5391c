#pragma once

#include <chrono>
#include <string>

namespace lumigrafo {

/// A calendar date. Months and days count from 1.
struct Data {
    int anno = 0, mese = 0, giorno = 0;
    friend constexpr auto operator<=>(const Data&, const Data&) = default;
};

/// Local date and time of day, to the second.
struct DataOra {
    Data data;
    int ora = 0, minuto = 0, secondo = 0;
};

/// The day before.
[[nodiscard]] Data ieri(Data data);

/// Time of day in the system's default form, "hh:mm:ss".
[[nodiscard]] std::string testoOra(const DataOra& adesso);

/// The clock, and the waits that the behaviour demands.
class Orologio {
public:
    virtual ~Orologio() = default;
    /// Local time now.
    [[nodiscard]] virtual DataOra adesso() const = 0;
    /// Blocks the thread; no event is let through meanwhile.
    virtual void attendi(std::chrono::milliseconds durata) = 0;
};

} // namespace lumigrafo
