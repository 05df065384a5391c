#include "data/jet/riga.h"

#include "data/errori_dao.h"
#include "data/jet/pagina_dati.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

void accoda16(std::string& byte, std::size_t n) {
    byte += static_cast<char>(n & 0xFF);
    byte += static_cast<char>(n >> 8);
}

std::size_t fineFissa(const Definizione& d) {
    std::size_t fine = 0;
    for (const Colonna& c : d.colonne)
        if (c.fissa && c.tipo != Tipo::Booleano)
            fine =
                std::max<std::size_t>(fine, c.postoFisso + (byteDi(c.tipo) ? byteDi(c.tipo) : c.lunghezza));
    return fine;
}

} // namespace

Riga::Riga(const Definizione& definizione, Vista byte)
    : definizione_(definizione), byte_(byte), colonne_(byte.u16(0)) {
    const std::size_t maschera = (colonne_ + 7) / 8;
    const std::size_t coda = maschera + (definizione.variabili > 0 ? 4 : 0);
    if (byte.lunga() < Riga::kTesta + coda)
        throw danno(byte.pagina(), "una riga è tronca");
    maschera_ = byte.lunga() - maschera;
    if (definizione.variabili == 0)
        return;
    variabili_ = byte.u16(maschera_ - 2);
    if (byte.lunga() < Riga::kTesta + coda + 2 * std::size_t{variabili_})
        throw danno(byte.pagina(), "una riga è tronca");
}

Campi Riga::campi() const {
    Campi campi;
    campi.reserve(definizione_.colonne.size());
    for (const Colonna& c : definizione_.colonne) {
        if (nulla(c))
            campi.emplace_back();
        else if (c.tipo == Tipo::Booleano)
            campi.emplace_back(std::string());
        else
            campi.emplace_back(valore(c).testo());
    }
    return campi;
}

std::string componiRiga(const Definizione& d, const Campi& campi) {
    std::string byte;
    accoda16(byte, d.colonneMassime);
    byte.resize(Riga::kTesta + fineFissa(d));
    std::vector<const std::string*> variabili(d.variabili);
    std::string maschera((d.colonneMassime + 7u) / 8, '\0');
    for (std::size_t i = 0; i < d.colonne.size(); ++i) {
        const Colonna& c = d.colonne[i];
        if (!campi[i])
            continue;
        maschera[c.numero / 8u] = static_cast<char>(maschera[c.numero / 8u] | 1 << c.numero % 8);
        if (c.tipo == Tipo::Booleano)
            continue;
        if (c.fissa)
            std::copy(campi[i]->begin(), campi[i]->end(), byte.begin() + Riga::kTesta + c.postoFisso);
        else if (c.indiceVariabile < variabili.size())
            variabili[c.indiceVariabile] = &*campi[i];
        else
            throw danno(d.pagina, "una colonna variabile non ha posto");
    }
    std::vector<std::size_t> inizi;
    for (const std::string* v : variabili) {
        inizi.push_back(byte.size());
        byte += v ? *v : std::string();
    }
    if (d.variabili > 0) {
        accoda16(byte, byte.size());
        for (auto i = inizi.rbegin(); i != inizi.rend(); ++i)
            accoda16(byte, *i);
        accoda16(byte, d.variabili);
    }
    byte += maschera;
    if (byte.size() > PaginaDati::kRigaMassima)
        throw erroreDao(dao::kRigaLunga);
    return byte;
}

} // namespace lumigrafo::jet
