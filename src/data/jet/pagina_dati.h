#pragma once

#include "data/jet/pagina.h"
#include "data/jet/pagine.h"

#include <cstdint>
#include <optional>

namespace lumigrafo::jet {

/// A slot of a data page: where its bytes lie and what it stands for.
struct Slot {
    static constexpr std::uint16_t kSpostata = 0x4000; ///< the bytes begin with the address of the real row
    static constexpr std::uint16_t kNascosta = 0x8000; ///< the real row of a moved one: no scan takes it
    static constexpr std::uint16_t kEliminata = kSpostata | kNascosta;
    static constexpr std::uint16_t kPosto = 0x1FFF;

    std::uint16_t inizio = 0, fine = 0, segni = 0;

    [[nodiscard]] bool eliminata() const { return segni == kEliminata; }
    [[nodiscard]] bool spostata() const { return segni == kSpostata; }
    [[nodiscard]] bool nascosta() const { return segni == kNascosta; }
    [[nodiscard]] std::uint16_t lunga() const { return static_cast<std::uint16_t>(fine - inizio); }
};

/// Reads the slots of a data page, or of one that holds usage maps or long values. Rows lie from the page's
/// end downwards, slot 0 first.
class PaginaDati {
public:
    static constexpr std::size_t kLiberi = 2, kProprietario = 4, kQuanti = 12, kSlot = 14;
    static constexpr unsigned kSlotMassimi = 255;
    /// Longest row that a page takes.
    static constexpr std::size_t kRigaMassima = 4060;

    /// Throws Guasto 3049 where it is no data page or has an impossible number of slots.
    PaginaDati(PaginaLetta pagina, std::uint32_t numero);

    [[nodiscard]] std::uint32_t numero() const { return numero_; }
    [[nodiscard]] unsigned quanti() const { return quanti_; }
    [[nodiscard]] std::uint32_t proprietario() const { return pagina_->u32(kProprietario); }
    [[nodiscard]] std::uint16_t liberi() const { return pagina_->u16(kLiberi); }
    /// Throws Guasto 3049 for a slot that isn't there or whose bytes lie outside its place.
    [[nodiscard]] Slot slot(unsigned i) const;
    [[nodiscard]] Vista byte(const Slot& slot) const;
    [[nodiscard]] const PaginaLetta& pagina() const { return pagina_; }
    /// Where the lowest row begins.
    [[nodiscard]] std::uint16_t fondo() const;

private:
    PaginaLetta pagina_;
    std::uint32_t numero_;
    unsigned quanti_;
};

/// The bytes of a row, kept in memory by it.
struct RigaGrezza {
    PaginaLetta pagina;
    Vista byte;
    Posizione vera; ///< where the bytes lie; other than the row's address for a moved one
};

/// What lies at an address. Throws Guasto 3049 where nothing can.
[[nodiscard]] RigaGrezza brutaA(Pagine& pagine, Posizione posizione);

/// The row of a table with that address, followed to its real place; nothing where it was deleted or never
/// was. Throws Guasto 3049 for a chain that leads nowhere or into another table (`tabella`: its definition's
/// page).
[[nodiscard]] std::optional<RigaGrezza> rigaA(Pagine& pagine, Posizione posizione, std::uint32_t tabella);

} // namespace lumigrafo::jet
