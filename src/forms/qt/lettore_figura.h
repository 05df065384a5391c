#pragma once

#include "forms/qt/file_figura.h"

#include <QObject>

#include <functional>
#include <memory>
#include <utility>

namespace lumigrafo {

/// Decodes picture files beside the thread of the windows: a progressive photograph of 48 megapixels takes a
/// second, and the boards must go on blinking meanwhile. One wish at a time: a later one takes the place of
/// an earlier one, which nobody hears of any more. Used from one thread, which runs an event loop.
class LettoreFigura final : public QObject {
public:
    using Consegna = std::function<void(FiguraLetta)>;
    /// What happens where a file can't be decoded.
    enum class SeGuasta {
        Ferma, ///< its Guasto is thrown from the event loop of the user's thread
        Lascia ///< nothing
    };

    /// `consegna` is called with each picture on the user's thread, from its event loop.
    explicit LettoreFigura(Consegna consegna) : consegna_(std::move(consegna)) {}
    /// Doesn't wait: a decoding that is going on ends unheard.
    ~LettoreFigura() override { lascia(); }
    LettoreFigura(const LettoreFigura&) = delete;
    LettoreFigura& operator=(const LettoreFigura&) = delete;

    void chiedi(const FileFigura& file, const Inquadratura& inquadratura, SeGuasta seGuasta);
    /// Gives up what was asked for.
    void lascia();
    [[nodiscard]] bool inCorso() const { return lettura_ != nullptr; }
    /// Waits for what was asked for and delivers it at once. Throws the Guasto of a file that stops.
    void attendi();

    bool event(QEvent* evento) override;

private:
    struct Lettura;
    static void lavora(Lettura& lettura);
    void consegna(bool attendendo);

    Consegna consegna_;
    std::shared_ptr<Lettura> lettura_; ///< shared with the thread that decodes
};

} // namespace lumigrafo
