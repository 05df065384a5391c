#include "boards/modulo_monitor.h"

#include "platform/guasto.h"

#include <algorithm>

namespace lumigrafo {

namespace {

double comune(const Rettangolo& a, const Rettangolo& b) {
    const double larghezza =
        std::min((a.left + a.width).v, (b.left + b.width).v) - std::max(a.left.v, b.left.v);
    const double altezza = std::min((a.top + a.height).v, (b.top + b.height).v) - std::max(a.top.v, b.top.v);
    return larghezza > 0 && altezza > 0 ? larghezza * altezza : 0;
}

InfoMonitor info(const Schermo& s) {
    InfoMonitor i{};
    i.hMonitor = s.numero;
    i.MonLeft = s.tutto.left;
    i.MonRight = s.tutto.left + s.tutto.width;
    i.MonTop = s.tutto.top;
    i.MonBottom = s.tutto.top + s.tutto.height;
    i.WorkLeft = s.lavoro.left;
    i.WorkRight = s.lavoro.left + s.lavoro.width;
    i.WorkTop = s.lavoro.top;
    i.WorkBottom = s.lavoro.top + s.lavoro.height;
    i.MonHeight = s.tutto.height;
    i.MonWidth = s.tutto.width;
    i.WorkHeight = s.lavoro.height;
    i.WorkWidth = s.lavoro.width;
    i.Primario = s.primario;
    return i;
}

} // namespace

std::optional<InfoMonitor> monitorDi(const Schermi& schermi, const Rettangolo& finestra) {
    std::optional<InfoMonitor> migliore;
    double massimo = 0;
    for (const Schermo& s : schermi.elenco())
        if (const double area = comune(s.tutto, finestra); area > massimo) {
            massimo = area;
            migliore = info(s);
        }
    return migliore;
}

InfoMonitor LeggiInfoMonitor(const Schermi& schermi, const Rettangolo& finestra) {
    if (const auto monitor = monitorDi(schermi, finestra))
        return *monitor;
    const std::vector<Schermo> tutti = schermi.elenco();
    if (tutti.empty())
        throw Guasto(guasti::kIndice);
    const auto primario =
        std::find_if(tutti.begin(), tutti.end(), [](const Schermo& s) { return s.primario; });
    return info(primario == tutti.end() ? tutti.front() : *primario);
}

Rettangolo AdattaAlMonitor(const Schermi& schermi, const Rettangolo& riferimento) {
    const InfoMonitor m = LeggiInfoMonitor(schermi, riferimento);
    return {m.WorkLeft, m.WorkTop, m.WorkWidth, m.WorkHeight};
}

} // namespace lumigrafo
