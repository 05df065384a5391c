#pragma once

#include "platform/schermi.h"

namespace lumigrafo {

/// The monitors as Qt knows them, in its device-independent pixels of 15 twips.
class SchermiQt final : public Schermi {
public:
    [[nodiscard]] std::vector<Schermo> elenco() const override;
};

} // namespace lumigrafo
