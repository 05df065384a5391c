#pragma once

#include "links/collegamenti.h"
#include "links/documento_lumigrafo.h"
#include "platform/cliente_tcp.h"
#include "platform/notifiche.h"
#include "platform/orologio.h"
#include "settings/ini/ini.h"

namespace lumigrafo {

/// What the link sees of the console and its board.
class DatiAndroid {
public:
    virtual ~DatiAndroid() = default;
    [[nodiscard]] virtual bool Lumigrafo9Numeri() const = 0;
    /// The boards, 0 to 2.
    [[nodiscard]] virtual LumigrafoAndroid& IpDroid(std::size_t i) = 0;
    /// What the operator sees above a quadrant; empty for one that isn't in use.
    [[nodiscard]] virtual std::string Reparto(int quadrante) const = 0;
    /// The caption of a label of the board in use. Throws Guasto where there is none.
    [[nodiscard]] virtual std::string scritta(const std::string& etichetta, int indice) = 0;
};

/// Pushes the state of the board to up to three Android boards, each time by a connection of its own. It
/// blocks its caller and lets no event through; a board that can't be reached or doesn't answer costs a
/// second, shows a notice, and the next board is served.
class CollegamentoAndroid final : public LumigrafiAndroid {
public:
    static constexpr std::uint16_t kPorta = 8989;

    /// What is handed in outlives the link, but for the settings file, which is only named.
    CollegamentoAndroid(FileIni impostazioni, DatiAndroid& dati, Orologio& orologio, ClienteTcp& rete,
                        Notifiche& notifiche);

    void SincronizzaLumAndroid(std::int16_t Last) override;

private:
    void leggiNumeri();
    void leggiNumero(std::size_t gruppo, std::size_t posto);
    void InviaDatiLumigrafo(std::size_t i, std::int16_t Last);
    [[nodiscard]] DatiLumigrafo dati(std::size_t i, std::int16_t Last) const;
    [[nodiscard]] std::string impostazione(const std::string& chiave, const char* predefinito) const;

    FileIni impostazioni_;
    DatiAndroid& dati_;
    Orologio& orologio_;
    ClienteTcp& rete_;
    Notifiche& notifiche_;
    decltype(DatiLumigrafo::Numeri) NumeriAndroid_; ///< refilled before each push
};

/// Board `i` (0 to 2) of the settings. Throws Guasto where the font size is no number of 16 bits.
[[nodiscard]] LumigrafoAndroid leggiLumigrafoAndroid(const FileIni& impostazioni, std::size_t i);

} // namespace lumigrafo
