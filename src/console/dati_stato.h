#pragma once

#include "announce/annunciatore_vocale.h"
#include "announce/emissione_fiscale.h"
#include "boards/scheda.h"
#include "console/servito.h"
#include "console/stato.h"
#include "links/collegamento_android.h"
#include "platform/guasto.h"

namespace lumigrafo {

/// What boards, voice, receipts and Android link see of the console's running state.
class DatiDaStato final : public DatiConsole, public DatiVoce, public DatiFiscali, public DatiAndroid {
public:
    explicit DatiDaStato(StatoConsole& stato) : s_(stato) {}

    [[nodiscard]] std::string Reparto(int quadrante) const override {
        return s_.Reparto.at(static_cast<std::size_t>(quadrante));
    }
    [[nodiscard]] bool RepartoInUso(int quadrante) const override {
        return s_.Categoria.at(static_cast<std::size_t>(quadrante)) != 0;
    }
    [[nodiscard]] bool SoloAndroid() const override { return s_.SoloAndroid; }
    [[nodiscard]] std::int16_t VelocitaVocale() const override { return s_.VelocitaVocale; }
    [[nodiscard]] std::int16_t VolumeVocale() const override { return s_.VolumeVocale; }
    [[nodiscard]] bool& VoceAttiva() override { return s_.VoceAttiva; }
    [[nodiscard]] bool Lumigrafo9Numeri() const override { return s_.Lumigrafo9Numeri; }
    [[nodiscard]] LumigrafoAndroid& IpDroid(std::size_t i) override { return s_.IpDroid.at(i); }
    [[nodiscard]] std::string scritta(const std::string& etichetta, int indice) override {
        return s_.videataInUso().controlli()(etichetta, indice).Caption();
    }
    [[nodiscard]] Database& Db() override { return aperto(s_.Db.get()); }
    [[nodiscard]] Workspace& Ws() override { return aperto(s_.Ws); }
    [[nodiscard]] std::string PathDB() const override { return s_.PathDB; }
    [[nodiscard]] std::int32_t DataCompetenzaSql() const override { return SqlDate(s_.DataCompetenza); }

private:
    /// Throws Guasto 91 where the archive hasn't been opened yet.
    template <typename T>
    [[nodiscard]] static T& aperto(T* oggetto) {
        if (!oggetto)
            throw Guasto(guasti::kOggettoMancante);
        return *oggetto;
    }

    StatoConsole& s_;
};

} // namespace lumigrafo
