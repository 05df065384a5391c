#include "forms/qt/tastiera_widget.h"
#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "settings/qt/comunicazione_qt.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

#include <array>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

/// A board of the two elements that the message needs, and nothing of a console.
class ConsoleFinta : public RichiamiConsole {
public:
    std::string detto;
    void CaricaVideataInizio(bool) override {}
    void AggiornaDBLumigrafoCucina(const std::string&, const std::string&, std::int16_t,
                                   std::int16_t) override {}
    void SincronizzaLumAndroid(std::int16_t) override {}
    void Parla(const std::string& testo) override { detto = testo; }
    void ScaricaLumigrafo() override {}
    [[nodiscard]] std::string lblReparto(int) const override { return {}; }
    [[nodiscard]] std::int16_t Categoria(int) const override { return 0; }
    [[nodiscard]] Controlli& frmVideata() override { return videata_; }
    void RidisegnaVideata() override {}
    [[nodiscard]] ContestoDati contestoDati() override { throw Guasto(guasti::kOggettoMancante); }

private:
    static constexpr std::array<Descrizione, 2> kElementi{
        {{.nome = "picComunicazione", .visibile = false}, {.nome = "lblComunicazione"}}};
    Layout layout_{"frmVideata", "", 15000, 12000, kNero, kElementi};
    Controlli videata_{layout_};
};

TEST(ComunicazioneQt, IsTypedByTouchAndLeftOnlyThroughItsOwnButton) {
    CartellaTemporanea cartella;
    const Ambiente ambiente{cartella.percorso(), "", ""};
    ConsoleFinta console;
    DesktopFinto desktop;
    MessaggiFinti messaggi;
    bool fatto = false;
    QTimer::singleShot(0, [&] {
        QWidget* w = QApplication::activeModalWidget();
        ASSERT_TRUE(w && QTest::qWaitForWindowActive(w));
        const auto clic = [w](const char* nome) {
            QTest::mouseClick(w->findChild<QWidget*>(QString::fromLatin1(nome)), Qt::LeftButton);
        };
        auto* testo = w->findChild<QPlainTextEdit*>(QStringLiteral("txtComunicazione"));
        auto* tastiera = dynamic_cast<TastieraWidget*>(w->findChild<QWidget*>(QStringLiteral("tastiera")));
        ASSERT_TRUE(testo && tastiera);
        const auto tocca = [tastiera](const QRect& tasto) {
            EXPECT_GE(tasto.width(), 48);
            EXPECT_GE(tasto.height(), 48);
            QTest::mouseClick(tastiera, Qt::LeftButton, {}, tasto.center());
        };
        const auto scrivi = [&](std::initializer_list<const char*> tasti) {
            for (const char* t : tasti)
                tocca(tastiera->rettangolo(QString::fromUtf8(t)));
        };
        tocca(tastiera->rettangolo(AzioneTasto::Maiuscole));
        scrivi({"P", "i", "ù", " ", "x"});
        tocca(tastiera->rettangolo(AzioneTasto::Cancella));
        clic("lblEnter");
        scrivi({"#+=", "€", "ABC"});
        tocca(tastiera->rettangolo(AzioneTasto::Sinistra));
        scrivi({"5"});
        tocca(tastiera->rettangolo(AzioneTasto::Invio));
        EXPECT_TRUE(testo->hasFocus());
        EXPECT_EQ(testo->toPlainText(), QString::fromUtf8("Più \n5\n€"));
        clic("cmdLeggi");
        EXPECT_EQ(console.detto, "Più \r\n5\r\n€");
        EXPECT_FALSE(w->close());
        EXPECT_TRUE(w->isVisible());
        clic("cmdVisualizza");
        fatto = true;
        clic("cmdUscita");
        EXPECT_FALSE(w->isVisible());
    });
    mostraComunicazione({ambiente, console, desktop, messaggi});
    EXPECT_TRUE(fatto);
    EXPECT_FALSE(console.frmVideata()("picComunicazione").Visible());
    EXPECT_EQ(console.frmVideata()("lblComunicazione").Caption(), "Più \r\n5\r\n€");
}

} // namespace
} // namespace lumigrafo::prova
