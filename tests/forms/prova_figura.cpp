#include "forms/qt/figura.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QCoreApplication>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QThreadPool>

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <utility>

using namespace lumigrafo;

namespace {

class FileFiguraProva : public testing::Test {
protected:
    prova::CartellaTemporanea cartella;

    [[nodiscard]] QString percorso(const char* nome) const {
        return QString::fromStdString((cartella.percorso() / nome).string());
    }
    QString scrivi(const char* nome, const QImage& carta, bool progressiva = false) {
        QImageWriter scrittore(percorso(nome), "jpg");
        scrittore.setQuality(95);
        scrittore.setProgressiveScanWrite(progressiva);
        EXPECT_TRUE(scrittore.write(carta));
        return percorso(nome);
    }
    /// A picture that looks different at each corner.
    QString foto(const char* nome, QSize misura) {
        QImage carta(misura, QImage::Format_RGB32);
        for (int y = 0; y < misura.height(); ++y)
            for (int x = 0; x < misura.width(); ++x)
                carta.setPixel(x, y, qRgb(255 * x / misura.width(), 255 * y / misura.height(), 128));
        return scrivi(nome, carta);
    }
    /// The same, with the way the camera was held noted as cameras do it, 1 to 8.
    QString girata(const char* nome, QSize misura, char modo) {
        QFile file(foto(nome, misura));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray dati = file.readAll();
        const QByteArray nota("\xFF\xE1\0\x22"
                              "Exif\0\0MM\0*\0\0\0\x8\0\1\1\x12\0\3\0\0\0\1\0\0\0\0\0\0\0\0",
                              36);
        dati.insert(2, QByteArray(nota).replace(29, 1, &modo, 1));
        file.seek(0);
        file.write(dati);
        return file.fileName();
    }
    /// One that must be decoded whole before any of it can be scaled.
    QString progressiva(const char* nome, QColor tinta) {
        QImage carta(1600, 1200, QImage::Format_RGB32);
        carta.fill(tinta);
        return scrivi(nome, carta, true);
    }
    /// Lets all that was asked for be read and handed over.
    static void lasciaArrivare() {
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }
};

int distanza(const QImage& a, const QImage& b) {
    int massima = a.size() == b.size() ? 0 : 999;
    for (int y = 0; massima < 999 && y < a.height(); y += 7)
        for (int x = 0; x < a.width(); x += 7)
            massima = std::max({massima, std::abs(qRed(a.pixel(x, y)) - qRed(b.pixel(x, y))),
                                std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y)))});
    return massima;
}

TEST_F(FileFiguraProva, DecodificaQuantoSiVede) {
    const QString file = foto("grande.jpg", {1600, 1200});
    struct Caso {
        Inquadratura inquadratura;
        QSize attesa;
    };
    for (const Caso& c : {Caso{{{400, 100}, Adattamento::Stirata, 1}, {400, 100}},
                          Caso{{{400, 100}, Adattamento::Stirata, 2}, {800, 200}},
                          Caso{{{2000, 100}, Adattamento::Stirata, 1}, {1600, 100}},
                          Caso{{{400, 400}, Adattamento::Intera, 1}, {400, 300}},
                          Caso{{{4000, 4000}, Adattamento::Intera, 1}, {1600, 1200}},
                          Caso{{{500, 90}, Adattamento::Naturale, 1}, {500, 90}},
                          Caso{{{500, 9000}, Adattamento::Naturale, 2}, {500, 1200}},
                          Caso{{{0, 0}, Adattamento::Stirata, 1}, {1, 1}}}) {
        const FiguraLetta f = FileFigura(file).leggi(c.inquadratura);
        EXPECT_EQ(f.immagine.size(), c.attesa);
        EXPECT_EQ(f.intera, QSize(1600, 1200));
    }
}

TEST_F(FileFiguraProva, RitagliaIlPezzoGiustoComunqueFosseTenutaLaMacchina) {
    for (char giro = 1; giro <= 8; ++giro) {
        const QString file = girata("girata.jpg", {640, 400}, giro);
        QImageReader lettore(file);
        lettore.setAutoTransform(true);
        const QImage intera = lettore.read();
        ASSERT_EQ(intera.width() < intera.height(), giro > 4);
        const QSize area(200, 90);
        const FiguraLetta ritaglio = FileFigura(file).leggi({area, Adattamento::Naturale, 1});
        EXPECT_EQ(ritaglio.intera, intera.size());
        EXPECT_LT(distanza(ritaglio.immagine, intera.copy(QRect({0, 0}, area))), 12) << int{giro};
        const FiguraLetta stirata = FileFigura(file).leggi({area, Adattamento::Stirata, 1});
        EXPECT_LT(distanza(stirata.immagine, intera.scaled(area)), 12) << int{giro};
    }
}

/// A figure on a sheet of its own; each colour of its middle can be asked for.
struct FiguraSulFoglio {
    int pronte = 0;
    Figura figura{[this] { ++pronte; }};
    QColor disegna(QSize area = {40, 40}) {
        QImage foglio(area, QImage::Format_RGB32);
        foglio.fill(Qt::black);
        QPainter p(&foglio);
        figura.disegna(p, foglio.rect(), Adattamento::Stirata);
        p.end();
        const QColor c = foglio.pixelColor(area.width() / 2, area.height() / 2);
        return {c.red() > 127 ? 255 : 0, c.green() > 127 ? 255 : 0, c.blue() > 127 ? 255 : 0};
    }
    void carica(const QString& file) {
        figura.carica(file.toStdString(), {{40, 40}, Adattamento::Stirata, 1});
    }
};

TEST_F(FileFiguraProva, QuandoSeNeVedeDiPiuSiRilegge) {
    const QString file = progressiva("cresce.jpg", Qt::red);
    FiguraSulFoglio f;
    f.carica(file);
    f.figura.attendi();
    for (const auto& [area, pronte] : {std::pair(QSize(30, 40), 1), std::pair(QSize(300, 100), 2)}) {
        (void)f.disegna(area);
        f.figura.attendi();
        EXPECT_EQ(f.pronte, pronte) << area.width();
    }
    QFile::remove(file);
    EXPECT_NE(f.disegna({600, 400}), QColor(Qt::black));
    EXPECT_NO_THROW(f.figura.attendi());
    EXPECT_NE(f.disegna({600, 400}), QColor(Qt::black)) << "the picture on show stays";
    EXPECT_EQ(f.pronte, 2);
}

TEST_F(FileFiguraProva, SiDecodificaAccantoAlleFinestre) {
    const QString rossa = progressiva("rossa.jpg", Qt::red), verde = progressiva("verde.jpg", Qt::green),
                  blu = progressiva("blu.jpg", Qt::blue);
    FiguraSulFoglio f;
    f.carica(rossa);
    EXPECT_EQ(f.disegna(), QColor(Qt::black)) << "handed over by the event loop, not before";
    f.figura.attendi();
    EXPECT_EQ(f.disegna(), QColor(Qt::red));

    f.carica(verde);
    EXPECT_EQ(f.disegna(), QColor(Qt::red)) << "the old one stays meanwhile";
    f.carica(blu);
    f.figura.attendi();
    lasciaArrivare();
    EXPECT_EQ(f.disegna(), QColor(Qt::blue)) << "the later one wins";
    EXPECT_EQ(f.pronte, 2);

    f.carica(rossa);
    lasciaArrivare();
    EXPECT_EQ(f.disegna(), QColor(Qt::red)) << "the loop alone brings it as well";
    f.carica(verde);
    f.figura.carica("", {});
    lasciaArrivare();
    EXPECT_TRUE(f.figura.vuota());
}

TEST(Disegno, QuelCheRestaIntattoNonSiStira) {
    Figura figura([] {});
    figura.carica("intatto", {});
    QImage foglio(200, 100, QImage::Format_RGB32);
    foglio.fill(Qt::black);
    QPainter p(&foglio);
    figura.disegna(p, foglio.rect(), Adattamento::Stirata);
    p.end();
    EXPECT_EQ(foglio.pixelColor(195, 5), QColor(Qt::green)) << "the rest is stretched";
    for (const auto& [x, tinta] : {std::pair(83, Qt::red), std::pair(117, Qt::red), std::pair(75, Qt::black),
                                   std::pair(125, Qt::black)})
        EXPECT_EQ(foglio.pixelColor(x, 50), QColor(tinta)) << x;
}

TEST_F(FileFiguraProva, ChiSeNeVaNonAspetta) {
    const QString file = progressiva("rossa.jpg", Qt::red);
    int pronte = 0;
    for (int i = 0; i < 8; ++i) {
        Figura figura([&] { ++pronte; });
        figura.carica(file.toStdString(), {{40, 40}, Adattamento::Stirata, 1});
    }
    lasciaArrivare();
    EXPECT_EQ(pronte, 0);
}

} // namespace
