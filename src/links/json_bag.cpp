#include "links/json_bag.h"

#include "links/json_errori.h"
#include "links/json_indice.h"
#include "links/json_lettore.h"
#include "links/json_scrittore.h"

#include <algorithm>
#include <utility>

namespace lumigrafo {

namespace {

/// Up to here it is quicker to look at every name.
constexpr std::size_t kPochiNomi = 16;
constexpr std::size_t kAssente = json::IndiceNomi::kAssente;

constexpr std::size_t kPrimiPosti = 8;
constexpr std::size_t kSecondiPosti = 48; ///< the board document has that many members, or nearly

/// Small bags are filled in one go, larger ones in few steps; then the vector's own way saves memory.
template <typename T>
void faiPosto(std::vector<T>& elenco) {
    if (elenco.empty())
        elenco.reserve(kPrimiPosti);
    else if (elenco.size() == kPrimiPosti && elenco.capacity() == kPrimiPosti)
        elenco.reserve(kSecondiPosti);
}

} // namespace

JsonBag::JsonBag() = default;
JsonBag::JsonBag(JsonBag&&) noexcept = default;

JsonBag& JsonBag::operator=(JsonBag&& altro) noexcept {
    // By way of a third one: `altro` may be a descendant of this bag.
    JsonBag preso(std::move(altro));
    std::swap(Indented, preso.Indented);
    nomi_.swap(preso.nomi_);
    valori_.swap(preso.valori_);
    indice_.swap(preso.indice_);
    std::swap(tipoNumero_, preso.tipoNumero_);
    std::swap(array_, preso.array_);
    std::swap(figli_, preso.figli_);
    return *this;
}

/// Takes descendants down one after the other, not one inside the other: any depth must find an end.
JsonBag::~JsonBag() {
    if (!figli_)
        return;
    std::vector<std::unique_ptr<JsonBag>> figli;
    cedeFigli(figli);
    while (!figli.empty()) {
        const std::unique_ptr<JsonBag> figlio = std::move(figli.back());
        figli.pop_back();
        figlio->cedeFigli(figli);
    }
}

/// Only children with children of their own are worth the way.
void JsonBag::cedeFigli(std::vector<std::unique_ptr<JsonBag>>& figli) noexcept {
    if (!figli_)
        return;
    for (Valore& valore : valori_)
        if (auto* figlio = std::get_if<std::unique_ptr<JsonBag>>(&valore);
            figlio && *figlio && (*figlio)->figli_)
            figli.push_back(std::move(*figlio));
}

void JsonBag::DecimalMode(bool valore) {
    tipoNumero_ = valore ? kTipoDecimale : kTipoDoppio;
}

void JsonBag::IsArray(bool valore) {
    if (Count() > 0)
        throw Guasto(json::kUso, json::kIsArrayTardi);
    array_ = valore;
}

const Valore& JsonBag::Item(Chiave chiave) const {
    if (chiave.nulla())
        throw Guasto(json::kChiaveNulla, json::kChiaveErrata);
    if (array_ && !chiave.perIndice())
        throw Guasto(json::kUso, json::kArraySoloIndice);
    return valori_[posto(chiave)];
}

void JsonBag::Item(Chiave chiave, Valore valore) {
    if (!array_) {
        if (!chiave.perNome())
            throw Guasto(json::kUso, json::kOggettoCambio);
        poni(std::string(chiave.nome()), std::move(valore));
        return;
    }
    if (chiave.perNome())
        throw Guasto(json::kUso, json::kArrayCambio);
    if (chiave.nulla() || std::cmp_greater(chiave.indice(), Count()))
        accoda(std::move(valore));
    else {
        figli_ = figli_ || std::holds_alternative<std::unique_ptr<JsonBag>>(valore);
        valori_[postoDi(chiave.indice())] = std::move(valore);
    }
}

void JsonBag::Item(Chiave chiave, JsonBag&& figlio) {
    Item(chiave, std::make_unique<JsonBag>(std::move(figlio)));
}

std::string JsonBag::JSON() const {
    return ScrittoreJson(Indented).scrivi(*this);
}

void JsonBag::JSON(std::string_view testo) {
    const JsonBag prima(std::move(*this)); // the text may be one of its values
    Clear();
    LettoreJson(testo).leggi(*this);
}

const std::string& JsonBag::Name(std::int64_t indice) const {
    if (array_)
        throw Guasto(json::kUso, json::kArraySenzaNomi);
    return nomi_[postoDi(indice)];
}

JsonBag& JsonBag::AddNewArray(Chiave chiave) {
    auto figlio = nuovoFiglio(true);
    JsonBag& riferimento = *figlio;
    Item(chiave, std::move(figlio));
    return riferimento;
}

JsonBag& JsonBag::AddNewObject(Chiave chiave) {
    auto figlio = nuovoFiglio(false);
    JsonBag& riferimento = *figlio;
    Item(chiave, std::move(figlio));
    return riferimento;
}

void JsonBag::Clear() {
    JsonBag vuoto;
    vuoto.Indented = Indented;
    vuoto.tipoNumero_ = tipoNumero_;
    *this = std::move(vuoto);
}

bool JsonBag::Exists(Chiave chiave) const {
    return ignorandoGuasti([&] { static_cast<void>(Item(chiave)); });
}

const std::vector<std::string>& JsonBag::NewEnum() const {
    if (array_)
        throw Guasto(json::kUso, json::kArrayEnumerato);
    return nomi_;
}

void JsonBag::Remove(Chiave chiave) {
    if (array_ && !chiave.perIndice())
        throw Guasto(json::kUso, json::kArrayRimozione);
    if (chiave.nulla())
        throw Guasto(json::kChiaveNulla, json::kChiaveErrata);
    const auto dove = static_cast<std::ptrdiff_t>(posto(chiave));
    valori_.erase(valori_.begin() + dove);
    if (!array_)
        nomi_.erase(nomi_.begin() + dove);
    indice_.reset();
}

std::unique_ptr<JsonBag> JsonBag::nuovoFiglio(bool array) const {
    auto figlio = std::make_unique<JsonBag>();
    figlio->tipoNumero_ = tipoNumero_;
    figlio->array_ = array;
    return figlio;
}

/// Null for an object whose few names are quicker to look through.
json::IndiceNomi* JsonBag::indice() const {
    if (nomi_.size() <= kPochiNomi)
        return nullptr;
    if (!indice_)
        indice_ = std::make_unique<json::IndiceNomi>();
    return indice_.get();
}

std::size_t JsonBag::traPochi(std::string_view nome) const {
    const auto trovato = std::find(nomi_.begin(), nomi_.end(), nome);
    return trovato == nomi_.end() ? kAssente : static_cast<std::size_t>(trovato - nomi_.begin());
}

std::size_t JsonBag::posto(const Chiave& chiave) const {
    if (chiave.perIndice())
        return postoDi(chiave.indice());
    json::IndiceNomi* const molti = indice();
    const std::size_t trovato = molti ? molti->trova(nomi_, chiave.nome()) : traPochi(chiave.nome());
    if (trovato == kAssente)
        throw json::nomeAssente();
    return trovato;
}

std::size_t JsonBag::postoDi(std::int64_t indice) const {
    if (indice < 1 || std::cmp_greater(indice, Count()))
        throw Guasto(guasti::kIndice);
    return static_cast<std::size_t>(indice - 1);
}

void JsonBag::poni(std::string&& nome, Valore&& valore) {
    json::IndiceNomi* const molti = indice();
    const std::size_t trovato = molti ? molti->trovaPerAggiungere(nomi_, nome) : traPochi(nome);
    if (trovato == kAssente) {
        faiPosto(nomi_);
        nomi_.push_back(std::move(nome));
        accoda(std::move(valore));
        return;
    }
    figli_ = figli_ || std::holds_alternative<std::unique_ptr<JsonBag>>(valore);
    valori_[trovato] = std::move(valore);
}

void JsonBag::accoda(Valore&& valore) {
    figli_ = figli_ || std::holds_alternative<std::unique_ptr<JsonBag>>(valore);
    faiPosto(valori_);
    valori_.push_back(std::move(valore));
}

JsonBag& comeBag(const Valore& valore) {
    const auto* figlio = std::get_if<std::unique_ptr<JsonBag>>(&valore);
    if (figlio == nullptr || *figlio == nullptr)
        throw Guasto(guasti::kTipo);
    return **figlio;
}

} // namespace lumigrafo
