#include "platform/conversioni.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "platform/guasto.h"

namespace lumigrafo {

namespace {

bool cifra(char c) {
    return c >= '0' && c <= '9';
}

/// &H1F and &O17, as 16 or 32-bit patterns.
std::optional<double> daBase(std::string_view t) {
    if (t.size() < 3 || t[0] != '&')
        return std::nullopt;
    const char base = maiuscolo(t.substr(1, 1))[0];
    if (base != 'H' && base != 'O')
        return std::nullopt;
    std::uint32_t n = 0;
    const auto* fine = t.data() + t.size();
    const auto [p, e] = std::from_chars(t.data() + 2, fine, n, base == 'H' ? 16 : 8);
    if (e != std::errc() || p != fine)
        return std::nullopt;
    // Four hexadecimal digits with the high bit set are a negative 16-bit number.
    return n <= 0xFFFF ? static_cast<std::int16_t>(n) : static_cast<std::int32_t>(n);
}

/// Digits with their group and decimal signs, brought to a point as the one decimal sign.
std::optional<std::string> mantissa(std::string_view t) {
    const auto ultimo = t.find_last_of(".,");
    const bool decimale =
        ultimo != std::string_view::npos && t.find(t[ultimo]) == ultimo; // twice the same sign: groups
    std::string pulita;
    bool cifre = false;
    for (std::size_t i = 0; i < t.size(); ++i) {
        if (cifra(t[i])) {
            pulita += t[i];
            cifre = true;
        } else if (t[i] != '.' && t[i] != ',') {
            return std::nullopt;
        } else if (decimale && i == ultimo) {
            pulita += '.';
        } else if (i == 0) {
            return std::nullopt; // a group sign needs a digit before it
        }
    }
    return cifre ? std::optional(pulita) : std::nullopt;
}

std::optional<double> numero(std::string_view testo) {
    const std::string senzaBlank = trim(testo);
    std::string_view t = senzaBlank;
    if (const auto base = daBase(t))
        return base;
    double segno = 1;
    if (!t.empty() && (t.front() == '-' || t.front() == '+')) {
        segno = t.front() == '-' ? -1 : 1;
        t.remove_prefix(1);
    } else if (!t.empty() && (t.back() == '-' || t.back() == '+') && t.find_first_of("eEdD") == t.npos) {
        segno = t.back() == '-' ? -1 : 1;
        t.remove_suffix(1);
    }
    std::string esponente;
    if (const auto e = t.find_first_of("eEdD"); e != std::string_view::npos) {
        std::string_view coda = t.substr(e + 1);
        t = t.substr(0, e);
        const bool negativo = !coda.empty() && coda.front() == '-';
        if (!coda.empty() && (coda.front() == '-' || coda.front() == '+'))
            coda.remove_prefix(1);
        if (coda.empty() || !std::all_of(coda.begin(), coda.end(), cifra))
            return std::nullopt;
        esponente = (negativo ? "e-" : "e+") + std::string(coda);
    }
    const auto m = mantissa(t);
    if (!m)
        return std::nullopt;
    const std::string intero = *m + esponente;
    double v = 0;
    const auto [p, errore] = std::from_chars(intero.data(), intero.data() + intero.size(), v);
    if (errore == std::errc::result_out_of_range && esponente.starts_with("e-"))
        return 0; // too small to tell from nothing
    if (errore != std::errc() || p != intero.data() + intero.size())
        return std::nullopt;
    return segno * v;
}

std::optional<bool> parolaDiVerita(std::string_view testo) {
    const std::string t = minuscolo(trim(testo));
    if (t == "true" || t == "vero")
        return true;
    if (t == "false" || t == "falso")
        return false;
    return std::nullopt;
}

template <typename Intero>
Intero aIntero(double valore) {
    const double r = arrotonda(valore);
    if (!(r >= std::numeric_limits<Intero>::min() && r <= std::numeric_limits<Intero>::max()))
        throw Guasto(guasti::kSovraccarico);
    return static_cast<Intero>(r);
}

char minuscola(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
char maiuscola(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

} // namespace

std::string trim(std::string_view testo) {
    const auto primo = testo.find_first_not_of(' ');
    if (primo == std::string_view::npos)
        return {};
    return std::string(testo.substr(primo, testo.find_last_not_of(' ') - primo + 1));
}

bool isNumeric(std::string_view testo) {
    return numero(testo).has_value();
}

double val(std::string_view testo) {
    std::string t;
    std::copy_if(testo.begin(), testo.end(), std::back_inserter(t),
                 [](char c) { return c != ' ' && c != '\t' && c != '\n' && c != '\r'; });
    if (const auto base = daBase(t))
        return *base;
    const char* inizio = t.data() + (t.starts_with('+') ? 1 : 0);
    double v = 0;
    // from_chars would take "inf" and "nan", which are words here.
    const std::string_view resto(inizio);
    const auto primo = resto.find_first_not_of("+-");
    if (primo == std::string_view::npos || !(cifra(resto[primo]) || resto[primo] == '.'))
        return 0;
    const auto esito = std::from_chars(inizio, t.data() + t.size(), v);
    if (esito.ec == std::errc::result_out_of_range)
        throw Guasto(guasti::kSovraccarico);
    return esito.ec == std::errc() ? v : 0;
}

double arrotonda(double valore) {
    const double basso = std::floor(valore);
    const double resto = valore - basso;
    if (resto != 0.5)
        return std::round(valore);
    return std::fmod(basso, 2) == 0 ? basso : basso + 1;
}

double aDoppio(std::string_view testo) {
    if (const auto n = numero(testo))
        return *n;
    if (const auto v = parolaDiVerita(testo))
        return *v ? kVero : kFalso;
    throw Guasto(guasti::kTipo);
}

float aSingolo(std::string_view testo) {
    const double v = aDoppio(testo);
    if (std::abs(v) > std::numeric_limits<float>::max())
        throw Guasto(guasti::kSovraccarico);
    return static_cast<float>(v);
}

std::int16_t aIntero16(std::string_view testo) {
    return aIntero16(aDoppio(testo));
}
std::int16_t aIntero16(double valore) {
    return aIntero<std::int16_t>(valore);
}
std::int32_t aIntero32(std::string_view testo) {
    return aIntero32(aDoppio(testo));
}
std::int32_t aIntero32(double valore) {
    return aIntero<std::int32_t>(valore);
}

bool aBooleano(std::string_view testo) {
    return aDoppio(testo) != 0;
}

std::int16_t prodotto16(std::int16_t a, std::int16_t b) {
    return aIntero16(static_cast<double>(a) * b);
}

std::int16_t somma16(std::int16_t a, std::int16_t b) {
    return aIntero16(static_cast<double>(a) + b);
}

std::string aTesto(float valore, char separatore) {
    char testo[32];
    const auto [fine, errore] =
        std::to_chars(testo, testo + sizeof testo, valore, std::chars_format::general, 7);
    std::string t(testo, errore == std::errc() ? fine : testo);
    std::replace(t.begin(), t.end(), '.', separatore);
    return t;
}

std::string aTesto(std::int32_t valore) {
    return std::to_string(valore);
}

std::string aTesto(bool valore) {
    return valore ? "True" : "False";
}

std::string minuscolo(std::string_view testo) {
    std::string t(testo);
    std::transform(t.begin(), t.end(), t.begin(), minuscola);
    return t;
}

std::string maiuscolo(std::string_view testo) {
    std::string t(testo);
    std::transform(t.begin(), t.end(), t.begin(), maiuscola);
    return t;
}

bool ugualeSenzaMaiuscole(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return minuscola(x) == minuscola(y); });
}

std::size_t caratteri(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace lumigrafo
