#include "app/programma.h"

#include "boards/qt/finestra_videata_qt.h"

#include <QApplication>

namespace lumigrafo {

Programma::Programma(const Ambiente& ambiente, Avvisi& avvisi, Uscita& uscita)
    : ambiente_(ambiente), sistema_(ambiente.cartella, [] { QApplication::beep(); }),
      dialoghi_(avvisi, processi_, alimentazione_, uscita),
      annunciatore_(voce_, log_, pompa_, dati_,
                    [this](const std::string& testo) { notifiche_.NotificaPopup(testo); }),
      servizi_{ambiente_, pompa_, timers_, dati_},
      console_(
          stato_,
          PorteConsole{ambiente_, orologio_, pompa_, timers_, avvisi, messaggi_, processi_, alimentazione_,
                       sistema_, uscita, dialoghi_, annunciatore_, fiscale_, android_, server_},
          finestra_, [this](TipoVideata tipo) { return creaVideata(tipo, servizi_, fabbricaFinestreQt()); }) {
    finestra_.collega(console_);
}

void Programma::avvia() {
    console_.carica();
    console_.attiva();
}

} // namespace lumigrafo
