#include "data/jet/dato.h"

#include "data/errori_dao.h"
#include "data/jet/testo.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

namespace lumigrafo::jet {

namespace {

constexpr double kUnitaValuta = 10000;

std::string guid(Vista v) {
    constexpr char kCifre[] = "0123456789ABCDEF";
    constexpr int kOrdine[] = {3, 2, 1, 0, -1, 5, 4, -1, 7, 6, -1, 8, 9, -1, 10, 11, 12, 13, 14, 15};
    std::string t = "{";
    for (const int i : kOrdine) {
        if (i < 0) {
            t += '-';
            continue;
        }
        const std::uint8_t b = v.u8(static_cast<std::size_t>(i));
        t += kCifre[b >> 4];
        t += kCifre[b & 15];
    }
    return t + '}';
}

/// With its braces or without.
std::string daGuid(std::string_view t) {
    constexpr std::size_t kTrattini[] = {8, 13, 18, 23};
    if (t.starts_with('{') && t.ends_with('}'))
        t = t.substr(1, t.size() - 2);
    std::string b;
    for (std::size_t i = 0; i < 36 && t.size() == 36;) {
        unsigned n = 0;
        if (std::find(std::begin(kTrattini), std::end(kTrattini), i) != std::end(kTrattini)) {
            if (t[i++] != '-')
                break;
        } else if (std::from_chars(t.data() + i, t.data() + i + 2, n, 16).ptr == t.data() + i + 2) {
            b += static_cast<char>(n);
            i += 2;
        } else {
            break;
        }
    }
    if (b.size() != 16)
        throw erroreDao(dao::kConversione);
    std::reverse(b.begin(), b.begin() + 4); // the first three groups are numbers, little-endian
    std::reverse(b.begin() + 4, b.begin() + 6);
    std::reverse(b.begin() + 6, b.begin() + 8);
    return b;
}

/// A whole number of 128 bits, in words from the highest, divided by ten; returns the remainder.
unsigned perDieci(std::array<std::uint32_t, 4>& n) {
    std::uint64_t resto = 0;
    for (std::uint32_t& parola : n) {
        const std::uint64_t x = resto << 32 | parola;
        parola = static_cast<std::uint32_t>(x / 10);
        resto = x % 10;
    }
    return static_cast<unsigned>(resto);
}

std::string decimale(Vista v, unsigned scala) {
    std::array<std::uint32_t, 4> n{v.u32(1), v.u32(5), v.u32(9), v.u32(13)};
    std::string cifre;
    while (cifre.size() <= scala || std::any_of(n.begin(), n.end(), [](auto x) { return x != 0; })) {
        if (scala > 0 && cifre.size() == scala)
            cifre += '.';
        cifre += static_cast<char>('0' + perDieci(n));
    }
    if (v.u8(0) & 0x80)
        cifre += '-';
    return {cifre.rbegin(), cifre.rend()};
}

template <typename Intero>
std::string byteDi(Intero n) {
    std::string b;
    auto u = static_cast<std::make_unsigned_t<Intero>>(n);
    for (std::size_t i = 0; i < sizeof n; ++i)
        b += static_cast<char>(u >> (8 * i));
    return b;
}

double numero(const Dato& dato) {
    if (const auto* i = std::get_if<std::int64_t>(&dato))
        return static_cast<double>(*i);
    if (const auto* d = std::get_if<double>(&dato))
        return *d;
    if (const auto* t = std::get_if<std::string>(&dato)) {
        try {
            return aDoppio(*t);
        } catch (const Guasto&) {
        }
    }
    throw erroreDao(dao::kConversione);
}

template <typename Intero>
std::string intero(double n) {
    const double r = arrotonda(n);
    // The highest 64-bit number is no double: below its neighbour all is well.
    const double limite = std::ldexp(1.0, 8 * sizeof(Intero) - (std::is_signed_v<Intero> ? 1 : 0));
    if (!(r >= static_cast<double>(std::numeric_limits<Intero>::min()) && r < limite))
        throw erroreDao(dao::kConversione);
    return byteDi(static_cast<Intero>(r));
}

std::string cifre(double n) {
    std::array<char, 32> t{};
    return {t.data(), std::to_chars(t.data(), t.data() + t.size(), n, std::chars_format::general, 15).ptr};
}

std::string comeTesto(const Dato& dato) {
    if (const auto* s = std::get_if<std::string>(&dato))
        return *s;
    if (const auto* i = std::get_if<std::int64_t>(&dato))
        return std::to_string(*i);
    if (const auto* d = std::get_if<double>(&dato))
        return cifre(*d);
    throw erroreDao(dao::kConversione);
}

std::string testo(const Colonna& c, const Dato& dato) {
    std::string t = comeTesto(dato);
    const std::size_t lungo = 2 * aUtf16(t).size();
    if (lungo > c.lunghezza)
        throw erroreDao(dao::kCampoCorto);
    if (c.fissa) // a text that always has its whole length
        t.append((c.lunghezza - lungo) / 2, ' ');
    return scriviTesto(t, c.comprimibile && !c.fissa);
}

/// As many figures behind the point as the column has, without the point.
std::string cifreDecimali(double n, unsigned scala) {
    std::array<char, 512> t{}; // the greatest double has 309 figures
    std::string s(t.data(), std::to_chars(t.data(), t.data() + t.size(), n, std::chars_format::fixed,
                                          static_cast<int>(scala))
                                .ptr);
    std::erase(s, '.');
    return s;
}

/// Texts keep all of their figures; whatever isn't plainly written goes by way of a double.
std::string cifreDecimali(const Dato& dato, unsigned scala) {
    if (const auto* d = std::get_if<double>(&dato))
        return cifreDecimali(*d, scala);
    std::string t = comeTesto(dato);
    const auto punto = t.find('.');
    const std::size_t decimali = punto == t.npos ? 0 : t.size() - punto - 1;
    const std::size_t segno = t.starts_with('-') ? 1 : 0;
    if (t.find_first_not_of("0123456789.", segno) != t.npos || t.size() == segno || decimali > scala ||
        std::count(t.begin(), t.end(), '.') > 1)
        return cifreDecimali(numero(dato), scala);
    std::erase(t, '.');
    return t.append(scala - decimali, '0');
}

std::string decimale(const Colonna& c, const Dato& dato) {
    std::string t = cifreDecimali(dato, c.scala());
    const bool negativo = t.starts_with('-');
    t.erase(0, std::min(t.find_first_not_of("-0"), t.size()));
    if (t.size() > c.precisione() || t.find_first_not_of("0123456789") != t.npos)
        throw erroreDao(dao::kConversione);
    std::array<std::uint32_t, 4> n{};
    for (const char cifra : t) {
        std::uint64_t riporto = static_cast<std::uint64_t>(cifra - '0');
        for (std::size_t i = n.size(); i-- > 0;) {
            riporto += std::uint64_t{n[i]} * 10;
            n[i] = static_cast<std::uint32_t>(riporto);
            riporto >>= 32;
        }
    }
    std::string b(1, negativo && !t.empty() ? '\x80' : '\0');
    for (const std::uint32_t parola : n)
        b += byteDi(parola);
    return b;
}

/// No negative zero: it equals zero and yet would sort elsewhere in an index.
template <typename Reale>
std::string reale(double n) {
    using Bit = std::conditional_t<sizeof(Reale) == 4, std::uint32_t, std::uint64_t>;
    if (!(std::abs(n) <= static_cast<double>(std::numeric_limits<Reale>::max())))
        throw erroreDao(dao::kConversione);
    return byteDi(std::bit_cast<Bit>(static_cast<Reale>(n) + Reale{0}));
}

std::string binario(const Colonna& c, const Dato& dato) {
    const auto* b = std::get_if<Byte>(&dato);
    if (!b)
        throw erroreDao(dao::kConversione);
    if (b->byte.size() > c.lunghezza)
        throw erroreDao(dao::kCampoCorto);
    return b->byte;
}

} // namespace

Dato leggiDato(const Colonna& c, Vista v) {
    if (numeroIntero(c.tipo))
        return leggiIntero(c.tipo, v);
    switch (c.tipo) {
    case Tipo::Valuta:
        return static_cast<double>(static_cast<std::int64_t>(v.u64(0))) / kUnitaValuta;
    case Tipo::Singolo:
        return static_cast<double>(std::bit_cast<float>(v.u32(0)));
    case Tipo::Doppio:
    case Tipo::Data:
        return std::bit_cast<double>(v.u64(0));
    case Tipo::Testo:
        return leggiTesto(v);
    case Tipo::Guid:
        return guid(v);
    case Tipo::Decimale:
        return decimale(v, c.scala());
    default:
        return Byte{std::string(v.testo())};
    }
}

std::optional<std::string> scriviDato(const Colonna& c, const Dato& dato) {
    if (std::holds_alternative<std::monostate>(dato))
        return std::nullopt;
    switch (c.tipo) {
    case Tipo::Booleano:
        return numero(dato) != 0 ? std::optional(std::string()) : std::nullopt;
    case Tipo::Byte:
        return intero<std::uint8_t>(numero(dato));
    case Tipo::Intero:
        return intero<std::int16_t>(numero(dato));
    case Tipo::Lungo:
        return intero<std::int32_t>(numero(dato));
    case Tipo::Valuta:
        return intero<std::int64_t>(numero(dato) * kUnitaValuta);
    case Tipo::Singolo:
        return reale<float>(numero(dato));
    case Tipo::Doppio:
    case Tipo::Data:
        return reale<double>(numero(dato));
    case Tipo::Testo:
        return testo(c, dato);
    case Tipo::Binario:
        return binario(c, dato);
    case Tipo::Guid:
        return daGuid(comeTesto(dato));
    case Tipo::Decimale:
        return decimale(c, dato);
    default:
        throw Guasto(dao::kSolaLettura, "Il campo '" + c.nome + "' si può solo leggere.");
    }
}

double giorniContinui(double data) {
    const double giorno = std::trunc(data);
    return data < 0 ? giorno + (giorno - data) : data;
}

} // namespace lumigrafo::jet
