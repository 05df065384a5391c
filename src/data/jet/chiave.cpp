#include "data/jet/chiave.h"

#include "data/errori_dao.h"
#include "data/jet/ordinamento.h"
#include "data/jet/testo.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

constexpr char kCrescente = 0x7F, kDecrescente = static_cast<char>(0x80);
constexpr char kNulloCrescente = 0x00, kNulloDecrescente = static_cast<char>(0xFF);

void complementa(std::string& s) {
    for (char& c : s)
        c = static_cast<char>(~c);
}

Vista vistaDi(const std::string& byte) {
    return {{reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()}, 0};
}

/// Big-endian, so that bytes compare as the numbers do.
std::string rovesciata(Vista v, std::size_t quanti) {
    std::string s(v.brano(0, quanti).testo());
    std::reverse(s.begin(), s.end());
    return s;
}

void capovolgiSegno(std::string& s) {
    s[0] = static_cast<char>(s[0] ^ 0x80);
}

std::string intero(const Colonna& c, Vista v) {
    std::string s = rovesciata(v, byteDi(c.tipo));
    if (c.tipo != Tipo::Byte)
        capovolgiSegno(s);
    return s;
}

std::string reale(const Colonna& c, Vista v) {
    std::string s = rovesciata(v, byteDi(c.tipo));
    if (s[0] & 0x80)
        complementa(s);
    else
        capovolgiSegno(s);
    return s;
}

/// Blocks of eight bytes, each followed by how many of them count, or by 9 where another block follows.
std::string blocchi(const std::string& byte, bool crescente) {
    constexpr std::size_t kBlocco = 8;
    constexpr char kAltri = 9;
    std::string s;
    for (std::size_t i = 0; i == 0 || i < byte.size(); i += kBlocco) {
        std::string b = byte.substr(i, kBlocco);
        const std::size_t validi = b.size();
        const bool ultimo = i + kBlocco >= byte.size();
        b.resize(kBlocco);
        b += static_cast<char>(validi);
        if (!crescente)
            complementa(b);
        if (!ultimo)
            b.back() = kAltri;
        s += b;
    }
    return s;
}

/// The order in which a GUID is written for people.
std::string guidInOrdine(Vista v) {
    std::string s(v.brano(0, byteDi(Tipo::Guid)).testo());
    std::reverse(s.begin(), s.begin() + 4);
    std::reverse(s.begin() + 4, s.begin() + 6);
    std::reverse(s.begin() + 6, s.begin() + 8);
    return s;
}

std::string valore(const Colonna& c, bool crescente, const std::string& byte) {
    const Vista v = vistaDi(byte);
    std::string s;
    switch (c.tipo) {
    case Tipo::Testo:
        s = chiaveTesto(decomprimi(v));
        if (!crescente) {
            complementa(s);
            s += '\0';
        }
        return s;
    case Tipo::Binario:
        return blocchi(byte, crescente);
    case Tipo::Guid:
        return blocchi(guidInOrdine(v), crescente);
    case Tipo::Singolo:
    case Tipo::Doppio:
    case Tipo::Data:
        s = reale(c, v);
        break;
    default:
        s = intero(c, v);
    }
    if (!crescente)
        complementa(s);
    return s;
}

} // namespace

bool chiaviPossibili(const Definizione& d, const Indice& indice) {
    return std::all_of(indice.colonne.begin(), indice.colonne.end(), [&](const ColonnaIndice& ci) {
        const Colonna& c = d.colonne[ci.colonna];
        if (c.tipo == Tipo::Testo)
            return c.ordinamento == kOrdineGenerale;
        return c.tipo <= Tipo::Binario || c.tipo == Tipo::Guid;
    });
}

std::string parteDiChiave(const Colonna& c, bool crescente, const std::optional<std::string>& byte) {
    if (c.tipo == Tipo::Booleano) // True sorts before False, as -1 before 0
        return {crescente ? kCrescente : kDecrescente, byte.has_value() == crescente ? '\0' : '\xFF'};
    if (!byte)
        return {crescente ? kNulloCrescente : kNulloDecrescente};
    return (crescente ? kCrescente : kDecrescente) + valore(c, crescente, *byte);
}

bool tuttaNulla(const Definizione& d, const Indice& indice, const Campi& campi) {
    return std::all_of(indice.colonne.begin(), indice.colonne.end(), [&](const ColonnaIndice& ci) {
        return d.colonne[ci.colonna].tipo != Tipo::Booleano && !campi[ci.colonna];
    });
}

std::optional<std::string> chiaveDi(const Definizione& d, const Indice& indice, const Campi& campi) {
    if (indice.ignoraNulli && tuttaNulla(d, indice, campi))
        return std::nullopt;
    std::string chiave;
    for (const ColonnaIndice& ci : indice.colonne)
        chiave += parteDiChiave(d.colonne[ci.colonna], ci.crescente, campi[ci.colonna]);
    return chiave;
}

} // namespace lumigrafo::jet
