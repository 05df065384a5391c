#pragma once

#include "platform/sistema.h"

namespace lumigrafo {

/// Ends the process where it stands, from within any depth of modal windows. Frames below them are never
/// unwound, so neither destructors of windows nor those of statics may run: they would find half-used
/// objects. Whatever must be kept is on disk by then; only the standard streams are flushed.
class UscitaQt final : public Uscita {
public:
    [[noreturn]] void termina(int codice) override;
};

} // namespace lumigrafo
