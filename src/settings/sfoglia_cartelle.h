#pragma once

#include "forms/controlli.h"
#include "platform/luoghi.h"
#include "platform/scelta_cartella.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lumigrafo {

/// The folder chooser, made for fingers: places at the left, folders at the right; a touch goes into one.
/// What is chosen is the folder that it stands in.
class SfogliaCartelle {
public:
    /// It begins in the network, at the folder in use where that one lies in the network itself. `chiudi`
    /// lets the caller of the window go on; it must not destroy this object.
    SfogliaCartelle(const RichiestaCartella& richiesta, std::vector<Luogo> luoghi, std::string& scelta,
                    std::function<void()> chiudi);

    [[nodiscard]] Controlli& controlli() { return controlli_; }
    /// A button, or an item that was touched.
    void clic(std::string_view nome, int indice);

private:
    void vai(const std::filesystem::path& cartella);
    [[nodiscard]] std::filesystem::path inizio(const RichiestaCartella& richiesta) const;

    std::vector<Luogo> luoghi_;
    std::string& scelta_; ///< stays as it is unless a folder is chosen
    std::function<void()> chiudi_;
    Controlli controlli_;
    std::filesystem::path cartella_;
    std::vector<std::filesystem::path> dentro_;
};

} // namespace lumigrafo
