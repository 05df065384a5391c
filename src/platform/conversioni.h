#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The conversions between text and values, with the rules that the whole family of programs around the
/// archive shares: rounding to the even neighbour, 16-bit limits, truth values of -1 and 0, trimming of
/// blanks alone. A text that is no number throws Guasto 13, a value out of range Guasto 6.
namespace lumigrafo {

/// A truth value as a 16-bit integer: true is -1. A check box holds 1 instead, so the two forms differ.
using Vero16 = std::int16_t;
inline constexpr Vero16 kVero = -1;
inline constexpr Vero16 kFalso = 0;

/// Without the blanks (U+0020 alone, no tabs or line ends) at both ends.
[[nodiscard]] std::string trim(std::string_view testo);

/// True if the whole text reads as a number: blanks around it, one sign before or behind, decimal point or
/// comma, an exponent with E or D, &H and &O forms. The empty text isn't numeric.
[[nodiscard]] bool isNumeric(std::string_view testo);

/// The number at the head of a text, 0 where there is none; blanks are skipped, the decimal sign is the
/// point.
[[nodiscard]] double val(std::string_view testo);

/// To the nearest integer, a half to the even neighbour: 2.5 gives 2, 3.5 gives 4.
[[nodiscard]] double arrotonda(double valore);

/// Whole text to a number. The last of point and comma is the decimal sign, so both "23.5" and "23,5" are
/// read; true and false, in either language, are -1 and 0.
[[nodiscard]] double aDoppio(std::string_view testo);
[[nodiscard]] float aSingolo(std::string_view testo);
[[nodiscard]] std::int16_t aIntero16(std::string_view testo);
[[nodiscard]] std::int16_t aIntero16(double valore);
[[nodiscard]] std::int32_t aIntero32(std::string_view testo);
[[nodiscard]] std::int32_t aIntero32(double valore);

/// The words for true and false are accepted as well as numbers; any number but 0 is true.
[[nodiscard]] bool aBooleano(std::string_view testo);

/// 16-bit arithmetic; the result out of -32768..32767 throws Guasto 6.
[[nodiscard]] std::int16_t prodotto16(std::int16_t a, std::int16_t b);
[[nodiscard]] std::int16_t somma16(std::int16_t a, std::int16_t b);

/// Decimal text, without a decimal sign for whole values and with `separatore` otherwise; single precision,
/// so at most 7 significant digits.
[[nodiscard]] std::string aTesto(float valore, char separatore = '.');
/// The decimal sign of the machine's locale, once the program has taken that over.
[[nodiscard]] char separatoreDecimale();
[[nodiscard]] std::string aTesto(std::int32_t valore);
/// "True" or "False".
[[nodiscard]] std::string aTesto(bool valore);

/// ASCII letters to lower or upper case; other bytes stay. For comparisons of names, keys and folders.
[[nodiscard]] std::string minuscolo(std::string_view testo);
[[nodiscard]] std::string maiuscolo(std::string_view testo);
[[nodiscard]] bool ugualeSenzaMaiuscole(std::string_view a, std::string_view b);

/// Characters (code points) in a UTF-8 text. A stray byte counts as one.
[[nodiscard]] std::size_t caratteri(std::string_view utf8);

} // namespace lumigrafo
