#pragma once

#include "platform/esecutore.h"

namespace lumigrafo {

/// Programs as child processes, each the head of a process group of its own.
class EsecutoreLinux final : public Esecutore {
public:
    [[nodiscard]] std::optional<FineProgramma> esegui(const std::vector<std::string>& parole,
                                                      std::string_view ingresso,
                                                      std::chrono::milliseconds limite) override;
};

} // namespace lumigrafo
