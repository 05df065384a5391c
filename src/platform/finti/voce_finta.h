#pragma once

#include "platform/voce.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumigrafo {

/// A voice that keeps what it was told; the test says when it falls silent.
class VoceFinta : public Voce {
public:
    explicit VoceFinta(std::vector<std::string>* diario = nullptr) : diario_(diario) {}
    std::vector<std::string> descrizioni; ///< the machine's voices
    std::optional<std::size_t> scelta;    ///< number of the voice that was chosen
    bool accesa = false;

    void accendi(EventiVoce eventi, Scelta scegli) override {
        eventi_ = std::move(eventi);
        accesa = true;
        scelta = scegli(descrizioni);
    }
    void Speak(const std::string& testo, int Rate, int Volume) override {
        if (diario_)
            diario_->push_back("Speak " + testo + " " + std::to_string(Rate) + " " + std::to_string(Volume));
        parla_ = true;
        eventi_.StartStream();
    }

    [[nodiscard]] bool parla() const { return parla_; }
    /// The text is over. Without a text nothing happens, as with a real engine.
    void tace() {
        if (std::exchange(parla_, false))
            eventi_.EndStream();
    }
    void manca() { eventi_.Assente(); }

private:
    std::vector<std::string>* diario_;
    EventiVoce eventi_;
    bool parla_ = false;
};

} // namespace lumigrafo
