#include "platform/qt/scelta_file_qt.h"

#include <QDir>
#include <QFileDialog>

namespace lumigrafo {

std::filesystem::path SceltaFileQt::scegli(const RichiestaFile& richiesta) {
    QFileDialog finestra(&padrone_, QString::fromStdString(richiesta.titolo),
                         QString::fromStdU16String(richiesta.cartella.u16string()),
                         QString::fromStdString(richiesta.filtro));
    finestra.setObjectName(QStringLiteral("sceltaFile"));
    finestra.setFileMode(QFileDialog::ExistingFile);
    finestra.setWindowModality(Qt::ApplicationModal);
    finestra.setWindowFlag(Qt::WindowStaysOnTopHint); // a board may lie over everything
    if (finestra.exec() != QDialog::Accepted || finestra.selectedFiles().isEmpty())
        return {};
    return QDir::toNativeSeparators(finestra.selectedFiles().constFirst()).toStdU16String();
}

} // namespace lumigrafo
