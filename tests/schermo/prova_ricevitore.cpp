#include "links/documento_lumigrafo.h"
#include "strumenti/schermo/qt/ricevitore.h"

#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace lumigrafo::schermo {
namespace {

class RicevitoreProva : public testing::Test {
protected:
    std::vector<std::string> titoli;
    Ricevitore ricevitore{[this](const Tabellone& t) { titoli.push_back(t.titolo); }};
    const QHostAddress qui{0x7F000001U | (QRandomGenerator::global()->generate() & 0x00FFFF00U)};
    static constexpr quint16 kPorta = 8989;

    void SetUp() override { ASSERT_EQ(ricevitore.ascolta(qui, kPorta), std::nullopt); }

    std::unique_ptr<QTcpSocket> mittente(const QByteArray& testo) {
        auto presa = std::make_unique<QTcpSocket>();
        presa->connectToHost(qui, kPorta);
        presa->waitForConnected(3000);
        presa->write(testo);
        return presa;
    }
    /// What comes back until the receiver has closed; "aperta" where it doesn't.
    static QByteArray risposta(QTcpSocket& presa) {
        const bool chiusa =
            QTest::qWaitFor([&] { return presa.state() == QAbstractSocket::UnconnectedState; }, 3000);
        if (!chiusa)
            return QByteArrayLiteral("aperta");
        return presa.isOpen() ? presa.readAll() : QByteArray();
    }
    static QByteArray documento(const char* titolo) {
        DatiLumigrafo d;
        d.TitoloLumigrafo = titolo;
        return QByteArray::fromStdString(documentoLumigrafo(d));
    }
};

TEST_F(RicevitoreProva, RispondeAiDocumentiSaniEChiudeAgliAltriSenzaRisposta) {
    const auto meta = mittente(documento("a metà").left(200));
    for (const QByteArray& cattivo :
         {QByteArrayLiteral("GET / HTTP/1.1\r\n\r\n"), QByteArrayLiteral("{}"),
          QByteArrayLiteral("{\"DatiLumigrafo\":{\"a\":}}"),
          "{" + QByteArray(3'000, '[') + QByteArray(3'000, ']') + "}", "{\"" + QByteArray(4 << 20, 'x')}) {
        EXPECT_EQ(risposta(*mittente(cattivo)), QByteArray()) << cattivo.left(20).data();
    }
    EXPECT_TRUE(titoli.empty());
    const auto primo = mittente(documento("uno")), secondo = mittente(documento("due"));
    EXPECT_EQ(risposta(*secondo), QByteArrayLiteral("OK"));
    EXPECT_EQ(risposta(*primo), QByteArrayLiteral("OK"));
    meta->write(documento("a metà").mid(200));
    EXPECT_EQ(risposta(*meta), QByteArrayLiteral("OK"));
    EXPECT_EQ(titoli, (std::vector<std::string>{"uno", "due", "a metà"}));
}

TEST_F(RicevitoreProva, TroppiInsiemeSonoMandatiVia) {
    std::vector<std::unique_ptr<QTcpSocket>> muti;
    for (int i = 0; i < Ricevitore::kMassimi; ++i)
        muti.push_back(mittente("{"));
    EXPECT_EQ(risposta(*mittente(documento("di troppo"))), QByteArray());
    muti.pop_back();
    ASSERT_TRUE(QTest::qWaitFor([&] { return risposta(*mittente(documento("dopo"))) == "OK"; }, 3000));
    EXPECT_EQ(titoli, std::vector<std::string>{"dopo"});
}

TEST_F(RicevitoreProva, DicePercheNonPuoAscoltare) {
    Ricevitore altro([](const Tabellone&) {});
    EXPECT_EQ(altro.ascolta(qui, kPorta), QStringLiteral("la porta è già in uso"));
    EXPECT_EQ(altro.ascolta(QHostAddress(QStringLiteral("192.0.2.1")), kPorta),
              QStringLiteral("l'indirizzo non è di questa macchina"));
}

} // namespace
} // namespace lumigrafo::schermo
