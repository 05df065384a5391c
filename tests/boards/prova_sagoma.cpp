#include "boards/modulo_monitor.h"
#include "boards/sagoma.h"
#include "platform/file.h"
#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "platform/guasto.h"
#include "platform/linux/desktop.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rettangolo kPrimario{0, 0, 28800, 16200};

/// A desktop, a console on it, and where the board must go; nothing: the question comes up.
struct Caso {
    const char* nome;
    std::vector<Schermo> schermi;
    Rettangolo console;
    std::optional<Rettangolo> atteso;
};

class Posizionamento : public testing::TestWithParam<Caso> {};

TEST_P(Posizionamento, FindsTheMonitorBesideTheConsole) {
    CartellaTemporanea cartella;
    const Ambiente ambiente{cartella.percorso(), "", ""};
    Diario diario;
    PompaFinta pompa;
    AvvisiFinti avvisi;
    MessaggiFinti messaggi;
    DesktopFinto desktop(&diario);
    SchermiFinti schermi;
    schermi.schermi = GetParam().schermi;
    Sagoma sagoma({ambiente, pompa, avvisi, messaggi, schermi, desktop}, GetParam().console);
    sagoma.attiva();
    const FileIni ini(ambiente.file(kFileImpostazioni));
    const auto leggi = [&ini](const char* chiave) { return ini.LeggiIni(kSezioneForm, chiave, "-"); };
    if (GetParam().atteso) {
        const Rettangolo& r = *GetParam().atteso;
        EXPECT_EQ(leggi("Top"), std::to_string(static_cast<int>(r.top.v)));
        EXPECT_EQ(leggi("Left"), std::to_string(static_cast<int>(r.left.v)));
        EXPECT_EQ(leggi("Width"), std::to_string(static_cast<int>(r.width.v)));
        EXPECT_EQ(leggi("Height"), std::to_string(static_cast<int>(r.height.v)));
        EXPECT_EQ(sagoma.posto(), r);
        EXPECT_THAT(messaggi.mostrati,
                    ElementsAre(std::pair<std::string, std::int16_t>("Posizionamento avvenuto", 3)));
        return;
    }
    EXPECT_EQ(leggi("Left"), "-"); // the old values stay
    EXPECT_TRUE(monitorDi(schermi, sagoma.posto())) << "the question isn't out of sight";
    ASSERT_EQ(avvisi.mostrati.size(), 1U);
    EXPECT_EQ(avvisi.mostrati[0].titolo, "Attenzione");
    EXPECT_EQ(avvisi.mostrati[0].bottoni, Bottoni::SiNo);
    EXPECT_THAT(diario, ElementsAre("impostazioni schermo imposchermo.bat"));
    EXPECT_EQ(leggiFile(ambiente.file("imposchermo.bat")), "control.exe desk.cpl,@0,3\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Scrivanie, Posizionamento,
    testing::Values(
        Caso{"destra",
             {{kPrimario, kPrimario, true}, {{28800, 0, 19200, 15360}, {28800, 0, 19200, 14760}, false}},
             kPrimario,
             Rettangolo{28800, 0, 19200, 14760}},
        Caso{"sinistra",
             {{kPrimario, kPrimario, true}, {{-19200, 0, 19200, 15360}, {-19200, 0, 19200, 15360}, false}},
             kPrimario,
             Rettangolo{-19200, 0, 19200, 15360}},
        Caso{
            "destra_allineato_in_basso",
            {{kPrimario, kPrimario, true}, {{28800, 5400, 19200, 10800}, {28800, 5400, 19200, 10800}, false}},
            kPrimario,
            Rettangolo{28800, 5400, 19200, 10800}},
        Caso{"in_basso_di_fianco",
             {{kPrimario, kPrimario, true},
              {{28800, 16200, 19200, 10800}, {28800, 16200, 19200, 10800}, false}},
             kPrimario,
             std::nullopt},
        // The window system counts from the second monitor's corner, so the console doesn't stand at 0.
        Caso{"sinistra_dall_origine",
             {{{15360, 0, 28800, 16200}, {15360, 0, 28800, 16200}, true},
              {{0, 0, 15360, 11520}, {0, 0, 15360, 11520}, false}},
             {15360, 0, 28800, 16200},
             Rettangolo{0, 0, 15360, 11520}},
        Caso{"sopra",
             {{kPrimario, kPrimario, true}, {{0, -15360, 19200, 15360}, {0, -15360, 19200, 15360}, false}},
             kPrimario,
             std::nullopt},
        Caso{"nessuno", {{kPrimario, kPrimario, true}}, kPrimario, std::nullopt},
        Caso{"scala_diversa", // half as many twips for the same pixels
             {{kPrimario, kPrimario, true}, {{28800, 0, 28800, 16200}, {28800, 300, 28800, 15900}, false}},
             kPrimario,
             Rettangolo{28800, 300, 28800, 15900}}),
    [](const auto& caso) { return caso.param.nome; });

TEST(LeggiInfoMonitor, TellsTheMonitorOrThePrimaryOne) {
    SchermiFinti schermi;
    schermi.schermi = {{kPrimario, kPrimario, true, 1},
                       {{28800, -150, 19200, 15360}, {28800, 0, 19200, 14760}, false, 2}};
    const InfoMonitor m = LeggiInfoMonitor(schermi, {30000, 300, 4560, 3030});
    EXPECT_EQ(m.hMonitor, 2);
    EXPECT_FALSE(m.Primario);
    EXPECT_THAT((std::array{m.MonLeft, m.MonRight, m.MonTop, m.MonBottom, m.MonHeight, m.MonWidth}),
                ElementsAre(28800, 48000, -150, 15210, 15360, 19200));
    EXPECT_THAT((std::array{m.WorkLeft, m.WorkRight, m.WorkTop, m.WorkBottom, m.WorkHeight, m.WorkWidth}),
                ElementsAre(28800, 48000, 0, 14760, 14760, 19200));
    EXPECT_EQ(LeggiInfoMonitor(schermi, {90000, 0, 4560, 3030}).hMonitor, 1);
}

TEST(Sagoma, AMachineWithoutDisplaySettingsSaysSo) {
    CartellaTemporanea cartella;
    const Ambiente ambiente{cartella.percorso(), "", ""};
    PompaFinta pompa;
    AvvisiFinti avvisi;
    MessaggiFinti messaggi;
    DesktopFinto desktop;
    desktop.capace = false;
    SchermiFinti schermi;
    schermi.schermi = {{kPrimario, kPrimario, true}};
    Sagoma({ambiente, pompa, avvisi, messaggi, schermi, desktop}, kPrimario).attiva();
    EXPECT_EQ(messaggi.mostrati.size(), 1U);
}

TEST(Sagoma, ANoLeavesEverythingAsItIs) {
    CartellaTemporanea cartella;
    const Ambiente ambiente{cartella.percorso(), "", ""};
    Diario diario;
    PompaFinta pompa;
    AvvisiFinti avvisi;
    avvisi.risposte = {Risposta::No};
    MessaggiFinti messaggi;
    DesktopFinto desktop(&diario);
    SchermiFinti schermi;
    schermi.schermi = {{kPrimario, kPrimario, true}};
    Sagoma({ambiente, pompa, avvisi, messaggi, schermi, desktop}, kPrimario).attiva();
    EXPECT_THAT(diario, IsEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST(Desktop, OutputsThatAreOffOrMirroredGoToTheRight) {
    const std::pair<const char*, std::vector<std::string>> casi[] = {
        {"eDP-1 connected primary 1920x1080+0+0 (normal) 309mm x 173mm\n   1920x1080 60.00*+\nHDMI-1 connected "
         "(normal left)\n   1280x1024 60.02 +\nDP-1 disconnected (normal)\n",
         {"--output", "HDMI-1", "--auto", "--right-of", "eDP-1"}},
        {"eDP-1 connected primary 1920x1080+0+0\nHDMI-1 connected 1920x1080+0+0\n",
         {"--output", "HDMI-1", "--auto", "--right-of", "eDP-1"}},
        {"eDP-1 connected primary 1920x1080+0+0\nHDMI-1 connected 1280x1024+1920+0\n", {}},
        {"eDP-1 connected primary 1920x1080+1280+0\nHDMI-1 connected 1280x1024+0+0\n", {}},
        {"eDP-1 connected primary 1920x1080+0+0\n", {}},
        {"", {}},
    };
    for (const auto& [elenco, argomenti] : casi)
        EXPECT_EQ(argomentiEstensione(elenco), argomenti) << elenco;
}

} // namespace
} // namespace lumigrafo::prova
