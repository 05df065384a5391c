#include "data/jet/catalogo.h"

#include "data/jet/dato.h"
#include "data/jet/riga.h"
#include "data/jet/scansione.h"
#include "data/jet/testo.h"
#include "data/jet/valore_lungo.h"

namespace lumigrafo::jet {

namespace {

constexpr int kTabella = 1, kOdbc = 4, kCollegata = 6;
constexpr std::int64_t kDiSistema = 0x80000002; // either of two bits

Vista vistaDi(const std::string& byte) {
    return {{reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()}, kPaginaCatalogo};
}

class Lettore {
public:
    Lettore(Pagine& pagine, const Definizione& d)
        : pagine_(pagine), d_(d), id_(colonna("Id", Tipo::Lungo)), nome_(colonna("Name", Tipo::Testo)),
          tipo_(colonna("Type", Tipo::Intero)), segni_(colonna("Flags", Tipo::Lungo)) {}

    std::optional<VoceCatalogo> voce(Vista byte) const {
        const Riga riga(d_, byte);
        const std::int64_t tipo = intero(riga, tipo_);
        if ((tipo != kTabella && tipo != kOdbc && tipo != kCollegata) || riga.nulla(nome_))
            return std::nullopt;
        VoceCatalogo v;
        v.nome = std::get<std::string>(leggiDato(nome_, riga.valore(nome_)));
        v.definizione = tipo == kTabella ? static_cast<std::uint32_t>(intero(riga, id_)) & 0xFFFFFF : 0;
        v.sistema = (intero(riga, segni_) & kDiSistema) != 0;
        if (tipo == kTabella && !v.sistema)
            v.proprieta = byteLunghi(riga, "LvProp", Tipo::Ole);
        else if (tipo != kTabella)
            v.altrove = testo(riga, tipo == kCollegata ? "Database" : "Connect");
        return v;
    }

private:
    const Colonna& colonna(std::string_view nome, Tipo tipo) const {
        const auto c = d_.cerca(nome);
        if (!c || d_.colonne[*c].tipo != tipo)
            throw danno(kPaginaCatalogo, "il catalogo non ha la colonna " + std::string(nome));
        return d_.colonne[*c];
    }
    /// A field that not every catalog has; empty for a null.
    std::string byteLunghi(const Riga& riga, std::string_view nome, Tipo tipo) const {
        const auto c = d_.cerca(nome);
        if (!c || d_.colonne[*c].tipo != tipo || riga.nulla(d_.colonne[*c]))
            return {};
        return std::string(riga.valore(d_.colonne[*c]).testo());
    }
    std::string testo(const Riga& riga, std::string_view nome) const {
        const std::string campo = byteLunghi(riga, nome, Tipo::Memo);
        return campo.empty() ? campo : leggiTesto(vistaDi(leggiValoreLungo(pagine_, vistaDi(campo))));
    }
    static std::int64_t intero(const Riga& riga, const Colonna& c) {
        return riga.nulla(c) ? 0 : std::get<std::int64_t>(leggiDato(c, riga.valore(c)));
    }

    Pagine& pagine_;
    const Definizione& d_;
    const Colonna &id_, &nome_, &tipo_, &segni_;
};

} // namespace

std::vector<VoceCatalogo> leggiCatalogo(Pagine& pagine) {
    const Definizione d = leggiDefinizione(pagine, kPaginaCatalogo);
    const Lettore lettore(pagine, d);
    std::vector<VoceCatalogo> voci;
    for (const RigaTrovata& r : scorri(pagine, d))
        if (auto v = lettore.voce(r.riga.byte))
            voci.push_back(std::move(*v));
    return voci;
}

std::vector<Proprieta> leggiProprieta(Pagine& pagine, const VoceCatalogo& voce) {
    if (voce.proprieta.empty())
        return {};
    return leggiProprieta(leggiValoreLungo(pagine, vistaDi(voce.proprieta)));
}

} // namespace lumigrafo::jet
