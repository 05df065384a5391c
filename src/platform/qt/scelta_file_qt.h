#pragma once

#include "platform/scelta_file.h"

class QWidget;

namespace lumigrafo {

/// The file chooser as a window over `padrone`, the operator's, wherever it was asked for: the public doesn't
/// see it.
class SceltaFileQt final : public SceltaFile {
public:
    /// `padrone` must outlive this.
    explicit SceltaFileQt(QWidget& padrone) : padrone_(padrone) {}
    [[nodiscard]] std::filesystem::path scegli(const RichiestaFile& richiesta) override;

private:
    QWidget& padrone_;
};

} // namespace lumigrafo
