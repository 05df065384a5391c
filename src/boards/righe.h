#pragma once

#include "boards/famiglia.h"
#include "forms/verifica.h"

#include <array>
#include <cstddef>
#include <string_view>

/// Rows that boards share, or that one repeats for each of its slots.
namespace lumigrafo {

inline constexpr Carattere kCarattereTitolo{"Arial", 32.25, true, true};
inline constexpr Colore kGrigio = rgb(128, 128, 128);
inline constexpr Colore kSfondoStriscia = rgb(24, 49, 74);
inline constexpr std::string_view kMotto = "Lumigrafo — i numeri, chiari a tutti";

/// One control of a slot, as drawn for slot 0.
struct RigaSlot {
    Descrizione disegno;
    int passo = 1; ///< what the index grows by from slot to slot
};

/// The containers of the slots, by slot.
using Contenitori = std::array<std::string_view, 5>;
inline constexpr Contenitori kPannelli{"picPannello(0)", "picPannello(1)", "picPannello(2)", "picPannello(3)",
                                       "picPannello(4)"};
/// The boxes of the numbers, by box and slot.
inline constexpr std::array<Contenitori, 6> kCaselle{{
    {"picNumero1(0)", "picNumero1(1)", "picNumero1(2)"},
    {"picNumero2(0)", "picNumero2(1)", "picNumero2(2)"},
    {"picNumero3(0)", "picNumero3(1)", "picNumero3(2)"},
    {"picNumero4(0)", "picNumero4(1)", "picNumero4(2)"},
    {"picNumero5(0)", "picNumero5(1)", "picNumero5(2)"},
    {"picNumero6(0)", "picNumero6(1)", "picNumero6(2)"},
}};

/// The rows `disegni` once for each of the first `Slot` containers.
template <std::size_t Slot, std::size_t N>
[[nodiscard]] constexpr auto perSlot(const Contenitori& contenitori, const std::array<RigaSlot, N>& disegni) {
    static_assert(Slot <= std::tuple_size_v<Contenitori>);
    std::array<Descrizione, Slot * N> righe{};
    for (std::size_t slot = 0; slot < Slot; ++slot) {
        for (std::size_t i = 0; i < N; ++i) {
            Descrizione& riga = righe[slot * N + i];
            riga = disegni[i].disegno;
            riga.indice += static_cast<int>(slot) * disegni[i].passo;
            riga.padre = contenitori[slot];
        }
    }
    return righe;
}

/// Room at the sides of a number that fills its label.
inline constexpr Twip kMargineNumero = 90;

/// The rows with that room for their numbers.
template <std::size_t N>
[[nodiscard]] constexpr auto conMargine(std::array<Descrizione, N> righe) {
    for (Descrizione& riga : righe)
        if (riga.nome.starts_with("lblNumero"))
            riga.margine = kMargineNumero;
    return righe;
}

/// A centred label.
[[nodiscard]] constexpr Descrizione scritta(std::string_view nome, int indice, std::string_view padre,
                                            Rettangolo rett, const Carattere& carattere,
                                            Colore testo = kBianco, std::string_view caption = {}) {
    return {.tipo = Tipo::Etichetta,
            .nome = nome,
            .indice = indice,
            .padre = padre,
            .rett = rett,
            .carattere = carattere,
            .allineamento = Allineamento::Centro,
            .testo = testo,
            .caption = caption};
}

/// The boxes picNumero1.. in the panels of `Slot` slots, at the same places in each.
template <std::size_t Slot, std::size_t N>
[[nodiscard]] constexpr auto caselle(const std::array<Rettangolo, N>& posti, Tipo tipo) {
    std::array<RigaSlot, N> righe{};
    for (std::size_t i = 0; i < N; ++i)
        righe[i].disegno = {.tipo = tipo,
                            .nome = nomeCasella(static_cast<int>(i) + 1),
                            .indice = 0,
                            .rett = posti[i],
                            .sfondo = kNero};
    return perSlot<Slot>(kPannelli, righe);
}

/// The number in each of those boxes, at `posti` within it: the first box holds the newest, lblNumero3.
template <std::size_t Slot, std::size_t N>
[[nodiscard]] constexpr auto numeriNelleCaselle(const std::array<Rettangolo, N>& posti,
                                                const Carattere& carattere) {
    std::array<Descrizione, Slot * N> righe{};
    for (std::size_t i = 0; i < N; ++i) {
        const int casella = static_cast<int>(i) + 1;
        const std::string_view nome = etichettaNumero(casella <= 3 ? 4 - casella : casella);
        for (std::size_t slot = 0; slot < Slot; ++slot)
            righe[i * Slot + slot] =
                scritta(nome, static_cast<int>(slot), kCaselle[i][slot], posti[i], carattere);
    }
    return righe;
}

/// Within boxes, less a margin at each edge.
template <std::size_t N>
[[nodiscard]] constexpr auto dentro(const std::array<Rettangolo, N>& posti, Twip margine) {
    std::array<Rettangolo, N> interni{};
    for (std::size_t i = 0; i < N; ++i)
        interni[i] = {margine, margine, posti[i].width - margine * 2, posti[i].height - margine * 2};
    return interni;
}

/// The close control of a board that has no box around it.
[[nodiscard]] constexpr std::array<Descrizione, 1> chiudi(Rettangolo rett) {
    Descrizione riga = scritta("lblChiudi", kSenzaIndice, "", rett, {"Arial Black", 20.25}, kGrigio, "X");
    riga.nomeAccessibile = "Chiudi il lumigrafo";
    riga.cliccabile = true;
    return {riga};
}

/// The panel of the operator's message, over the whole window.
[[nodiscard]] constexpr std::array<Descrizione, 2> comunicazione(Twip larghezza, Twip altezza) {
    const Rettangolo tutto{0, 0, larghezza, altezza};
    Descrizione testo =
        scritta("lblComunicazione", kSenzaIndice, "picComunicazione", tutto, {"Arial", 84.75, true});
    testo.margine = 240;
    return {{{.tipo = Tipo::Riquadro,
              .nome = "picComunicazione",
              .rett = tutto,
              .sfondo = kNero,
              .visibile = false},
             testo}};
}

/// The panel of the advertising pictures.
[[nodiscard]] constexpr std::array<Descrizione, 1> pubblicita(Rettangolo rett, bool visibile = true,
                                                              std::string_view padre = {}) {
    return {{{.tipo = Tipo::Immagine,
              .nome = "picPubblicita",
              .padre = padre,
              .rett = rett,
              .sfondo = kNero,
              .visibile = visibile,
              .nomeAccessibile = "Pubblicità"}}};
}

/// The strip of one line.
[[nodiscard]] constexpr std::array<Descrizione, 2> striscia(Rettangolo rett, Rettangolo riga, double punti,
                                                            std::string_view testo) {
    return {{{.tipo = Tipo::Riquadro,
              .nome = "FraMirtolanda",
              .rett = rett,
              .sfondo = kSfondoStriscia,
              .visibile = false},
             scritta("lblMirtolanda", kSenzaIndice, "FraMirtolanda", riga, {"Arial", punti, true}, kBianco,
                     testo)}};
}

} // namespace lumigrafo
