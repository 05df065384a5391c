#include "settings/scelta_carattere.h"

#include "forms/verifica.h"
#include "platform/conversioni.h"
#include "settings/stile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lumigrafo {

namespace {

constexpr Corsa kCorsa{24, 250, 2, 5};
constexpr std::array<const char*, 8> kFont{"Arial",       "Arial Narrow",         "Courier New",
                                           "Verdana",     "Comic Sans MS",        "Times New Roman",
                                           "Arial Black", "Franklin Gothic Heavy"};

// clang-format off
constexpr std::array<Descrizione, 7> kControlli{{
    {.tipo = Tipo::Lista, .nome = "lstFont", .rett = {225, 225, 3900, 5820}, .carattere = stile::kCasella, .nomeAccessibile = "Tipo di carattere"},
    {.tipo = Tipo::Bottone, .nome = "cmdArt", .rett = {4350, 225, 10545, 5820}, .testo = stile::kTesto, .sfondo = stile::kCarta, .caption = "ANTEPRIMA", .quota = true},
    {.tipo = Tipo::Gruppo, .nome = "fraDimensione", .rett = {225, 6270, 14670, 1500}},
    {.tipo = Tipo::Etichetta, .nome = "lblDimensione", .padre = "fraDimensione", .rett = {225, 150, 2700, 1200}, .carattere = stile::kEtichetta, .testo = stile::kTesto, .caption = "Dimensione carattere"},
    {.tipo = Tipo::Cursore, .nome = "sldFontSize", .padre = "fraDimensione", .rett = {3000, 375, 9945, 750}, .nomeAccessibile = "Dimensione carattere", .corsa = kCorsa},
    {.tipo = Tipo::Etichetta, .nome = "lblValore", .padre = "fraDimensione", .rett = {13095, 150, 1350, 1200}, .carattere = stile::kIntestazione, .allineamento = Allineamento::Centro, .testo = stile::kTitolo},
    stile::conferma("cmdOk", {11595, 7995, 3300, 1050}, "OK"),
}};
// clang-format on
static_assert(layoutValido(kControlli));

const Layout kLayout{"frmFontSize", "Dimensione carattere", 15120, 9270, stile::kFondo, kControlli};

/// The slider holds whole sizes between its ends.
int sullaCorsa(const std::string& dimensione) {
    const double intera = arrotonda(aDoppio(dimensione));
    return static_cast<int>(std::clamp<double>(intera, kCorsa.minimo, kCorsa.massimo));
}

} // namespace

SceltaCarattere::SceltaCarattere(CarattereScelto& scelto, std::function<void()> chiudi)
    : scelto_(scelto), chiudi_(std::move(chiudi)), controlli_(kLayout) {
    Controllo& lista = controlli_("lstFont");
    for (const char* font : kFont)
        lista.AddItem(font);
    lista.ListIndex(0);
    controlli_("sldFontSize").Value(sullaCorsa(scelto_.DimensioneFontScelta));
    sldFontSize();
    const auto trovato = std::find(kFont.begin(), kFont.end(), scelto_.NomeFontScelto);
    if (trovato != kFont.end())
        lista.ListIndex(static_cast<int>(trovato - kFont.begin()));
    lstFont();
}

void SceltaCarattere::sldFontSize() {
    const int valore = controlli_("sldFontSize").Value();
    controlli_("lblValore").Caption(std::to_string(valore));
    controlli_("cmdArt").FontSize(valore);
}

void SceltaCarattere::lstFont() {
    const Controllo& lista = controlli_("lstFont");
    if (lista.ListIndex() >= 0)
        controlli_("cmdArt").FontName(kFont.at(static_cast<std::size_t>(lista.ListIndex())));
}

void SceltaCarattere::cambio(std::string_view nome, int) {
    if (nome == "sldFontSize")
        sldFontSize();
    else if (nome == "lstFont")
        lstFont();
}

void SceltaCarattere::clic(std::string_view nome, int) {
    if (nome != "cmdOk")
        return;
    scelto_ = {controlli_("cmdArt").FontName(), std::to_string(controlli_("sldFontSize").Value())};
    chiudi_();
}

} // namespace lumigrafo
