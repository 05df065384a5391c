#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lumigrafo {

/// A folder where a search for folders can begin.
struct Luogo {
    std::string nome; ///< for people, UTF-8
    std::filesystem::path cartella;
    bool rete = false; ///< another computer's
};

/// The machine's folders of the network, its disks and the user's own folder.
class Luoghi {
public:
    virtual ~Luoghi() = default;
    /// Those of the network first, the whole computer last. Never empty.
    [[nodiscard]] virtual std::vector<Luogo> elenco() const = 0;
};

} // namespace lumigrafo
