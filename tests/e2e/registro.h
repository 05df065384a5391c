#pragma once

#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/processo.h"

#include <chrono>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace lumigrafo::prova {

/// What the hurried cash sides and the console did to each order, as far as either is known to have begun or
/// ended; tells from it what a grid may show and what the archive must hold. Quadrant q shows category q + 1.
class Registro {
public:
    /// Starts that many cash sides on the archive, each with letters of its own.
    Registro(const std::filesystem::path& archivio, const std::string& data, int casse,
             int scrittureAlSecondo, unsigned seme);

    /// Takes in what the cash sides have told since.
    void aggiorna();
    /// The same, from the next write of the first one on at the least. False where it writes no more.
    [[nodiscard]] bool attendi();
    /// Ends the cash sides in good order and takes in the rest. False where it failed.
    [[nodiscard]] bool ferma();

    /// The console is about to call a cell. For callers who know it beforehand: a call that comes too late
    /// for a cancelled order is told apart by it.
    void chiama(int quadrante, const std::string& cella);
    /// The call has come to its end.
    void chiamato(int quadrante, const std::string& cella);
    /// The console is about to restore an order in the quadrant where it called it. False, and nothing is
    /// noted, where it isn't called there or a cash side cancels it.
    [[nodiscard]] bool ripristina(int quadrante, const std::string& cella);
    /// The cash side has at least begun to cancel the order.
    [[nodiscard]] bool annullato(const std::string& cella) const;

    /// Before a rebuild: what is settled by now. The answer belongs to `controllaGriglia`.
    struct Prima {
        std::set<std::string> devono[3]; ///< cells of orders that are there, unless cancelled meanwhile
        std::set<std::string> mancano[3];
    };
    [[nodiscard]] Prima primaDiRicostruire();
    /// After the rebuild: the faults of a grid's cells, empty for none.
    [[nodiscard]] std::string controllaGriglia(const Prima& prima, int quadrante,
                                               const std::vector<std::string>& celle);
    /// After the end: the faults of the archive, empty for none.
    [[nodiscard]] std::string controllaArchivio(ArchivioProva& archivio) const;

    [[nodiscard]] int scritture() const { return scritture_; }
    [[nodiscard]] int chiamate() const { return chiamate_; }
    [[nodiscard]] int incerte() const;
    [[nodiscard]] double scrittureAlSecondo() const;

private:
    enum class Fase { No, Iniziato, Fatto };
    struct Ordine {
        Fase nuovo = Fase::No, annullo = Fase::No;
        std::map<int, std::string> pezzi; ///< the last ones written, of each category
        /// How far the order's cancellation was known to be, before and after the call in a quadrant.
        struct Chiamata {
            Fase annulloPrima = Fase::No, annulloDopo = Fase::No;
        };
        std::map<int, Chiamata> chiamate;
        bool ripristinato = false;
    };
    void annota(const std::string& riga);
    [[nodiscard]] std::string controllaOrdine(ArchivioProva& archivio, const std::string& cella,
                                              const Ordine& ordine) const;

    std::deque<Processo> casse_;
    std::map<std::string, Ordine> ordini_; ///< by the text of their cell
    int scritture_ = 0, chiamate_ = 0;
    std::chrono::steady_clock::time_point inizio_ = std::chrono::steady_clock::now(), fine_{};
};

} // namespace lumigrafo::prova
