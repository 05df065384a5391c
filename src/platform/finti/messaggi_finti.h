#pragma once

#include "platform/messaggi.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace lumigrafo {

/// Keeps what was shown, in order, and runs what a test put into the time of a message.
class MessaggiFinti : public Messaggi {
public:
    /// `diario`: one list for all fakes of a test, so that the order across ports can be compared; null for
    /// none.
    explicit MessaggiFinti(std::vector<std::string>* diario = nullptr) : diario_(diario) {}
    std::vector<std::pair<std::string, std::int16_t>> mostrati; ///< text and seconds
    int splash = 0;
    std::function<void()> durante; ///< runs while a window is up

    void MostraMessaggio(const std::string& testo, std::int16_t secondi) override {
        mostrati.emplace_back(testo, secondi);
        annota("messaggio " + testo);
    }
    void MostraSplash() override {
        ++splash;
        annota("splash");
    }

private:
    void annota(std::string riga) {
        if (diario_)
            diario_->push_back(std::move(riga));
        if (durante)
            durante();
    }
    std::vector<std::string>* diario_;
};

} // namespace lumigrafo
