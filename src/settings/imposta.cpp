#include "settings/imposta.h"

#include "data/cls_recordset.h"
#include "data/istruzioni.h"
#include "platform/conversioni.h"
#include "settings/chiavi_imposta.h"
#include "settings/controllo_imposta.h"
#include "settings/layout_imposta.h"
#include "settings/pannello_tastiera.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lumigrafo {

namespace {

constexpr int kListeCategoria = 4;
constexpr std::array kTipi{"VERTICALE", "ORIZZONTALE", "PERSONALIZZATO", "LUM. UN REPARTO (BIG)",
                           "AVANTI IL PROSSIMO!"};

} // namespace

Imposta::Imposta(const ServiziImposta& servizi, std::function<void()> chiudi)
    : s_(servizi), chiudi_(std::move(chiudi)), ini_(servizi.ambiente.file(kFileImpostazioni)),
      controlli_(kLayoutImposta) {
    for (const char* tipo : kTipi)
        controlli_("cboTipoLumigrafo").AddItem(tipo);
    PreparaComboCategoria();
    for (const ChiaveImposta& chiave : chiaviImposta()) {
        leggi(ini_, controlli_, chiave);
        cambio(chiave.controllo, chiave.indice);
    }
}

/// A category is kept as its position in these lists, while the console takes the number for its code: the
/// two agree as long as the codes run 1, 2, 3 without a gap.
void Imposta::PreparaComboCategoria() {
    const auto inOgniLista = [this](const std::string& voce) {
        for (int i = 0; i < kListeCategoria; ++i)
            controlli_("cboCodCategoria", i).AddItem(voce);
    };
    for (int i = 0; i < kListeCategoria; ++i)
        controlli_("cboCodCategoria", i).Clear();
    clsRecordset rs(s_.richiami.contestoDati());
    rs.Apri("PreparaComboCategoria", true, istruzioni::kCategorie, false, true);
    inOgniLista("Non attivo");
    while (rs.Errore() == 0) {
        inOgniLista(rs.ilRecordset().Fields()["Descrizione"].Value().aTestoOVuoto());
        rs.LeggiNext("PreparaComboCategoria");
    }
    for (int i = 0; i < kListeCategoria; ++i)
        controlli_("cboCodCategoria", i).ListIndex(0);
    rs.Chiudi();
}

void Imposta::cambio(std::string_view nome, int indice) {
    if (nome == "cboTipoLumigrafo")
        cboTipoLumigrafo();
    else if (nome == "chkFiscale")
        chkFiscale();
    else if (nome == "sldVelocita" || nome == "sldVolume")
        controlli_(nome == "sldVolume" ? "lblVolume" : "lblVelocita")
            .Caption(std::to_string(controlli_(nome).Value()));
    else if (nome == "lblFont" || nome == "lblFontNumeri")
        controlli_(nome == "lblFont" ? "lblGrandezza" : "lblGrandezzaNumeri", indice)
            .Caption(aTesto(static_cast<float>(controlli_(nome, indice).FontSize()), separatoreDecimale()));
}

void Imposta::cboTipoLumigrafo() {
    const int tipo = controlli_("cboTipoLumigrafo").ListIndex();
    controlli_("chk9Numeri").Visible(tipo == kOrizzontale); // a tick in a hidden box stays
    controlli_("fraColoreNumeri").Visible(tipo == kAvantiProssimo);
}

void Imposta::chkFiscale() {
    const bool fiscale = controlli_("chkFiscale").Value() == 1;
    controlli_("cmdFiscale").Visible(fiscale);
    controlli_("cmdTestFiscale").Visible(fiscale);
}

bool Imposta::rifiuta(std::string_view nome, char32_t carattere) {
    if (nome != "txtNumeroMassimoRighe" && nome != "txtNumeroLampeggi")
        return false;
    return FiltroCifra(carattere) == 0;
}

void Imposta::cmdApplica() {
    if (const auto difetto = difettoDi(controlli_)) {
        s_.avvisi.chiedi({std::string(difetto->messaggio), "Attenzione", Icona::Esclamazione, Bottoni::Ok});
        if (difetto->fuocoSulTipo)
            controlli_("cboTipoLumigrafo").SetFocus();
        return;
    }
    scriviTutte(ini_, controlli_);
    s_.messaggi.MostraMessaggio("Salvataggio eseguito", 1);
    s_.richiami.ScaricaLumigrafo();
    s_.messaggi.MostraMessaggio("Riavviare l'applicazione con l'icona sul desktop", 2);
    chiudi_();
    s_.uscita.termina(0);
}

void Imposta::cmdResetta() {
    constexpr std::array<std::pair<const char*, int>, 4> kPosto{
        {{"Top", 0}, {"Left", 0}, {"Width", 12000}, {"Height", 9000}}};
    for (const auto& [chiave, valore] : kPosto)
        ini_.ScriviIni(kSezioneForm, chiave, valore);
}

void Imposta::cmdColore(Controllo& campione) {
    ColoriScelti colori{campione.BackColor().value_or(kNero).v, campione.ForeColor().v};
    s_.azioni.frmColore(colori);
    if (colori.ColoreSfondoScelto <= -1)
        return;
    campione.BackColor(Colore(colori.ColoreSfondoScelto));
    campione.ForeColor(Colore(colori.ColoreTestoScelto));
}

void Imposta::cmdFont(Controllo& campione) {
    CarattereScelto scelto{campione.FontName(), aTesto(static_cast<float>(campione.FontSize()))};
    s_.azioni.frmFontSize(scelto);
    campione.FontSize(aSingolo(scelto.DimensioneFontScelta));
    campione.FontName(scelto.NomeFontScelto);
    cambio(campione.disegno().nome, campione.disegno().indice);
}

void Imposta::cmdTestNumeriRandom() {
    s_.azioni.TimerVis();
    chiudi_();
}

void Imposta::fuoco(std::string_view nome) {
    seguiFuoco(controlli_, nome);
}

void Imposta::clicDestro(std::string_view nome, int) {
    if (nome == "Label")
        controlli_("cmdTestNumeriRandom").Visible(true);
}

void Imposta::clic(std::string_view nome, int indice) {
    struct Azione {
        std::string_view nome;
        void (*fai)(Imposta&, int indice);
    };
    static constexpr std::array kAzioni = {
        Azione{"cmdApplica", [](Imposta& i, int) { i.cmdApplica(); }},
        Azione{"cmdAnnulla",
               [](Imposta& i, int) {
                   i.s_.messaggi.MostraMessaggio("Nessuna modifica salvata", 1);
                   i.chiudi_();
               }},
        Azione{"cmdResetta", [](Imposta& i, int) { i.cmdResetta(); }},
        Azione{"cmdColore", [](Imposta& i, int q) { i.cmdColore(i.controlli_("lblColore", q)); }},
        Azione{"cmdColoreNumeri", [](Imposta& i, int) { i.cmdColore(i.controlli_("lblColoreNumeri")); }},
        Azione{"cmdFont", [](Imposta& i, int q) { i.cmdFont(i.controlli_("lblFont", q)); }},
        Azione{"cmdFontNumeri", [](Imposta& i, int) { i.cmdFont(i.controlli_("lblFontNumeri")); }},
        Azione{"cmdTestNumeriRandom", [](Imposta& i, int) { i.cmdTestNumeriRandom(); }},
        Azione{"cmdNascondiTastiera", [](Imposta& i, int) { i.controlli_("cboTipoLumigrafo").SetFocus(); }},
        Azione{"cmdAndroid", [](Imposta& i, int) { i.s_.azioni.frmImpoLumigrafoAndroid(); }},
        Azione{"cmdNumeri", [](Imposta& i, int) { i.s_.azioni.frmInserisciNumeri(); }},
        Azione{"cmdPosiziona", [](Imposta& i, int) { i.s_.azioni.frmSagoma(); }},
        Azione{"cmdImpoSchermo", [](Imposta& i, int) { i.s_.azioni.ApriImpostazioniSchermo(); }},
        Azione{"cmdFiscale", [](Imposta& i, int) { i.s_.azioni.ImpostazioniFiscali(); }},
        Azione{"cmdTestFiscale", [](Imposta& i, int) { i.s_.azioni.UtilitaFiscali(); }},
    };
    const auto azione =
        std::find_if(kAzioni.begin(), kAzioni.end(), [&](const Azione& a) { return a.nome == nome; });
    if (azione != kAzioni.end())
        azione->fai(*this, indice);
}

} // namespace lumigrafo
