#include "platform/linux/orologio.h"
#include "strumenti/archivio/programma.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    const std::vector<std::string> argomenti(argv + (argc > 0 ? 1 : 0), argv + argc);
    return lumigrafo::archivio::esegui(argomenti, lumigrafo::OrologioSistema(), std::cout, std::cerr);
}
