#pragma once

#include "forms/scala.h"
#include "tests/sostegno/processo.h"

#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace lumigrafo::prova {

/// A window as the display shows it.
struct FinestraX {
    std::string id;
    RettangoloPixel posto;
};

/// A display of its own, with two monitors of 1280 by 1024 side by side and a window manager; gone with the
/// object.
class Schermo {
public:
    static constexpr int kLarghezza = 1280, kAltezza = 1024;

    /// Whether the machine has the programs that this needs.
    [[nodiscard]] static bool possibile();
    /// Throws where the display doesn't start.
    Schermo();

    /// The variables that send a program to this display.
    [[nodiscard]] Processo::Ambiente ambiente() const {
        return {{"DISPLAY", display_}, {"QT_QPA_PLATFORM", "xcb"}};
    }
    /// The visible windows of a process that bear this title ("" for those without one).
    [[nodiscard]] std::vector<FinestraX> finestre(pid_t pid, const std::string& titolo) const;
    /// Touches a point of the display.
    void tocca(int x, int y) const;
    /// Types into the window with the focus, as fast as a scanner; "\r" is Enter, "\x1b" Escape.
    void digita(const std::string& testo) const;
    /// How many colours the part of the display shows; a window that paints nothing shows one.
    [[nodiscard]] int colori(const RettangoloPixel& parte) const;

private:
    std::pair<int, std::string> comanda(const std::vector<std::string>& comando) const;

    std::unique_ptr<Processo> xvfb_, openbox_;
    std::string display_;
};

/// A test on such a display; skipped where there can be none.
class ConSchermo : public testing::Test {
protected:
    std::unique_ptr<Schermo> schermo;

    void SetUp() override {
        if (!Schermo::possibile())
            GTEST_SKIP() << "needs Xvfb, openbox, xrandr, xdotool, xprop and ImageMagick";
        schermo = std::make_unique<Schermo>();
    }
};

} // namespace lumigrafo::prova
