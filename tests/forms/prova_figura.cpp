#include "forms/qt/file_figura.h"
#include "platform/guasto.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QFile>
#include <QImageReader>
#include <QImageWriter>

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
    /// A picture that looks different at each corner, noted as held that way.
    QString foto(const char* nome, QSize misura, QImageIOHandler::Transformations giro = {}) {
        QImage carta(misura, QImage::Format_RGB32);
        for (int y = 0; y < misura.height(); ++y)
            for (int x = 0; x < misura.width(); ++x)
                carta.setPixel(x, y, qRgb(255 * x / misura.width(), 255 * y / misura.height(), 128));
        QImageWriter scrittore(percorso(nome), "jpg");
        scrittore.setQuality(95);
        scrittore.setTransformation(giro);
        EXPECT_TRUE(scrittore.write(carta));
        return percorso(nome);
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
        const FileFigura f(file, c.inquadratura);
        EXPECT_EQ(f.immagine().size(), c.attesa);
        EXPECT_EQ(f.misura(), QSize(1600, 1200));
    }
}

TEST_F(FileFiguraProva, RitagliaIlPezzoGiustoComunqueFosseTenutaLaMacchina) {
    for (int giro = 0; giro < 8; ++giro) {
        const QString file = foto("girata.jpg", {640, 400}, QImageIOHandler::Transformations(giro));
        QImageReader lettore(file);
        lettore.setAutoTransform(true);
        const QImage intera = lettore.read();
        const QSize area(200, 90);
        const FileFigura ritaglio(file, {area, Adattamento::Naturale, 1});
        EXPECT_EQ(ritaglio.misura(), intera.size());
        EXPECT_LT(distanza(ritaglio.immagine(), intera.copy(QRect({0, 0}, area))), 12) << giro;
        const FileFigura stirata(file, {area, Adattamento::Stirata, 1});
        EXPECT_LT(distanza(stirata.immagine(), intera.scaled(area)), 12) << giro;
    }
}

TEST_F(FileFiguraProva, QuandoSeNeVedeDiPiuSiRilegge) {
    const QString file = foto("cresce.jpg", {800, 600});
    FileFigura f(file, {{100, 100}, Adattamento::Stirata, 1});
    EXPECT_FALSE(f.adegua({{90, 100}, Adattamento::Stirata, 1}));
    EXPECT_TRUE(f.adegua({{300, 100}, Adattamento::Stirata, 1}));
    EXPECT_EQ(f.immagine().size(), QSize(300, 100));
    QFile::remove(file);
    EXPECT_FALSE(f.adegua({{600, 400}, Adattamento::Stirata, 1}));
    EXPECT_EQ(f.immagine().size(), QSize(300, 100)) << "the picture on show stays";
}

TEST_F(FileFiguraProva, IlGuastoDiceQualFile) {
    const QString rotta = percorso("rotta.jpg");
    QFile file(rotta);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a picture");
    file.close();
    for (const auto& [nome, numero] : {std::pair(percorso("manca.jpg"), 53), std::pair(rotta, 481)}) {
        try {
            const FileFigura f(nome, {{10, 10}, Adattamento::Stirata, 1});
            ADD_FAILURE() << "read " << nome.toStdString();
        } catch (const Guasto& g) {
            EXPECT_EQ(g.numero(), numero);
            EXPECT_NE(g.descrizione().find(nome.toStdString()), std::string::npos);
        }
    }
}

} // namespace
