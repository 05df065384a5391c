#include "boards/sfoglia_sfondo.h"

#include "boards/percorsi.h"
#include "platform/file.h"
#include "platform/guasto.h"
#include "settings/ini/cp1252.h"

#include <algorithm>
#include <system_error>

namespace lumigrafo {

namespace {

Guasto guastoDi(int numero, const std::filesystem::path& file) {
    return {numero, Guasto(numero).descrizione() + ":\n" + testoUtf8(file)};
}

/// The settings keep the path in their code page: under a name with other characters, such as the accents
/// apart that some systems write, the picture would never be found again.
std::filesystem::path nomeScrivibile(const std::filesystem::path& nome) {
    std::string testo = daCp1252(aCp1252(testoUtf8(nome)));
    if (testo == testoUtf8(nome))
        return nome;
    std::replace(testo.begin(), testo.end(), '?', '_');
    return percorsoUtf8(testo);
}

} // namespace

std::string SfogliaSfondo(SceltaFile& sceltaFile, const Ambiente& ambiente) {
    const std::filesystem::path scelto = sceltaFile.scegli({.titolo = "Seleziona immagine di sfondo",
                                                            .filtro = "Immagini (*.jpg)",
                                                            .cartella = ambiente.cartella});
    if (scelto.empty())
        return {};
    const std::filesystem::path copia = ambiente.cartella / nomeScrivibile(scelto.filename());
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
