#include "forms/griglia.h"

#include "platform/guasto.h"

#include <algorithm>
#include <utility>

namespace lumigrafo {

void Griglia::annuncia(int riga, int colonna) const {
    if (osservatore_)
        osservatore_(riga, colonna);
}

void Griglia::Rows(int righe) {
    celle_.resize(static_cast<std::size_t>(std::max(righe, 0)),
                  std::vector<Cella>(static_cast<std::size_t>(colonne_)));
    riga_ = std::min(riga_, Rows() - 1);
    annuncia();
}

void Griglia::Cols(int colonne) {
    colonne_ = std::max(colonne, 1);
    for (auto& riga : celle_)
        riga.resize(static_cast<std::size_t>(colonne_));
    colonna_ = std::min(colonna_, colonne_ - 1);
    annuncia();
}

void Griglia::Clear() {
    for (auto& riga : celle_)
        std::fill(riga.begin(), riga.end(), Cella{});
    annuncia();
}

void Griglia::RemoveItem(int riga) {
    (void)cella(riga, 0);
    celle_.erase(celle_.begin() + riga);
    riga_ = std::min(riga_, Rows() - 1);
    annuncia();
}

const Griglia::Cella& Griglia::cella(int riga, int colonna) const {
    if (riga < 0 || riga >= Rows() || colonna < 0 || colonna >= colonne_)
        throw Guasto(guasti::kIndice);
    return celle_[static_cast<std::size_t>(riga)][static_cast<std::size_t>(colonna)];
}

Griglia::Cella& Griglia::cella(int riga, int colonna) {
    return const_cast<Cella&>(std::as_const(*this).cella(riga, colonna));
}

const std::string& Griglia::testo(int riga, int colonna) const {
    return cella(riga, colonna).testo;
}

void Griglia::testo(int riga, int colonna, std::string testo) {
    Cella& c = cella(riga, colonna);
    if (c.testo == testo)
        return; // an equal value repaints nothing
    c.testo = std::move(testo);
    annuncia(riga, colonna);
}

std::optional<Griglia::Posto> Griglia::cerca(std::string_view testo) const {
    for (int r = 0; r < Rows(); ++r)
        for (int k = 0; k < colonne_; ++k)
            if (cella(r, k).testo == testo)
                return Posto{r, k};
    return std::nullopt;
}

std::optional<Griglia::Posto> Griglia::primaPiena() const {
    for (int r = 0; r < Rows(); ++r)
        for (int k = 0; k < colonne_; ++k)
            if (!cella(r, k).testo.empty())
                return Posto{r, k};
    return std::nullopt;
}

std::optional<Colore> Griglia::sfondo(int riga, int colonna) const {
    return cella(riga, colonna).sfondo;
}

void Griglia::sfondo(int riga, int colonna, std::optional<Colore> c) {
    Cella& scelta = cella(riga, colonna);
    if (scelta.sfondo == c)
        return;
    scelta.sfondo = c;
    annuncia(riga, colonna);
}

void Griglia::corrente(int riga, int colonna) {
    const int rigaPrima = riga_, colonnaPrima = colonna_;
    riga_ = std::clamp(riga, -1, Rows() - 1);
    colonna_ = std::clamp(colonna, -1, colonne_ - 1);
    for (const auto& [r, c] : {std::pair(rigaPrima, colonnaPrima), std::pair(riga_, colonna_)})
        if (r >= 0 && c >= 0)
            annuncia(r, c);
}

void Griglia::coloreSelezione(Colore c) {
    selezione_ = c;
    if (riga_ >= 0 && colonna_ >= 0)
        annuncia(riga_, colonna_);
}

Twip Griglia::larghezzaColonna(int colonna) const {
    const auto i = static_cast<std::size_t>(colonna);
    return i < larghezze_.size() ? larghezze_[i] : Twip(0);
}

void Griglia::larghezzaColonna(int colonna, Twip larghezza) {
    const auto i = static_cast<std::size_t>(colonna);
    if (larghezze_.size() <= i)
        larghezze_.resize(i + 1);
    larghezze_[i] = larghezza;
    annuncia();
}

void Griglia::altezzaMinima(Twip altezza) {
    altezzaMinima_ = altezza;
    annuncia();
}

} // namespace lumigrafo
