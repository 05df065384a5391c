#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace lumigrafo {

/// The value of an archive's field: null, a whole number, a number or a text (UTF-8). A truth value is the
/// whole number -1 or 0. Null converts to nothing: each conversion but aTestoOVuoto throws Guasto 94 on it.
class Valore {
public:
    Valore() = default;
    template <std::same_as<bool> T>
    Valore(T vero) : v_(std::int64_t{vero ? -1 : 0}) {}
    template <std::integral T>
    requires(!std::same_as<T, bool>) Valore(T intero) : v_(static_cast<std::int64_t>(intero)) {}
    template <std::floating_point T>
    Valore(T doppio) : v_(static_cast<double>(doppio)) {}
    Valore(std::string testo) : v_(std::move(testo)) {}
    Valore(std::string_view testo) : v_(std::string(testo)) {}
    Valore(const char* testo) : v_(std::string(testo)) {}

    [[nodiscard]] bool nullo() const { return v_.index() == 0; }
    [[nodiscard]] bool intero() const { return v_.index() == 1; }
    [[nodiscard]] bool doppio() const { return v_.index() == 2; }
    [[nodiscard]] bool testo() const { return v_.index() == 3; }

    /// Decimal for numbers, with a point.
    [[nodiscard]] std::string aTesto() const;
    /// Null gives the empty text: what a value joined to a text gives.
    [[nodiscard]] std::string aTestoOVuoto() const { return nullo() ? std::string() : aTesto(); }
    /// Rounded to the even neighbour. A text that is no number throws Guasto 13, a value out of range
    /// Guasto 6.
    [[nodiscard]] std::int16_t aIntero16() const;
    [[nodiscard]] std::int32_t aIntero32() const;
    [[nodiscard]] std::int64_t aIntero64() const;
    [[nodiscard]] double aDoppio() const;
    /// Any number but 0 is true.
    [[nodiscard]] bool aBooleano() const;

    /// Same kind and same content; no conversion.
    friend bool operator==(const Valore&, const Valore&) = default;

private:
    template <typename Intero>
    [[nodiscard]] Intero aIntero() const;

    std::variant<std::monostate, std::int64_t, double, std::string> v_;
};

} // namespace lumigrafo
