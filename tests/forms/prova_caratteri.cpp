#include "platform/qt/caratteri.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

using lumigrafo::carattere;

namespace {

struct Prova {
    double inchiostro; ///< share of the letters' box that is ink
    int larghezza;
};

Prova misura(const char* nome, bool grassetto) {
    const QString testo = QStringLiteral("H08");
    const QFont f = carattere(QString::fromLatin1(nome), 100, grassetto);
    const QRect box = QFontMetrics(f).tightBoundingRect(testo);
    QImage carta(box.size(), QImage::Format_RGB32);
    carta.fill(Qt::white);
    QPainter p(&carta);
    p.setFont(f);
    p.drawText(-box.topLeft(), testo);
    p.end();
    double nero = 0;
    for (int y = 0; y < carta.height(); ++y)
        for (int x = 0; x < carta.width(); ++x)
            nero += (255 - qRed(carta.pixel(x, y))) / 255.0;
    return {nero / (carta.width() * carta.height()), box.width()};
}

// Looked at in ink, because a font database may name a weight that it then doesn't draw.
TEST(Caratteri, ISostitutiHannoPesoELarghezza) {
    const Prova tondo = misura("Arial", false), grassetto = misura("Arial", true);
    EXPECT_GT(grassetto.inchiostro, tondo.inchiostro * 1.15);
    for (const char* pesante : {"Arial Black", "Franklin Gothic Heavy"})
        EXPECT_GT(misura(pesante, false).inchiostro, grassetto.inchiostro * 1.1) << pesante;
    EXPECT_LT(misura("Arial Narrow", true).larghezza, grassetto.larghezza * 0.9);
    const Prova stretto = misura("Franklin Gothic Medium Cond", false);
    EXPECT_LT(stretto.larghezza, grassetto.larghezza * 0.9);
    EXPECT_GT(stretto.inchiostro, misura("Arial Narrow", false).inchiostro * 1.15);
}

TEST(Caratteri, UnNomeSenzaCarattereEUnSansSerif) {
    EXPECT_EQ(QFontInfo(carattere(QStringLiteral("Arial Blank"), 20)).family(),
              QFontInfo(carattere(QStringLiteral("Arial"), 20)).family());
    EXPECT_EQ(QFontInfo(carattere(QStringLiteral("DejaVu Sans"), 20)).family(),
              QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(carattere(QStringLiteral("Verdana"), 0).pixelSize(), 1);
}

} // namespace
