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

/// A monitor without any bar.
constexpr Schermo nudo(const Rettangolo& tutto, bool primario = false) {
    return {tutto, tutto, primario};
}

constexpr Rettangolo kPrimario{0, 0, 28800, 16200};
constexpr Schermo kConsole = nudo(kPrimario, true);

/// The outline on a desktop, with the operator's answers.
class SagomaProva : public testing::Test {
protected:
    CartellaTemporanea cartella;
    Ambiente ambiente{cartella.percorso(), "", ""};
    FileIni ini{ambiente.file(kFileImpostazioni)};
    Diario diario;
    PompaFinta pompa;
    AvvisiFinti avvisi;
    MessaggiFinti messaggi;
    DesktopFinto desktop{&diario};
    SchermiFinti schermi;

    void SetUp() override { schermi.schermi = {kConsole}; }
    /// Where it stands in the end.
    Rettangolo attiva(const Rettangolo& console = kPrimario) {
        Sagoma sagoma({ambiente, pompa, avvisi, messaggi, schermi, desktop}, console);
        sagoma.attiva();
        return sagoma.posto();
    }
    /// Left, top, width and height in the settings.
    std::string salvato() const {
        std::string posto;
        for (const char* chiave : {"Left", "Top", "Width", "Height"})
            posto += ini.LeggiIni(kSezioneForm, chiave, "-") + " ";
        return posto;
    }
};

TEST_F(SagomaProva, FindsTheMonitorBesideTheConsole) {
    struct Caso {
        const char* nome;
        Schermo altro;
        const char* salvato;
        Schermo console = kConsole;
    };
    for (const auto& [nome, altro, atteso, console] : {
             Caso{"to the right, with a bar at its foot",
                  {{28800, 0, 19200, 15360}, {28800, 0, 19200, 14760}},
                  "28800 0 19200 14760 "},
             Caso{"to the left", nudo({-19200, 0, 19200, 15360}), "-19200 0 19200 15360 "},
             Caso{"with the feet at one height", nudo({28800, 5400, 19200, 10800}),
                  "28800 5400 19200 10800 "},
             // The window system counts from the second monitor's corner, so the console doesn't stand at 0.
             Caso{"to the left, at the origin", nudo({0, 0, 15360, 11520}), "0 0 15360 11520 ",
                  nudo({15360, 0, 28800, 16200}, true)},
             Caso{"half as many twips for the same pixels",
                  {{28800, 0, 28800, 16200}, {28800, 300, 28800, 15900}},
                  "28800 300 28800 15900 "},
         }) {
        SCOPED_TRACE(nome);
        schermi.schermi = {console, altro};
        EXPECT_EQ(attiva(console.tutto), altro.lavoro);
        EXPECT_EQ(salvato(), atteso);
        EXPECT_EQ(messaggi.mostrati.back(),
                  std::pair(std::string("Posizionamento avvenuto"), std::int16_t{3}));
    }
    EXPECT_THAT(avvisi.mostrati, IsEmpty());
}

TEST_F(SagomaProva, AsksWhereNoMonitorIsBeside) {
    using Altri = std::vector<Schermo>;
    for (const auto& [nome, altri] : {std::pair("none", Altri{}),
                                      {"above", Altri{nudo({0, -15360, 19200, 15360})}},
                                      {"below and beside", Altri{nudo({28800, 16200, 19200, 10800})}}}) {
        SCOPED_TRACE(nome);
        diario.clear();
        schermi.schermi = altri;
        schermi.schermi.insert(schermi.schermi.begin(), kConsole);
        EXPECT_TRUE(monitorDi(schermi, attiva())) << "the question isn't out of sight";
        EXPECT_EQ(salvato(), "- - - - ") << "the old values stay";
        EXPECT_EQ(avvisi.mostrati.back().titolo, "Attenzione");
        EXPECT_EQ(avvisi.mostrati.back().bottoni, Bottoni::SiNo);
        EXPECT_THAT(diario, ElementsAre("impostazioni schermo imposchermo.bat"));
        EXPECT_EQ(leggiFile(ambiente.file("imposchermo.bat")), "control.exe desk.cpl,@0,3\r\n");
    }
    EXPECT_THAT(messaggi.mostrati, IsEmpty());
    desktop.capace = false;
    attiva();
    EXPECT_EQ(messaggi.mostrati.size(), 1U) << "a machine without display settings says so";
}

TEST_F(SagomaProva, ANoLeavesEverythingAsItIs) {
    avvisi.risposte = {Risposta::No};
    attiva();
    EXPECT_THAT(diario, IsEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

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
    for (const double left : {90000., 26000.}) // beside both, and for the most part on the first
        EXPECT_EQ(LeggiInfoMonitor(schermi, {left, 0, 4560, 3030}).hMonitor, 1);
}

TEST(Desktop, OutputsThatAreOffOrMirroredGoToTheRight) {
    const std::vector<std::string> estende{"--output", "HDMI-1", "--auto", "--right-of", "eDP-1"}, niente;
    const std::pair<const char*, std::vector<std::string>> casi[] = {
        {"eDP-1 connected primary 1920x1080+0+0 (normal) 309mm x 173mm\n   1920x1080 60.00*+\nHDMI-1 connected "
         "(normal left)\n   1280x1024 60.02 +\nDP-1 disconnected (normal)\n",
         estende},
        {"eDP-1 connected primary 1920x1080+0+0\nHDMI-1 connected 1920x1080+0+0\n", estende},
        {"eDP-1 connected primary 1920x1080+0+0\nHDMI-1 connected 1280x1024+1920+0\n", niente},
        {"eDP-1 connected primary 1920x1080+1280+0\nHDMI-1 connected 1280x1024+0+0\n", niente},
        {"eDP-1 connected primary 1920x1080+0+0\n", niente},
        {"", niente}};
    for (const auto& [elenco, argomenti] : casi)
        EXPECT_EQ(argomentiEstensione(elenco), argomenti) << elenco;
}

} // namespace
} // namespace lumigrafo::prova
