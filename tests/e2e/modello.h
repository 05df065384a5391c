#pragma once

#include "settings/ini/ini.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace lumigrafo::prova {

/// What the two state files hold: the numbers on the board and the last called ones, of three quadrants.
struct StatoSalvato {
    static constexpr std::size_t kPosti = 6, kUltimi = 11;
    std::array<std::array<std::string, kPosti>, 3> posti;
    std::array<std::array<std::string, kUltimi>, 3> ultimi;

    friend bool operator==(const StatoSalvato&, const StatoSalvato&) = default;

    /// Reads both files of a program folder, byte by byte: a line that is cut, repeated or unknown throws.
    static StatoSalvato leggi(const std::filesystem::path& cartella);
    /// All states that the files pass through during a call, one a written key, the last one included: first
    /// the list, newest entry first, then the slots from 1 to 6, each moved on by one in the order of age
    /// unless the number is on show already.
    [[nodiscard]] std::vector<StatoSalvato> durante(std::size_t quadrante, const std::string& cella) const;
    [[nodiscard]] StatoSalvato dopo(std::size_t quadrante, const std::string& cella) const {
        return durante(quadrante, cella).back();
    }
    /// For a failed comparison.
    [[nodiscard]] std::string testo() const;
};

/// The text of a cell ("A  12") as it stands on the board ("A 12").
[[nodiscard]] std::string inMostra(const std::string& cella);
/// The condition that finds a cell's order in any table.
[[nodiscard]] std::string ordineDi(const std::string& cella);
/// So many departments, with the categories from 1 on.
void impostaReparti(const FileIni& impostazioni, int quanti);

} // namespace lumigrafo::prova
