#include "console/ultimi_chiamati.h"

namespace lumigrafo {

void AggiornaUltimiChiamati(StatoConsole& stato, const FileIni& ultimi, std::int16_t index,
                            const std::string& testo) {
    const auto q = static_cast<std::size_t>(index);
    auto& lista = stato.UltimiChiamati;
    for (std::size_t i = 0; i < kUltimi; ++i)
        lista[i][q] = ultimi.LeggiIni(kSezioneUltimi, chiaveUltimo(index, static_cast<int>(i)));
    for (std::size_t i = kUltimi - 1; i > 0; --i)
        lista[i][q] = lista[i - 1][q];
    lista[0][q] = testo;
    for (std::size_t i = 0; i < kUltimi; ++i)
        ultimi.ScriviIni(kSezioneUltimi, chiaveUltimo(index, static_cast<int>(i)), lista[i][q]);
}

} // namespace lumigrafo
