#pragma once

#include "links/json_bag.h"
#include "links/json_uscita.h"

#include <string>
#include <string_view>

namespace lumigrafo {

/// Writes one bag with its children.
class ScrittoreJson {
public:
    explicit ScrittoreJson(bool indentato) : indentato_(indentato) {}

    /// To be called once. Throws Guasto 51 for a value that has no JSON form.
    [[nodiscard]] std::string scrivi(const JsonBag& radice);

private:
    class Visita;

    void scriviValore(const Valore& valore, std::string_view nome, int livello);
    void scriviBag(const JsonBag& bag, std::string_view nome, int livello);
    void scriviContenuto(const JsonBag& bag, int livello);
    void aCapo(int livello);

    json::Uscita uscita_;
    bool indentato_;
};

} // namespace lumigrafo
