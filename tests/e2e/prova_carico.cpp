#include "settings/ripristina.h"
#include "tests/console/banco.h"
#include "tests/e2e/registro.h"
#include "tests/sostegno/durata.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace lumigrafo::prova {
namespace {

constexpr unsigned kSeme = 20260315;
constexpr int kScrittureAlSecondo = 60;
constexpr int kChiamateAlmeno = 20;

/// The console's logic on a real archive that one or three other processes write to all the while.
class Carico : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Casse, Carico, testing::Values(1, 3));

TEST_P(Carico, chiamaDepennaERipristinaMentreAltriProcessiScrivono) {
    Banco b;
    b.reparti({1, 2, 3});
    b.imposta("NumeroMassimoRighe", 4000);
    b.caricata();
    Registro registro(b.cartella.percorso() / "archivio.mdb", b.archivio.dataCompetenza, GetParam(),
                      kScrittureAlSecondo, kSeme);
    std::mt19937 caso(kSeme);
    int ricostruzioni = 0;
    const auto ricostruisci = [&] {
        const auto prima = registro.primaDiRicostruire();
        b.premi("cmdAggiorna");
        ++ricostruzioni;
        for (int q = 0; q < 3; ++q)
            ASSERT_EQ(registro.controllaGriglia(prima, q, b.celle(q)), "") << "quadrant " << q;
    };
    const auto chiama = [&](int q) {
        const auto celle = b.celle(q);
        if (celle.empty())
            return;
        const std::string cella = celle[caso() % celle.size()];
        if (cella.empty())
            return;
        registro.chiama(q, cella);
        if (caso() % 3 == 0)
            b.digita(codiceScontrino(q, cella) + "\r");
        else
            b.clic(q, cella);
        registro.chiamato(q, cella);
        const auto posti = b.posti(q); // the newest, or its own where it still stood after a restore
        ASSERT_NE(std::find(posti.begin(), posti.end(), cella.substr(0, 2) + cella.substr(3)), posti.end());
    };

    int ripristini = 0;
    const auto ripristina = [&](int q) {
        const std::string cella = b.ultimi.LeggiIni(kSezioneUltimi, chiaveUltimo(q, 0));
        if (cella.empty() || !registro.ripristina(q, cella))
            return;
        Ripristina finestra(
            ServiziRipristina{b.ambiente, b.console().richiami(), b.orologio, b.pompa}, [] {}, [] {});
        finestra.grid(static_cast<std::int16_t>(q)).corrente(0, 0);
        finestra.clicGriglia(static_cast<std::int16_t>(q));
        ++ripristini;
    };

    const auto fine = std::chrono::steady_clock::now() + durataCarico();
    const auto ultima = fine + std::chrono::seconds(30); // a slow machine takes longer for as many calls
    const auto manca = [&] {
        const auto ora = std::chrono::steady_clock::now();
        return ora < fine || (ora < ultima && registro.chiamate() <= kChiamateAlmeno);
    };
    while (manca() && !HasFatalFailure()) {
        ASSERT_TRUE(registro.attendi());
        if (caso() % 20 == 0)
            ripristina(static_cast<int>(caso() % 3));
        if (caso() % 4 == 0) // about as many as come in, so that the queue stays long
            chiama(static_cast<int>(caso() % 3));
        ricostruisci();
        b.diario.clear();
    }
    ASSERT_TRUE(registro.ferma());
    ricostruisci();
    EXPECT_EQ(registro.controllaArchivio(b.archivio), "");
    std::printf("%d writes (%.0f a second), %d calls, %d of them at the same time as a cancellation, "
                "%d restores, %d rebuilds\n",
                registro.scritture(), registro.scrittureAlSecondo(), registro.chiamate(), registro.incerte(),
                ripristini, ricostruzioni);
    // A write to an Access archive is flushed several times.
    EXPECT_GT(registro.scrittureAlSecondo(), archiviAccess() ? 10 : 20) << "too little load to show anything";
    EXPECT_GT(registro.chiamate(), kChiamateAlmeno);
}

} // namespace
} // namespace lumigrafo::prova
