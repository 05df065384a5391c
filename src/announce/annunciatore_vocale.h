#pragma once

#include "announce/annunciatore.h"
#include "announce/log.h"
#include "platform/pompa.h"
#include "platform/voce.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

namespace lumigrafo {

/// The running state of the console, as the announcer needs it.
class DatiVoce {
public:
    virtual ~DatiVoce() = default;
    [[nodiscard]] virtual std::int16_t VelocitaVocale() const = 0; ///< -10 to 10
    [[nodiscard]] virtual std::int16_t VolumeVocale() const = 0;   ///< 0 to 100
    /// True while the voice is silent and may start. The console sets it at the end of its load, and the
    /// announcer from then on.
    [[nodiscard]] virtual bool& VoceAttiva() = 0;
};

/// Speaks the called numbers, one after the other: texts that come faster than they are spoken wait in a
/// queue, which isn't saved. Each text of the queue goes to the voice log at the moment it goes to the voice.
class AnnunciatoreVocale final : public Annunciatore, public Parlante {
public:
    /// Shows the operator a notice, in Italian, and doesn't wait for an answer.
    using Notifica = std::function<void(const std::string& testo)>;

    /// Everything handed over must outlive the object, and the object the voice's last event.
    AnnunciatoreVocale(Voce& voce, RegistroLog& log, Pompa& pompa, DatiVoce& dati, Notifica notifica);
    AnnunciatoreVocale(const AnnunciatoreVocale&) = delete;
    AnnunciatoreVocale& operator=(const AnnunciatoreVocale&) = delete;

    /// The first voice whose description holds the name Silvia, in this very spelling; without one, the
    /// machine's default. On a machine without a speech engine the operator is told once, and the run goes on
    /// in silence.
    void ScegliVoce() override;
    /// Throws Guasto where the log can't be written; the text is on its way to the voice by then.
    void AccodaAnnuncio(const std::string& testo) override;
    void Parla(const std::string& testo) override;

private:
    void Voce_StartStream();
    void Voce_EndStream();

    Voce& voce_;
    RegistroLog& log_;
    Pompa& pompa_;
    DatiVoce& dati_;
    Notifica notifica_;
    bool scelta_ = false; ///< there is a voice to speak with
    std::deque<std::string> lstCoda_;
    unsigned turno_ = 0; ///< counts the ends of a text: a later one, inside the pump, takes the queue over
};

} // namespace lumigrafo
