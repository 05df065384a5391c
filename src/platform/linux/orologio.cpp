#include "platform/linux/orologio.h"

#include <ctime>
#include <thread>

namespace lumigrafo {

DataOra OrologioSistema::adesso() const {
    const std::time_t ora = std::time(nullptr);
    std::tm t{};
    ::tzset(); // the time zone may have been changed since the start
    ::localtime_r(&ora, &t);
    // A leap second is shown as the one before, so that a time of day always has 60 seconds at most.
    return {{t.tm_year + 1900, t.tm_mon + 1, t.tm_mday}, t.tm_hour, t.tm_min, t.tm_sec > 59 ? 59 : t.tm_sec};
}

void OrologioSistema::attendi(std::chrono::milliseconds durata) {
    std::this_thread::sleep_for(durata);
}

} // namespace lumigrafo
