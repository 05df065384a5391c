#include "links/json_scrittore.h"

#include "links/json_errori.h"
#include "links/json_numeri.h"

#include <charconv>
#include <cmath>
#include <variant>

namespace lumigrafo {

namespace {

constexpr std::size_t kRientro = 4;
static_assert(kRientro * JsonBag::kProfonditaMassima <= json::Uscita::kSpazioMassimo);
constexpr std::string_view kACapo = "\r\n";
/// The platform's number for the type of a moment.
constexpr int kTipoData = 7;

} // namespace

/// Writes what is in a value; its name serves for the texts of failures.
class ScrittoreJson::Visita {
public:
    Visita(ScrittoreJson& scrittore, std::string_view nome, int livello)
        : s_(scrittore), nome_(nome), livello_(livello) {}

    void operator()(std::nullptr_t) const { s_.uscita_.testo("null"); }
    void operator()(bool valore) const { s_.uscita_.testo(valore ? "true" : "false"); }
    void operator()(std::int32_t valore) const {
        char* const dove = s_.uscita_.spazio(json::kMassimoNumero);
        s_.uscita_.avanza(std::to_chars(dove, dove + json::kMassimoNumero, valore).ptr);
    }
    void operator()(float valore) const { virgolaMobile(valore); }
    void operator()(double valore) const { virgolaMobile(valore); }
    void operator()(const Valuta& valore) const { s_.uscita_.testo(valore.aTesto()); }
    void operator()(const Decimale& valore) const { s_.uscita_.testo(valore.aTesto()); }
    void operator()(const DataOra&) const { throw json::tipoIgnoto(nome_, kTipoData); }
    void operator()(const std::string& valore) const { s_.uscita_.stringa(valore); }
    void operator()(const std::unique_ptr<JsonBag>& figlio) const {
        if (figlio == nullptr)
            s_.uscita_.testo("null");
        else
            s_.scriviBag(*figlio, nome_, livello_ + 1);
    }

private:
    template <typename T>
    void virgolaMobile(T valore) const {
        char* const dove = s_.uscita_.spazio(json::kMassimoNumero);
        const char* const fine = json::scriviNumero(dove, valore);
        if (!std::isfinite(valore))
            throw json::nonSerializzato(nome_, {dove, fine});
        s_.uscita_.avanza(fine);
    }

    ScrittoreJson& s_;
    std::string_view nome_;
    int livello_;
};

std::string ScrittoreJson::scrivi(const JsonBag& radice) {
    scriviBag(radice, {}, 1);
    return uscita_.prendi();
}

void ScrittoreJson::scriviValore(const Valore& valore, std::string_view nome, int livello) {
    const Visita visita(*this, nome, livello);
    if (const auto* testo = std::get_if<std::string>(&valore)) // the usual kinds first: a look-up costs more
        visita(*testo);
    else if (const auto* numero = std::get_if<double>(&valore))
        visita(*numero);
    else
        std::visit(visita, valore);
}

/// The root stands at level 1.
void ScrittoreJson::scriviBag(const JsonBag& bag, std::string_view nome, int livello) {
    if (livello > JsonBag::kProfonditaMassima)
        throw json::troppoProfondo(nome);
    uscita_.carattere(bag.array_ ? '[' : '{');
    if (bag.Count() > 0)
        scriviContenuto(bag, livello);
    uscita_.carattere(bag.array_ ? ']' : '}');
}

void ScrittoreJson::scriviContenuto(const JsonBag& bag, int livello) {
    for (std::size_t i = 0; i < bag.valori_.size(); ++i) {
        if (i > 0)
            uscita_.carattere(',');
        aCapo(livello);
        std::string_view nome;
        if (!bag.array_) {
            nome = bag.nomi_[i];
            uscita_.stringa(nome);
            uscita_.carattere(':');
        }
        scriviValore(bag.valori_[i], nome, livello);
    }
    aCapo(livello - 1);
}

void ScrittoreJson::aCapo(int livello) {
    if (!indentato_)
        return;
    uscita_.testo(kACapo);
    uscita_.ripeti(' ', kRientro * static_cast<std::size_t>(livello));
}

} // namespace lumigrafo
