#pragma once

#include "forms/descrizione.h"

#include <memory>

namespace lumigrafo {

/// `frmFiscale`: the small window that stands while a receipt is being issued. Modeless, and without any
/// logic.
extern const Layout kLayoutFiscale;

/// Shows it; the object that comes back closes it.
class FinestraFiscale {
public:
    class Mostrata {
    public:
        virtual ~Mostrata() = default;
    };
    virtual ~FinestraFiscale() = default;
    [[nodiscard]] virtual std::unique_ptr<Mostrata> mostra() = 0;
};

} // namespace lumigrafo
