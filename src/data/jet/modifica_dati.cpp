#include "data/jet/modifica_dati.h"

#include <algorithm>

namespace lumigrafo::jet {

namespace {

Pagina& controllata(Pagine& pagine, std::uint32_t numero) {
    {
        const PaginaDati p(pagine.leggi(numero, TipoPagina::Dati), numero);
        for (unsigned i = 0; i < p.quanti(); ++i)
            (void)p.slot(i);
        if (p.liberi() != p.fondo() - PaginaDati::kSlot - 2 * p.quanti())
            throw danno(numero, "i byte liberi non tornano");
    } // nobody else holds the page from here on, so it is changed in place
    return pagine.modifica(numero);
}

} // namespace

ModificaDati::ModificaDati(Pagine& pagine, std::uint32_t numero) : pagina_(controllata(pagine, numero)) {}

void ModificaDati::inizia(Pagina& pagina, std::uint32_t proprietario) {
    pagina = Pagina();
    pagina.byte[0] = static_cast<std::uint8_t>(TipoPagina::Dati);
    pagina.byte[1] = 1;
    pagina.scrivi16(PaginaDati::kLiberi, kPagina - PaginaDati::kSlot);
    pagina.scrivi32(PaginaDati::kProprietario, proprietario);
}

std::size_t ModificaDati::inizio(unsigned slot) const {
    return pagina_.u16(PaginaDati::kSlot + 2 * slot) & Slot::kPosto;
}

std::size_t ModificaDati::fine(unsigned slot) const {
    return slot == 0 ? kPagina : inizio(slot - 1);
}

bool ModificaDati::entra(std::size_t lunga) const {
    return liberi() >= lunga + 2 && quanti() < PaginaDati::kSlotMassimi;
}

std::uint8_t ModificaDati::aggiungi(std::string_view riga, std::uint16_t segni) {
    const unsigned slot = quanti();
    const std::size_t posto = fine(slot) - riga.size();
    std::copy(riga.begin(), riga.end(), pagina_.byte.begin() + static_cast<std::ptrdiff_t>(posto));
    parola(slot, posto | segni);
    pagina_.scrivi16(PaginaDati::kQuanti, slot + 1);
    pagina_.scrivi16(PaginaDati::kLiberi, liberi() - riga.size() - 2);
    return static_cast<std::uint8_t>(slot);
}

bool ModificaDati::entraAlPosto(unsigned slot, std::size_t lunga) const {
    return lunga <= fine(slot) - inizio(slot) + liberi();
}

void ModificaDati::sostituisci(unsigned slot, std::string_view riga, std::uint16_t segni) {
    const std::size_t vecchio = inizio(slot), nuovo = fine(slot) - riga.size();
    const auto byte = pagina_.byte.begin();
    const auto fondo = static_cast<std::ptrdiff_t>(inizio(quanti() - 1));
    // The rows of higher slots lie below: they move up or down as a whole.
    if (nuovo > vecchio)
        std::copy_backward(byte + fondo, byte + static_cast<std::ptrdiff_t>(vecchio),
                           byte + static_cast<std::ptrdiff_t>(nuovo));
    else
        std::copy(byte + fondo, byte + static_cast<std::ptrdiff_t>(vecchio),
                  byte + fondo - static_cast<std::ptrdiff_t>(vecchio - nuovo));
    for (unsigned i = slot + 1; i < quanti(); ++i) {
        const std::uint16_t p = pagina_.u16(PaginaDati::kSlot + 2 * i);
        parola(i, (p & Slot::kEliminata) | ((p & Slot::kPosto) + nuovo - vecchio));
    }
    parola(slot, nuovo | segni);
    std::copy(riga.begin(), riga.end(), byte + static_cast<std::ptrdiff_t>(nuovo));
    pagina_.scrivi16(PaginaDati::kLiberi, liberi() + nuovo - vecchio);
}

} // namespace lumigrafo::jet
