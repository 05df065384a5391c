#pragma once

#include "platform/guasto.h"

#include <cstddef>
#include <string>
#include <string_view>

/// The failures of the JSON class. Each function builds the Guasto that its caller throws; the texts are
/// contract, odd spellings included.
namespace lumigrafo::json {

inline constexpr int kUso = 5;            ///< a misuse of the class
inline constexpr int kNonScrivibile = 51; ///< a value that cannot be written
inline constexpr int kChiaveNulla = 94;   ///< a key of a wrong type

inline constexpr const char* kIsArrayTardi = "Cannot change IsArray setting after items have been added";
inline constexpr const char* kChiaveErrata = "Key must be String or an index)";
inline constexpr const char* kArraySoloIndice = "Array values can only be acessed by index";
inline constexpr const char* kArrayCambio = "Array values can only be changed by index or added via Null";
inline constexpr const char* kOggettoCambio =
    "Object values can only be changed or added by key not by index";
inline constexpr const char* kArraySenzaNomi = "Array items do not have names";
inline constexpr const char* kArrayEnumerato = "Arrays must be iterated using index values";
inline constexpr const char* kArrayRimozione = "Must remove by index for arrays";

[[nodiscard]] inline Guasto usoErrato(const char* testo) {
    return {kUso, testo};
}

/// A name that no member bears.
[[nodiscard]] inline Guasto nomeAssente() {
    return {kUso, "Chiamata di routine o argomento non valido"};
}

/// A fault in the text: 13, except for a number that doesn't fit. `posizione` counts characters from 1.
[[nodiscard]] inline Guasto guastoNelTesto(std::string_view testo, std::size_t posizione,
                                           int numero = guasti::kTipo) {
    return {numero, std::string(testo) + std::to_string(posizione)};
}

/// What a value without a name (an array's, or the bag itself) puts before the comma is nothing.
[[nodiscard]] inline Guasto nonSerializzato(std::string_view nome, std::string_view valore) {
    return {kNonScrivibile, std::string(nome) + ", value " + std::string(valore) + " failed to serialize"};
}

[[nodiscard]] inline Guasto tipoIgnoto(std::string_view nome, int tipo) {
    return {kNonScrivibile, std::string(nome) + ", unknown/unsupported type = " + std::to_string(tipo)};
}

[[nodiscard]] inline Guasto troppoProfondo(std::string_view nome) {
    return {kNonScrivibile, std::string(nome) + ", nested too deep"};
}

} // namespace lumigrafo::json
