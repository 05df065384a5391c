#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace lumigrafo {

/// The board windows.
enum class TipoVideata : std::uint8_t {
    frmLumigrafo,
    frmLumigrafooRIZZ,
    frmLumigrafoOrizz9numeri,
    frmLumigrafo1Reparto,
    frmLumigrafo1Reparto9numeri,
    frmLumigrafo1RepartoBig,
    frmLumigrafoPerson,
    frmAvantiProssimo,
};

/// Which of the two ways of running with no board on show a rule of a board looks at.
struct Condizione {
    bool soloAndroid = false; ///< the station feeds Android boards alone
    bool ridotta = false;     ///< the program was started with "RIDOTTA"

    /// True if one of those that count here is the case.
    [[nodiscard]] constexpr bool vale(const Condizione& stato) const {
        return (soloAndroid && stato.soloAndroid) || (ridotta && stato.ridotta);
    }
};

/// What one board has, as told for the whole family.
struct RigaFamiglia {
    TipoVideata tipo;
    std::string_view nome;
    int slot;                  ///< departments on show, or rows
    int numeri;                ///< numbers of a slot: lblNumero1 to this one
    int grandi;                ///< lblNumero1 to this one take the font of the settings
    int lampeggi;              ///< slots that blink
    Condizione nonPosizionata; ///< its geometry isn't restored at an activation
    Condizione minimizzata;    ///< it comes up minimised
};

/// Twin boards differ in the last two columns; operators are used to each as it is.
// clang-format off
inline constexpr std::array<RigaFamiglia, 8> kFamiglia{{
    {TipoVideata::frmLumigrafo,                "frmLumigrafo",                3, 6, 3, 3, {true, false}, {true, false}},
    {TipoVideata::frmLumigrafooRIZZ,           "frmLumigrafooRIZZ",           3, 6, 3, 3, {true, false}, {true, true}},
    {TipoVideata::frmLumigrafoOrizz9numeri,    "frmLumigrafoOrizz9numeri",    3, 9, 6, 3, {true, true},  {true, true}},
    {TipoVideata::frmLumigrafo1Reparto,        "frmLumigrafo1Reparto",        1, 6, 3, 1, {true, true},  {true, true}},
    {TipoVideata::frmLumigrafo1Reparto9numeri, "frmLumigrafo1Reparto9numeri", 1, 9, 6, 1, {true, true},  {true, true}},
    {TipoVideata::frmLumigrafo1RepartoBig,     "frmLumigrafo1RepartoBig",     1, 6, 3, 1, {true, false}, {true, false}},
    {TipoVideata::frmLumigrafoPerson,          "frmLumigrafoPerson",          1, 6, 0, 1, {true, false}, {true, false}},
    {TipoVideata::frmAvantiProssimo,           "frmAvantiProssimo",           5, 1, 1, 5, {false, true}, {true, true}},
}};
// clang-format on

[[nodiscard]] constexpr const RigaFamiglia& famiglia(TipoVideata tipo) {
    return kFamiglia[static_cast<std::size_t>(tipo)];
}

/// The label of a slot's n-th number, 1..9. By age, newest first, they are 3, 2, 1, 4, 5, 6, 7, 8, 9.
[[nodiscard]] constexpr std::string_view etichettaNumero(int n) {
    constexpr std::array<std::string_view, 9> nomi{"lblNumero1", "lblNumero2", "lblNumero3",
                                                   "lblNumero4", "lblNumero5", "lblNumero6",
                                                   "lblNumero7", "lblNumero8", "lblNumero9"};
    return nomi.at(static_cast<std::size_t>(n - 1));
}

/// The box of a slot's n-th big number, 1..6, counted as they stand on the board: the first holds the newest.
[[nodiscard]] constexpr std::string_view nomeCasella(int n) {
    constexpr std::array<std::string_view, 6> nomi{"picNumero1", "picNumero2", "picNumero3",
                                                   "picNumero4", "picNumero5", "picNumero6"};
    return nomi.at(static_cast<std::size_t>(n - 1));
}

} // namespace lumigrafo
