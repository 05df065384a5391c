#include "platform/qt/scelta_file_qt.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <QApplication>
#include <QFileDialog>
#include <QTimer>

#include <fstream>
#include <functional>
#include <gtest/gtest.h>

using namespace lumigrafo;

namespace {

std::filesystem::path scegli(const std::filesystem::path& cartella,
                             const std::function<void(QFileDialog&)>& operatore) {
    QWidget padrone;
    SceltaFileQt scelta(padrone);
    QTimer::singleShot(0, &padrone, [&] {
        auto* finestra = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(finestra);
        EXPECT_EQ(finestra->parentWidget(), &padrone);
        EXPECT_EQ(finestra->windowTitle(), QStringLiteral("Seleziona"));
        EXPECT_EQ(finestra->nameFilters(), QStringList(QStringLiteral("Immagini (*.jpg)")));
        EXPECT_EQ(finestra->directory().absolutePath().toStdString(), cartella.string());
        EXPECT_EQ(finestra->labelText(QFileDialog::FileName),
                  QStringLiteral("&Nome file:")); // on any machine
        operatore(*finestra);
    });
    return scelta.scegli({"Seleziona", "Immagini (*.jpg)", cartella});
}

TEST(SceltaFile, QuelloSceltoONessuno) {
    const prova::CartellaTemporanea cartella;
    const auto file = cartella.percorso() / "festa è qui.JPG";
    std::ofstream(file) << "x";
    for (const char* fine : {"reject", "accept"})
        EXPECT_EQ(scegli(cartella.percorso(),
                         [&](QFileDialog& f) {
                             f.selectFile(QString::fromStdU16String(file.u16string()));
                             QMetaObject::invokeMethod(&f, fine);
                         }),
                  fine == std::string("accept") ? file : std::filesystem::path());
}

} // namespace
