#include "data/riga_intera.h"

#include <cmath>
#include <cstring>
#include <type_traits>

namespace lumigrafo {

static_assert(std::is_trivially_copyable_v<Cella>);

void RigaIntera::azzera() {
    celle_.clear();
    testi_.clear();
}

void RigaIntera::doppio(double n) {
    if (std::isnan(n))
        nullo();
    else
        celle_.push_back({.doppio = n, .lunghezza = 0, .tipo = Cella::Tipo::Doppio});
}

void RigaIntera::testo(std::string_view testo) {
    celle_.push_back({.inizio = testi_.size(),
                      .lunghezza = static_cast<std::uint32_t>(testo.size()),
                      .tipo = Cella::Tipo::Testo});
    testi_ += testo;
}

std::string_view RigaIntera::composta() {
    composta_.assign(reinterpret_cast<const char*>(celle_.data()), celle_.size() * sizeof(Cella));
    return composta_ += testi_;
}

void RigaIntera::scomponi(std::string_view composta, std::span<Cella> celle, std::string& testi) {
    const std::size_t inizio = testi.size();
    std::memcpy(celle.data(), composta.data(), celle.size_bytes());
    for (Cella& c : celle)
        if (c.tipo == Cella::Tipo::Testo)
            c.inizio += inizio;
    testi += composta.substr(celle.size_bytes());
}

} // namespace lumigrafo
