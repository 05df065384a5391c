// Where a full page of an index is split in two.
#include "data/jet/pagina_indice.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

std::size_t comune(std::string_view a, std::string_view b) {
    return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
}

/// Sizes of the runs of entries that begin or end with the page: entries are added at one side.
class Misura {
public:
    explicit Misura(const PaginaIndice& pagina) : pagina_(pagina) {}

    void aggiungi(const Voce& voce) {
        prima_ = quante_ == 0 ? &voce : prima_;
        // In order, so what the two ends have in common all have; but never of an address.
        prefisso_ = quante_ == 0
                        ? voce.chiave().size()
                        : std::min({prefisso_, voce.chiave().size(), comune(prima_->byte, voce.byte)});
        byte_ += pagina_.lunga(voce);
        ++quante_;
    }
    /// Without the common prefix, where that is needed.
    [[nodiscard]] std::size_t byte() const {
        return byte_ <= PaginaIndice::kSpazio ? byte_ : byte_ - prefisso_ * (quante_ - 1);
    }

private:
    const PaginaIndice& pagina_;
    const Voce* prima_ = nullptr;
    std::size_t prefisso_ = 0, byte_ = 0, quante_ = 0;
};

} // namespace

std::size_t PaginaIndice::tagliaMigliore() const {
    std::vector<std::size_t> sinistra(voci.size() + 1), destra(voci.size() + 1);
    Misura a(*this), b(*this);
    for (std::size_t i = 0; i < voci.size(); ++i) {
        a.aggiungi(voci[i]);
        sinistra[i + 1] = a.byte();
        b.aggiungi(voci[voci.size() - 1 - i]);
        destra[voci.size() - 1 - i] = b.byte();
    }
    std::size_t migliore = 1;
    for (std::size_t i = 2; i < voci.size(); ++i)
        if (std::max(sinistra[i], destra[i]) < std::max(sinistra[migliore], destra[migliore]))
            migliore = i;
    return migliore;
}

PaginaIndice PaginaIndice::dividi(bool allaFine) {
    const std::size_t taglio = allaFine ? voci.size() - 1 : tagliaMigliore();
    PaginaIndice destra = *this;
    destra.voci.erase(destra.voci.begin(), destra.voci.begin() + static_cast<std::ptrdiff_t>(taglio));
    voci.resize(taglio);
    coda = 0;
    return destra;
}

} // namespace lumigrafo::jet
