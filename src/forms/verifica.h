#pragma once

#include "forms/descrizione.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

/// Checks of a window's table while it is compiled: static_assert(layoutValido(righe)).
namespace lumigrafo {

/// True if `nomeCompleto` is the row's name, with its index where it has one.
[[nodiscard]] constexpr bool siChiama(const Descrizione& riga, std::string_view nomeCompleto) {
    if (!nomeCompleto.starts_with(riga.nome))
        return false;
    std::string_view resto = nomeCompleto.substr(riga.nome.size());
    if (riga.indice == kSenzaIndice)
        return resto.empty();
    if (resto.size() < 3 || resto.front() != '(' || resto.back() != ')')
        return false;
    int indice = 0;
    for (const char c : resto.substr(1, resto.size() - 2)) {
        if (c < '0' || c > '9')
            return false;
        indice = indice * 10 + (c - '0');
    }
    return indice == riga.indice;
}

/// No two rows share name and index, and no name is empty.
[[nodiscard]] constexpr bool nomiUnici(std::span<const Descrizione> righe) {
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (righe[i].nome.empty())
            return false;
        for (std::size_t k = 0; k < i; ++k)
            if (righe[i].nome == righe[k].nome && righe[i].indice == righe[k].indice)
                return false;
    }
    return true;
}

/// Each container stands in the table before what it holds.
[[nodiscard]] constexpr bool padriPrima(std::span<const Descrizione> righe) {
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const auto prima = righe.first(i);
        if (!righe[i].padre.empty() && std::none_of(prima.begin(), prima.end(), [&](const Descrizione& d) {
                return siChiama(d, righe[i].padre);
            }))
            return false;
    }
    return true;
}

/// No two controls that Alt and a letter press share the letter, but for those of one control array, from one
/// to the next of which it goes; and each letter is one of its caption.
[[nodiscard]] constexpr bool scelteUniche(std::span<const Descrizione> righe) {
    constexpr auto nellaScritta = [](const Descrizione& d) {
        return d.caption.empty() || std::any_of(d.caption.begin(), d.caption.end(), [&](char c) {
                   return c == d.scelta || (c >= 'A' && c <= 'Z' && c - 'A' + 'a' == d.scelta);
               });
    };
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (righe[i].scelta == 0)
            continue;
        if (!nellaScritta(righe[i]))
            return false;
        for (std::size_t k = 0; k < i; ++k)
            if (righe[k].scelta == righe[i].scelta && righe[k].nome != righe[i].nome &&
                righe[k].tipo != Tipo::Etichetta && righe[i].tipo != Tipo::Etichetta)
                return false;
    }
    return true;
}

/// All of it: a table from which a window can be built.
[[nodiscard]] constexpr bool layoutValido(std::span<const Descrizione> righe) {
    return nomiUnici(righe) && padriPrima(righe) && scelteUniche(righe);
}

/// Joins parts of a table, in their order.
template <std::size_t... N>
[[nodiscard]] constexpr auto unisci(const std::array<Descrizione, N>&... parti) {
    std::array<Descrizione, (N + ...)> tutte{};
    auto dove = tutte.begin();
    ((dove = std::copy(parti.begin(), parti.end(), dove)), ...);
    return tutte;
}

} // namespace lumigrafo
