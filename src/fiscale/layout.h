#pragma once

#include "forms/descrizione.h"

/// The tables of the component's windows.
namespace lumigrafo {

extern const Layout kLayoutUtilitaFiscale;
extern const Layout kLayoutConfigurazioneFiscale;

} // namespace lumigrafo
