#pragma once

#include "forms/controlli.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lumigrafo {

/// The window of a loaded board, seen from its logic. It follows the board's controls by itself. Its end
/// closes it; that can happen inside one of its own events.
class FinestraVideata {
public:
    virtual ~FinestraVideata() = default;
    /// Shows and raises it, minimised where it was last told so. The keyboard stays where it is.
    virtual void mostra() = 0;
    virtual void nascondi() = 0;
    /// Paints at once what has changed.
    virtual void ridisegna() = 0;
    virtual void riduci(bool ridotta) = 0;
    [[nodiscard]] virtual bool ridotta() const = 0;
    virtual void titolo(const std::string& testo) = 0;
    /// Twips of the desktop.
    [[nodiscard]] virtual Rettangolo posto() const = 0;
    virtual void posto(const Rettangolo& rett) = 0;
};

/// What a board's window tells its owner. The owner outlives the window.
struct EventiFinestra {
    std::function<void(std::string_view nome, int indice)> clic;
    std::function<void()> attivata;
    std::function<void()> doppioClicSfondo; ///< a double click where no other control lies
    std::function<void()> chiusa;           ///< the window system asks for its end
};

/// Makes the window of a board that is being loaded, hidden. The window keeps the controls alive while it
/// needs them.
using FabbricaFinestre = std::function<std::unique_ptr<FinestraVideata>(std::shared_ptr<Controlli> controlli,
                                                                        EventiFinestra eventi)>;

} // namespace lumigrafo
