#include "platform/qt/scelta_file_qt.h"

#include "platform/qt/aspetto.h"

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QScreen>
#include <QTreeView>

namespace lumigrafo {

namespace {

/// Rows for a finger, and all in proportion to the monitor.
void ingrandisci(QFileDialog& finestra, QSize libero) {
    constexpr QSize kGrandezza{900, 620};
    const double scala = aspetto::ingrandimento(libero);
    finestra.setStyleSheet(
        QStringLiteral("QFileDialog * { font-size: %1px; }"
                       "QTreeView::item, QFileDialog QLineEdit, QFileDialog QComboBox { min-height: %2px; }")
            .arg(qRound(16 * scala))
            .arg(qRound(40 * scala)));
    if (const auto* elenco = finestra.findChild<QTreeView*>()) // the system's own chooser has none
        elenco->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    finestra.resize((kGrandezza * scala).boundedTo(libero));
}

} // namespace

std::filesystem::path SceltaFileQt::scegli(const RichiestaFile& richiesta) {
    QFileDialog finestra(&padrone_, QString::fromStdString(richiesta.titolo),
                         QString::fromStdU16String(richiesta.cartella.u16string()),
                         QString::fromStdString(richiesta.filtro));
    finestra.setObjectName(QStringLiteral("sceltaFile"));
    finestra.setFileMode(QFileDialog::ExistingFile);
    ingrandisci(finestra, padrone_.screen()->availableSize());
    finestra.setWindowModality(Qt::ApplicationModal);
    finestra.setWindowFlag(Qt::WindowStaysOnTopHint); // a board may lie over everything
    if (finestra.exec() != QDialog::Accepted || finestra.selectedFiles().isEmpty())
        return {};
    return QDir::toNativeSeparators(finestra.selectedFiles().constFirst()).toStdU16String();
}

} // namespace lumigrafo
