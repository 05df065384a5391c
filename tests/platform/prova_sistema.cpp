#include "platform/finti/finti.h"
#include "platform/guasto.h"
#include "platform/linux/alimentazione.h"
#include "platform/linux/eco.h"
#include "platform/linux/orologio.h"
#include "platform/linux/sistema.h"
#include "tests/platform/ambiente_prova.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <optional>
#include <sys/socket.h>

namespace lumigrafo {
namespace {

using prova::Cartella;
using prova::Cenno;
using prova::Figlio;
using testing::ElementsAre;

/// Another process of the program that stays until it is killed.
struct Stazione {
    explicit Stazione(const std::filesystem::path& cartella)
        : figlio([&, this] {
              SistemaLinux sistema(cartella);
              const bool trovata = sistema.istanzaPrecedente();
              arrivata.da();
              ::pause();
              return trovata ? 1 : 0;
          }) {
        arrivata.aspetta();
    }
    Cenno arrivata;
    Figlio figlio;
};

TEST(Istanza, vedeChiViveNellaStessaCartella) {
    const Cartella c, altra;
    std::optional<Stazione> prima(c.percorso());
    SistemaLinux seconda(c.percorso());
    EXPECT_TRUE(seconda.istanzaPrecedente());
    EXPECT_FALSE(SistemaLinux(altra.percorso()).istanzaPrecedente());
    prima.reset(); // killed
    EXPECT_FALSE(seconda.istanzaPrecedente());
}

/// A restart: the new process starts while the old one lives, doesn't care, and must be found by a third.
TEST(Istanza, ilRiavvioPrendeIlPostoDiChiMuore) {
    const Cartella c;
    std::optional<Stazione> vecchia(c.percorso());
    const Stazione nuova(c.percorso());
    vecchia.reset();
    EXPECT_TRUE(SistemaLinux(c.percorso()).istanzaPrecedente());
}

TEST(Istanza, diUnaSolaTraMolteInsieme) {
    const Cartella c;
    Cenno via, finito, fine;
    const auto corsa = [&] {
        SistemaLinux sistema(c.percorso());
        via.aspetta();
        const bool sola = !sistema.istanzaPrecedente();
        finito.da();
        fine.aspetta(); // stays until all have looked
        return sola ? 1 : 0;
    };
    Figlio a(corsa), b(corsa), d(corsa);
    for (int i = 0; i < 3; ++i)
        via.da();
    for (int i = 0; i < 3; ++i)
        finito.aspetta();
    for (int i = 0; i < 3; ++i)
        fine.da();
    EXPECT_LE(a.attendi() + b.attendi() + d.attendi(), 1);
}

TEST(Istanza, cartellaCheNonSiPuoScrivere) {
    const Cartella runtime;
    ::setenv("XDG_RUNTIME_DIR", runtime.percorso().c_str(), 1);
    const Stazione prima("/proc/lumigrafo");
    EXPECT_TRUE(SistemaLinux("/proc/lumigrafo").istanzaPrecedente());
    EXPECT_FALSE(SistemaLinux("/proc/altra").istanzaPrecedente());
    ::unsetenv("XDG_RUNTIME_DIR");
}

TEST(Eco, soloIndirizziPuntati) {
    for (const char* nome : {"localhost", "", "127.0.0", "127.0.0.1 x", "0.0.0.0", "::1", "1270001"})
        EXPECT_FALSE(ecoDiUnSalto(nome)) << nome;
    // Some machines let an ordinary process send no echo at all.
    const auto permesso = [](int tipo) {
        return Descrittore(::socket(AF_INET, tipo, IPPROTO_ICMP)).aperto();
    };
    if (!permesso(SOCK_DGRAM) && !permesso(SOCK_RAW)) {
        EXPECT_FALSE(ecoDiUnSalto("127.0.0.1"));
        GTEST_SKIP() << "no echo allowed here";
    }
    EXPECT_TRUE(ecoDiUnSalto("127.0.0.1"));
    EXPECT_FALSE(ecoDiUnSalto("127.0.0.1", std::chrono::milliseconds(0)));
}

TEST(Sistema, utenteEBip) {
    int bip = 0;
    SistemaLinux sistema("", [&] { ++bip; });
    sistema.bip();
    EXPECT_EQ(bip, 1);
    EXPECT_FALSE(sistema.NomeUtente().empty());
    EXPECT_LE(sistema.NomeUtente().size(), 99U);
}

TEST(Orologio, oraLocaleSecondoIlFuso) {
    ::setenv("TZ", "XYZ-3", 1);
    const OrologioSistema orologio;
    DataOra letta;
    std::tm attesa{};
    do { // again where the second turned in between
        const std::time_t ora = std::time(nullptr) + 3 * 3600;
        ::gmtime_r(&ora, &attesa);
        letta = orologio.adesso();
    } while (letta.secondo != attesa.tm_sec);
    ::unsetenv("TZ");
    EXPECT_EQ(letta.data, (Data{attesa.tm_year + 1900, attesa.tm_mon + 1, attesa.tm_mday}));
    EXPECT_EQ(letta.ora, attesa.tm_hour);
    EXPECT_EQ(letta.minuto, attesa.tm_min);
    EXPECT_EQ(ieri({2024, 3, 1}), (Data{2024, 2, 29}));
    EXPECT_EQ(ieri({2026, 1, 1}), (Data{2025, 12, 31}));
}

/// Only the program named here can be started.
struct SoloQuesto : ProcessiFinti {
    const std::filesystem::path quale;
    explicit SoloQuesto(const char* programma) : quale(programma) {}
    void avvia(const std::filesystem::path& programma, const std::vector<std::string>& argomenti,
               StileFinestra stile) override {
        if (programma != quale)
            throw Guasto(guasti::kFileNonTrovato);
        ProcessiFinti::avvia(programma, argomenti, stile);
    }
};

TEST(Alimentazione, usaIlComandoCheCE) {
    for (const auto& [programma, spegne, riavvia] :
         {std::array{"systemctl", "systemctl poweroff", "systemctl reboot"},
          std::array{"/sbin/shutdown", "/sbin/shutdown -h now", "/sbin/shutdown -r now"}}) {
        SoloQuesto processi(programma);
        for (const bool systemd : {true, programma[0] != '/'}) {
            AlimentazioneLinux alimentazione(processi, systemd);
            alimentazione.spegni();
            alimentazione.riavvia();
        }
        EXPECT_THAT(processi.avviati, ElementsAre(spegne, riavvia, spegne, riavvia));
    }
    SoloQuesto nessuno("");
    EXPECT_THROW(AlimentazioneLinux(nessuno, true).spegni(), Guasto);
}

} // namespace
} // namespace lumigrafo
