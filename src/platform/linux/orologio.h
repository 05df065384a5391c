#pragma once

#include "platform/orologio.h"

namespace lumigrafo {

/// The machine's clock, in its local time zone.
class OrologioSistema : public Orologio {
public:
    [[nodiscard]] DataOra adesso() const override;
    void attendi(std::chrono::milliseconds durata) override;
};

} // namespace lumigrafo
