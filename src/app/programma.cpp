#include "app/programma.h"

#include "boards/qt/finestra_videata_qt.h"

#include <QApplication>

namespace lumigrafo {

namespace {

Rettangolo postoDi(const QWidget& finestra) {
    const QRect r = finestra.frameGeometry();
    return {aTwip(Pixel(r.x())), aTwip(Pixel(r.y())), aTwip(Pixel(r.width())), aTwip(Pixel(r.height()))};
}

} // namespace

Programma::Programma(const Ambiente& ambiente, Avvisi& avvisi, Uscita& uscita)
    : ambiente_(ambiente), sistema_(ambiente.cartella, [] { QApplication::beep(); }),
      dialoghi_(
          {ambiente_, pompa_, avvisi, messaggi_, schermi_, desktop_}, processi_, alimentazione_, uscita,
          orologio_, [this] { return postoDi(finestra_); },
          [this]() -> RichiamiConsole& { return console_.richiami(); },
          {sistema_, sceltaCartella_, fiscale_, [this] { console_.TimerVis(); }}),
      annunciatore_(voce_, log_, pompa_, dati_,
                    [this](const std::string& testo) { notifiche_.NotificaPopup(testo); }),
      componente_({orologio_, avvisi, trasporti_, esecutore_, finestreComponente_}),
      fiscale_({ambiente_.cartella.string(), dati_, log_, pompa_, messaggi_, orologio_, avvisi, uscita,
                sistema_, frmFiscale_, componente_}),
      server_(reteCasse_, coda_, orologio_, avvisi, sistema_,
              [this](const std::string& riga) { log_.ScriviLogConnessioni(riga); }),
      servizi_{ambiente_, pompa_, timers_, dati_, sceltaFile_},
      console_(stato_,
               PorteConsole{ambiente_, orologio_, pompa_, timers_, avvisi, messaggi_, processi_,
                            alimentazione_, sistema_, desktop_, uscita, dialoghi_, annunciatore_,
                            annunciatore_, fiscale_, android_, server_},
               finestra_,
               [this](TipoVideata tipo) { return creaVideata(tipo, servizi_, fabbricaFinestreQt()); }) {
    finestra_.collega(console_);
}

void Programma::avvia() {
    console_.carica();
    console_.attiva();
}

} // namespace lumigrafo
