#include "links/collegamento_android.h"
#include "platform/finti/finti.h"
#include "platform/linux/cliente_tcp.h"
#include "tests/links/lumigrafo_vero.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace lumigrafo::prova {
namespace {

using namespace std::chrono_literals;

class NotificheContate : public Notifiche {
public:
    std::string tutte;

private:
    void mostra(const std::string& testo) override { tutte += testo.substr(testo.find('\n') + 3) + "|"; }
};

class DatiFermi : public DatiAndroid {
public:
    LumigrafoAndroid ip[3];
    bool Lumigrafo9Numeri() const override { return true; }
    LumigrafoAndroid& IpDroid(std::size_t i) override { return ip[i]; }
    std::string Reparto(int) const override { return "Cucina"; }
    std::string scritta(const std::string&, int) override { return "A 12"; }
};

struct Caso {
    const char* nome;
    const char* ip; ///< null: an address of this machine
    bool ascolta;
    LumigrafoVero::Condotta condotta;
    const char* notifica; ///< how the notice begins; null: none
};

constexpr const char* kConnessione = "Errore connessione a lumigrafo con IP = ";
constexpr const char* kEsito = "Non ricevuto esito positivo da lumigrafo con IP = ";

const Caso kCasi[] = {
    {"refuses", nullptr, false, {}, kConnessione},
    {"hangsAtConnect", nullptr, true, {}, kConnessione},
    {"neverAnswers", nullptr, true, [](LumigrafoVero& l, int fd) { l.aspetta(fd); }, kEsito},
    {"closesAtOnce", nullptr, true, [](LumigrafoVero&, int) {}, kEsito},
    {"answersByteByByte", nullptr, true,
     [](LumigrafoVero& l, int fd) {
         l.scrivi(fd, "O");
         l.aspetta(fd);
         l.scrivi(fd, "K");
     },
     nullptr},
    {"answersAGigabyte", nullptr, true,
     [](LumigrafoVero& l, int fd) {
         const std::string pezzo(1 << 16, 'x');
         for (std::size_t prima = 1; prima != l.scritti && l.scritti < 1'000'000'000;) {
             prima = l.scritti;
             l.scrivi(fd, pezzo);
         }
     },
     nullptr},
    {"hasNoName", "lumigrafo-che-non-esiste.invalid", false, {}, kConnessione},
    {"isGarbage", "192.168.1.5:8989 {\"è\"}", false, {}, kConnessione},
    {"isNotWhollyANumber", "256.1.1.1", false, {}, kConnessione},
};

class LumigrafiVeri : public testing::TestWithParam<Caso> {};

TEST_P(LumigrafiVeri, isLeftInTimeAndTheNextOneIsServed) {
    const Caso& caso = GetParam();
    CartellaTemporanea cartella;
    const FileIni ini(cartella.percorso() / kFileImpostazioni);
    DatiFermi dati;
    OrologioFinto orologio;
    ClienteTcpLinux rete;
    NotificheContate notifiche;
    const std::string ip = caso.ip ? caso.ip : indirizzoLocale(), buono = indirizzoLocale();
    ini.ScriviIni(kSezioneAndroid, "IpLumDroid0", ip);
    ini.ScriviIni(kSezioneAndroid, "IpLumDroid1", buono);
    dati.ip[0].Ip = ip;
    std::unique_ptr<LumigrafoVero> cattivo;
    if (caso.ascolta)
        cattivo = std::make_unique<LumigrafoVero>(ip, caso.condotta);
    const LumigrafoVero prossimo(buono, [](LumigrafoVero& l, int fd) { l.leggiERispondi(fd); });
    CollegamentoAndroid android(ini, dati, orologio, rete, notifiche);

    const auto inizio = std::chrono::steady_clock::now();
    android.SincronizzaLumAndroid(0);
    EXPECT_LT(std::chrono::steady_clock::now() - inizio, 1000ms + 500ms); // the limit, and a busy machine
    EXPECT_EQ(notifiche.tutte, caso.notifica ? caso.notifica + ip + "|" : "");
    EXPECT_TRUE(prossimo.ricevuto().ends_with(R"("ForeColorCategoria3":"16777215"}})"));
    EXPECT_LT(cattivo ? cattivo->scritti.load() : 0, 64'000'000u);
}

INSTANTIATE_TEST_SUITE_P(Casi, LumigrafiVeri, testing::ValuesIn(kCasi),
                         [](const auto& caso) { return std::string(caso.param.nome); });

} // namespace
} // namespace lumigrafo::prova
