#include "fiscale/crea_driver.h"

#include "fiscale/driver_coda.h"
#include "fiscale/driver_escpos.h"
#include "fiscale/driver_file.h"
#include "platform/conversioni.h"

#include <algorithm>

namespace lumigrafo {

namespace {

using namespace std::chrono_literals;

constexpr const char* kCartellaScontrini = "Scontrini";
constexpr std::chrono::milliseconds kLimiteConnessione = 3000ms;

std::filesystem::path percorso(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

} // namespace

std::unique_ptr<Driver> creaDriver(const ImpostazioniFiscali& i, const PorteComponente& porte,
                                   const std::filesystem::path& cartellaProgramma,
                                   const PostoArchivio& archivio) {
    const std::string indirizzo = trim(i.indirizzo());
    Trasporti& trasporti = porte.trasporti;
    switch (i.driver) {
    case TipoDriver::Rete:
        return std::make_unique<DriverEscPos>(
            [&trasporti, meta = dividiIndirizzo(indirizzo)] {
                return trasporti.tcp(meta.host, meta.porta, kLimiteConnessione);
            },
            i);
    case TipoDriver::Dispositivo:
        return std::make_unique<DriverEscPos>(
            [&trasporti, indirizzo] { return trasporti.dispositivo(indirizzo); }, i);
    case TipoDriver::Coda:
        return std::make_unique<DriverCoda>(porte.esecutore, porte.orologio, i);
    case TipoDriver::Programma:
        return std::make_unique<DriverProgramma>(porte.esecutore, i, archivio);
    case TipoDriver::File:
        break;
    }
    return std::make_unique<DriverFile>(cartellaProgramma /
                                        percorso(indirizzo.empty() ? kCartellaScontrini : indirizzo));
}

} // namespace lumigrafo
