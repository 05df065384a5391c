#pragma once

#include "forms/descrizione.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

/// The cells of an order grid: texts with a colour a cell, a current cell, and the measures of columns and
/// rows. Row and column count from 0. Access outside throws Guasto 9.
class Griglia {
public:
    explicit Griglia(int colonne = 3) : colonne_(colonne) {}

    [[nodiscard]] int Rows() const { return static_cast<int>(celle_.size()); }
    /// Adds empty rows at the end, or drops the last ones.
    void Rows(int righe);
    [[nodiscard]] int Cols() const { return colonne_; }
    void Cols(int colonne);
    /// Empties every cell's text and colour.
    void Clear();
    void RemoveItem(int riga);

    [[nodiscard]] const std::string& testo(int riga, int colonna) const;
    void testo(int riga, int colonna, std::string testo);
    /// The first cell with exactly this text, row by row and left to right; nothing where there is none.
    struct Posto {
        int riga, colonna;
    };
    [[nodiscard]] std::optional<Posto> cerca(std::string_view testo) const;
    /// The first cell with any text.
    [[nodiscard]] std::optional<Posto> primaPiena() const;
    [[nodiscard]] std::optional<Colore> sfondo(int riga, int colonna) const;
    /// None gives the grid's own colour back.
    void sfondo(int riga, int colonna, std::optional<Colore> c);

    /// The current cell; -1 where there is none. Dropping its row moves it to the last one.
    [[nodiscard]] int Row() const { return riga_; }
    [[nodiscard]] int Col() const { return colonna_; }
    void corrente(int riga, int colonna);

    /// Back colour of the current cell.
    [[nodiscard]] std::optional<Colore> coloreSelezione() const { return selezione_; }
    void coloreSelezione(Colore c);

    /// Width of a column in twips of the design; 0 shares the grid's width out evenly.
    [[nodiscard]] Twip larghezzaColonna(int colonna) const;
    void larghezzaColonna(int colonna, Twip larghezza);
    /// Least height of a row, twips of the design.
    [[nodiscard]] Twip altezzaMinima() const { return altezzaMinima_; }
    void altezzaMinima(Twip altezza);

    /// Called after each change, with the row and column of a single cell or -1, -1 for more.
    void osserva(std::function<void(int riga, int colonna)> osservatore) {
        osservatore_ = std::move(osservatore);
    }

private:
    struct Cella {
        std::string testo;
        std::optional<Colore> sfondo;
    };
    [[nodiscard]] Cella& cella(int riga, int colonna);
    [[nodiscard]] const Cella& cella(int riga, int colonna) const;
    void annuncia(int riga = -1, int colonna = -1) const;

    int colonne_;
    std::vector<std::vector<Cella>> celle_;
    std::vector<Twip> larghezze_;
    Twip altezzaMinima_ = 800;
    int riga_ = -1, colonna_ = -1;
    std::optional<Colore> selezione_;
    std::function<void(int, int)> osservatore_;
};

} // namespace lumigrafo
