#pragma once

#include "platform/linux/descrittore.h"

#include <filesystem>

namespace lumigrafo {

/// Tells the processes of this program that run from one folder of one another, through a lock file that lies
/// in that folder, or in the user's own runtime folder where that one can't be written. The lock, not the
/// file, says who is there; the file stays, empty.
class Istanza {
public:
    explicit Istanza(std::filesystem::path cartella) : cartella_(std::move(cartella)) {}

    /// True if another process is there. This one counts as being there from now on in either case, so that a
    /// program that restarted itself is found even after its forerunner has gone.
    bool precedente();

private:
    bool apriBlocco();

    std::filesystem::path cartella_;
    Descrittore blocco_;
};

} // namespace lumigrafo
