#include "fiscale/driver_file.h"

#include "platform/file.h"

#include <system_error>

namespace lumigrafo {

namespace {

std::string testo(const Modulo& modulo) {
    std::string tutto;
    for (const RigaModulo& riga : modulo)
        tutto += riga.testo + "\n";
    return tutto;
}

std::string radice(const Lavoro& lavoro) {
    if (lavoro.prova)
        return "prova";
    const Scontrino& s = lavoro.scontrino;
    return "scontrino_" + std::to_string(s.dataCompetenza) + "_" + s.sigla + s.numero + "_" +
           std::to_string(s.id);
}

} // namespace

EsitoStampa DriverFile::stampa(const Lavoro& lavoro) {
    std::error_code ec;
    std::filesystem::create_directories(cartella_, ec);
    std::filesystem::path file = cartella_ / (radice(lavoro) + ".txt");
    for (int n = 2; std::filesystem::exists(file, ec); ++n)
        file = cartella_ / (radice(lavoro) + "_" + std::to_string(n) + ".txt");
    if (!sostituisciFile(file, testo(lavoro.modulo)))
        return {Fine::NonStampato, "Non è possibile scrivere nella cartella " + cartella_.string() + "."};
    return {Fine::Fatto, ""};
}

StatoStampante DriverFile::stato() {
    std::error_code ec;
    std::filesystem::create_directories(cartella_, ec);
    if (!std::filesystem::is_directory(cartella_, ec))
        return {false, "La cartella " + cartella_.string() + " non c'è e non può essere creata."};
    return {true, "Gli scontrini vengono scritti nella cartella " + cartella_.string() + "."};
}

} // namespace lumigrafo
