#include "boards/qt/sagoma_qt.h"

#include "forms/qt/finestra.h"

namespace lumigrafo {

void mostraSagoma(const ServiziSagoma& servizi, const Rettangolo& console) {
    Sagoma sagoma(servizi, console);
    Finestra finestra(sagoma.controlli(), nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    const auto disponi = [&] {
        const Rettangolo& r = sagoma.posto();
        finestra.setGeometry(aPixel(r.left).v, aPixel(r.top).v, aPixel(r.width).v, aPixel(r.height).v);
    };
    sagoma.allaMossa(disponi);
    disponi();
    finestra.setWindowModality(Qt::ApplicationModal);
    finestra.show();
    sagoma.attiva();
}

} // namespace lumigrafo
