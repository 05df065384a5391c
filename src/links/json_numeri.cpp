#include "links/json_numeri.h"

#include "links/json_cifre.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace lumigrafo::json {

namespace {

constexpr double kIntero15Cifre = 1e15;
/// The largest double that 15 digits can't lift out of the range.
constexpr double kLimite15Cifre = 1.797693134862315e308;

/// Digits of a whole number that a double holds exactly.
constexpr std::size_t kCifreEsatte = 15;

/// A plain whole number of few digits, the usual case; nothing if it's anything else.
std::optional<double> interoBreve(std::string_view testo) {
    const bool negativo = !testo.empty() && testo.front() == '-';
    testo.remove_prefix(negativo ? 1 : 0);
    if (testo.empty() || testo.size() > kCifreEsatte)
        return std::nullopt;
    std::int64_t valore = 0;
    for (const char c : testo) {
        if (c < '0' || c > '9')
            return std::nullopt;
        valore = valore * 10 + (c - '0');
    }
    return static_cast<double>(negativo ? -valore : valore);
}

constexpr std::int64_t kScalaBreve = 10'000;

/// A number with up to four places, the usual case; null if it's another one. A decimal of 15 digits at most
/// that reads back as the number is what rounding to 15 digits gives.
char* scriviBreve(char* dove, double valore) {
    constexpr double kLimite = kIntero15Cifre / kScalaBreve;
    if (!(std::fabs(valore) < kLimite))
        return nullptr;
    const auto scalato = static_cast<std::int64_t>(valore * kScalaBreve + (valore < 0 ? -0.5 : 0.5));
    if (static_cast<double>(scalato) / kScalaBreve != valore)
        return nullptr;
    const std::int64_t positivo = scalato < 0 ? -scalato : scalato;
    if (scalato < 0)
        *dove++ = '-';
    dove = std::to_chars(dove, dove + kMassimoNumero - 1, positivo / kScalaBreve).ptr;
    std::int64_t resto = positivo % kScalaBreve;
    if (resto != 0)
        *dove++ = '.';
    for (std::int64_t posto = kScalaBreve / 10; resto != 0; posto /= 10) {
        *dove++ = static_cast<char>('0' + resto / posto);
        resto %= posto;
    }
    return dove;
}

} // namespace

std::optional<double> doppioDaTesto(std::string_view testo) {
    if (const auto intero = interoBreve(testo))
        return intero;
    const char* const fine = testo.data() + testo.size();
    double valore = 0;
    const auto [dove, esito] = std::from_chars(testo.data(), fine, valore);
    if (dove != fine || esito == std::errc::invalid_argument)
        return std::nullopt;
    if (esito == std::errc())
        return valore;
    const auto cifre = Cifre::di(testo);
    return cifre && cifre->minoreDiUno() ? std::optional(0.0) : std::nullopt;
}

char* scriviNumero(char* dove, double valore) {
    if (std::fabs(valore) < kIntero15Cifre)
        if (const auto intero = static_cast<std::int64_t>(valore); static_cast<double>(intero) == valore)
            return std::to_chars(dove, dove + kMassimoNumero, intero).ptr;
    if (char* const breve = scriviBreve(dove, valore))
        return breve;
    char* const fine = dove + kMassimoNumero;
    if (std::fabs(valore) > kLimite15Cifre)
        return std::to_chars(dove, fine, valore, std::chars_format::scientific).ptr;
    return std::to_chars(dove, fine, valore, std::chars_format::general, 15).ptr;
}

char* scriviNumero(char* dove, float valore) {
    const float zeroSenzaSegno = valore == 0 ? 0 : valore;
    return std::to_chars(dove, dove + kMassimoNumero, zeroSenzaSegno, std::chars_format::general, 7).ptr;
}

} // namespace lumigrafo::json
