#pragma once

#include "platform/avvisi.h"

namespace lumigrafo {

/// Message boxes above the active window (see FinestraAvviso). Escape and the window's close give OK, or No to
/// a question. Enter closes a notice and answers no question: a scanner sends it.
class AvvisiQt final : public Avvisi {
public:
    Risposta chiedi(const Avviso& avviso) override;
};

} // namespace lumigrafo
