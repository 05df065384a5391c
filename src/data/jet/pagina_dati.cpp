#include "data/jet/pagina_dati.h"

#include <utility>

namespace lumigrafo::jet {

PaginaDati::PaginaDati(PaginaLetta pagina, std::uint32_t numero)
    : pagina_(std::move(pagina)), numero_(numero), quanti_(pagina_->u16(kQuanti)) {
    if (pagina_->tipo() != TipoPagina::Dati)
        throw danno(numero, "non è una pagina di dati");
    if (kSlot + 2 * std::size_t{quanti_} > kPagina)
        throw danno(numero, "troppe righe per una pagina");
}

Slot PaginaDati::slot(unsigned i) const {
    if (i >= quanti_)
        throw danno(numero_, "la riga " + std::to_string(i) + " non esiste");
    const std::uint16_t parola = pagina_->u16(kSlot + 2 * i);
    Slot s;
    s.inizio = parola & Slot::kPosto;
    s.fine = i == 0 ? static_cast<std::uint16_t>(kPagina)
                    : static_cast<std::uint16_t>(pagina_->u16(kSlot + 2 * (i - 1)) & Slot::kPosto);
    s.segni = parola & Slot::kEliminata;
    if (s.inizio > s.fine || s.fine > kPagina || s.inizio < kSlot + 2 * quanti_)
        throw danno(numero_, "la riga " + std::to_string(i) + " è fuori posto");
    return s;
}

Vista PaginaDati::byte(const Slot& slot) const {
    return pagina_->vista(numero_).brano(slot.inizio, slot.lunga());
}

std::uint16_t PaginaDati::fondo() const {
    return quanti_ == 0 ? static_cast<std::uint16_t>(kPagina) : slot(quanti_ - 1).inizio;
}

RigaGrezza brutaA(Pagine& pagine, Posizione posizione) {
    const PaginaDati p(pagine.leggi(posizione.pagina, TipoPagina::Dati), posizione.pagina);
    return {p.pagina(), p.byte(p.slot(posizione.slot)), posizione};
}

std::optional<RigaGrezza> rigaA(Pagine& pagine, Posizione posizione, std::uint32_t tabella) {
    constexpr int kPassiMassimi = 64; // a moved row may move again, but a longer chain is a circle
    for (int passo = 0; passo < kPassiMassimi; ++passo) {
        const PaginaDati p(pagine.leggi(posizione.pagina, TipoPagina::Dati), posizione.pagina);
        if (p.proprietario() != tabella)
            throw danno(posizione.pagina, "appartiene a un'altra tabella");
        if (passo == 0 && posizione.slot >= p.quanti())
            return std::nullopt;
        const Slot s = p.slot(posizione.slot);
        if (passo == 0 && (s.eliminata() || s.nascosta()))
            return std::nullopt;
        if (s.eliminata())
            throw danno(posizione.pagina, "una riga spostata non c'è più");
        if (!s.spostata())
            return RigaGrezza{p.pagina(), p.byte(s), posizione};
        posizione = Posizione::da(p.byte(s).u32(0));
    }
    throw danno(posizione.pagina, "una riga spostata gira in tondo");
}

} // namespace lumigrafo::jet
