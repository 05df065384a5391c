#include "settings/impo_lumigrafo_android.h"

#include "forms/verifica.h"
#include "platform/conversioni.h"
#include "settings/pannello_tastiera.h"
#include "settings/scelta_path.h"
#include "settings/stile.h"

#include <array>
#include <string>
#include <utility>

namespace lumigrafo {

namespace {

constexpr int kLumigrafi = 3;
constexpr Corsa kCorsa{0, 100, 2, 2};

/// The controls of one board's frame.
constexpr std::array<Descrizione, 6> lumigrafo(int i, std::string_view cornice, std::string_view titolo) {
    const double left = 225.0 + i * 4500;
    // clang-format off
    return {{
        {.tipo = Tipo::Gruppo, .nome = "FrameAndroid", .indice = i, .rett = {left, 225, 4350, 3600}, .carattere = stile::kGruppo, .testo = stile::kTitolo, .caption = titolo},
        {.tipo = Tipo::Etichetta, .nome = "lblIP", .indice = i, .padre = cornice, .rett = {225, 450, 3900, 375}, .carattere = stile::kEtichetta, .testo = stile::kTesto, .caption = "Indirizzo IP"},
        {.tipo = Tipo::Casella, .nome = "txtIP", .indice = i, .padre = cornice, .rett = {225, 825, 3900, 825}, .carattere = stile::kCasella, .testo = stile::kTesto, .nomeAccessibile = "Indirizzo IP"},
        {.tipo = Tipo::Etichetta, .nome = "lblFont", .indice = i, .padre = cornice, .rett = {225, 1800, 1830, 750}, .carattere = stile::kEtichetta, .testo = stile::kTesto, .caption = "Dimensione font (0 = automatico)"},
        {.tipo = Tipo::Etichetta, .nome = "lblValore", .indice = i, .padre = cornice, .rett = {3375, 1800, 750, 750}, .carattere = stile::kIntestazione, .allineamento = Allineamento::Destra, .testo = stile::kTitolo},
        {.tipo = Tipo::Cursore, .nome = "sldFont", .indice = i, .padre = cornice, .rett = {225, 2625, 3900, 750}, .nomeAccessibile = "Dimensione font (0 = automatico)", .corsa = kCorsa},
    }};
    // clang-format on
}

// clang-format off
constexpr std::array<Descrizione, 9> kResto{{
    {.tipo = Tipo::Gruppo, .nome = "fraPubblicita", .rett = {225, 3975, 13350, 2475}, .carattere = stile::kGruppo, .testo = stile::kTitolo, .caption = "Cartella di rete per pubblicità"},
    {.tipo = Tipo::Casella, .nome = "txtPathPubblicita", .padre = "fraPubblicita", .rett = {225, 525, 11850, 825}, .carattere = stile::kCasella, .testo = stile::kTesto, .nomeAccessibile = "Cartella di rete per pubblicità"},
    {.tipo = Tipo::Bottone, .nome = "cmdScegliPath", .padre = "fraPubblicita", .rett = {12225, 525, 900, 825}, .figura = "cartella", .nomeAccessibile = "Scegli la cartella"},
    {.tipo = Tipo::Etichetta, .nome = "lblNotaPath", .padre = "fraPubblicita", .rett = {225, 1425, 12900, 900}, .carattere = stile::kEtichetta, .testo = stile::kNota,
     .caption = "Inserire il percorso di una cartella condivisa nel formato '\\\\server\\cartella', dove presenti il file pubblicit*.jpg da proiettare nel lumigrafo. "},
    {.tipo = Tipo::Gruppo, .nome = "fraSolo", .rett = {225, 6675, 13350, 1125}},
    {.tipo = Tipo::Spunta, .nome = "chkSoloAndroid", .padre = "fraSolo", .rett = {225, 150, 4800, 825}, .carattere = stile::kCasella, .testo = stile::kTesto, .caption = "Solo lumigrafo Android", .scelta = 's'},
    {.tipo = Tipo::Etichetta, .nome = "lblNotaSolo", .padre = "fraSolo", .rett = {5250, 150, 7875, 825}, .carattere = stile::kEtichetta, .testo = stile::kNota, .caption = "Non verrà visualizzato il lumigrafo collegato a questa postazione"},
    stile::bottone("cmdAnnulla", {225, 8175, 3675, 1125}, "Annulla"),
    stile::conferma("cmdApplica", {9900, 8175, 3675, 1125}, "Conferma"),
}};
// clang-format on

constexpr auto kControlli =
    unisci(lumigrafo(0, "FrameAndroid(0)", "Lumigrafo 1"), lumigrafo(1, "FrameAndroid(1)", "Lumigrafo 2"),
           lumigrafo(2, "FrameAndroid(2)", "Lumigrafo 3"), kResto, pannelloTastiera({0, 5475, 13800, 4125}));
static_assert(layoutValido(kControlli));

const Layout kLayout{"frmImpoLumigrafoAndroid",
                     "Impostazioni per invio dati a lumigrafo Android",
                     13800,
                     9600,
                     stile::kFondo,
                     kControlli};

std::string chiave(const char* nome, int i) {
    return nome + std::to_string(i);
}

/// In lower case, with the accented letters of Latin-1: they are two bytes, of which the second tells the
/// case.
std::string tuttoMinuscolo(std::string testo) {
    testo = minuscolo(testo);
    for (std::size_t i = 1; i < testo.size(); ++i) {
        const auto b = static_cast<unsigned char>(testo[i]);
        if (testo[i - 1] == '\xC3' && b >= 0x80 && b <= 0x9E && b != 0x97) // 97: the sign of times
            testo[i] = static_cast<char>(b + 0x20);
    }
    return testo;
}

} // namespace

ImpoLumigrafoAndroid::ImpoLumigrafoAndroid(const Ambiente& ambiente, SceltaCartella& sceltaCartella,
                                           std::function<void()> chiudi)
    : ini_(ambiente.file(kFileImpostazioni)), sceltaCartella_(sceltaCartella), chiudi_(std::move(chiudi)),
      controlli_(kLayout) {
    for (int i = 0; i < kLumigrafi; ++i) {
        controlli_("txtIP", i).Caption(ini_.LeggiIni(kSezioneAndroid, chiave("IpLumDroid", i)));
        controlli_("sldFont", i)
            .Value(aIntero16(ini_.LeggiIni(kSezioneAndroid, chiave("FontGruppiDroid", i), 0)));
        cambio("sldFont", i);
    }
    controlli_("txtPathPubblicita").Caption(ini_.LeggiIni(kSezioneAndroid, "PathPubblicita"));
    controlli_("chkSoloAndroid").Value(aIntero16(ini_.LeggiIni(kSezioneAndroid, "SoloAndroid", 0)));
}

void ImpoLumigrafoAndroid::fuoco(std::string_view nome) {
    seguiFuoco(controlli_, nome);
}

void ImpoLumigrafoAndroid::cambio(std::string_view nome, int indice) {
    if (nome == "sldFont")
        controlli_("lblValore", indice).Caption(std::to_string(controlli_("sldFont", indice).Value()));
}

void ImpoLumigrafoAndroid::cmdApplica() {
    for (int i = 0; i < kLumigrafi; ++i) {
        ini_.ScriviIni(kSezioneAndroid, chiave("IpLumDroid", i), controlli_("txtIP", i).Caption());
        ini_.ScriviIni(kSezioneAndroid, chiave("FontGruppiDroid", i), controlli_("sldFont", i).Value());
    }
    ini_.ScriviIni(kSezioneAndroid, "PathPubblicita",
                   trim(tuttoMinuscolo(controlli_("txtPathPubblicita").Caption())));
    ini_.ScriviIni(kSezioneAndroid, "SoloAndroid", controlli_("chkSoloAndroid").Value());
    chiudi_();
}

void ImpoLumigrafoAndroid::clic(std::string_view nome, int) {
    Controllo& txtPathPubblicita = controlli_("txtPathPubblicita");
    if (nome == "cmdScegliPath") {
        txtPathPubblicita.Caption(ScegliCartella(sceltaCartella_, "Scelta percorso cartella pubblicità",
                                                 RichiestaCartella::kSoloFileSystem, RichiestaCartella::kRete,
                                                 txtPathPubblicita.Caption()));
        txtPathPubblicita.SetFocus();
    } else if (nome == "cmdNascondiTastiera") {
        controlli_("chkSoloAndroid").SetFocus();
    } else if (nome == "cmdApplica") {
        cmdApplica();
    } else if (nome == "cmdAnnulla") {
        chiudi_();
    }
}

} // namespace lumigrafo
