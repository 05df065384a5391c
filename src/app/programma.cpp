#include "app/programma.h"

#include "boards/qt/finestra_videata_qt.h"

#include <QApplication>

namespace lumigrafo {

Programma::Programma(const Ambiente& ambiente, Avvisi& avvisi, Uscita& uscita)
    : ambiente_(ambiente), sistema_(ambiente.cartella, [] { QApplication::beep(); }),
      dialoghi_(avvisi, processi_, alimentazione_, uscita), servizi_{ambiente_, pompa_, timers_, *this},
      console_(
          PorteConsole{ambiente_, orologio_, pompa_, timers_, avvisi, messaggi_, processi_, alimentazione_,
                       sistema_, uscita, dialoghi_, annunciatore_, fiscale_, android_, server_},
          finestra_, [this](TipoVideata tipo) { return creaVideata(tipo, servizi_, fabbricaFinestreQt()); }) {
    finestra_.collega(console_);
}

void Programma::avvia() {
    console_.carica();
    console_.attiva();
}

std::string Programma::Reparto(int quadrante) const {
    return console_.controlli()("lblReparto", quadrante).Caption();
}

bool Programma::SoloAndroid() const {
    return console_.stato().SoloAndroid;
}

} // namespace lumigrafo
