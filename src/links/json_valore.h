#pragma once

#include "links/json_decimale.h"
#include "platform/orologio.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace lumigrafo {

class JsonBag;

/// What a bag holds: null, a truth value, a number, a text in UTF-8, or a child that the bag owns. Smaller
/// integers go in as 32 bits. A moment can be held, but not written.
using Valore = std::variant<std::nullptr_t, bool, std::int32_t, float, double, Valuta, Decimale, DataOra,
                            std::string, std::unique_ptr<JsonBag>>;

/// Names a value of a bag: a name, a place from 1, or null for the place behind an array's last. A name must
/// live as long as the key.
class Chiave {
public:
    // Implicit, so that a call reads bag.Item("nome"), bag.Item(3), bag.Item(nullptr).
    Chiave(std::nullptr_t) : genere_(Genere::Nulla) {}
    Chiave(const char* nome) : genere_(Genere::Nome), nome_(nome) {}
    Chiave(std::string_view nome) : genere_(Genere::Nome), nome_(nome) {}
    Chiave(const std::string& nome) : genere_(Genere::Nome), nome_(nome) {}
    template <std::integral I>
    requires(!std::same_as<I, bool> && !std::same_as<I, char>) Chiave(I indice)
        : genere_(Genere::Indice), indice_(static_cast<std::int64_t>(indice)) {}

    [[nodiscard]] bool nulla() const { return genere_ == Genere::Nulla; }
    [[nodiscard]] bool perNome() const { return genere_ == Genere::Nome; }
    [[nodiscard]] bool perIndice() const { return genere_ == Genere::Indice; }
    [[nodiscard]] std::string_view nome() const { return nome_; }
    [[nodiscard]] std::int64_t indice() const { return indice_; }

private:
    enum class Genere { Nulla, Nome, Indice };
    Genere genere_;
    std::string_view nome_;
    std::int64_t indice_ = 0;
};

} // namespace lumigrafo
