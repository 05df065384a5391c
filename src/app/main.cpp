#include "app/programma.h"
#include "app/riga_comando.h"
#include "platform/qt/applicazione.h"
#include "platform/qt/avvisi_qt.h"
#include "platform/qt/uscita_qt.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    using namespace lumigrafo;
    if (const auto risposta = rispostaImmediata(argc, argv)) {
        std::fputs(risposta->c_str(), stdout);
        return 0;
    }
    AvvisiQt avvisi;
    UscitaQt uscita;
    Applicazione applicazione(argc, argv, avvisi, uscita);
    const Ambiente ambiente =
        leggiAmbiente(argc, argv, QCoreApplication::applicationFilePath().toStdString());
    Programma programma(ambiente, avvisi, uscita);
    return applicazione.esegui([&programma] { programma.avvia(); });
}
