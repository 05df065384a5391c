#include "boards/sfoglia_sfondo.h"

#include "boards/percorsi.h"
#include "platform/file.h"
#include "platform/guasto.h"

#include <system_error>

namespace lumigrafo {

namespace {

Guasto guastoDi(int numero, const std::filesystem::path& file) {
    return {numero, Guasto(numero).descrizione() + ":\n" + testoUtf8(file)};
}

} // namespace

std::string SfogliaSfondo(SceltaFile& sceltaFile, const Ambiente& ambiente) {
    const std::filesystem::path scelto = sceltaFile.scegli({.titolo = "Seleziona immagine di sfondo",
                                                            .filtro = "Immagini (*.jpg)",
                                                            .cartella = ambiente.cartella});
    if (scelto.empty())
        return {};
    const std::filesystem::path copia = ambiente.cartella / scelto.filename();
    std::error_code ignorato;
    if (!std::filesystem::equivalent(scelto, copia, ignorato)) {
        const auto contenuto = leggiFile(scelto);
        if (!contenuto)
            throw guastoDi(guasti::kFileNonTrovato, scelto);
        if (!sostituisciFile(copia, *contenuto))
            throw guastoDi(guasti::kAccesso, copia);
    }
    return testoUtf8(copia);
}

} // namespace lumigrafo
