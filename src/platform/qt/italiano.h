#pragma once

#include <QTranslator>

namespace lumigrafo {

/// The words of Qt's own parts that the operator reads, in Italian on every machine: the menus of text boxes
/// and scroll bars, and the file chooser. Other words stay as they are.
class Italiano final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* contesto, const char* testo, const char* chiarimento,
                                    int numero) const override;
};

} // namespace lumigrafo
