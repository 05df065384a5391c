#include "links/server_casse.h"
#include "strumenti/cassa/collegamento_qt.h"
#include "strumenti/cassa/programma.h"

#include <QCoreApplication>

#include <iostream>
#include <thread>

int main(int argc, char** argv) {
    QCoreApplication applicazione(argc, argv);
    const std::vector<std::string> parole(argv + (argc > 0 ? 1 : 0), argv + argc);
    lumigrafo::cassa::CollegamentoQt collegamento(lumigrafo::kPortaCasse);
    const auto attesa = [](std::chrono::milliseconds durata) {
        std::this_thread::sleep_for(durata);
        return true;
    };
    return lumigrafo::cassa::esegui(parole, collegamento, attesa, std::cout, std::cerr);
}
