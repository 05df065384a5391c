#include "data/jet/valore_lungo.h"

#include "data/errori_dao.h"
#include "data/jet/mappa.h"
#include "data/jet/modifica_dati.h"
#include "data/jet/pagina_dati.h"
#include "data/jet/spazio.h"

namespace lumigrafo::jet {

namespace {

constexpr std::size_t kTesta = 12;
enum Genere : std::uint8_t { ACatena = 0x00, InAltraRiga = 0x40, NelCampo = 0x80 };

std::string catena(Pagine& pagine, std::uint32_t puntatore, std::size_t lunga) {
    std::string dati;
    std::uint64_t parti = 0;
    while (puntatore != 0 && dati.size() < lunga) {
        const RigaGrezza parte = brutaA(pagine, Posizione::da(puntatore));
        puntatore = parte.byte.u32(0);
        if (++parti > std::uint64_t{PaginaDati::kSlotMassimi} * pagine.quante())
            throw danno(parte.vera.pagina, "un valore lungo gira in tondo");
        dati += parte.byte.da(4).testo();
    }
    return dati;
}

} // namespace

std::string leggiValoreLungo(Pagine& pagine, Vista campo) {
    const std::size_t lunga = campo.u24(0);
    std::string dati;
    switch (campo.u8(3)) {
    case NelCampo:
        dati = campo.da(kTesta).testo();
        break;
    case InAltraRiga:
        dati = brutaA(pagine, Posizione::da(campo.u32(4))).byte.testo();
        break;
    case ACatena:
        dati = catena(pagine, campo.u32(4), lunga);
        break;
    default:
        throw danno(campo.pagina(), "un valore lungo di genere sconosciuto");
    }
    if (dati.size() < lunga)
        throw danno(campo.pagina(), "un valore lungo è tronco");
    dati.resize(lunga);
    return dati;
}

std::string scriviValoreLungo(Pagine& pagine, Posizione mappa, std::string_view dati) {
    constexpr std::uint32_t kSegno = 0x4C41564C; // the letters LVAL
    if (dati.size() > PaginaDati::kRigaMassima)
        throw erroreDao(dao::kRigaLunga);
    const std::uint32_t pagina = allocaPagina(pagine);
    ModificaDati::inizia(pagine.modifica(pagina), kSegno);
    Mappa(pagine, mappa).aggiungi(pagina);
    const Posizione posto{pagina, ModificaDati(pagine, pagina).aggiungi(dati, 0)};
    std::string campo;
    for (int i = 0; i < 3; ++i)
        campo += static_cast<char>(dati.size() >> (8 * i));
    campo += static_cast<char>(InAltraRiga);
    for (int i = 0; i < 4; ++i)
        campo += static_cast<char>(posto.puntatore() >> (8 * i));
    campo.resize(kTesta, '\0');
    return campo;
}

} // namespace lumigrafo::jet
