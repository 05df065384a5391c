#pragma once

#include "links/json_valore.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

namespace json {
class IndiceNomi;
}

/// A JSON object or array in memory, with its parser and its writer. Members keep the order in which they
/// came, and their names are case sensitive. Every failure is a Guasto: 5 a misuse of the class, 6 a number
/// that does not fit, 9 an index out of the bag, 13 a fault in a text, 51 a value that cannot be written,
/// 94 a key of a wrong type.
class JsonBag {
public:
    /// Brackets within brackets that a text may open; more of them are refused, by the parser and the writer.
    static constexpr int kProfonditaMassima = 1000;

    JsonBag();
    ~JsonBag();
    JsonBag(JsonBag&&) noexcept;
    JsonBag& operator=(JsonBag&&) noexcept;

    /// Line breaks and indentation in what JSON() writes, at every depth.
    bool Indented = false;

    /// Number of values.
    [[nodiscard]] std::size_t Count() const { return valori_.size(); }

    /// The type of parsed numbers: Decimale if true, else double. New children take it over.
    [[nodiscard]] bool DecimalMode() const { return tipoNumero_ == kTipoDecimale; }
    void DecimalMode(bool valore);

    [[nodiscard]] bool IsArray() const { return array_; }
    /// Only for an empty bag, else Guasto 5.
    void IsArray(bool valore);

    /// A value by its place from 1 or, in objects, by its name: Guasto 9 or 5 where there is none. Valid
    /// until the bag changes; a child stays where it is until it is replaced or removed.
    [[nodiscard]] const Valore& Item(Chiave chiave) const;

    /// In an object, `chiave` is a name: replaces that value in its place, or adds it at the end. In an array
    /// it is a place, and one behind the last appends, as null does.
    void Item(Chiave chiave, Valore valore);
    void Item(Chiave chiave, JsonBag&& figlio);

    /// The text of the bag. Doubles go out with 15 digits at most.
    [[nodiscard]] std::string JSON() const;

    /// Empties the bag and reads a text into it, up to the end of its first object or array. Faults tell
    /// their place in 16-bit characters from 1, and what was read before them stays.
    void JSON(std::string_view testo);

    /// The name at a place from 1. Arrays have none: Guasto 5.
    [[nodiscard]] const std::string& Name(std::int64_t indice) const;

    [[nodiscard]] static const char* Version() { return "1.6"; }

    /// A new empty child, stored as Item does.
    JsonBag& AddNewArray(Chiave chiave);
    JsonBag& AddNewObject(Chiave chiave);

    /// Empties the bag, which becomes an object. The type of numbers stays.
    void Clear();

    [[nodiscard]] bool Exists(Chiave chiave) const;

    /// The names of an object, in order, to iterate over. Arrays have none: Guasto 5.
    [[nodiscard]] const std::vector<std::string>& NewEnum() const;

    /// Takes a value away, by name or place; in arrays by place alone.
    void Remove(Chiave chiave);

private:
    friend class LettoreJson;
    friend class ScrittoreJson;

    static constexpr std::int32_t kTipoDoppio = 5;
    static constexpr std::int32_t kTipoDecimale = 14;

    [[nodiscard]] std::unique_ptr<JsonBag> nuovoFiglio(bool array) const;
    [[nodiscard]] json::IndiceNomi* indice() const;
    [[nodiscard]] std::size_t traPochi(std::string_view nome) const;
    [[nodiscard]] std::size_t posto(const Chiave& chiave) const;
    [[nodiscard]] std::size_t postoDi(std::int64_t indice) const;
    void poni(std::string&& nome, Valore&& valore);
    void accoda(Valore&& valore);
    void cedeFigli(std::vector<std::unique_ptr<JsonBag>>& figli) noexcept;

    std::vector<std::string> nomi_; ///< of objects alone
    std::vector<Valore> valori_;
    mutable std::unique_ptr<json::IndiceNomi> indice_; ///< of objects with many members
    std::int32_t tipoNumero_ = kTipoDoppio;
    bool array_ = false;
    bool figli_ = false; ///< a child has been stored
};

/// The child in a value; Guasto 13 if the value is none.
[[nodiscard]] JsonBag& comeBag(const Valore& valore);

} // namespace lumigrafo
