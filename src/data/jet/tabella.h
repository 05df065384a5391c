#pragma once

#include "data/jet/definizione.h"
#include "data/jet/riga.h"
#include "data/jet/scansione.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumigrafo::jet {

/// One table of an open archive: its rows read, searched and changed, with all that hangs on them kept right
/// (indexes, maps, counts). Each change is whole or not at all and belongs to the transaction of its Pagine.
/// All throw Guasto: 3049 for damage, and where they change something 3218 (another station holds it), 3022
/// (duplicate key), 3314 (a null where the index takes none), 3027 (a table that this engine can't change).
class Tabella {
public:
    /// Throws Guasto 3049.
    Tabella(Pagine& pagine, std::uint32_t definizione);

    /// As it stands in the present state; the columns are those of the opening. Throws Guasto 3420 where
    /// somebody has changed the columns since then.
    [[nodiscard]] const Definizione& definizione();
    [[nodiscard]] Pagine& pagine() { return pagine_; }
    /// Tells the other stations that the table is being read. Throws Guasto 3187.
    void apri() { pagine_.usaTabella(numero_, false); }

    [[nodiscard]] std::vector<RigaTrovata> righe() { return scorri(pagine_, definizione()); }
    /// Nothing where the row is gone.
    [[nodiscard]] std::optional<RigaGrezza> riga(Posizione posizione) {
        return rigaA(pagine_, posizione, definizione().pagina);
    }

    /// Keeps other stations of this kind from changing the table until the transaction ends.
    void riserva() { pagine_.riserva(definizione().pagina); }
    /// Locks the page of a row, whether or not it is still there, for the rest of the transaction.
    void riserva(Posizione posizione);

    /// `campi` by place in Definizione::colonne. A null autonumber is given the next value.
    Posizione inserisci(const Campi& campi);
    /// Columns to be changed, and their new bytes.
    using Modifiche = std::vector<std::pair<std::size_t, std::optional<std::string>>>;
    /// The other columns keep what the row holds at that moment. `attesa`: the row as the caller read it.
    /// Throws Guasto 3167 where the row is gone, 3197 where it isn't as the caller read it.
    void aggiorna(Posizione posizione, const Modifiche& modifiche, std::optional<Vista> attesa = {});
    /// Throws as `aggiorna`.
    void elimina(Posizione posizione, std::optional<Vista> attesa = {});

private:
    using Chiavi = std::vector<std::optional<std::string>>; ///< of a row, one for each index

    void verificaScrivibile();
    [[nodiscard]] RigaGrezza rigaViva(Posizione posizione, std::optional<Vista> attesa = {});
    [[nodiscard]] Chiavi chiaviDi(const Campi& campi) const;
    void verificaVincoli(const Campi& campi, const Chiavi& nuove, const Chiavi& vecchie, Posizione propria);
    void daiContatore(Campi& campi);
    [[nodiscard]] Posizione posa(std::string_view byte, std::uint16_t segni);
    [[nodiscard]] std::optional<Posizione> posaInPagina(std::uint32_t numero, std::string_view byte,
                                                        std::uint16_t segni);
    [[nodiscard]] std::uint32_t nuovaPaginaDati();
    void riscrivi(Posizione posizione, Posizione vera, std::string_view byte);
    void aggiornaIndici(const Chiavi& vecchie, const Chiavi& nuove, Posizione riga);
    void contaDistinta(std::size_t indice);
    void contaRighe(int differenza);
    void togliByte(Posizione posizione);

    Pagine& pagine_;
    std::uint32_t numero_;
    Definizione definizione_;
    std::vector<PaginaLetta> lette_; ///< the pages that the definition was read from
};

} // namespace lumigrafo::jet
