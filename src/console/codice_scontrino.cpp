#include "console/codice_scontrino.h"

#include "platform/conversioni.h"

namespace lumigrafo {

namespace {

constexpr std::size_t kLunghezza = 13;
constexpr std::string_view kPrefisso = "599";
constexpr const char* kErrato = "BarCode errato!";
/// Numbers of orders have 16 bits; the digits of a larger one are left as they stand, and no order bears
/// them.
constexpr double kNumeroMassimo = 32767;

} // namespace

std::variant<CodiceScontrino, std::string> leggiCodice(std::string_view testo) {
    const std::string codice = trim(testo);
    if (caratteri(codice) != kLunghezza)
        return "BarCode errato! Lunghezza errata.";
    // The whole text can be a number and its parts not: "5996501E00123" is one with an exponent.
    if (!codice.starts_with(kPrefisso) || !isNumeric(codice))
        return kErrato;
    CodiceScontrino letto;
    letto.categoria = aIntero16(val(codice.substr(5, 2)));
    const std::string lettera = codice.substr(3, 2);
    if (lettera != "00" && isNumeric(lettera))
        letto.sigla = std::string(1, static_cast<char>(val(lettera)));
    const std::string numero = trim(codice.substr(7, 5));
    if (isNumeric(numero))
        letto.numero = aDoppio(numero) > kNumeroMassimo ? numero : std::to_string(aIntero16(numero));
    return letto;
}

} // namespace lumigrafo
