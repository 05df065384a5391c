#pragma once

#include "forms/qt/vista.h"

#include <QPlainTextEdit>

namespace lumigrafo {

/// A text box of several lines with a vertical scroll bar as broad as a finger; its text is the control's
/// caption, each line end a CR LF. Tab leaves it.
class CasellaRigheWidget final : public QPlainTextEdit, public Vista {
public:
    explicit CasellaRigheWidget(QWidget* padre);
    void mostra(const Controllo& controllo, const Resa& resa) override;
    /// As a caption holds it.
    [[nodiscard]] std::string testo() const;
    /// While true, a change of the text comes from the caption and not from the operator.
    [[nodiscard]] bool inMostra() const { return inMostra_; }

private:
    bool inMostra_ = false;
};

} // namespace lumigrafo
