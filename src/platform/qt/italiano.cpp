#include "platform/qt/italiano.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lumigrafo {

namespace {

struct Voce {
    std::string_view testo;
    const char* italiano;
};

// clang-format off
constexpr std::array<Voce, 55> kVoci{{
    {"&Undo", "&Annulla"},
    {"&Redo", "&Ripristina"},
    {"Cu&t", "&Taglia"},
    {"&Copy", "&Copia"},
    {"&Paste", "&Incolla"},
    {"Delete", "Elimina"},
    {"Select All", "Seleziona tutto"},

    {"Scroll here", "Scorri fin qui"},
    {"Top", "In cima"},
    {"Bottom", "In fondo"},
    {"Page up", "Pagina su"},
    {"Page down", "Pagina giù"},
    {"Scroll up", "Scorri su"},
    {"Scroll down", "Scorri giù"},
    {"Left edge", "Tutto a sinistra"},
    {"Right edge", "Tutto a destra"},
    {"Page left", "Pagina a sinistra"},
    {"Page right", "Pagina a destra"},
    {"Scroll left", "Scorri a sinistra"},
    {"Scroll right", "Scorri a destra"},

    {"Look in:", "Cerca in:"},
    {"File &name:", "&Nome file:"},
    {"Files of type:", "Tipo di file:"},
    {"&Open", "&Apri"},
    {"Open", "Apri"},
    {"Cancel", "Annulla"},
    {"Back", "Indietro"},
    {"Forward", "Avanti"},
    {"Parent Directory", "Cartella superiore"},
    {"Go back", "Torna indietro"},
    {"Go forward", "Vai avanti"},
    {"Go to the parent directory", "Vai alla cartella superiore"},
    {"Create New Folder", "Crea una cartella"},
    {"Create a New Folder", "Crea una cartella"},
    {"List View", "Elenco"},
    {"Detail View", "Dettagli"},
    {"Change to list view mode", "Mostra come elenco"},
    {"Change to detail view mode", "Mostra i dettagli"},
    {"Sidebar", "Luoghi"},
    {"List of places and bookmarks", "Elenco dei luoghi"},
    {"Files", "File"},
    {"&Rename", "&Rinomina"},
    {"&Delete", "&Elimina"},
    {"&New Folder", "Nuo&va cartella"},
    {"Show &hidden files", "Mostra i file na&scosti"},
    {"Show ", "Mostra "},
    {"Remove", "Togli"},
    {"Drive", "Unità"},
    {"Folder", "Cartella"},
    {"Name", "Nome"},
    {"Size", "Dimensione"},
    {"Type", "Tipo"},
    {"Date Modified", "Ultima modifica"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nIl file non c'è.\nControllare il nome scritto."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nLa cartella non c'è.\nControllare il nome scritto."},
}};
// clang-format on

} // namespace

QString Italiano::translate(const char*, const char* testo, const char*, int) const {
    const auto* voce =
        std::find_if(kVoci.begin(), kVoci.end(), [testo](const Voce& v) { return v.testo == testo; });
    return voce == kVoci.end() ? QString() : QString::fromUtf8(voce->italiano);
}

} // namespace lumigrafo
