#include "fiscale/impostazioni.h"

#include "platform/conversioni.h"
#include "platform/guasto.h"
#include "settings/ini/ini.h"

#include <algorithm>
#include <charconv>

namespace lumigrafo {

namespace {

constexpr const char* kSezione = "Fiscale";
constexpr std::array<const char*, kTipiDriver> kNomiDriver{"file", "rete", "dispositivo", "coda",
                                                           "programma"};
constexpr std::array<const char*, kTipiDriver> kChiaviIndirizzo{"Cartella", "IndirizzoRete", "Dispositivo",
                                                                "Coda", "Programma"};
constexpr int kMinimoLimite = 3, kMassimoLimite = 60;
constexpr int kPagina858 = 858, kPagina1252 = 1252;

int numero(const FileIni& ini, const char* chiave, int predefinito, int minimo, int massimo) {
    int n = predefinito;
    ignorandoGuasti([&] { n = aIntero32(ini.LeggiIni(kSezione, chiave, predefinito)); });
    return std::clamp(n, minimo, massimo);
}

std::string numerata(const char* nome, std::size_t i) {
    return nome + std::to_string(i + 1);
}

TipoDriver driverDi(const std::string& nome) {
    const auto posto = std::find(kNomiDriver.begin(), kNomiDriver.end(), minuscolo(nome));
    return posto == kNomiDriver.end() ? TipoDriver::File
                                      : static_cast<TipoDriver>(posto - kNomiDriver.begin());
}

} // namespace

ImpostazioniFiscali leggiImpostazioniFiscali(const std::filesystem::path& cartellaProgramma) {
    const FileIni ini(cartellaProgramma / kFileFiscale);
    ImpostazioniFiscali i;
    i.driver = driverDi(ini.LeggiIni(kSezione, "Driver"));
    for (std::size_t n = 0; n < kTipiDriver; ++n)
        i.indirizzi[n] = ini.LeggiIni(kSezione, kChiaviIndirizzo[n]);
    for (std::size_t n = 0; n < i.intestazione.size(); ++n)
        i.intestazione[n] = ini.LeggiIni(kSezione, numerata("Intestazione", n));
    for (std::size_t n = 0; n < i.piede.size(); ++n)
        i.piede[n] = ini.LeggiIni(kSezione, numerata("Piede", n));
    i.caratteri = numero(ini, "Caratteri", i.caratteri, kMinimoCaratteri, kMassimoCaratteri);
    i.controllaStato = numero(ini, "ControllaStato", 1, 0, 1) == 1;
    i.euro1252 = numero(ini, "PaginaCodici", kPagina858, kPagina858, kPagina1252) == kPagina1252;
    i.selettore = numero(ini, "Selettore", i.euro1252 ? 16 : 19, 0, 255);
    i.limite = numero(ini, "Limite", i.limite, kMinimoLimite, kMassimoLimite);
    return i;
}

bool scriviImpostazioniFiscali(const std::filesystem::path& cartellaProgramma, const ImpostazioniFiscali& i) {
    const FileIni ini(cartellaProgramma / kFileFiscale);
    bool scritte = true;
    const auto scrivi = [&](std::string_view chiave, const ValoreIni& valore) {
        scritte = ini.ScriviIni(kSezione, chiave, valore) != 0 && scritte;
    };
    scrivi("Driver", kNomiDriver[static_cast<std::size_t>(i.driver)]);
    for (std::size_t n = 0; n < kTipiDriver; ++n)
        scrivi(kChiaviIndirizzo[n], i.indirizzi[n]);
    for (std::size_t n = 0; n < i.intestazione.size(); ++n)
        scrivi(numerata("Intestazione", n), i.intestazione[n]);
    for (std::size_t n = 0; n < i.piede.size(); ++n)
        scrivi(numerata("Piede", n), i.piede[n]);
    scrivi("Caratteri", i.caratteri);
    scrivi("ControllaStato", i.controllaStato ? 1 : 0);
    scrivi("PaginaCodici", i.euro1252 ? kPagina1252 : kPagina858);
    scrivi("Selettore", i.selettore);
    scrivi("Limite", i.limite);
    return scritte;
}

std::string difetto(const ImpostazioniFiscali& i) {
    constexpr std::array<const char*, kTipiDriver> kMancanti{
        "", "Manca l'indirizzo della stampante di rete.", "Manca il file del dispositivo.",
        "Manca il nome della coda di stampa.", "Manca il programma che stampa lo scontrino."};
    if (i.driver != TipoDriver::File && trim(i.indirizzo()).empty())
        return kMancanti[static_cast<std::size_t>(i.driver)];
    if (i.driver == TipoDriver::Rete && dividiIndirizzo(i.indirizzo()).porta == 0)
        return "L'indirizzo della stampante non è valido: scrivere per esempio 192.168.1.50 oppure "
               "192.168.1.50:9100.";
    return {};
}

IndirizzoStampante dividiIndirizzo(std::string_view testo) {
    const std::string tutto = trim(testo);
    // Several colons without brackets are an IPv6 address of its own.
    const auto ultimo = tutto.rfind(':');
    const bool parentesi = tutto.starts_with('[');
    const bool conPorta = ultimo != tutto.npos &&
                          (parentesi ? ultimo > 0 && tutto[ultimo - 1] == ']' : tutto.find(':') == ultimo);
    IndirizzoStampante i{conPorta ? tutto.substr(0, ultimo) : tutto, kPortaStampante};
    if (parentesi && i.host.ends_with(']'))
        i.host = i.host.substr(1, i.host.size() - 2);
    if (conPorta) {
        const char* fine = tutto.data() + tutto.size();
        const auto [letto, errore] = std::from_chars(tutto.data() + ultimo + 1, fine, i.porta);
        if (errore != std::errc() || letto != fine)
            i.porta = 0;
    }
    if (i.host.empty())
        i.porta = 0;
    return i;
}

} // namespace lumigrafo
