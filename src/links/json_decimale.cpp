#include "links/json_decimale.h"

#include "links/json_cifre.h"

#include <algorithm>

namespace lumigrafo {

namespace {

using Parti = std::array<std::uint32_t, 3>;

constexpr bool nullo(const Parti& p) {
    return (p[0] | p[1] | p[2]) == 0;
}

/// p * 10 + cifra; false, with `p` as it was, if that takes more than 96 bits.
bool accoda(Parti& p, std::uint32_t cifra) {
    Parti nuove;
    std::uint64_t riporto = cifra;
    for (std::size_t i = 0; i < p.size(); ++i) {
        riporto += std::uint64_t{p[i]} * 10;
        nuove[i] = static_cast<std::uint32_t>(riporto);
        riporto >>= 32;
    }
    if (riporto == 0)
        p = nuove;
    return riporto == 0;
}

/// p / 10; returns the digit taken away.
std::uint32_t togli(Parti& p) {
    std::uint64_t resto = 0;
    for (std::size_t i = p.size(); i-- > 0;) {
        resto = resto << 32 | p[i];
        p[i] = static_cast<std::uint32_t>(resto / 10);
        resto %= 10;
    }
    return static_cast<std::uint32_t>(resto);
}

/// p + 1; false at the last number of 96 bits.
bool incrementa(Parti& p) {
    return std::any_of(p.begin(), p.end(), [](std::uint32_t& parte) { return ++parte != 0; });
}

} // namespace

/// Collects digits while they fit, and remembers what rounding must know of the others.
class LettoreDecimale {
public:
    std::optional<Decimale> leggi(const json::Cifre& cifre) {
        numero_.negativo_ = cifre.negativo;
        scala_ = -cifre.esponente;
        for (const char c : cifre.prima)
            prendi(c);
        for (const char c : cifre.dopo) {
            prendi(c);
            ++scala_;
        }
        if (!nullo(numero_.parti_) && !adatta())
            return std::nullopt;
        if (nullo(numero_.parti_))
            return Decimale();
        numero_.scala_ = static_cast<std::uint8_t>(scala_);
        numero_.riduci();
        return numero_;
    }

private:
    void prendi(char c) {
        const auto cifra = static_cast<std::uint32_t>(c - '0');
        if (pieno_ || !accoda(numero_.parti_, cifra)) {
            pieno_ = true;
            scarta(cifra);
            --scala_;
        }
    }

    /// Rounding needs the first digit thrown away, `resto_`, and whether any behind it isn't 0, `coda_`.
    /// Reading throws them away from left to right, shortening the number from right to left.
    void scarta(std::uint32_t cifra) {
        if (scartate_++ == 0)
            resto_ = cifra;
        else
            coda_ = coda_ || cifra != 0;
    }
    void togliUltima() {
        coda_ = coda_ || resto_ != 0;
        resto_ = togli(numero_.parti_);
        --scala_;
    }

    /// Brings the power of ten between 0 and 28; false if the number is too large.
    bool adatta() {
        for (; scala_ < 0; ++scala_)
            if (pieno_ || !accoda(numero_.parti_, 0))
                return false;
        while (scala_ > Decimale::kScalaMassima && !nullo(numero_.parti_))
            togliUltima();
        if (scala_ > Decimale::kScalaMassima) { // far below the least one
            scala_ = 0;
            return true;
        }
        return arrotonda();
    }

    bool arrotonda() {
        const bool dispari = numero_.parti_[0] % 2 != 0;
        if (resto_ < 5 || (resto_ == 5 && !coda_ && !dispari))
            return true;
        if (incrementa(numero_.parti_))
            return true;
        if (scala_ == 0)
            return false;
        // 2 to the 96th, a place further up: its last digit, a 6, rounds upwards.
        numero_.parti_ = {0x9999999A, 0x99999999, 0x19999999};
        --scala_;
        return true;
    }

    Decimale numero_;
    std::int64_t scala_ = 0;
    std::size_t scartate_ = 0;
    std::uint32_t resto_ = 0;
    bool pieno_ = false, coda_ = false;
};

Decimale::Decimale(std::int32_t valore) : negativo_(valore < 0) {
    const std::int64_t v = valore;
    parti_[0] = static_cast<std::uint32_t>(v < 0 ? -v : v);
}

std::optional<Decimale> Decimale::daTesto(std::string_view testo) {
    const auto cifre = json::Cifre::di(testo);
    return cifre ? LettoreDecimale().leggi(*cifre) : std::nullopt;
}

void Decimale::riduci() {
    for (; scala_ > 0; --scala_) {
        Parti prova = parti_;
        if (togli(prova) != 0)
            return;
        parti_ = prova;
    }
}

std::string Decimale::aTesto() const {
    std::string rovescio;
    Parti p = parti_;
    for (int cifre = 0; !nullo(p) || cifre <= scala_; ++cifre) {
        if (cifre == scala_ && scala_ > 0)
            rovescio += '.';
        rovescio += static_cast<char>('0' + togli(p));
    }
    if (negativo_)
        rovescio += '-';
    return {rovescio.rbegin(), rovescio.rend()};
}

std::string Valuta::aTesto() const {
    const bool negativo = diecimillesimi < 0;
    const auto intero = std::uint64_t(diecimillesimi);
    std::string cifre = std::to_string(negativo ? 0 - intero : intero);
    if (cifre.size() < 5)
        cifre.insert(0, 5 - cifre.size(), '0');
    cifre.insert(cifre.size() - 4, 1, '.');
    cifre.erase(cifre.find_last_not_of('0') + 1);
    if (cifre.back() == '.')
        cifre.pop_back();
    return negativo ? "-" + cifre : cifre;
}

} // namespace lumigrafo
