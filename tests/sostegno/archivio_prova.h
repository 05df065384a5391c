#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct sqlite3;

namespace lumigrafo {
class Motore;
}

namespace lumigrafo::prova {

/// Whether the archives of this run are Access's: the environment says LUMIGRAFO_PROVE_ARCHIVIO=access.
[[nodiscard]] bool archiviAccess();

/// An archive for a test, written and read through a connection of its own, as another station would.
class ArchivioProva {
public:
    /// Makes a new archive with the categories 1 "Cucina", 2 "Bar", 3 "Pizzeria"; one that is there stays.
    explicit ArchivioProva(std::filesystem::path file);
    ~ArchivioProva();
    ArchivioProva(const ArchivioProva&) = delete;
    ArchivioProva& operator=(const ArchivioProva&) = delete;

    /// Adds an order to the queue with its detail lines and its receipt of the business date:
    /// categories and pieces. No letter: null.
    void ordine(const std::optional<std::string>& sigla, int numero,
                const std::vector<std::pair<int, int>>& categorie, bool evidenzia = false);
    void esegui(const std::string& sql);
    /// Undoes what `esegui` has begun with BEGIN; nothing else.
    void annulla();
    /// All rows of a query: fields joined by '|', rows by blanks; null is "NULL".
    [[nodiscard]] std::string leggi(const std::string& sql);
    /// What `verifica` finds in the file, a line each.
    [[nodiscard]] std::string discordanze() const;
    /// "A12 B7": letters and numbers in the queue, in order.
    [[nodiscard]] std::string coda();

    std::string dataCompetenza = "20260315"; ///< of new orders, yyyymmdd

private:
    std::filesystem::path file_;
    std::unique_ptr<Motore> motore_;
    sqlite3* db_ = nullptr; ///< the engine's
};

/// The receipt barcode of a cell's order ("A  12") in a quadrant, whose category is the quadrant's number
/// + 1.
[[nodiscard]] std::string codiceScontrino(int quadrante, const std::string& cella);

} // namespace lumigrafo::prova
