#include "settings/qt/messaggi_qt.h"

#include "forms/qt/finestra.h"
#include "settings/messaggio.h"
#include "settings/qt/finestra_modale.h"

namespace lumigrafo {

void MessaggiQt::MostraMessaggio(const std::string& testo, std::int16_t secondi) {
    FinestraModale attesa;
    Messaggio messaggio(timers_, testo, secondi, [&attesa] { attesa.fine(); });
    Finestra finestra(messaggio.controlli(), nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    finestra.alClic([&messaggio](const Controllo& c) { messaggio.clic(c.disegno().nome); });
    attesa.esegui(finestra);
}

void MessaggiQt::MostraSplash() {
    FinestraModale attesa;
    Splash splash(timers_, [&attesa] { attesa.fine(); });
    Finestra finestra(splash.controlli(), nullptr,
                      Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    finestra.alClic([&splash](const Controllo&) { splash.clic(); });
    attesa.esegui(finestra);
}

} // namespace lumigrafo
