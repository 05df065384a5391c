#include "console/ripetizione.h"

#include "console/chiamata.h"
#include "console/ultimi_chiamati.h"

namespace lumigrafo {

namespace {

/// Entries that the panel shows, out of the eleven that are kept.
constexpr int kMostrati = 8;

} // namespace

Ripetizione::Ripetizione(ContestoConsole& contesto) : c_(contesto) {
    using namespace std::chrono_literals;
    TimerfraNumero_ = c_.porte.timers.crea(3000ms, [this] {
        c_.controlli("fraNumeri").Visible(false);
        TimerfraNumero_->abilita(false);
    });
}

void Ripetizione::annuncia(int quadrante, const std::string& testo) {
    if (c_.stato.Vocale && !testo.empty())
        c_.porte.annunciatore.AccodaAnnuncio(testoAnnuncio(c_, quadrante, testo));
}

void Ripetizione::lblNumero(int quadrante) {
    annuncia(quadrante, c_.controlli("lblNumero", quadrante).Caption());
}

void Ripetizione::cmdNumero(int quadrante) {
    TimerfraNumero_->abilita(false);
    Controllo& pannello = c_.controlli("fraNumeri");
    pannello.Visible(false);
    for (int i = 0; i < kMostrati; ++i)
        c_.controlli("lblNumeroPrec", i)
            .Caption(c_.ultimi.LeggiIni(kSezioneUltimi, chiaveUltimo(quadrante, i)));
    pannello.Left(c_.controlli("lblNumero", quadrante).Left());
    pannello.Visible(true);
    pannello.ZOrder();
    quadranteAperto_ = quadrante;
    TimerfraNumero_->abilita(true);
}

void Ripetizione::lblNumeroPrec(int indice) {
    annuncia(quadranteAperto_, c_.controlli("lblNumeroPrec", indice).Caption());
    c_.controlli("fraNumeri").Visible(false);
}

} // namespace lumigrafo
