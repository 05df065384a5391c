#include "data/ordine_access.h"

#include "data/jet/chiave.h"
#include "data/jet/ordinamento.h"
#include "data/jet/riga.h"
#include "data/jet/testo.h"

#include <algorithm>
#include <cstdint>
#include <sqlite3.h>
#include <string_view>
#include <utility>

namespace lumigrafo::ordine_access {

namespace {

using jet::Colonna;
using jet::Tipo;

/// Numbers with a fraction are left to SQLite: to it 0 and -0 are one, and so are amounts that a double
/// can't tell apart.
bool perChiave(const Colonna& c) {
    return c.tipo <= Tipo::Lungo || c.tipo == Tipo::Testo;
}

struct Criterio {
    const Colonna* colonna;
    bool crescente;
};

std::vector<Criterio> leggi(const jet::Definizione& d, const char* ordine) {
    std::vector<Criterio> criteri; // two bytes each: the column counted from 1, and + or -
    for (; *ordine != '\0'; ordine += 2)
        criteri.push_back({&d.colonne.at(static_cast<unsigned char>(*ordine) - 1u), ordine[1] == '+'});
    return criteri;
}

void accodaTesto(std::string& chiave, const std::string& testo, bool crescente) {
    const std::size_t inizio = chiave.size();
    chiave += '\x7F'; // above a null
    chiave += jet::chiaveDiConfronto(testo);
    if (!crescente)
        std::transform(chiave.begin() + static_cast<std::ptrdiff_t>(inizio), chiave.end(),
                       chiave.begin() + static_cast<std::ptrdiff_t>(inizio),
                       [](char c) { return static_cast<char>(~c); });
}

void accoda(std::string& chiave, const Criterio& k, const jet::Riga& riga) {
    const Colonna& c = *k.colonna;
    std::optional<std::string> byte;
    if (!riga.nulla(c))
        byte = c.tipo == Tipo::Booleano ? std::string() : std::string(riga.valore(c).testo());
    if (byte && c.tipo == Tipo::Testo)
        accodaTesto(chiave, jet::leggiTesto(riga.valore(c)), k.crescente);
    else
        chiave += parteDiChiave(c, k.crescente, byte);
}

/// A row's key among all keys, with its first bytes as a number: most comparisons end there.
struct Voce {
    std::uint64_t testa;
    std::size_t inizio, fine, riga;
};

Voce voce(std::string_view chiavi, std::size_t inizio, std::size_t riga) {
    std::uint64_t testa = 0;
    for (std::size_t i = 0; i < sizeof testa; ++i)
        testa = testa << 8 | (inizio + i < chiavi.size() ? static_cast<std::uint8_t>(chiavi[inizio + i]) : 0);
    return {testa, inizio, chiavi.size(), riga};
}

} // namespace

std::string scegli(const jet::Definizione& d, const sqlite3_index_info& info) {
    std::string ordine;
    for (int i = 0; i < info.nOrderBy; ++i) {
        const int c = info.aOrderBy[i].iColumn;
        if (c < 0 || !perChiave(d.colonne.at(static_cast<std::size_t>(c))))
            return {};
        ordine += static_cast<char>(c + 1);
        ordine += info.aOrderBy[i].desc ? '-' : '+';
    }
    return ordine;
}

void ordina(const jet::Definizione& d, const char* ordine, std::vector<jet::RigaTrovata>& righe) {
    const std::vector<Criterio> criteri = leggi(d, ordine);
    std::string chiavi;
    std::vector<Voce> voci;
    voci.reserve(righe.size());
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const jet::Riga riga(d, righe[i].riga.byte);
        const std::size_t inizio = chiavi.size();
        for (const Criterio& k : criteri)
            accoda(chiavi, k, riga);
        voci.push_back(voce(chiavi, inizio, i));
    }
    std::sort(voci.begin(), voci.end(), [&](const Voce& a, const Voce& b) {
        if (a.testa != b.testa)
            return a.testa < b.testa;
        const std::string_view tutte = chiavi;
        const int differenza =
            tutte.substr(a.inizio, a.fine - a.inizio).compare(tutte.substr(b.inizio, b.fine - b.inizio));
        return differenza != 0 ? differenza < 0 : a.riga < b.riga;
    });
    std::vector<jet::RigaTrovata> ordinate;
    ordinate.reserve(righe.size());
    for (const Voce& v : voci)
        ordinate.push_back(std::move(righe[v.riga]));
    righe = std::move(ordinate);
}

} // namespace lumigrafo::ordine_access
