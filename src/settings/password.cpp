#include "settings/password.h"

#include "forms/verifica.h"
#include "settings/stile.h"

#include <array>
#include <chrono>
#include <utility>

namespace lumigrafo {

using namespace std::chrono_literals;

namespace {

constexpr Twip kLarghezza = 5400;
constexpr Twip kAltezza = 8700;
constexpr Colore kContorno = rgb(31, 79, 128);
constexpr Carattere kCifra{"Arial", 24, true};
constexpr Carattere kStelle{"Arial", 26, true};

/// The keypad's places, column and row from the top left.
constexpr Rettangolo posto(int colonna, int riga) {
    return {300.0 + colonna * 1635, 2100.0 + riga * 1260, 1530, 1155};
}

constexpr Descrizione tastoNumero(int cifra, std::string_view scritta, int colonna, int riga) {
    return {.tipo = Tipo::Bottone,
            .nome = "xpcmd1",
            .indice = cifra,
            .rett = posto(colonna, riga),
            .carattere = kCifra,
            .testo = stile::kTesto,
            .caption = scritta};
}

// clang-format off
constexpr std::array<Descrizione, 17> kControlli{{
    {.tipo = Tipo::Riquadro, .nome = "Shape1", .rett = {0, 0, kLarghezza, kAltezza}, .sfondo = kContorno},
    {.tipo = Tipo::Riquadro, .nome = "picFondo", .rett = {45, 45, kLarghezza - 90, kAltezza - 90}, .sfondo = stile::kFondo},
    {.tipo = Tipo::Etichetta, .nome = "lblMessaggio", .rett = {300, 225, 4800, 600}, .carattere = stile::kIntestazione,
     .allineamento = Allineamento::Centro, .testo = stile::kErrore},
    {.tipo = Tipo::Etichetta, .nome = "lblPass", .rett = {300, 900, 4800, 900}, .carattere = kStelle,
     .allineamento = Allineamento::Centro, .testo = stile::kTesto, .sfondo = stile::kCarta, .nomeAccessibile = "Cifre digitate"},
    tastoNumero(7, "7", 0, 0), tastoNumero(8, "8", 1, 0), tastoNumero(9, "9", 2, 0),
    tastoNumero(4, "4", 0, 1), tastoNumero(5, "5", 1, 1), tastoNumero(6, "6", 2, 1),
    tastoNumero(1, "1", 0, 2), tastoNumero(2, "2", 1, 2), tastoNumero(3, "3", 2, 2),
    stile::bottone("cmdreset", posto(0, 3), "Reset"),
    tastoNumero(0, "0", 1, 3),
    stile::conferma("cmdOK", posto(2, 3), "OK"),
    stile::bottone("cmdAnnulla", {300, 7350, 4800, 1050}, "Annulla"),
}};
// clang-format on
static_assert(layoutValido(kControlli));

const Layout kLayoutPassword{
    "frmPassword", "INSERIRE LA PASSWORD NUMERICA", kLarghezza, kAltezza, stile::kFondo, kControlli};

} // namespace

Password::Password(const ServiziPassword& servizi, DomandaPassword& domanda, std::function<void()> chiudi)
    : s_(servizi), domanda_(domanda), chiudi_(std::move(chiudi)), controlli_(kLayoutPassword) {
    azzera();
    controlli_("lblMessaggio").Caption(domanda_.MessaggioPassword);
}

void Password::azzera() {
    cifre_.clear();
    controlli_("lblPass").Caption("");
}

void Password::cifra(int i) {
    cifre_ += static_cast<char>('0' + i);
    controlli_("lblPass").Caption(std::string(cifre_.size(), '*'));
}

bool Password::tasto(char32_t carattere) {
    if (carattere < U'0' || carattere > U'9')
        return false;
    const int i = static_cast<int>(carattere - U'0');
    cifra(i);
    Controllo& bottone = controlli_("xpcmd1", i);
    bottone.Enabled(false);
    s_.pompa.cedi("frmPassword/tasto");
    s_.orologio.attendi(100ms);
    bottone.Enabled(true);
    return true;
}

void Password::cmdOK() {
    const bool giusta = cifre_ == domanda_.PasswordAttesa;
    if (giusta) {
        domanda_.EsitoPassword = kVero;
        chiudi_();
    } else {
        controlli_("lblMessaggio").Caption("Password errata, riprovare");
        azzera();
    }
    s_.sistema.bip();
}

void Password::clic(std::string_view nome, int indice) {
    if (nome == "xpcmd1") {
        cifra(indice);
    } else if (nome == "cmdOK") {
        cmdOK();
    } else if (nome == "cmdreset") {
        azzera();
    } else if (nome == "cmdAnnulla") {
        domanda_.EsitoPassword = kFalso;
        s_.sistema.bip();
        chiudi_();
    }
}

} // namespace lumigrafo
