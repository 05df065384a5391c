#pragma once

#include <string>

namespace lumigrafo {

/// What the folder chooser says and where it begins.
struct RichiestaCartella {
    /// Only folders of the file system can be chosen, no printers or libraries.
    static constexpr int kSoloFileSystem = 1;
    /// The chooser begins in the network.
    static constexpr int kRete = 18;

    std::string titolo;
    int opzioni = kSoloFileSystem;
    int radice = kRete;
    std::string
        attuale; ///< the folder in use, UTF-8; a chooser may begin there where it lies within its root
};

/// Lets the operator choose a folder.
class SceltaCartella {
public:
    virtual ~SceltaCartella() = default;
    /// Modal; events pass meanwhile. UTF-8; empty where the operator gave it up.
    [[nodiscard]] virtual std::string scegli(const RichiestaCartella& richiesta) = 0;
};

} // namespace lumigrafo
