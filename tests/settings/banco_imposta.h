#pragma once

#include "platform/conversioni.h"
#include "settings/chiavi_imposta.h"
#include "settings/imposta.h"
#include "settings/ini/cp1252.h"
#include "tests/console/banco.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <span>
#include <sstream>

namespace lumigrafo::prova {

/// Notes what the dialog opens; the pickers answer as a test says.
class AzioniFinte : public AzioniImposta, Annotatore {
public:
    explicit AzioniFinte(Diario& diario) : Annotatore(diario) {}
    std::function<void(ColoriScelti&)> colore = [](ColoriScelti&) {};
    std::function<void(CarattereScelto&)> carattere = [](CarattereScelto&) {};
    void frmColore(ColoriScelti& c) override { colore(c); }
    void frmFontSize(CarattereScelto& c) override { carattere(c); }
    void frmImpoLumigrafoAndroid() override { annota("frmImpoLumigrafoAndroid"); }
    void frmInserisciNumeri() override { annota("frmInserisciNumeri"); }
    void frmSagoma() override { annota("frmSagoma"); }
    void ImpostazioniFiscali() override { annota("ImpostazioniFiscali"); }
    void UtilitaFiscali() override { annota("UtilitaFiscali"); }
    void ApriImpostazioniSchermo() override { annota("ApriImpostazioniSchermo"); }
    void TimerVis() override { annota("TimerVis"); }
};

/// The dialog over a console that has opened its archive and no board.
class ImpostaTest : public testing::Test, protected Banco {
protected:
    AzioniFinte azioni{diario};

    ImpostaTest() {
        stato.Ws = &DBEngine::Workspaces(0);
        stato.Db = stato.Ws->OpenDatabase(ambiente.file(kFileArchivio).string());
    }
    std::unique_ptr<Imposta> apri() {
        return std::make_unique<Imposta>(
            ServiziImposta{ambiente, messaggi, avvisi, uscita, console().richiami(), azioni},
            [this] { diario.emplace_back("chiusa"); });
    }
    std::string leggiChiave(std::string_view chiave) {
        return impostazioni.LeggiIni(kSezioneImpostazioni, chiave, "manca");
    }
    std::string file() {
        std::stringstream testo;
        testo << std::ifstream(impostazioni.file()).rdbuf();
        return testo.str();
    }
    void diSolitoFinisce() {
        EXPECT_EQ(diario.front(), "messaggio Salvataggio eseguito") << "as after a save that went well";
        EXPECT_EQ(diario.back(), "fine 0");
        EXPECT_TRUE(avvisi.mostrati.empty());
    }
    /// Saves, as far as the tests let it.
    void applica(Imposta& i) {
        try {
            i.clic("cmdApplica", kSenzaIndice);
        } catch (const FineProcesso&) {
        }
    }
};

/// What the control's property shows, as the key's text.
inline std::string mostrato(Controlli& controlli, std::string_view nome, int indice, Proprieta proprieta) {
    const Controllo& c = controlli(nome, indice);
    switch (proprieta) {
    case Proprieta::Testo:
        return c.Caption();
    case Proprieta::Posizione:
        return std::to_string(c.ListIndex());
    case Proprieta::Valore:
        return std::to_string(c.Value());
    case Proprieta::FontName:
        return c.FontName();
    case Proprieta::FontSize:
        return aTesto(static_cast<float>(c.FontSize()));
    case Proprieta::ForeColor:
        return std::to_string(c.ForeColor().v);
    case Proprieta::BackColor:
        return std::to_string(c.BackColor()->v);
    }
    return {};
}

struct Caso {
    const char *chiave, *controllo;
    int indice;
    Proprieta proprieta;
    const char *predefinito, *altro; ///< another value that the key can hold
};

inline constexpr int kNo = kSenzaIndice;
// In the order of the saving.
inline const std::vector<Caso> kCasi{
    {"FontNumeri", "lblFontNumeri", kNo, Proprieta::FontName, "Arial Blank", "Verdana"},
    {"FontSizeNumeri", "lblFontNumeri", kNo, Proprieta::FontSize, "72", "23.5"},
    {"TipoLumigrafo", "cboTipoLumigrafo", kNo, Proprieta::Posizione, "0", "2"},
    {"Categoria0", "cboCodCategoria", 0, Proprieta::Posizione, "0", "1"},
    {"Categoria1", "cboCodCategoria", 1, Proprieta::Posizione, "0", "3"},
    {"Categoria2", "cboCodCategoria", 2, Proprieta::Posizione, "0", "2"},
    {"Categoria3", "cboCodCategoria", 3, Proprieta::Posizione, "0", "1"},
    {"ColoreTesto0", "lblColore", 0, Proprieta::ForeColor, "16777215", "255"},
    {"ColoreTesto1", "lblColore", 1, Proprieta::ForeColor, "16777215", "65280"},
    {"ColoreTesto2", "lblColore", 2, Proprieta::ForeColor, "16777215", "0"},
    {"ColoreSfondo0", "lblColore", 0, Proprieta::BackColor, "0", "128"},
    {"ColoreSfondo1", "lblColore", 1, Proprieta::BackColor, "0", "8388608"},
    {"ColoreSfondo2", "lblColore", 2, Proprieta::BackColor, "0", "16777215"},
    {"FontTesto0", "lblFont", 0, Proprieta::FontName, "Arial Narrow", "Arial"},
    {"FontTesto1", "lblFont", 1, Proprieta::FontName, "Arial Narrow", "Courier New"},
    {"FontTesto2", "lblFont", 2, Proprieta::FontName, "Arial Narrow", "Fantasia"},
    {"FontSizeTesto0", "lblFont", 0, Proprieta::FontSize, "48", "300"},
    {"FontSizeTesto1", "lblFont", 1, Proprieta::FontSize, "48", "8.25"},
    {"FontSizeTesto2", "lblFont", 2, Proprieta::FontSize, "48", "50"},
    {"NumeroMassimoRighe", "txtNumeroMassimoRighe", kNo, Proprieta::Testo, "50", "7"},
    {"NumeroLampeggi", "txtNumeroLampeggi", kNo, Proprieta::Testo, "20", "3"},
    {"Vocale", "chkVocale", kNo, Proprieta::Valore, "0", "1"},
    {"VelocitaVocale", "sldVelocita", kNo, Proprieta::Valore, "0", "-10"},
    {"VolumeVocale", "sldVolume", kNo, Proprieta::Valore, "100", "35"},
    {"DicituraVocale", "txtDicitura", kNo, Proprieta::Testo, "Numero", "È pronto il"},
    {"TitoloLumigrafo", "txtTitolo", kNo, Proprieta::Testo, "STIAMO SERVENDO I NUMERI", "SERVIAMO IL"},
    {"PubblicitaMirtolanda", "chkPubblicitaMirtolanda", kNo, Proprieta::Valore, "0", "1"},
    {"ResizePubblicita", "chkResizePubblicita", kNo, Proprieta::Valore, "0", "1"},
    {"Posiziona", "chkPosiziona", kNo, Proprieta::Valore, "0", "1"},
    {"Lumigrafo9Numeri", "chk9Numeri", kNo, Proprieta::Valore, "0", "1"},
    {"QuanteCasse", "txtCasse", kNo, Proprieta::Testo, "5", "3"},
    {"ColoreNumeriTesto", "lblColoreNumeri", kNo, Proprieta::ForeColor, "0", "16711680"},
    {"ColoreNumeriSfondo", "lblColoreNumeri", kNo, Proprieta::BackColor, "16777215", "1"},
    {"BottoneAvanti", "chkBottoneAvanti", kNo, Proprieta::Valore, "0", "1"},
    {"ScontrinoFiscale", "chkFiscale", kNo, Proprieta::Valore, "0", "1"},
};

using Valori = std::map<std::string, std::string>;

/// All keys at their default, or at the other value.
inline Valori valori(const char* Caso::*quale) {
    Valori tutti;
    for (const Caso& c : kCasi)
        tutti[c.chiave] = c.*quale;
    return tutti;
}

/// The file as the dialog writes it: its first keys, or all.
inline std::string salvato(const Valori& valori, std::size_t quante = kCasi.size()) {
    std::string testo = "[Impostazioni]\r\n";
    for (const Caso& c : std::span(kCasi).first(quante))
        testo += std::string(c.chiave) + "=" + valori.at(c.chiave) + "\r\n";
    return aCp1252(testo);
}

} // namespace lumigrafo::prova
