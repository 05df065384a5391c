#include "data/campo.h"

#include "data/errori_dao.h"
#include "data/recordset.h"
#include "platform/conversioni.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace lumigrafo {

namespace {

// clang-format off
constexpr std::pair<std::string_view, int> kTipi[] = {
    {"YESNO", dao::dbBoolean}, {"BIT", dao::dbBoolean}, {"BOOLEAN", dao::dbBoolean}, {"LOGICAL", dao::dbBoolean},
    {"BYTE", dao::dbByte}, {"TINYINT", dao::dbByte},
    {"SMALLINT", dao::dbInteger}, {"SHORT", dao::dbInteger},
    {"INTEGER", dao::dbLong}, {"INT", dao::dbLong}, {"LONG", dao::dbLong}, {"COUNTER", dao::dbLong},
    {"CURRENCY", dao::dbCurrency}, {"MONEY", dao::dbCurrency},
    {"SINGLE", dao::dbSingle},
    {"DATE", dao::dbDate}, {"DATETIME", dao::dbDate},
    {"TEXT", dao::dbText}, {"VARCHAR", dao::dbText}, {"CHAR", dao::dbText},
    {"BLOB", dao::dbLongBinary},
    {"MEMO", dao::dbMemo}, {"CLOB", dao::dbMemo},
};
// clang-format on

int tipoDi(std::string_view dichiarato) {
    const std::string parola = maiuscolo(dichiarato.substr(0, dichiarato.find_first_of(" (")));
    for (const auto& [nome, tipo] : kTipi)
        if (nome == parola)
            return tipo;
    return dao::dbDouble;
}

/// The number in "TEXT(50)"; 0 where there is none.
std::size_t dimensioneDi(std::string_view dichiarato) {
    std::size_t n = 0;
    if (const auto p = dichiarato.find('('); p != dichiarato.npos)
        std::from_chars(dichiarato.data() + p + 1, dichiarato.data() + dichiarato.size(), n);
    return n;
}

char minuscola(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

} // namespace

Field::Field(Recordset& insieme, std::size_t indice, std::string nome, std::string colonna, const char* tipo)
    : insieme_(&insieme), indice_(indice), nome_(std::move(nome)), colonna_(std::move(colonna)),
      tipo_(tipo ? tipoDi(tipo) : dao::dbDouble) {
    if (tipo_ == dao::dbText)
        dimensione_ = dimensioneDi(tipo);
}

void Field::Value(const Valore& valore) {
    insieme_->scrivi(indice_, valore);
}

Valore Field::convertito(const Valore& valore) const {
    if (valore.nullo())
        return tipo_ == dao::dbBoolean ? Valore(false) : valore;
    try {
        return nelTipo(valore);
    } catch (const Guasto& guasto) {
        const bool conversione = guasto.numero() == guasti::kTipo || guasto.numero() == guasti::kSovraccarico;
        throw conversione ? erroreDao(dao::kConversione) : guasto;
    }
}

Valore Field::nelTipo(const Valore& valore) const {
    switch (tipo_) {
    case dao::dbBoolean:
        return valore.aBooleano();
    case dao::dbByte:
        if (const auto n = valore.aIntero16(); n < 0 || n > 255)
            throw Guasto(guasti::kSovraccarico);
        return valore.aIntero16();
    case dao::dbInteger:
        return valore.aIntero16();
    case dao::dbLong:
        return valore.aIntero32();
    case dao::dbText:
    case dao::dbMemo:
    case dao::dbLongBinary: {
        std::string t = valore.aTesto();
        if (dimensione_ > 0 && caratteri(t) > dimensione_)
            throw erroreDao(dao::kCampoCorto);
        return t;
    }
    default:
        return valore.intero() ? valore : Valore(valore.aDoppio());
    }
}

void Fields::prepara(std::size_t quanti) {
    campi_.clear();
    campi_.reserve(quanti);
    indice_.clear();
}

void Fields::indicizza() {
    std::size_t caselle = 16;
    while (caselle < campi_.size() * 4)
        caselle *= 2;
    indice_.assign(caselle, 0);
    for (std::size_t i = 0; i < campi_.size(); ++i)
        if (auto& posto = indice_[casella(campi_[i].Name())];
            posto == 0) // of two like names the first counts
            posto = static_cast<std::uint16_t>(i + 1);
}

std::size_t Fields::casella(std::string_view nome) const {
    const std::size_t maschera = indice_.size() - 1;
    // Length and last letters tell columns like Pezzi1 to Pezzi10 apart.
    std::size_t i = nome.size() * 11;
    if (!nome.empty())
        i += static_cast<std::size_t>(minuscola(nome.back())) +
             41 * static_cast<std::size_t>(minuscola(nome.front()));
    for (i &= maschera; indice_[i] != 0; i = (i + 1) & maschera) {
        const std::string& presente = campi_[indice_[i] - 1u].Name();
        if (presente == nome || ugualeSenzaMaiuscole(presente, nome))
            break;
    }
    return i;
}

Field& Fields::Item(std::string_view nome) {
    // Readers take the columns in their order, row by row.
    if (prossimo_ < campi_.size())
        if (Field& campo = campi_[prossimo_]; campo.Name() == nome) {
            ++prossimo_;
            return campo;
        }
    if (indice_.empty())
        indicizza();
    const std::uint16_t posto = indice_[casella(nome)];
    if (posto == 0)
        throw erroreDao(dao::kElementoMancante);
    prossimo_ = posto;
    return campi_[posto - 1u];
}

Field& Fields::Item(std::size_t indice) {
    if (indice >= campi_.size())
        throw erroreDao(dao::kElementoMancante);
    return campi_[indice];
}

} // namespace lumigrafo
