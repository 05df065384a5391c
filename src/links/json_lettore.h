#pragma once

#include "links/json_bag.h"
#include "platform/guasto.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lumigrafo {

/// Reads one text into a bag and its children, all on one cursor. Separators between the values of an array
/// are optional, as in objects behind the first member.
class LettoreJson {
public:
    /// `testo` must outlive the reader.
    explicit LettoreJson(std::string_view testo)
        : inizio_(testo.data()), cursore_(inizio_), fine_(inizio_ + testo.size()) {}

    /// `radice` is an empty object. Throws Guasto 13 or 6 at the first fault.
    void leggi(JsonBag& radice);

private:
    void leggiOggetto(JsonBag& bag, int livello);
    void leggiMembro(JsonBag& bag, int livello);
    void leggiArray(JsonBag& bag, int livello);
    [[nodiscard]] Valore leggiValore(const JsonBag& padre, int livello);
    [[nodiscard]] Valore leggiFiglio(const JsonBag& padre, int livello);
    [[nodiscard]] Valore leggiNumero(const JsonBag& padre);
    [[nodiscard]] std::string_view testoDelNumero();
    [[nodiscard]] std::string leggiStringa();
    void leggiPiani(std::string& stringa);
    void leggiResto(std::string& stringa);
    void leggiScorciatoia(std::string& stringa);
    [[nodiscard]] char16_t leggiEsadecimale(const char* barra);
    [[nodiscard]] bool parola(std::string_view attesa);

    void saltaBianchi();
    /// The character at the cursor, 0 at the end.
    [[nodiscard]] char carattere() const { return cursore_ == fine_ ? '\0' : *cursore_; }
    [[noreturn]] void atteso(const char* cosa) const;
    [[noreturn]] void guasto(const char* testo, const char* dove, int numero = guasti::kTipo) const;

    const char* inizio_;
    const char* cursore_;
    const char* fine_;
};

} // namespace lumigrafo
