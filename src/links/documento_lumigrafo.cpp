#include "links/documento_lumigrafo.h"

#include "links/json_bag.h"

namespace lumigrafo {

namespace {

void scriviNumeri(JsonBag& documento, const DatiLumigrafo& dati) {
    // Groups count from 0 here, and from 1 in the names and colours of the departments: the boards know them
    // so.
    for (std::size_t g = 0; g < DatiLumigrafo::kGruppi; ++g)
        for (std::size_t n = 1; n <= DatiLumigrafo::kPosti; ++n)
            documento.Item("Categoria" + std::to_string(g) + "_numero" + std::to_string(n),
                           dati.Numeri[g][n - 1]);
}

} // namespace

std::string documentoLumigrafo(const DatiLumigrafo& dati) {
    JsonBag radice;
    JsonBag& d = radice.AddNewObject("DatiLumigrafo");
    d.Item("TipoLumigrafo", "ELIMINACODE");
    if (dati.Last == -1) {
        d.Item("ServerDir", dati.ServerDir);
        d.Item("Reset", "1");
    }
    for (std::size_t g = 0; g < DatiLumigrafo::kGruppi; ++g)
        d.Item("Categoria" + std::to_string(g + 1), dati.Categoria[g]);
    d.Item("FontNumeri", dati.FontNumeri);
    d.Item("TitoloLumigrafo", dati.TitoloLumigrafo);
    scriviNumeri(d, dati);
    if (dati.Last >= 0)
        d.Item("Last", dati.Last);
    for (std::size_t k = 1; k <= DatiLumigrafo::kGruppi; ++k) {
        d.Item("BackColorCategoria" + std::to_string(k), dati.colori[k - 1].sfondo);
        d.Item("ForeColorCategoria" + std::to_string(k), dati.colori[k - 1].testo);
    }
    return radice.JSON();
}

} // namespace lumigrafo
