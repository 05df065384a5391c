#pragma once

#include "boards/scheda.h"

namespace lumigrafo {

/// The board of the next-customer system: one row a cash desk, "A" to "E", with the number that it serves.
class SchedaAvantiProssimo : public Scheda {
public:
    explicit SchedaAvantiProssimo(const ServiziSchede& servizi)
        : Scheda(TipoVideata::frmAvantiProssimo, servizi) {}

    /// The console calls no numbers here.
    void Blinka(std::int16_t) override {}
    /// A letter that no desk has counts as "A". A blink that is running goes on to its end with the new
    /// number.
    void Lampeggia(const std::string& Cassa, const std::string& Numero) override;

protected:
    void vesti() override;
    void faseLampeggio(int slot, bool usuale) override;

private:
    void coloraFile(const CarattereNumeri& carattere);
    void disponiStrisce(int QuanteCasse);
    void disponiDueCasse();
    void ingrandisci(int cassa);
};

} // namespace lumigrafo
