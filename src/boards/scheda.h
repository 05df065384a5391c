#pragma once

#include "boards/famiglia.h"
#include "boards/finestra_videata.h"
#include "boards/lampeggio.h"
#include "boards/pubblicita.h"
#include "forms/controlli.h"
#include "platform/ambiente.h"
#include "platform/pompa.h"
#include "platform/scelta_file.h"
#include "platform/timer.h"
#include "settings/ini/ini.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lumigrafo {

/// What the boards ask of the console.
class DatiConsole {
public:
    virtual ~DatiConsole() = default;
    /// Caption of the console's `lblReparto(quadrante)`, quadrante 0..2.
    [[nodiscard]] virtual std::string Reparto(int quadrante) const = 0;
    /// True if the quadrant has a category.
    [[nodiscard]] virtual bool RepartoInUso(int quadrante) const = 0;
    /// As the console read it at its start: a later change of the setting isn't live.
    [[nodiscard]] virtual bool SoloAndroid() const = 0;
};

/// What a board needs around it; all of it outlives the board.
struct ServiziSchede {
    const Ambiente& ambiente;
    Pompa& pompa;
    Timers& timers;
    const DatiConsole& console;
    SceltaFile& sceltaFile;
};

/// The font of the big numbers.
struct CarattereNumeri {
    float punti;
    std::string nome;
    void metti(Controllo& numero) const;
};

/// The logic of one loaded board window, from its load to its unload: the look and the last numbers from the
/// settings, the blink, the advertising, and where the window stood. A board class says how it is dressed;
/// the rest is common. It may be unloaded inside any event that its load lets through, so its owner keeps it
/// alive until the load has returned.
class Scheda {
public:
    Scheda(TipoVideata tipo, const ServiziSchede& servizi);
    virtual ~Scheda() = default;
    Scheda(const Scheda&) = delete;
    Scheda& operator=(const Scheda&) = delete;

    [[nodiscard]] const std::shared_ptr<Controlli>& controlli() const { return controlli_; }
    /// Null once unloaded.
    [[nodiscard]] FinestraVideata* finestra() const { return finestra_.get(); }

    /// The load, with the window made for it. Lets pending events through ("Videata/Load"). A key that holds
    /// no number where one is read throws Guasto 13.
    void Carica(std::unique_ptr<FinestraVideata> finestra);
    /// Restores the window's geometry, once, and does what the board does at every activation. Throws as the
    /// load does.
    void Attiva();
    /// Saves the geometry and closes the window.
    void Scarica();
    /// Starts the blink of a slot; nothing happens with an index that doesn't blink.
    virtual void Blinka(std::int16_t indice);
    /// See Videata.
    virtual void Lampeggia(const std::string& Cassa, const std::string& Numero);
    /// A double click on the window's background.
    virtual void DoppioClicSfondo() {}

protected:
    /// Titles, fonts, colours and numbers: the fourth step of the load.
    virtual void vesti() = 0;
    /// One phase of a slot's blink.
    virtual void faseLampeggio(int slot, bool usuale);
    /// The end of each activation.
    virtual void attivata() {}

    [[nodiscard]] Controlli& modulo() const { return *controlli_; }
    [[nodiscard]] const ServiziSchede& servizi() const { return servizi_; }
    [[nodiscard]] const RigaFamiglia& riga() const { return riga_; }
    [[nodiscard]] FileIni& impostazioni() { return impostazioni_; }
    /// Null for a board without.
    [[nodiscard]] Pubblicita* pubblicita() { return pubblicita_ ? &*pubblicita_ : nullptr; }
    [[nodiscard]] Lampeggio& lampeggio(int slot) { return *lampeggi_.at(static_cast<std::size_t>(slot)); }
    /// A key of the general section.
    [[nodiscard]] std::string impostazione(std::string_view chiave, const ValoreIni& predefinito) const;
    /// A key of a slot: the word followed by the slot's digit.
    [[nodiscard]] std::string impostazione(std::string_view parola, int slot,
                                           const ValoreIni& predefinito) const;

    void titoliReparti();
    void coloraNumeri(int slot, Colore testo);
    void leggiNumeri(int slot);
    [[nodiscard]] Colore colore(std::string_view parola, int slot, std::int32_t predefinito) const;
    /// `FontNumeri` and `FontSizeNumeri` as they stand in the file now.
    [[nodiscard]] CarattereNumeri carattereNumeri(const ValoreIni& nome, const ValoreIni& punti) const;
    void carattereNumeriGrandi(int slot, const CarattereNumeri& carattere);

private:
    void copriConComunicazione();
    void riprendiPosto();
    [[nodiscard]] Condizione stato() const;

    const RigaFamiglia& riga_;
    const ServiziSchede& servizi_;
    FileIni impostazioni_;
    FileIni videata_;
    std::shared_ptr<Controlli> controlli_;
    std::unique_ptr<FinestraVideata> finestra_;
    bool Posizionata = false;
    std::int16_t NumeroLampeggi = 0;
    std::vector<std::unique_ptr<Lampeggio>> lampeggi_;
    std::optional<Pubblicita> pubblicita_;
};

} // namespace lumigrafo
