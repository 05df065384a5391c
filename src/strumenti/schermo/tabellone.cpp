#include "strumenti/schermo/tabellone.h"

#include "links/json_bag.h"
#include "platform/conversioni.h"
#include "platform/guasto.h"
#include "platform/utf8.h"

#include <algorithm>

namespace lumigrafo::schermo {

namespace {

/// Slots from the newest number to the oldest.
constexpr int kEta[] = {3, 2, 1, 4, 5, 6, 7, 8, 9};
constexpr std::size_t kMassimiCaratteri = 100;
constexpr double kMassimoFont = 1000;

bool comando(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c <= 0x9F);
}

std::string mostrabile(std::string_view testo) {
    std::string esito;
    std::size_t i = 0;
    for (std::size_t n = 0; n < kMassimiCaratteri && i < testo.size(); ++n) {
        const char32_t c = prossimoCarattere(testo, i);
        accodaCarattere(esito, comando(c) ? U' ' : c);
    }
    return trim(esito);
}

/// The members of the document; those that are missing read as empty.
class Membri {
public:
    explicit Membri(const JsonBag& bag) : bag_(bag) {}

    [[nodiscard]] std::string testo(const std::string& nome) const {
        const auto* stringa = valore<std::string>(nome);
        return stringa ? mostrabile(*stringa) : "";
    }
    /// Bare, or written as a text.
    [[nodiscard]] double numero(const std::string& nome, double altrimenti) const {
        if (const auto* numero = valore<double>(nome))
            return *numero;
        ignorandoGuasti([&] { altrimenti = aDoppio(testo(nome)); });
        return altrimenti;
    }
    [[nodiscard]] Colore colore(const std::string& nome, std::int32_t altrimenti) const {
        ignorandoGuasti([&] { altrimenti = aIntero32(testo(nome)); });
        return Colore{altrimenti};
    }

private:
    template <typename T>
    [[nodiscard]] const T* valore(const std::string& nome) const {
        return bag_.Exists(nome) ? std::get_if<T>(&bag_.Item(nome)) : nullptr;
    }

    const JsonBag& bag_;
};

Gruppo leggiGruppo(const Membri& m, std::size_t g) {
    const std::string dopo = std::to_string(g + 1); // departments and colours count from 1, slots from 0
    Gruppo gruppo{m.testo("Categoria" + dopo),
                  {},
                  m.colore("BackColorCategoria" + dopo, 0x000000),
                  m.colore("ForeColorCategoria" + dopo, 0xFFFFFF)};
    for (const int posto : kEta)
        if (auto numero = m.testo("Categoria" + std::to_string(g) + "_numero" + std::to_string(posto));
            !numero.empty())
            gruppo.numeri.push_back(std::move(numero));
    return gruppo;
}

} // namespace

Tabellone leggiTabellone(std::string_view documento) {
    JsonBag radice;
    radice.JSON(documento);
    if (!radice.Exists("DatiLumigrafo"))
        throw Guasto(guasti::kTipo);
    const Membri m(comeBag(radice.Item("DatiLumigrafo")));
    Tabellone t;
    t.titolo = m.testo("TitoloLumigrafo");
    t.font = static_cast<int>(std::clamp(m.numero("FontNumeri", 0), 0.0, kMassimoFont));
    for (std::size_t g = 0; g < t.gruppi.size(); ++g)
        t.gruppi[g] = leggiGruppo(m, g);
    const double last = m.numero("Last", -1); // missing at a reset: nothing was called
    if (last >= 0 && last < static_cast<double>(t.gruppi.size()))
        t.chiamato = static_cast<std::size_t>(last);
    return t;
}

std::string comeTesto(const Tabellone& tabellone) {
    std::size_t largo = 0;
    for (const Gruppo& g : tabellone.gruppi)
        largo = std::max(largo, caratteri(g.titolo));
    std::string testo = tabellone.titolo + "\n";
    for (std::size_t i = 0; i < tabellone.gruppi.size(); ++i) {
        const Gruppo& g = tabellone.gruppi[i];
        if (!g.inUso())
            continue;
        testo += (tabellone.chiamato == i ? "> " : "  ") + g.titolo +
                 std::string(largo - caratteri(g.titolo), ' ') + " :";
        for (const std::string& numero : g.numeri)
            testo += "  " + numero;
        testo += "\n";
    }
    return testo + "\n";
}

} // namespace lumigrafo::schermo
