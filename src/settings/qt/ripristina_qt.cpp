#include "settings/qt/ripristina_qt.h"

#include "forms/qt/finestra.h"
#include "forms/qt/griglia_widget.h"
#include "settings/qt/finestra_modale.h"

namespace lumigrafo {

void mostraRipristina(const ServiziRipristina& servizi) {
    FinestraModale modale;
    Finestra* vista = nullptr;
    Ripristina ripristina(
        servizi, [&vista] { vista->ridisegna(); }, [&modale] { modale.fine(); });
    Finestra finestra(ripristina.controlli(), nullptr, Qt::Dialog);
    vista = &finestra;
    finestra.alClic([&](const Controllo& c) { ripristina.clic(c.disegno().nome); });
    for (std::int16_t i = 0; i < 3; ++i)
        finestra.collegaGriglia("grid", i, ripristina.grid(i)).alClic([&ripristina, i](int riga, int) {
            if (riga >= 0)
                ripristina.clicGriglia(i);
        });
    modale.esegui(finestra);
}

} // namespace lumigrafo
