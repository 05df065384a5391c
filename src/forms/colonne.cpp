#include "forms/colonne.h"

#include <algorithm>
#include <cmath>

namespace lumigrafo {

std::vector<int> bordiColonne(const Griglia& griglia, const Scala& scala, int larghezza) {
    const int colonne = griglia.Cols();
    double fisse = 0;
    int libere = 0;
    for (int c = 0; c < colonne; ++c) {
        fisse += scala.larghezzaEsatta(griglia.larghezzaColonna(c));
        libere += griglia.larghezzaColonna(c).v <= 0;
    }
    const double quota = libere ? std::max(0.0, larghezza - fisse) / libere : 0;

    std::vector<int> bordi{0};
    double x = 0;
    for (int c = 0; c < colonne; ++c) {
        const Twip propria = griglia.larghezzaColonna(c);
        x += propria.v > 0 ? scala.larghezzaEsatta(propria) : quota;
        bordi.push_back(static_cast<int>(std::lround(x)));
    }
    // Rounded widths may miss the grid's own edge by a pixel a column: that shows as a stripe.
    if (std::abs(bordi.back() - larghezza) <= colonne)
        bordi.back() = larghezza;
    return bordi;
}

} // namespace lumigrafo
