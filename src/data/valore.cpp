#include "data/valore.h"

#include "data/errori_dao.h"
#include "platform/conversioni.h"

#include <charconv>
#include <limits>

namespace lumigrafo {

std::string Valore::aTesto() const {
    if (const auto* t = std::get_if<std::string>(&v_))
        return *t;
    if (const auto* i = std::get_if<std::int64_t>(&v_))
        return std::to_string(*i);
    const double d = aDoppio();
    char cifre[32];
    return {cifre, std::to_chars(cifre, cifre + sizeof cifre, d, std::chars_format::general, 15).ptr};
}

template <typename Intero>
Intero Valore::aIntero() const {
    if (const auto* i = std::get_if<std::int64_t>(&v_)) {
        if (*i < std::numeric_limits<Intero>::min() || *i > std::numeric_limits<Intero>::max())
            throw Guasto(guasti::kSovraccarico);
        return static_cast<Intero>(*i);
    }
    if constexpr (sizeof(Intero) == 2)
        return lumigrafo::aIntero16(aDoppio());
    else
        return lumigrafo::aIntero32(aDoppio());
}

std::int16_t Valore::aIntero16() const {
    return aIntero<std::int16_t>();
}

std::int32_t Valore::aIntero32() const {
    return aIntero<std::int32_t>();
}

std::int64_t Valore::aIntero64() const {
    if (const auto* i = std::get_if<std::int64_t>(&v_))
        return *i;
    const double r = arrotonda(aDoppio());
    constexpr double kLimite = 9223372036854775808.0;
    if (!(r >= -kLimite && r < kLimite))
        throw Guasto(guasti::kSovraccarico);
    return static_cast<std::int64_t>(r);
}

double Valore::aDoppio() const {
    switch (v_.index()) {
    case 1:
        return static_cast<double>(std::get<std::int64_t>(v_));
    case 2:
        return std::get<double>(v_);
    case 3:
        return lumigrafo::aDoppio(std::get<std::string>(v_));
    default:
        throw erroreDao(dao::kUsoDiNull);
    }
}

bool Valore::aBooleano() const {
    return aDoppio() != 0;
}

} // namespace lumigrafo
