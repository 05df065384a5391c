#pragma once

#include "console/caricatore.h"
#include "settings/richiami.h"

namespace lumigrafo {

/// The console as its dialogs see it.
class Richiami final : public RichiamiConsole {
public:
    Richiami(ContestoConsole& contesto, Caricatore& caricatore) : c_(contesto), caricatore_(caricatore) {}

    void CaricaVideataInizio(bool periodica) override { caricatore_.CaricaVideataInizio(periodica); }
    void AggiornaDBLumigrafoCucina(const std::string& sigla, const std::string& numero, std::int16_t index,
                                   std::int16_t servito) override;
    void SincronizzaLumAndroid(std::int16_t last) override { c_.porte.android.SincronizzaLumAndroid(last); }
    void Parla(const std::string& testo) override { c_.porte.parlante.Parla(testo); }
    void ScaricaLumigrafo() override;
    [[nodiscard]] std::string lblReparto(int quadrante) const override;
    [[nodiscard]] std::int16_t Categoria(int quadrante) const override;
    [[nodiscard]] Controlli& frmVideata() override { return c_.frmVideata().controlli(); }
    void RidisegnaVideata() override { c_.frmVideata().Ridisegna(); }
    [[nodiscard]] ContestoDati contestoDati() override { return caricatore_.contestoDati(); }

private:
    ContestoConsole& c_;
    Caricatore& caricatore_;
};

} // namespace lumigrafo
