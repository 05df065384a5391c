#include "settings/percorso_archivio.h"

#include "forms/verifica.h"
#include "settings/scelta_path.h"
#include "settings/stile.h"

#include <array>
#include <utility>

namespace lumigrafo {

namespace {

constexpr const char* kChiave = "DatabaseLumigrafo";

// clang-format off
constexpr std::array<Descrizione, 7> kControlli{{
    {.tipo = Tipo::Etichetta, .nome = "Label", .indice = 1, .rett = {225, 225, 13050, 600}, .carattere = stile::kIntestazione, .testo = stile::kTitolo, .caption = "Percorso di archivio.mdb"},
    {.tipo = Tipo::Casella, .nome = "txtPathDB", .rett = {225, 975, 12000, 900}, .carattere = stile::kCasella, .testo = stile::kTesto, .nomeAccessibile = "Percorso di archivio.mdb"},
    {.tipo = Tipo::Bottone, .nome = "cmdScegliPathDB", .rett = {12375, 975, 900, 900}, .figura = "cartella", .nomeAccessibile = "Scegli la cartella"},
    {.tipo = Tipo::Etichetta, .nome = "Label1", .rett = {225, 2025, 13050, 750}, .carattere = stile::kEtichetta, .testo = stile::kNota, .caption = "Attenzione, indicare soltanto il percorso del file MDB senza il nome (esempio \\\\ilserver\\condivisione)"},
    stile::bottone("cmdAnnulla", {225, 2925, 3675, 975}, "Annulla"),
    stile::conferma("cmdApplica", {9600, 2925, 3675, 975}, "Applica ed esci"),
    {.tipo = Tipo::Tastiera, .nome = "tastiera", .rett = {225, 4050, 13050, 4650}, .carattere = stile::kCasella, .nomeAccessibile = "Tastiera"},
}};
// clang-format on
static_assert(layoutValido(kControlli));

const Layout kLayout{"frmDatabase", "Impostazione Database", 13500, 8925, stile::kFondo, kControlli};

} // namespace

PercorsoArchivio::PercorsoArchivio(const ServiziPercorso& servizi, std::function<void()> chiudi)
    : s_(servizi), chiudi_(std::move(chiudi)), ini_(servizi.ambiente.file(kFileImpostazioni)),
      controlli_(kLayout) {
    controlli_("txtPathDB")
        .Caption(ini_.LeggiIni(kSezioneImpostazioni, kChiave, s_.ambiente.cartella.string()));
}

void PercorsoArchivio::cmdApplica() {
    ini_.ScriviIni(kSezioneImpostazioni, kChiave, controlli_("txtPathDB").Caption());
    s_.messaggi.MostraMessaggio("Salvataggio eseguito", 1);
    s_.processi.avvia(s_.ambiente.eseguibile, {"RIAVVIO"}, StileFinestra::Ridotta);
    chiudi_();
}

void PercorsoArchivio::clic(std::string_view nome, int) {
    Controllo& txtPathDB = controlli_("txtPathDB");
    if (nome == "cmdScegliPathDB") {
        txtPathDB.Caption(ScegliCartella(s_.sceltaCartella, "Scelta percorso database archivio.mdb",
                                         RichiestaCartella::kSoloFileSystem, RichiestaCartella::kRete,
                                         txtPathDB.Caption()));
        txtPathDB.SetFocus();
    } else if (nome == "cmdApplica") {
        cmdApplica();
    } else if (nome == "cmdAnnulla") {
        chiudi_();
    }
}

} // namespace lumigrafo
