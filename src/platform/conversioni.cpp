#include "platform/conversioni.h"

#include "platform/guasto.h"
#include "platform/utf8.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>

namespace lumigrafo {

namespace {

bool cifra(char c) {
    return c >= '0' && c <= '9';
}

/// &H1F and &O17, as 16 or 32-bit patterns; with `coda` something else may follow the digits.
std::optional<double> daBase(std::string_view t, bool coda) {
    if (t.size() < 3 || t[0] != '&')
        return std::nullopt;
    const char base = maiuscolo(t.substr(1, 1))[0];
    if (base != 'H' && base != 'O')
        return std::nullopt;
    std::uint32_t n = 0;
    const auto* fine = t.data() + t.size();
    const auto [p, e] = std::from_chars(t.data() + 2, fine, n, base == 'H' ? 16 : 8);
    if (e != std::errc() || (p != fine && !coda))
        return std::nullopt;
    // Four hexadecimal digits with the high bit set are a negative 16-bit number.
    return n <= 0xFFFF ? static_cast<std::int16_t>(n) : static_cast<std::int32_t>(n);
}

struct Letto {
    double valore; ///< infinite where the number is too large, 0 where it is too small
    bool intero;   ///< nothing stands behind the number
};

/// The unsigned number at the head of `t`, with the point as its decimal sign and `e` before an exponent.
std::optional<Letto> leggiDecimale(std::string_view t) {
    if (t.empty() ||
        !(cifra(t[0]) || t[0] == '.')) // from_chars would take "inf" and "nan", which are words here
        return std::nullopt;
    double v = 0;
    const auto [p, errore] = std::from_chars(t.data(), t.data() + t.size(), v);
    if (errore == std::errc::invalid_argument)
        return std::nullopt;
    if (errore == std::errc::result_out_of_range) {
        const std::string_view n(t.data(), static_cast<std::size_t>(p - t.data()));
        const bool piccolo = n.find("e-") != n.npos || n.starts_with('.') || n.starts_with("0.");
        v = piccolo ? 0 : std::numeric_limits<double>::infinity();
    }
    return Letto{v, p == t.data() + t.size()};
}

/// Digits with their group and decimal signs, brought to a point as the one decimal sign.
std::optional<std::string> mantissa(std::string_view t) {
    const auto ultimo = t.find_last_of(".,");
    const bool segni = ultimo != t.npos;
    const bool decimale = segni && t.find(t[ultimo]) == ultimo; // twice the same sign: groups
    if (segni && !decimale && t.find(t[ultimo] == '.' ? ',' : '.') != t.npos)
        return std::nullopt; // a decimal sign amid groups
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

bool segno(char c) {
    return c == '-' || c == '+';
}

/// Takes one sign off the head of `t`, or else off its end; returns what it multiplies by.
double staccaSegno(std::string& t) {
    double fattore = 1;
    if (!t.empty() && segno(t.front())) {
        fattore = t.front() == '-' ? -1 : 1;
        t = trim(std::string_view(t).substr(1));
    } else if (!t.empty() && segno(t.back()) && t.find_first_of("eEdD") == t.npos) {
        fattore = t.back() == '-' ? -1 : 1;
        t = trim(std::string_view(t).substr(0, t.size() - 1));
    }
    return fattore;
}

/// Takes the exponent off the end of `t`: empty where there is none, nothing where it is malformed.
std::optional<std::string> staccaEsponente(std::string& t) {
    const auto e = t.find_first_of("eEdD");
    if (e == t.npos)
        return std::string();
    std::string cifre = t.substr(e + 1);
    t.resize(e);
    const bool negativo = cifre.starts_with('-');
    if (!cifre.empty() && segno(cifre.front()))
        cifre.erase(0, 1);
    if (cifre.empty() || !std::all_of(cifre.begin(), cifre.end(), cifra))
        return std::nullopt;
    return (negativo ? "e-" : "e+") + cifre;
}

/// The whole text as a number; infinite where it is too large for one.
std::optional<double> numero(std::string_view testo) {
    std::string t = trim(testo);
    if (const auto base = daBase(t, false))
        return base;
    const double fattore = staccaSegno(t);
    const auto esponente = staccaEsponente(t);
    const auto m = mantissa(t);
    if (!esponente || !m)
        return std::nullopt;
    const auto n = leggiDecimale(*m + *esponente);
    return n && n->intero ? std::optional(fattore * n->valore) : std::nullopt;
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
    const auto n = numero(testo);
    return n && std::isfinite(*n);
}

double val(std::string_view testo) {
    std::string t;
    std::copy_if(testo.begin(), testo.end(), std::back_inserter(t),
                 [](char c) { return c != ' ' && c != '\t' && c != '\n' && c != '\r'; });
    if (const auto base = daBase(t, true))
        return *base;
    const bool conSegno = !t.empty() && segno(t.front());
    const double fattore = conSegno && t.front() == '-' ? -1 : 1;
    std::replace_if(
        t.begin(), t.end(), [](char c) { return c == 'E' || c == 'd' || c == 'D'; }, 'e');
    const auto n = leggiDecimale(std::string_view(t).substr(conSegno ? 1 : 0));
    if (n && !std::isfinite(n->valore))
        throw Guasto(guasti::kSovraccarico);
    return n ? fattore * n->valore : 0;
}

double arrotonda(double valore) {
    const double basso = std::floor(valore);
    const double resto = valore - basso;
    if (resto != 0.5)
        return std::round(valore);
    return std::fmod(basso, 2) == 0 ? basso : basso + 1;
}

double aDoppio(std::string_view testo) {
    if (const auto n = numero(testo)) {
        if (!std::isfinite(*n))
            throw Guasto(guasti::kSovraccarico);
        return *n;
    }
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
    // Adding 0 turns the negative zero into the plain one.
    const auto [fine, errore] =
        std::to_chars(testo, testo + sizeof testo, valore + 0.0F, std::chars_format::general, 7);
    std::string t = maiuscolo({testo, errore == std::errc() ? fine : testo}); // an exponent is written with E
    std::replace(t.begin(), t.end(), '.', separatore);
    return t;
}

char separatoreDecimale() {
    return *std::localeconv()->decimal_point;
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
    std::size_t quanti = 0;
    for (std::size_t i = 0; i < utf8.size(); ++quanti)
        (void)prossimoCarattere(utf8, i);
    return quanti;
}

} // namespace lumigrafo
