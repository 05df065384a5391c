#include "tests/e2e/modello.h"
#include "tests/e2e/registro.h"
#include "tests/e2e/stazione.h"
#include "tests/sostegno/durata.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <thread>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

constexpr unsigned kSeme = 20260315;

/// The program itself under touches and scans.
class SottoCarico : public ConSchermo {
protected:
    std::unique_ptr<Stazione> s;
    std::mt19937 caso{kSeme};
    std::array<std::array<std::string, StatoSalvato::kUltimi>, 3> liste; ///< as far as they were taken in

    void SetUp() override {
        ConSchermo::SetUp();
        if (schermo)
            s = std::make_unique<Stazione>(*schermo);
    }

    /// Numbers called in a quadrant since the last look, oldest first. One can be called twice: the new
    /// entries are those before the place where the old list goes on.
    std::vector<std::string> nuovi(std::size_t q) {
        std::vector<std::string> chiamati;
        // Between two keys of an update there is no such place.
        EXPECT_TRUE(attendiChe(5s, [&] {
            const auto lista = StatoSalvato::leggi(s->cartella.percorso()).ultimi[q];
            for (auto qui = lista.begin(); qui != lista.end(); ++qui)
                if (std::equal(qui, lista.end(), liste[q].begin())) {
                    chiamati.assign(lista.begin(), qui);
                    liste[q] = lista;
                    return true;
                }
            return false;
        }));
        std::reverse(chiamati.begin(), chiamati.end());
        return chiamati;
    }

    /// Follows each call to its strike-off.
    void segui(Registro& registro) {
        for (std::size_t q = 0; q < 3; ++q)
            for (const std::string& cella : nuovi(q)) {
                EXPECT_TRUE(attendiChe(10s,
                                       [&] {
                                           registro.aggiorna();
                                           return registro.annullato(cella) ||
                                                  s->archivio.leggi(
                                                      "SELECT SERVITO FROM DettaglioLumigrafo WHERE " +
                                                      ordineDi(cella) +
                                                      " AND CATEGORIA = " + std::to_string(q + 1)) == "-1";
                                       }))
                    << cella << " was called and not struck off";
                registro.chiamato(static_cast<int>(q), cella);
            }
    }

    void aggiorna() {
        s->clic("cmdAllarga");
        s->clic("cmdAggiorna");
    }

    /// Until no gesture is being worked on any more: one that comes in the middle of another can be dropped,
    /// or leave a hole in a grid. The longest pause inside one is the outcome panel's.
    void quiete() {
        for (const char* file : {kFileUltimiChiamati, kFileVideata})
            EXPECT_TRUE(attendiChe(20s, [&] {
                return std::filesystem::last_write_time(s->cartella.percorso() / file) + 1500ms <
                       std::filesystem::file_time_type::clock::now();
            }));
    }

    /// Open orders of a quadrant as its grid shows them.
    std::vector<std::string> aperti(std::size_t q) {
        std::istringstream righe(
            s->archivio.leggi("SELECT Sigla || '__' || Numero FROM Lumigrafo WHERE Categoria" +
                              std::to_string(q + 1) + " <> 0 ORDER BY Sigla, Numero"));
        std::vector<std::string> celle;
        for (std::string cella; righe >> cella;)
            celle.push_back(cella.replace(1, 2, "  "));
        return celle;
    }

    /// Rebuilds the grids and calls the first cells of a quadrant in turn, where a row that is empty goes;
    /// tells the first that wasn't what the archive holds.
    std::string sbagliata(std::size_t q, Registro& registro) {
        quiete();
        aggiorna();
        std::this_thread::sleep_for(1s); // who touches earlier means what the grid showed before
        const auto attesi = aperti(q);
        for (std::size_t i = 0; i < std::min<std::size_t>(attesi.size(), 6); ++i) {
            s->clic(static_cast<int>(q), 0, static_cast<int>(i % 3));
            const auto ultimo = [&] { return s->ultimoChiamato(static_cast<int>(q)); };
            const bool chiamato = attendiChe(2s, [&] { return ultimo() == attesi[i]; });
            segui(registro);
            if (!chiamato)
                return attesi[i] + " expected, called " + ultimo() + "; ";
        }
        return "";
    }

    /// The same for all quadrants. On a slow machine a touch can come before the last one has quite ended,
    /// and is dropped then: only what is wrong again and again is wrong.
    std::string sbagliate(Registro& registro) {
        std::string quali;
        for (std::size_t q = 0; q < 3; ++q) {
            std::string quale = sbagliata(q, registro);
            for (int volta = 1; volta < 4 && !quale.empty(); ++volta)
                quale = sbagliata(q, registro);
            quali += quale;
        }
        return quali;
    }
};

TEST_F(SottoCarico, chiamaMentreUnAltroProcessoScrive) {
    ASSERT_TRUE(s->accendi());
    Registro registro(s->cartella.percorso() / "archivio.mdb", s->archivio.dataCompetenza, 1, 40, kSeme);
    int gesti = 0;
    auto prossimaScansione = std::chrono::steady_clock::now();
    const auto fine = prossimaScansione + durataCarico();
    while (std::chrono::steady_clock::now() < fine && !HasFailure()) {
        ASSERT_TRUE(registro.attendi());
        const int q = static_cast<int>(caso() % 3);
        if (++gesti % 12 == 1) {
            aggiorna();
        } else if (const auto ora = std::chrono::steady_clock::now(); ora >= prossimaScansione) {
            prossimaScansione = ora + 1200ms; // the outcome panel takes most of it
            const auto celle = aperti(static_cast<std::size_t>(q));
            if (!celle.empty())
                schermo->digita(codiceScontrino(q, celle[caso() % celle.size()]) + "\r");
        } else {
            s->clic(q, static_cast<int>(caso() % 4), static_cast<int>(caso() % 3));
        }
        segui(registro);
        ASSERT_TRUE(s->programma().vivo());
    }
    ASSERT_TRUE(registro.ferma());

    quiete();
    segui(registro);
    EXPECT_EQ(sbagliate(registro), "");
    EXPECT_TRUE(s->programma().vivo());
    EXPECT_TRUE(attendiChe(10s, [&] { return registro.controllaArchivio(s->archivio).empty(); }))
        << registro.controllaArchivio(s->archivio);
    std::printf(
        "%d writes (%.0f a second), %d gestures, %d calls, %d of them at the same time as a cancellation\n",
        registro.scritture(), registro.scrittureAlSecondo(), gesti, registro.chiamate(), registro.incerte());
    EXPECT_GT(registro.scrittureAlSecondo(), 20) << "too little load to show anything";
    EXPECT_GT(registro.chiamate(), 10);
}

TEST_F(SottoCarico, uccisoMentreChiamaRiparteDaUnoStatoDellaCorsa) {
    for (int n = 1; n <= 90; ++n)
        s->archivio.ordine("A", n, {{n % 3 + 1, 1}});
    int tagliate = 0;
    for (int giro = 0; giro < 3; ++giro) {
        SCOPED_TRACE("seed " + std::to_string(kSeme) + ", round " + std::to_string(giro));
        ASSERT_TRUE(s->accendi());
        std::vector<StatoSalvato> possibili{StatoSalvato::leggi(s->cartella.percorso())};
        const std::array griglie{aperti(0), aperti(1), aperti(2)};
        const auto fine = std::chrono::steady_clock::now() + std::chrono::milliseconds(150 + caso() % 600);
        for (std::size_t i = 0; std::chrono::steady_clock::now() < fine; ++i) {
            const std::size_t q = i % 3; // the first row of each grid, in turn
            const std::string cella = griglie.at(q).at(i / 3);
            const auto chiamata = [&] { return s->ultimoChiamato(static_cast<int>(q)) == cella; };
            if (chiamata()) // killed in the middle of its call, the round before
                continue;
            const auto altri = possibili.back().durante(q, cella);
            possibili.insert(possibili.end(), altri.begin(), altri.end());
            while (std::chrono::steady_clock::now() < fine && !chiamata()) {
                s->clic(static_cast<int>(q), 0,
                        static_cast<int>(i / 3 % 3)); // dropped if the last isn't over
                const auto resta = std::chrono::duration_cast<std::chrono::milliseconds>(
                    fine - std::chrono::steady_clock::now());
                (void)attendiChe(std::clamp(resta, 0ms, 300ms), chiamata);
            }
        }
        s->programma().uccidi();
        const StatoSalvato trovato = StatoSalvato::leggi(s->cartella.percorso());
        EXPECT_NE(std::find(possibili.begin(), possibili.end(), trovato), possibili.end())
            << "no state of the run:\n"
            << trovato.testo();
        EXPECT_EQ(s->archivio.leggi("PRAGMA integrity_check"), "ok");
        tagliate += trovato != possibili.front();
    }
    EXPECT_GT(tagliate, 0) << "nothing was called";
}

} // namespace
} // namespace lumigrafo::prova
