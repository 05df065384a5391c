#pragma once

#include "platform/avvisi.h"

#include <QDialog>

namespace lumigrafo {

/// The message box: an icon, a text that is always whole, and buttons made for fingers, in the middle of the
/// monitor and in proportion to it. Its buttons' objectNames are `OK`, or `Sì` and `No`.
class FinestraAvviso final : public QDialog {
public:
    /// `sopra`: the window that it stands over; null for none.
    FinestraAvviso(const Avviso& avviso, QWidget* sopra);
    /// Shows it and waits.
    [[nodiscard]] Risposta chiedi();
    /// Line ends are LF.
    [[nodiscard]] const QString& testo() const { return testo_; }
    [[nodiscard]] Icona icona() const { return icona_; }

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void disponi(double scala);
    [[nodiscard]] QWidget* piede(double scala);
    [[nodiscard]] bool domanda() const { return bottoni_ == Bottoni::SiNo; }

    QString testo_;
    Icona icona_;
    Bottoni bottoni_;
};

} // namespace lumigrafo
