#include "settings/processo.h"

#include "platform/conversioni.h"

namespace lumigrafo {

void TerminaProcesso(Processi& processi, const std::string& nome) {
    if (processi.termina(nome) == 0)
        processi.termina(minuscolo(nome));
}

void FermaPrimoPiano(Processi& processi) {
    TerminaProcesso(processi, "PrimoPiano.exe");
}

} // namespace lumigrafo
