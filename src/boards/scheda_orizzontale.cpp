#include "boards/scheda_orizzontale.h"

#include <array>

namespace lumigrafo {

namespace {

constexpr std::array<RigaOrizzontale, 2> kOrizzontali{{
    {TipoVideata::frmLumigrafooRIZZ, true, false},
    {TipoVideata::frmLumigrafoOrizz9numeri, false, true},
}};

/// Room over the second row, and under it, once the third is gone.
constexpr Twip kStacco = aTwip(Pixel(20));

} // namespace

SchedaOrizzontale::SchedaOrizzontale(TipoVideata tipo, const ServiziSchede& servizi)
    : SchedaSfumata(tipo, SfondoCaselle::Schiarito, servizi),
      orizzontale_(tipo == kOrizzontali[0].tipo ? kOrizzontali[0] : kOrizzontali[1]) {}

void SchedaOrizzontale::vesti() {
    titoliReparti();
    for (int i = 0; i < riga().slot; ++i) {
        vestiPannello(i);
        modulo()("lblTitolo", i).ForeColor(modulo()("lblNumero1", i).ForeColor());
        for (int n = 1; n <= riga().grandi; ++n)
            carattereNumeri("Arial Blank", "72").metti(modulo()(etichettaNumero(n), i));
    }
    if (!servizi().console.RepartoInUso(2))
        togliTerzaFila();
    else if (orizzontale_.spentaConTerzo)
        pubblicita()->mostra(false);
}

void SchedaOrizzontale::togliTerzaFila() {
    Controllo& seconda = modulo()("picPannello", 1);
    Controllo& terza = modulo()("picPannello", 2);
    Controllo& picPubblicita = modulo()("picPubblicita");
    terza.Visible(false);
    seconda.Top(seconda.Top() + kStacco);
    picPubblicita.Top(seconda.Height() + seconda.Top() + kStacco);
    if (orizzontale_.cresceSenzaTerzo)
        picPubblicita.Height(picPubblicita.Height() + terza.Height());
}

} // namespace lumigrafo
