#include "platform/qt/uscita_qt.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

namespace lumigrafo {

void UscitaQt::termina(int codice) {
    std::cout.flush();
    std::fflush(nullptr);
    std::_Exit(codice);
}

} // namespace lumigrafo
