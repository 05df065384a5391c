#include "settings/sfoglia_cartelle.h"

#include "forms/verifica.h"
#include "platform/conversioni.h"
#include "settings/stile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lumigrafo {

namespace {

// clang-format off
constexpr std::array<Descrizione, 10> kControlli{{
    {.tipo = Tipo::Etichetta, .nome = "lblTitolo", .rett = {225, 150, 13050, 600}, .carattere = stile::kIntestazione, .testo = stile::kTitolo},
    stile::bottone("cmdSu", {225, 825, 3675, 825}, "Cartella superiore"),
    {.tipo = Tipo::Etichetta, .nome = "lblPercorso", .rett = {4050, 825, 9225, 825}, .carattere = stile::kCasella, .testo = stile::kTesto, .sfondo = stile::kCarta},
    {.tipo = Tipo::Etichetta, .nome = "lblLuoghi", .rett = {225, 1725, 3675, 450}, .carattere = stile::kGruppo, .testo = stile::kTitolo, .caption = "Posizioni"},
    {.tipo = Tipo::Etichetta, .nome = "lblCartelle", .rett = {4050, 1725, 9225, 450}, .carattere = stile::kGruppo, .testo = stile::kTitolo, .caption = "Cartelle"},
    {.tipo = Tipo::Lista, .nome = "lstLuoghi", .rett = {225, 2175, 3675, 5925}, .carattere = stile::kCasella, .nomeAccessibile = "Posizioni"},
    {.tipo = Tipo::Lista, .nome = "lstCartelle", .rett = {4050, 2175, 9225, 5925}, .carattere = stile::kCasella, .nomeAccessibile = "Cartelle"},
    {.tipo = Tipo::Etichetta, .nome = "lblVuota", .rett = {4275, 2400, 8775, 750}, .carattere = stile::kEtichetta, .testo = stile::kNota},
    stile::bottone("cmdAnnulla", {225, 8325, 3675, 975}, "Annulla"),
    stile::conferma("cmdOk", {7725, 8325, 5550, 975}, "Scegli questa cartella"),
}};
// clang-format on
static_assert(layoutValido(kControlli));

const Layout kLayout{"frmCartelle", "Scelta cartella", 13500, 9525, stile::kFondo, kControlli};

std::filesystem::path percorso(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

std::string testo(const std::filesystem::path& p) {
    const auto u8 = p.u8string();
    return {u8.begin(), u8.end()};
}

/// False where it can't be looked at, too.
bool cartellaVera(const std::filesystem::path& p) {
    std::error_code ec;
    return std::filesystem::is_directory(p, ec);
}

/// The folders inside, by name; those whose names begin with a point are the system's own. Nothing where the
/// folder can't be read.
std::optional<std::vector<std::filesystem::path>> sottocartelle(const std::filesystem::path& cartella) {
    std::vector<std::filesystem::path> dentro;
    std::error_code ec;
    for (std::filesystem::directory_iterator i(cartella, ec), fine; !ec && i != fine; i.increment(ec))
        if (!testo(i->path().filename()).starts_with('.') && cartellaVera(i->path()))
            dentro.push_back(i->path().filename());
    if (ec)
        return std::nullopt;
    std::sort(dentro.begin(), dentro.end(),
              [](const auto& a, const auto& b) { return minuscolo(testo(a)) < minuscolo(testo(b)); });
    return dentro;
}

} // namespace

SfogliaCartelle::SfogliaCartelle(const RichiestaCartella& richiesta, std::vector<Luogo> luoghi,
                                 std::string& scelta, std::function<void()> chiudi)
    : luoghi_(std::move(luoghi)), scelta_(scelta), chiudi_(std::move(chiudi)), controlli_(kLayout) {
    controlli_("lblTitolo").Caption(richiesta.titolo);
    for (const Luogo& luogo : luoghi_)
        controlli_("lstLuoghi").AddItem(luogo.nome + (luogo.rete ? " (rete)" : ""));
    vai(inizio(richiesta));
}

std::filesystem::path SfogliaCartelle::inizio(const RichiestaCartella& richiesta) const {
    const auto attuale = percorso(richiesta.attuale).lexically_normal();
    const auto contiene = [&](const Luogo& luogo) {
        const auto relativo = attuale.lexically_relative(luogo.cartella);
        return luogo.rete && !relativo.empty() && *relativo.begin() != "..";
    };
    if (std::any_of(luoghi_.begin(), luoghi_.end(), contiene) && cartellaVera(attuale))
        return attuale;
    // Without a network the whole computer, the last place, is where to begin.
    return (luoghi_.front().rete ? luoghi_.front() : luoghi_.back()).cartella;
}

void SfogliaCartelle::vai(const std::filesystem::path& cartella) {
    cartella_ = cartella;
    const auto trovate = sottocartelle(cartella);
    dentro_ = trovate.value_or(std::vector<std::filesystem::path>());
    std::vector<std::string> nomi(dentro_.size());
    std::transform(dentro_.begin(), dentro_.end(), nomi.begin(), testo);
    controlli_("lstCartelle").Voci(std::move(nomi));
    controlli_("lblPercorso").Caption(testo(cartella_));
    Controllo& vuota = controlli_("lblVuota");
    vuota.Caption(trovate ? "Nessuna cartella qui dentro" : "La cartella non è accessibile");
    vuota.Visible(dentro_.empty());
    controlli_("cmdSu").Enabled(cartella_.has_relative_path());
}

void SfogliaCartelle::clic(std::string_view nome, int) {
    const auto posizione = [&](const char* lista) {
        return static_cast<std::size_t>(controlli_(lista).ListIndex());
    };
    if (nome == "lstLuoghi") {
        vai(luoghi_.at(posizione("lstLuoghi")).cartella);
    } else if (nome == "lstCartelle") {
        vai(cartella_ / dentro_.at(posizione("lstCartelle")));
    } else if (nome == "cmdSu") {
        vai(cartella_.parent_path());
    } else if (nome == "cmdOk") {
        scelta_ = testo(cartella_);
        chiudi_();
    } else if (nome == "cmdAnnulla") {
        chiudi_();
    }
}

} // namespace lumigrafo
