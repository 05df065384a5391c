#include "boards/scheda_avanti_prossimo.h"

#include "boards/colori.h"
#include "platform/conversioni.h"

namespace lumigrafo {

namespace {

constexpr int kCasse = 5;
/// What more desks than there are rows come to: the index of the last row.
constexpr int kCasseOltre = kCasse - 1;
constexpr int kChiarore = 30;

int rigaDi(const std::string& Cassa) {
    return Cassa.size() == 1 && Cassa[0] >= 'A' && Cassa[0] < 'A' + kCasse ? Cassa[0] - 'A' : 0;
}

} // namespace

void SchedaAvantiProssimo::vesti() {
    const CarattereNumeri carattere = carattereNumeri("Arial Narrow", 100);
    int QuanteCasse = aIntero16(impostazione("QuanteCasse", 5));
    if (QuanteCasse > kCasse)
        QuanteCasse = kCasseOltre;
    for (int i = 0; i < QuanteCasse; ++i) {
        modulo()("picPannello", i).Visible(true);
        modulo()("lblNumero", i).Caption("");
    }
    coloraFile(carattere);
    disponiStrisce(QuanteCasse);
    if (QuanteCasse == 2)
        disponiDueCasse();
}

void SchedaAvantiProssimo::coloraFile(const CarattereNumeri& carattere) {
    for (int i = 0; i < kCasse; ++i) {
        const Colore testo = colore("ColoreTesto", 0, 16777215);
        modulo()("lblCassa", i).ForeColor(testo);
        modulo()("lblDescrCassa", i).ForeColor(testo);
        Controllo& pannello = modulo()("picPannello", i);
        pannello.Sfumatura2(colore("ColoreSfondo", 0, 65280));
        modulo()("picNumero", i).BackColor(Colore(aIntero32(impostazione("ColoreNumeriSfondo", 16777215))));
        Controllo& numero = modulo()("lblNumero", i);
        numero.ForeColor(Colore(aIntero32(impostazione("ColoreNumeriTesto", 0))));
        pannello.Sfumatura1(coloreSpostato(pannello.Sfumatura2(), kChiarore));
        carattere.metti(numero);
    }
}

void SchedaAvantiProssimo::disponiStrisce(int QuanteCasse) {
    const bool unaRiga = QuanteCasse >= kCasse || QuanteCasse == 2;
    modulo()(unaRiga ? "FraMirtolanda2" : "FraMirtolanda").Visible(false);
    Controllo& striscia = modulo()(unaRiga ? "FraMirtolanda" : "FraMirtolanda2");
    striscia.Visible(true);
    striscia.ZOrder();
}

void SchedaAvantiProssimo::disponiDueCasse() {
    Controllo& prima = modulo()("picPannello", 0);
    Controllo& seconda = modulo()("picPannello", 1);
    prima.Height(prima.Height() * 1.5);
    seconda.Height(seconda.Height() * 1.5);
    seconda.Top(seconda.Top() * 1.5);
    ingrandisci(0);
    ingrandisci(1);
    Controllo& picPubblicita = modulo()("picPubblicita");
    picPubblicita.Top(seconda.Height() + seconda.Top());
    picPubblicita.Height(modulo()("FraMirtolanda").Top() - picPubblicita.Top());
    pubblicita()->mostra(true);
}

void SchedaAvantiProssimo::ingrandisci(int cassa) {
    Controllo& descrizione = modulo()("lblDescrCassa", cassa);
    Controllo& lettera = modulo()("lblCassa", cassa);
    Controllo& casella = modulo()("picNumero", cassa);
    Controllo& numero = modulo()("lblNumero", cassa);
    descrizione.FontSize(descrizione.FontSize() * 1.7);
    lettera.FontSize(lettera.FontSize() * 1.7);
    casella.Height(casella.Height() * 1.5);
    descrizione.Height(descrizione.Height() * 1.7);
    lettera.Height(lettera.Height() * 1.5);
    numero.Height(casella.Height());
    lettera.Left(lettera.Left() + 500); // in the panel, whose measure is twips
    numero.Caption("---");
    numero.Top(0);
}

void SchedaAvantiProssimo::Lampeggia(const std::string& Cassa, const std::string& Numero) {
    const int cassa = rigaDi(Cassa);
    modulo()("lblNumero", cassa).Caption(Numero);
    lampeggio(cassa).prosegui();
}

void SchedaAvantiProssimo::faseLampeggio(int slot, bool usuale) {
    modulo()("lblNumero", slot).Visible(usuale);
}

} // namespace lumigrafo
