#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// Numbers and their texts, with a point on every machine.
namespace lumigrafo::json {

/// Room that the text of a number takes at most.
inline constexpr std::size_t kMassimoNumero = 32;

/// Whole text to the nearest double. Nothing if the text is no number or the number is too large; one too
/// small gives 0.
[[nodiscard]] std::optional<double> doppioDaTesto(std::string_view testo);

/// Each writes to `dove`, which has room for kMassimoNumero, and returns the end. At most 15 digits for a
/// double and 7 for a float; an exponent from 1e+15 (1e+07) upwards and below 0.0001. A double that those
/// digits would lift above the largest one takes all that it needs. An infinity or what is no number gives
/// "inf" and "nan", which are no JSON.
char* scriviNumero(char* dove, double valore);
char* scriviNumero(char* dove, float valore);

} // namespace lumigrafo::json
