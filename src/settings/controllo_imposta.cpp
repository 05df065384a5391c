#include "settings/controllo_imposta.h"

#include "platform/conversioni.h"

#include <array>

namespace lumigrafo {

namespace {

bool categoria(const Controlli& c, int i) {
    return c("cboCodCategoria", i).ListIndex() > 0;
}

bool altreCategorie(const Controlli& c) {
    return categoria(c, 1) || categoria(c, 2) || categoria(c, 3);
}

int tipo(const Controlli& c) {
    return c("cboTipoLumigrafo").ListIndex();
}

bool bottoneAvanti(const Controlli& c) {
    return c("chkBottoneAvanti").Value() == 1;
}

struct Prova {
    bool (*scatta)(const Controlli&);
    DifettoImposta difetto;
};

constexpr std::array<Prova, 5> kProve{{
    // A further category of quadrant 1 passes here, unlike below.
    {[](const Controlli& c) { return tipo(c) == kUnRepartoBig && (categoria(c, 1) || categoria(c, 2)); },
     {"Lumigrafo per un reparto big, va impostato per la gestione di una sola categoria", true}},
    // A ticked box holds 1, so this never fires.
    {[](const Controlli& c) { return c("chk9Numeri").Value() == kVero && tipo(c) != kOrizzontale; },
     {"Lumigrafo 9 numeri possibile solo con formato Orizzontale", true}},
    {[](const Controlli& c) { return tipo(c) == kAvantiProssimo && altreCategorie(c); },
     {"Impostare solo la prima categoria (una a caso) per il sistema -Avanti il prossimo-"}},
    {[](const Controlli& c) { return bottoneAvanti(c) && altreCategorie(c); },
     {"Impostare solo la prima categoria (una a caso) con spunta Bottone prossimo numero"}},
    {[](const Controlli& c) {
         return bottoneAvanti(c) && (tipo(c) == kVerticale || tipo(c) == kAvantiProssimo);
     },
     {"Tipo lumigrafo non valido con spunta Bottone prossimo numero"}},
}};

} // namespace

std::optional<DifettoImposta> difettoDi(Controlli& controlli) {
    for (const Prova& prova : kProve)
        if (prova.scatta(controlli))
            return prova.difetto;
    Controllo& txtCasse = controlli("txtCasse");
    if (trim(txtCasse.Caption()).empty())
        txtCasse.Caption("0");
    if (!isNumeric(txtCasse.Caption()))
        return DifettoImposta{"Il numero di casse deve essere numerico!"};
    return std::nullopt;
}

char32_t FiltroCifra(char32_t carattere) {
    const char32_t c = carattere == U'.' ? U',' : carattere;
    return c < 0x80 && isNumeric(std::string(1, static_cast<char>(c))) ? c : 0;
}

} // namespace lumigrafo
