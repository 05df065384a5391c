#pragma once

#include "data/errori_dao.h"
#include "data/jet/intestazione.h"
#include "data/jet/parole.h"
#include "data/jet/pazienza.h"
#include "data/jet/precedenza.h"
#include "data/jet/stazione.h"
#include "platform/file_condiviso.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace lumigrafo::jet {

/// The pages of an archive: as they lie in the file, seen through a cache that other stations' commits empty,
/// and on top of them the pages that this station's transaction has changed and not yet written.
class Pagine {
public:
    static constexpr std::uint32_t kMassime = 0x80000; ///< pages of a file: 2 GB

    struct Apertura {
        bool sola_lettura = false;
        bool anche_tronco = false;          ///< a last page that was half written is left out of sight
        bool da_soli = false;               ///< nobody else can know the file: no locks, no .ldb
        std::string computer = "lumigrafo"; ///< our name for the other stations
        std::chrono::milliseconds attesa{5000};
    };
    /// Throws Guasto for what can't be opened or must not be touched (see leggiIntestazione).
    Pagine(const std::filesystem::path& file, Apertura apertura);

    [[nodiscard]] const Intestazione& intestazione() const { return intestazione_; }
    [[nodiscard]] bool solaLettura() const { return apertura_.sola_lettura; }
    /// Pages in the file, with those that the transaction adds.
    [[nodiscard]] std::uint32_t quante() const { return quante_; }
    /// Throws Guasto 3049 for a page behind the file's end.
    [[nodiscard]] PaginaLetta leggi(std::uint32_t numero);
    /// A page that must be of that type, or Guasto 3049.
    [[nodiscard]] PaginaLetta leggi(std::uint32_t numero, TipoPagina tipo);

    /// Turns to the archive's present state, waiting for whoever is writing. Throws Guasto, with that number,
    /// where it takes too long; the text names the station. Returns the state's number.
    std::int64_t aggiorna(int seOccupato = dao::kBloccatoLettura);
    /// True if the state that `aggiorna` found still stands: what was read since then fits together.
    [[nodiscard]] bool immutata() const;
    /// What a reading ends with that other stations outrun for the whole wait.
    enum class SeTardi { UltimaLettura, Guasto3187 };
    /// Reads with one state of the archive behind all of `lettura`; repeats it where another station wrote in
    /// between.
    template <typename Lettura>
    auto coerente(Lettura&& lettura, SeTardi seTardi = SeTardi::UltimaLettura);
    /// Words in the state "writing" or "damaged" whose station is gone: the archive may be half written.
    [[nodiscard]] std::vector<unsigned> sospette() const;
    /// Takes such a word back to where all begin: the archive was mended.
    void assolvi(unsigned utente);
    /// Whether another station has the archive open.
    [[nodiscard]] bool altreStazioni() const;
    /// Cuts a half-written last page off the file. False where there is none, or another station is there.
    bool tagliaAvanzo();

    /// Tells the other stations that a table is in use, for as long as the archive is open. Throws Guasto
    /// where one of them keeps it for itself: 3187 after the wait, or, for writing, 3218 at once.
    void usaTabella(std::uint32_t definizione, bool scrive);

    /// One change of the transaction, whole or not at all. It is planned on the present state and planned
    /// again where another station wrote or holds a page; after the wait Guasto 3218 names that station. The
    /// wait is shorter where the transaction holds pages already: Access stations that wait for those give up
    /// after two seconds.
    template <typename Cambio>
    auto cambia(Cambio&& cambio);
    /// Inside `cambia`: locks a page and gives it for changing.
    [[nodiscard]] Pagina& modifica(std::uint32_t numero);
    /// Inside `cambia`: a new page at the file's end, all zeros.
    [[nodiscard]] std::uint32_t aggiungi();
    /// Inside `cambia`: locks a page for the rest of the transaction, without changing it.
    void bloccaPagina(std::uint32_t numero);
    /// The same as a change of its own.
    void riserva(std::uint32_t numero);

    /// While it lives, `cambia` waits for other stations at most a twentieth of the whole wait: who gives up
    /// what it holds then tries again, within the same turn.
    class AttesaBreve {
    public:
        explicit AttesaBreve(Pagine& pagine)
            : turno_(pagine.precedenza_), pagine_(pagine), prima_(pagine.attesa_) {
            pagine_.attesa_ = prima_ / 20;
        }
        ~AttesaBreve() { pagine_.attesa_ = prima_; }
        AttesaBreve(const AttesaBreve&) = delete;
        AttesaBreve& operator=(const AttesaBreve&) = delete;

    private:
        Precedenza::Turno turno_;
        Pagine& pagine_;
        std::chrono::milliseconds prima_;
    };

    /// A moment of the transaction that it can be taken back to. Marks end in the opposite order of their
    /// beginning, and all with the transaction.
    struct Segno {
        std::uint64_t numero;
        std::size_t annulli;
        std::uint32_t quante;
    };
    [[nodiscard]] Segno segno();
    /// Marks set after it end.
    void tornaA(const Segno& segno);
    /// Ends the mark, and those set after it.
    void dimentica(const Segno& segno) noexcept;

    /// Writes the transaction and gives the locks back. Throws Guasto, with nothing changed, where the disk
    /// fails.
    void registra();
    /// Drops the transaction and gives the locks back.
    void abbandona() noexcept;

private:
    static constexpr std::chrono::milliseconds kAttesaConBlocchi{2000};
    struct StatoVecchio {}; ///< another station committed while a change was being planned

    /// A page that the transaction has changed, and the mark under which its present copy was made.
    struct Cambiata {
        PaginaLetta pagina;
        std::uint64_t segno = 0;
    };
    /// What a page was like when the latest mark was set; null for one that the transaction had not changed.
    struct Annullo {
        std::uint32_t numero;
        Cambiata prima;
    };
    /// Ends a change's mark with the change.
    class Passo {
    public:
        explicit Passo(Pagine& pagine) : pagine_(pagine), segno_(pagine.segno()) {}
        ~Passo() { pagine_.dimentica(segno_); }
        Passo(const Passo&) = delete;
        Passo& operator=(const Passo&) = delete;
        void annulla() { pagine_.tornaA(segno_); }

    private:
        Pagine& pagine_;
        const Segno segno_;
    };

    void lasciaPrecedere();
    void leggiParole(Parole& parole) const;
    void scriviParola(unsigned utente, std::uint16_t parola);
    /// The user number of a station that is writing; 0 for none.
    [[nodiscard]] unsigned chiScrive(const Parole& parole) const;
    /// What is tried is another station's for too long; `utente`: that station, 0 where it can't be told.
    [[nodiscard]] Guasto occupato(int numero, unsigned utente) const;
    void svuota();
    [[nodiscard]] std::shared_ptr<Pagina> dalFile(std::uint32_t numero) const;
    [[nodiscard]] std::size_t quanteBloccate() const { return stazione_ ? stazione_->quanteBloccate() : 0; }
    void sbloccaDa(std::size_t quante) noexcept;
    void dimenticaCambi() noexcept;
    [[nodiscard]] bool cambiataNelFile(std::uint32_t numero);
    void scriviPagine(const std::vector<std::uint32_t>& ordine, bool& rimesse);
    [[nodiscard]] std::vector<std::uint32_t> ordineDiScrittura() const;
    void scrivi(std::uint32_t numero, const Pagina& pagina);
    [[nodiscard]] unsigned utente() const { return stazione_ ? stazione_->utente() : 0; }

    Apertura apertura_;
    std::chrono::milliseconds attesa_; ///< for pages that another station holds
    FileCondiviso file_;
    Intestazione intestazione_;
    std::unique_ptr<Stazione> stazione_; ///< none for who reads only or works alone
    Precedenza precedenza_;
    Parole parole_; ///< of the state that the cache belongs to
    std::vector<PaginaLetta> cache_;
    std::uint32_t nelFile_ = 0, quante_ = 0;
    std::map<std::uint32_t, Cambiata> cambiate_;
    std::vector<Annullo> annulli_;       ///< for the marks that are set
    std::vector<std::uint64_t> segnati_; ///< their numbers
    std::uint64_t ultimoSegno_ = 0;
};

template <typename Lettura>
auto Pagine::coerente(Lettura&& lettura, SeTardi seTardi) {
    const Precedenza::Turno turno(precedenza_);
    for (Pazienza pazienza(apertura_.attesa);;) {
        aggiorna();
        try {
            auto esito = lettura();
            if (immutata() || (!pazienza.ancora() && seTardi == SeTardi::UltimaLettura))
                return esito;
        } catch (const Guasto&) { // what fits together badly may be half of two states, and no damage
            if (immutata())
                throw;
        }
        if (!pazienza.ancora())
            throw Guasto(dao::kBloccatoLettura,
                         "Impossibile leggere: altre stazioni scrivono di continuo. Riprovare.");
        precedenza_.insisti(true);
    }
}

template <typename Cambio>
auto Pagine::cambia(Cambio&& cambio) {
    const Precedenza::Turno turno(precedenza_);
    Passo passo(*this);
    const std::size_t nostre = quanteBloccate();
    for (Pazienza pazienza(nostre == 0 ? attesa_ : std::min(attesa_, kAttesaConBlocchi));;) {
        bool cominciato = false;
        lasciaPrecedere();
        try {
            aggiorna(kOccupata);
            cominciato = true;
            auto esito = cambio();
            if (!immutata())
                throw StatoVecchio{};
            return esito;
        } catch (const StatoVecchio&) {
            passo.annulla(); // what was locked stays so: the next try can't be outrun on it
            if (!pazienza.ancora()) {
                sbloccaDa(nostre);
                throw occupato(kOccupata, 0);
            }
            precedenza_.insisti(false);
        } catch (const Guasto& guasto) {
            passo.annulla();
            const bool vecchio = cominciato && !immutata();
            sbloccaDa(nostre);
            if (!vecchio && (guasto.numero() != kOccupata || !pazienza.ancora()))
                throw;
            precedenza_.insisti(false);
            pazienza.attendi();
        }
    }
}

} // namespace lumigrafo::jet
