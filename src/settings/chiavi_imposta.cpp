#include "settings/chiavi_imposta.h"

#include "platform/conversioni.h"

#include <algorithm>
#include <array>

namespace lumigrafo {

namespace {

using enum Proprieta;

// clang-format off
constexpr std::array<ChiaveImposta, 35> kChiavi{{
    {"TipoLumigrafo", "cboTipoLumigrafo", kSenzaIndice, Posizione, "0"},
    {"Categoria0", "cboCodCategoria", 0, Posizione, "0"},
    {"Categoria1", "cboCodCategoria", 1, Posizione, "0"},
    {"Categoria2", "cboCodCategoria", 2, Posizione, "0"},
    {"Categoria3", "cboCodCategoria", 3, Posizione, "0"},
    {"FontNumeri", "lblFontNumeri", kSenzaIndice, FontName, "Arial Blank"},
    {"FontSizeNumeri", "lblFontNumeri", kSenzaIndice, FontSize, "72"},
    {"ColoreTesto0", "lblColore", 0, ForeColor, "16777215"},
    {"ColoreSfondo0", "lblColore", 0, BackColor, "0"},
    {"FontTesto0", "lblFont", 0, FontName, "Arial Narrow"},
    {"FontSizeTesto0", "lblFont", 0, FontSize, "48"},
    {"ColoreTesto1", "lblColore", 1, ForeColor, "16777215"},
    {"ColoreSfondo1", "lblColore", 1, BackColor, "0"},
    {"FontTesto1", "lblFont", 1, FontName, "Arial Narrow"},
    {"FontSizeTesto1", "lblFont", 1, FontSize, "48"},
    {"ColoreTesto2", "lblColore", 2, ForeColor, "16777215"},
    {"ColoreSfondo2", "lblColore", 2, BackColor, "0"},
    {"FontTesto2", "lblFont", 2, FontName, "Arial Narrow"},
    {"FontSizeTesto2", "lblFont", 2, FontSize, "48"},
    {"NumeroMassimoRighe", "txtNumeroMassimoRighe", kSenzaIndice, Testo, "50"},
    {"NumeroLampeggi", "txtNumeroLampeggi", kSenzaIndice, Testo, "20"},
    {"Vocale", "chkVocale", kSenzaIndice, Valore, "0"},
    {"VolumeVocale", "sldVolume", kSenzaIndice, Valore, "100"},
    {"VelocitaVocale", "sldVelocita", kSenzaIndice, Valore, "0"},
    {"DicituraVocale", "txtDicitura", kSenzaIndice, Testo, "Numero"},
    {"TitoloLumigrafo", "txtTitolo", kSenzaIndice, Testo, "STIAMO SERVENDO I NUMERI"},
    {"PubblicitaMirtolanda", "chkPubblicitaMirtolanda", kSenzaIndice, Valore, "0"},
    {"ResizePubblicita", "chkResizePubblicita", kSenzaIndice, Valore, "0"},
    {"Posiziona", "chkPosiziona", kSenzaIndice, Valore, "0"},
    {"Lumigrafo9Numeri", "chk9Numeri", kSenzaIndice, Valore, "0"},
    {"QuanteCasse", "txtCasse", kSenzaIndice, Testo, "5"},
    {"ColoreNumeriTesto", "lblColoreNumeri", kSenzaIndice, ForeColor, "0"},
    {"ColoreNumeriSfondo", "lblColoreNumeri", kSenzaIndice, BackColor, "16777215"},
    {"BottoneAvanti", "chkBottoneAvanti", kSenzaIndice, Valore, "0"},
    {"ScontrinoFiscale", "chkFiscale", kSenzaIndice, Valore, "0"},
}};

constexpr std::array<std::string_view, kChiavi.size()> kOrdineSalvataggio{
    "FontNumeri", "FontSizeNumeri", "TipoLumigrafo", "Categoria0", "Categoria1", "Categoria2", "Categoria3",
    "ColoreTesto0", "ColoreTesto1", "ColoreTesto2", "ColoreSfondo0", "ColoreSfondo1", "ColoreSfondo2",
    "FontTesto0", "FontTesto1", "FontTesto2", "FontSizeTesto0", "FontSizeTesto1", "FontSizeTesto2",
    "NumeroMassimoRighe", "NumeroLampeggi", "Vocale", "VelocitaVocale", "VolumeVocale", "DicituraVocale",
    "TitoloLumigrafo", "PubblicitaMirtolanda", "ResizePubblicita", "Posiziona", "Lumigrafo9Numeri", "QuanteCasse",
    "ColoreNumeriTesto", "ColoreNumeriSfondo", "BottoneAvanti", "ScontrinoFiscale",
};
// clang-format on

/// Each key is saved, and none twice.
static_assert(std::all_of(kChiavi.begin(), kChiavi.end(), [](const ChiaveImposta& k) {
    return std::count(kOrdineSalvataggio.begin(), kOrdineSalvataggio.end(), k.chiave) == 1;
}));

ValoreIni valoreDi(const Controllo& c, Proprieta proprieta) {
    switch (proprieta) {
    case Posizione:
        return c.ListIndex();
    case Valore:
        return c.Value();
    case FontName:
        return c.FontName();
    case FontSize:
        return static_cast<float>(c.FontSize());
    case ForeColor:
        return c.ForeColor().v;
    case BackColor:
        return c.BackColor().value_or(kNero).v;
    case Testo:
        break;
    }
    return c.Caption();
}

} // namespace

std::span<const ChiaveImposta> chiaviImposta() {
    return kChiavi;
}

void leggi(const FileIni& ini, Controlli& controlli, const ChiaveImposta& chiave) {
    Controllo& c = controlli(chiave.controllo, chiave.indice);
    const std::string letto = ini.LeggiIni(kSezioneImpostazioni, chiave.chiave, chiave.predefinito);
    switch (chiave.proprieta) {
    case Testo:
        return c.Caption(letto);
    case Posizione:
        return c.ListIndex(aIntero16(letto));
    case Valore:
        return c.Value(aIntero16(letto));
    case FontName:
        return c.FontName(letto);
    case FontSize:
        return c.FontSize(aSingolo(letto));
    case ForeColor:
        return c.ForeColor(Colore(aIntero32(letto)));
    case BackColor:
        return c.BackColor(Colore(aIntero32(letto)));
    }
}

void scriviTutte(const FileIni& ini, const Controlli& controlli) {
    for (const std::string_view nome : kOrdineSalvataggio) {
        const auto chiave = std::find_if(kChiavi.begin(), kChiavi.end(),
                                         [&](const ChiaveImposta& k) { return k.chiave == nome; });
        ini.ScriviIni(kSezioneImpostazioni, nome,
                      valoreDi(controlli(chiave->controllo, chiave->indice), chiave->proprieta));
    }
}

} // namespace lumigrafo
