#include "data/jet/intestazione.h"

#include "data/errori_dao.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace lumigrafo::jet {

namespace {

constexpr std::size_t kNome = 4, kVersione = 0x14, kMascherata = 0x18;
constexpr std::size_t kCodice = 0x3C, kChiave = 0x3E, kPassword = 0x42, kOrdinamento = 0x6E,
                      kCreazione = 0x72;
constexpr std::size_t kBytePassword = 40;
constexpr std::uint8_t kJet4 = 1;

constexpr std::array<std::uint8_t, 128> kMaschera = {
    0xb5, 0x6f, 0x03, 0x62, 0x61, 0x08, 0xc2, 0x55, 0xeb, 0xa9, 0x67, 0x72, 0x43, 0x3f, 0x00, 0x9c,
    0x7a, 0x9f, 0x90, 0xff, 0x80, 0x9a, 0x31, 0xc5, 0x79, 0xba, 0xed, 0x30, 0xbc, 0xdf, 0xcc, 0x9d,
    0x63, 0xd9, 0xe4, 0xc3, 0x7b, 0x42, 0xfb, 0x8a, 0xbc, 0x4e, 0x86, 0xfb, 0xec, 0x37, 0x5d, 0x44,
    0x9c, 0xfa, 0xc6, 0x5e, 0x28, 0xe6, 0x13, 0xb6, 0x8a, 0x60, 0x54, 0x94, 0x7b, 0x36, 0xf5, 0x72,
    0xdf, 0xb1, 0x77, 0xf4, 0x13, 0x43, 0xcf, 0xaf, 0xb1, 0x33, 0x34, 0x61, 0x79, 0x5b, 0x92, 0xb5,
    0x7c, 0x2a, 0x05, 0xf1, 0x7c, 0x99, 0x01, 0x1b, 0x98, 0xfd, 0x12, 0x4f, 0x4a, 0x94, 0x6c, 0x3e,
    0x60, 0x26, 0x5f, 0x95, 0xf8, 0xd0, 0x89, 0x24, 0x85, 0x67, 0xc6, 0x1f, 0x27, 0x44, 0xd2, 0xee,
    0xcf, 0x65, 0xed, 0xff, 0x07, 0xc7, 0x46, 0xa1, 0x78, 0x16, 0x0c, 0xed, 0xe9, 0x2d, 0x62, 0xd4};

/// Masking twice gives the bytes back.
void maschera(Pagina& p) {
    for (std::size_t i = 0; i < kMaschera.size(); ++i)
        p.byte[kMascherata + i] ^= kMaschera[i];
}

double data(const Pagina& p) {
    return std::bit_cast<double>(p.u32(kCreazione) | std::uint64_t{p.u32(kCreazione + 4)} << 32);
}

/// The second mask of the password: the creation date without its fraction.
std::uint32_t giorno(double creazione) {
    return std::abs(creazione) < 2e9 ? static_cast<std::uint32_t>(static_cast<std::int32_t>(creazione)) : 0;
}

bool haPassword(const Pagina& p) {
    const std::uint32_t seconda = giorno(data(p));
    for (std::size_t i = 0; i < kBytePassword; i += 4)
        if (p.u32(kPassword + i) != seconda)
            return true;
    return false;
}

void verificaVersione(const Pagina& p) {
    const std::string_view nome(reinterpret_cast<const char*>(p.byte.data() + kNome), 15);
    const std::uint8_t versione = p.byte[kVersione];
    if (nome == "Standard ACE DB" || (nome == "Standard Jet DB" && versione > kJet4))
        throw nonLetto("L'archivio è un file di Access 2007 o successivo (.accdb): va salvato nel formato di "
                       "Access 2000 o 2002-2003 (.mdb).");
    if (nome == "Standard Jet DB" && versione < kJet4)
        throw nonLetto("L'archivio è un file di Access 97 o precedente: va convertito nel formato di Access "
                       "2000 o 2002-2003.");
    if (nome != "Standard Jet DB")
        throw nonLetto("Il file non è un archivio di Access.");
}

} // namespace

Intestazione leggiIntestazione(const Pagina& pagina0) {
    verificaVersione(pagina0);
    Pagina p = pagina0;
    maschera(p);
    if (p.u32(kChiave) != 0)
        throw nonLetto("L'archivio è cifrato: va decifrato con Access.");
    if (haPassword(p))
        throw Guasto(dao::kPassword, "L'archivio è protetto da una password: va tolta con Access.");
    return {p.u32(kOrdinamento), data(p)};
}

Pagina nuovaIntestazione(const Intestazione& intestazione) {
    constexpr std::uint16_t kCodicePagina = 1252;
    constexpr std::uint16_t kParolaNuova = 0x0100;
    Pagina p;
    p.byte[1] = 1;
    std::memcpy(p.byte.data() + kNome, "Standard Jet DB", 15);
    p.byte[kVersione] = kJet4;
    p.scrivi16(kCodice, kCodicePagina);
    for (std::size_t i = 0; i < kBytePassword; i += 4)
        p.scrivi32(kPassword + i, giorno(intestazione.creazione));
    p.scrivi32(kOrdinamento, intestazione.ordinamento);
    const auto creazione = std::bit_cast<std::uint64_t>(intestazione.creazione);
    p.scrivi32(kCreazione, static_cast<std::uint32_t>(creazione));
    p.scrivi32(kCreazione + 4, static_cast<std::uint32_t>(creazione >> 32));
    maschera(p);
    for (std::size_t i = 0; i < kByteParole; i += 2)
        p.scrivi16(kParoleCommit + i, kParolaNuova);
    return p;
}

} // namespace lumigrafo::jet
