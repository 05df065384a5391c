#include "platform/orologio.h"

namespace lumigrafo {

Data ieri(Data data) {
    using namespace std::chrono;
    const sys_days oggi = year{data.anno} / data.mese / data.giorno;
    const year_month_day g = oggi - days{1};
    return {static_cast<int>(g.year()), static_cast<int>(static_cast<unsigned>(g.month())),
            static_cast<int>(static_cast<unsigned>(g.day()))};
}

std::string testoOra(const DataOra& adesso) {
    const auto dueCifre = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    return dueCifre(adesso.ora) + ":" + dueCifre(adesso.minuto) + ":" + dueCifre(adesso.secondo);
}

} // namespace lumigrafo
