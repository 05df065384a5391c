#include "settings/layout_imposta.h"

#include "forms/verifica.h"
#include "settings/pannello_tastiera.h"
#include "settings/stile.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr double kLarghezza = 1008, kAltezza = 728;
constexpr double kTastiera = 272; // five rows as high as a finger is broad

/// Places are told in pixels of the smallest screen.
constexpr Rettangolo px(double x, double y, double larghezza, double altezza) {
    return {x * kTwipPerPixel, y * kTwipPerPixel, larghezza * kTwipPerPixel, altezza * kTwipPerPixel};
}

constexpr Descrizione gruppo(std::string_view nome, Rettangolo rett, std::string_view titolo = {}) {
    return {.tipo = Tipo::Gruppo,
            .nome = nome,
            .rett = rett,
            .carattere = stile::kGruppo,
            .testo = stile::kTitolo,
            .caption = titolo};
}

constexpr Descrizione etichetta(std::string_view nome, int indice, std::string_view padre, Rettangolo rett,
                                std::string_view testo) {
    return {.tipo = Tipo::Etichetta,
            .nome = nome,
            .indice = indice,
            .padre = padre,
            .rett = rett,
            .carattere = stile::kEtichetta,
            .testo = stile::kTesto,
            .caption = testo};
}

constexpr Descrizione lista(std::string_view nome, int indice, Rettangolo rett, std::string_view cosa) {
    return {.tipo = Tipo::Combo,
            .nome = nome,
            .indice = indice,
            .padre = "fraLumigrafo",
            .rett = rett,
            .carattere = stile::kEtichetta,
            .nomeAccessibile = cosa};
}

constexpr Descrizione casella(std::string_view nome, std::string_view padre, Rettangolo rett,
                              std::string_view cosa, int massima = 0, Carattere carattere = stile::kCasella) {
    return {.tipo = Tipo::Casella,
            .nome = nome,
            .padre = padre,
            .rett = rett,
            .carattere = carattere,
            .testo = stile::kTesto,
            .nomeAccessibile = cosa,
            .lunghezzaMassima = massima};
}

constexpr Descrizione spunta(std::string_view nome, std::string_view padre, Rettangolo rett,
                             std::string_view testo, char scelta) {
    return {.tipo = Tipo::Spunta,
            .nome = nome,
            .padre = padre,
            .rett = rett,
            .carattere = stile::kEtichetta,
            .testo = stile::kTesto,
            .caption = testo,
            .scelta = scelta};
}

constexpr Descrizione cursore(std::string_view nome, Rettangolo rett, std::string_view cosa, Corsa corsa) {
    return {.tipo = Tipo::Cursore,
            .nome = nome,
            .padre = "fraVoce",
            .rett = rett,
            .nomeAccessibile = cosa,
            .corsa = corsa};
}

constexpr Descrizione bottone(std::string_view nome, std::string_view padre, Rettangolo rett,
                              std::string_view testo, char scelta = 0, int indice = kSenzaIndice,
                              std::string_view cosa = {}) {
    return {.tipo = Tipo::Bottone,
            .nome = nome,
            .indice = indice,
            .padre = padre,
            .rett = rett,
            .carattere = {"Arial", 11.25, true},
            .testo = stile::kTesto,
            .caption = testo,
            .nomeAccessibile = cosa,
            .scelta = scelta};
}

/// A label that shows what a font or a pair of colours looks like.
constexpr Descrizione campione(std::string_view nome, int indice, std::string_view padre, Rettangolo rett,
                               std::string_view testo) {
    Descrizione d = etichetta(nome, indice, padre, rett, testo);
    d.carattere = {"Arial", 13.5, true};
    d.allineamento = Allineamento::Centro;
    d.sfondo = rgb(230, 235, 240);
    return d;
}

/// One that holds a font and its size, of those that the picker gives.
constexpr Descrizione campioneCarattere(std::string_view nome, int indice, Rettangolo rett,
                                        std::string_view testo) {
    Descrizione d = campione(nome, indice, "fraColori", rett, testo);
    d.corsa = {.minimo = 24, .massimo = 250};
    return d;
}

/// The size of the font beside it.
constexpr Descrizione grandezza(std::string_view nome, int indice, double y) {
    Descrizione d = etichetta(nome, indice, "fraColori", px(532, y, 46, 48), "");
    d.allineamento = Allineamento::Centro;
    d.testo = stile::kTitolo;
    return d;
}

constexpr Descrizione nascosto(Descrizione d) {
    d.visibile = false;
    return d;
}

// clang-format off
constexpr std::array kTesta{
    Descrizione{.tipo = Tipo::Etichetta, .nome = "Label", .indice = 0, .rett = px(14, 8, 380, 48), .carattere = stile::kIntestazione,
                .testo = stile::kTitolo, .caption = "Impostazioni lumigrafo", .cliccabile = true},
};

constexpr std::array kLumigrafo{
    gruppo("fraLumigrafo", px(12, 62, 392, 326)),
    lista("cboTipoLumigrafo", kSenzaIndice, px(12, 10, 252, 48), "Tipo lumigrafo"),
    spunta("chk9Numeri", "fraLumigrafo", px(274, 10, 110, 48), "9 numeri", 'u'),
    etichetta("lblCategoria", 0, "fraLumigrafo", px(12, 62, 178, 48), "Categoria quadrante 1"),
    lista("cboCodCategoria", 0, px(192, 62, 188, 48), "Categoria quadrante 1"),
    etichetta("lblCategoria", 3, "fraLumigrafo", px(12, 114, 178, 48), "Ulter. categ x quadrante 1"),
    lista("cboCodCategoria", 3, px(192, 114, 188, 48), "Ulter. categ x quadrante 1"),
    etichetta("lblCategoria", 1, "fraLumigrafo", px(12, 166, 178, 48), "Categoria quadrante 2"),
    lista("cboCodCategoria", 1, px(192, 166, 188, 48), "Categoria quadrante 2"),
    etichetta("lblCategoria", 2, "fraLumigrafo", px(12, 218, 178, 48), "Categoria quadrante 3"),
    lista("cboCodCategoria", 2, px(192, 218, 188, 48), "Categoria quadrante 3"),
    etichetta("lblTitolo", kSenzaIndice, "fraLumigrafo", px(12, 270, 112, 48), "Titolo lumigrafo"),
    casella("txtTitolo", "fraLumigrafo", px(126, 270, 254, 48), "Titolo lumigrafo", 0, stile::kEtichetta),
};

/// Colours and font of one quadrant.
constexpr std::array<Descrizione, 6> quadrante(int i, std::string_view titolo, std::string_view colore,
                                               std::string_view font) {
    const double y = 62.0 + i * 52;
    return {
        etichetta("lblQuadrante", i, "fraColori", px(12, y, 98, 48), titolo),
        bottone("cmdColore", "fraColori", px(114, y, 96, 48), "Colore", 'o', i, colore),
        campione("lblColore", i, "fraColori", px(216, y, 136, 48), "Testo esempio"),
        bottone("cmdFont", "fraColori", px(358, y, 70, 48), "Font", 'f', i, font),
        campioneCarattere("lblFont", i, px(434, y, 96, 48), "XXX"),
        grandezza("lblGrandezza", i, y),
    };
}

constexpr auto kColori = unisci(
    std::array{
        gruppo("fraColori", px(412, 62, 584, 222)),
        bottone("cmdFontNumeri", "fraColori", px(12, 10, 198, 48), "Font Numeri", 'm'),
        campioneCarattere("lblFontNumeri", kSenzaIndice, px(216, 10, 314, 48), "123"),
        grandezza("lblGrandezzaNumeri", kSenzaIndice, 10),
    },
    quadrante(0, "Quadrante 1", "Colore quadrante 1", "Font quadrante 1"),
    quadrante(1, "Quadrante 2", "Colore quadrante 2", "Font quadrante 2"),
    quadrante(2, "Quadrante 3", "Colore quadrante 3", "Font quadrante 3"));

constexpr std::array kNumeri{
    gruppo("fraAvanti", px(412, 292, 288, 96), "Avanti il prossimo"),
    etichetta("lblCasse", kSenzaIndice, "fraAvanti", px(12, 30, 126, 60), "Numero di casse (siglate con A, B, C ecc)"),
    casella("txtCasse", "fraAvanti", px(142, 36, 54, 48), "Numero di casse"),
    nascosto(bottone("cmdTestNumeriRandom", "fraAvanti", px(202, 36, 78, 48), "Test numeri random")),
    nascosto(gruppo("fraColoreNumeri", px(708, 292, 288, 96), "Colore numeri")),
    bottone("cmdColoreNumeri", "fraColoreNumeri", px(12, 36, 140, 48), "Colore numeri", 'c'),
    campione("lblColoreNumeri", kSenzaIndice, "fraColoreNumeri", px(160, 36, 116, 48), "123"),
    gruppo("fraGriglie", px(412, 396, 584, 62)),
    etichetta("lblNumeroMassimoRighe", kSenzaIndice, "fraGriglie", px(12, 8, 262, 48), "Numero massimo di righe nelle griglie di gestione"),
    casella("txtNumeroMassimoRighe", "fraGriglie", px(278, 8, 76, 48), "Numero massimo di righe nelle griglie di gestione", 3),
    etichetta("lblNumeroLampeggi", kSenzaIndice, "fraGriglie", px(366, 8, 128, 48), "Numero lampeggi"),
    casella("txtNumeroLampeggi", "fraGriglie", px(496, 8, 76, 48), "Numero lampeggi", 3),
};

constexpr std::array kVoce{
    gruppo("fraVoce", px(12, 396, 392, 242)),
    spunta("chkVocale", "fraVoce", px(12, 56, 368, 48), "Pronuncia vocale", 'v'),
    etichetta("lblDicitura", kSenzaIndice, "fraVoce", px(12, 6, 184, 48), "Dicitura (valido solo per 1  quadrante)"),
    casella("txtDicitura", "fraVoce", px(200, 6, 180, 48), "Dicitura"),
    etichetta("lblTestoVelocita", kSenzaIndice, "fraVoce", px(12, 116, 132, 48), "Velocità pronuncia"),
    cursore("sldVelocita", px(148, 114, 176, 50), "Velocità pronuncia", {-10, 10, 1, 5}),
    etichetta("lblVelocita", kSenzaIndice, "fraVoce", px(334, 116, 46, 48), ""),
    etichetta("lblTestoVolume", kSenzaIndice, "fraVoce", px(12, 176, 132, 48), "Volume"),
    cursore("sldVolume", px(148, 174, 176, 50), "Volume", {0, 100, 1, 5}),
    etichetta("lblVolume", kSenzaIndice, "fraVoce", px(334, 176, 46, 48), ""),
};

constexpr std::array kOpzioni{
    gruppo("fraOpzioni", px(412, 466, 584, 172), "Opzioni"),
    spunta("chkFiscale", "fraOpzioni", px(12, 26, 252, 48), "Emetti scontrino fiscale", 'e'),
    bottone("cmdFiscale", "fraOpzioni", px(280, 22, 142, 48), "Impo fiscali", 'l'),
    bottone("cmdTestFiscale", "fraOpzioni", px(430, 22, 142, 48), "Test fiscale", 'i'),
    spunta("chkBottoneAvanti", "fraOpzioni", px(12, 74, 252, 48), "Bottone per richiamo prossimo numero", 'b'),
    spunta("chkPosiziona", "fraOpzioni", px(280, 74, 296, 48), "Posiziona automaticamente lumigrafo su 2' schermo all'avvio", 'z'),
    spunta("chkPubblicitaMirtolanda", "fraOpzioni", px(12, 122, 252, 48), "Pannello pubblicità fornitore software", 'w'),
    spunta("chkResizePubblicita", "fraOpzioni", px(280, 122, 296, 48), "Adatta automaticamente immagini pubblicità", 'g'),
};

constexpr std::array kBottoni{
    bottone("cmdAndroid", "", px(412, 8, 288, 48), "Impostazioni lumigrafo Android", 'd'),
    bottone("cmdImpoSchermo", "", px(708, 8, 288, 48), "Apri impostazioni schermo", 's'),
    bottone("cmdNumeri", "", px(12, 652, 192, 64), "Inserisci numeri per test", 't'),
    bottone("cmdPosiziona", "", px(212, 652, 192, 64), "Posiziona nello schermo esteso", 'p'),
    bottone("cmdResetta", "", px(412, 652, 206, 64), "Resetta posizione videata lumigrafo", 'r'),
    stile::bottone("cmdAnnulla", px(636, 652, 150, 64), "Annulla"),
    stile::conferma("cmdApplica", px(794, 652, 202, 64), "Applica ed esci"),
};
// clang-format on

constexpr auto kControlli = unisci(kTesta, kLumigrafo, kColori, kNumeri, kVoce, kOpzioni, kBottoni,
                                   pannelloTastiera(px(0, kAltezza - kTastiera, kLarghezza, kTastiera)));
static_assert(layoutValido(kControlli));

} // namespace

const Layout kLayoutImposta{"frmImposta",  "Impostazioni", kLarghezza* kTwipPerPixel, kAltezza* kTwipPerPixel,
                            stile::kFondo, kControlli};

} // namespace lumigrafo
