#include "platform/finti/finti.h"
#include "settings/dialoghi.h"
#include "settings/password.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string_view>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

class PasswordTest : public testing::Test {
protected:
    PompaFinta pompa;
    OrologioFinto orologio;
    SistemaFinto sistema;
    DomandaPassword domanda{CodiceAdmin, "Password admin"};
    int chiusure = 0;
    Password p{{pompa, orologio, sistema}, domanda, [this] { ++chiusure; }};

    /// Digits by keypad, capitals by keyboard ('A' is 0), then a button.
    void digita(std::string_view cifre, const char* bottone) {
        for (const char c : cifre)
            if (c >= 'A')
                p.tasto(static_cast<char32_t>(U'0' + (c - 'A')));
            else
                p.clic("xpcmd1", c - '0');
        if (bottone)
            p.clic(bottone, kSenzaIndice);
    }
    std::string testo(const char* nome) { return p.controlli()(nome).Caption(); }
};

TEST_F(PasswordTest, SoloIlCodiceEsattoApre) {
    EXPECT_EQ(testo("lblMessaggio"), "Password admin");
    int bip = 0;
    for (const char* errata : {"", "081726", "8172", "817261", "8172X"}) { // 'X' is no digit key
        digita(errata, "cmdOK");
        EXPECT_EQ(testo("lblMessaggio"), "Password errata, riprovare") << errata;
        EXPECT_EQ(testo("lblPass"), "");
        EXPECT_EQ(sistema.bips, ++bip);
    }
    EXPECT_EQ(chiusure, 0);
    digita("9", "cmdreset");
    digita("81H26", nullptr);
    EXPECT_EQ(testo("lblPass"), "*****");
    EXPECT_FALSE(p.tasto(U'\r')) << "Enter doesn't confirm";
    EXPECT_EQ(chiusure, 0);
    p.clic("cmdOK", kSenzaIndice);
    EXPECT_EQ(chiusure, 1);
    EXPECT_EQ(domanda.EsitoPassword, kVero);
    EXPECT_EQ(sistema.bips, ++bip);
    digita("81726", "cmdAnnulla");
    EXPECT_EQ(domanda.EsitoPassword, kFalso) << "though the time before it was a yes";
    EXPECT_EQ(sistema.bips, ++bip);
    EXPECT_EQ(chiusure, 2);
}

TEST_F(PasswordTest, UnTastoPremeIlSuoBottonePerUnAttimo) {
    int visti = 0;
    pompa.alPunto("frmPassword/tasto", [&] {
        EXPECT_FALSE(p.controlli()("xpcmd1", 8).Enabled());
        p.tasto(U'1'); // a second key inside the first one's wait keeps its place
        ++visti;
    });
    p.tasto(U'8');
    EXPECT_EQ(visti, 1);
    EXPECT_EQ(orologio.atteso, 200ms);
    EXPECT_TRUE(p.controlli()("xpcmd1", 8).Enabled());
    digita("726", "cmdOK");
    EXPECT_EQ(domanda.EsitoPassword, kVero);
}

} // namespace
} // namespace lumigrafo::prova
