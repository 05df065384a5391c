#pragma once

#include "boards/scheda.h"
#include "boards/videata.h"

#include <memory>

namespace lumigrafo {

/// The board in use, of whatever kind: loads it at its first use and anew after each unload. An unload can
/// come at any moment that lets events through: inside its own load, from its own click, in the middle of a
/// routine of the console. What a load cut short returns is a board that nobody sees.
class VideataLumigrafo : public Videata {
public:
    VideataLumigrafo(TipoVideata tipo, const ServiziSchede& servizi, FabbricaFinestre finestre);

    /// The reference holds until the unload after the next one: a routine that was interrupted by an unload
    /// writes to controls that are out of sight.
    Controlli& controlli() override;
    [[nodiscard]] bool caricata() const override { return scheda_ != nullptr; }
    void Mostra() override;
    void Nascondi() override;
    void Ridisegna() override;
    void Riduci(bool ridotta) override;
    void Posiziona(const Rettangolo& posto) override;
    void Blinka(std::int16_t indice) override;
    void Lampeggia(const std::string& Cassa, const std::string& Numero) override;
    void Scarica() override;

private:
    std::shared_ptr<Scheda> carica();
    [[nodiscard]] EventiFinestra eventi();
    void clic(std::string_view nome);

    TipoVideata tipo_;
    ServiziSchede servizi_;
    FabbricaFinestre finestre_;
    std::shared_ptr<Scheda> scheda_;
    std::shared_ptr<Controlli> scaricati_; ///< those of the last board unloaded
};

} // namespace lumigrafo
