#pragma once

#include "platform/scelta_cartella.h"

#include <vector>

namespace lumigrafo {

/// Keeps what was asked and gives what the test put there.
class SceltaCartellaFinta : public SceltaCartella {
public:
    std::vector<RichiestaCartella> chieste;
    std::string scelta;

    [[nodiscard]] std::string scegli(const RichiestaCartella& richiesta) override {
        chieste.push_back(richiesta);
        return scelta;
    }
};

} // namespace lumigrafo
