#pragma once

#include "platform/luoghi.h"
#include "platform/scelta_cartella.h"

namespace lumigrafo {

/// The folder chooser as a window over the one that is active.
class SceltaCartellaQt final : public SceltaCartella {
public:
    /// `luoghi` must outlive this.
    explicit SceltaCartellaQt(const Luoghi& luoghi) : luoghi_(luoghi) {}
    [[nodiscard]] std::string scegli(const RichiestaCartella& richiesta) override;

private:
    const Luoghi& luoghi_;
};

} // namespace lumigrafo
