#pragma once

#include "platform/scelta_file.h"

#include <functional>
#include <vector>

namespace lumigrafo {

/// Keeps what was asked and gives what the test put there.
class SceltaFileFinta : public SceltaFile {
public:
    std::vector<RichiestaFile> chieste;
    std::filesystem::path scelto;
    std::function<void()> durante; ///< runs while the chooser stands open

    [[nodiscard]] std::filesystem::path scegli(const RichiestaFile& richiesta) override {
        chieste.push_back(richiesta);
        if (durante)
            durante();
        return scelto;
    }
};

} // namespace lumigrafo
