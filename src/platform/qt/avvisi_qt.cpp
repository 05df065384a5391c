#include "platform/qt/avvisi_qt.h"

#include "platform/qt/aspetto.h"

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace lumigrafo {

namespace {

QMessageBox::Icon icona(Icona i) {
    switch (i) {
    case Icona::Critica:
        return QMessageBox::Critical;
    case Icona::Domanda:
        return QMessageBox::Question;
    case Icona::Esclamazione:
        return QMessageBox::Warning;
    case Icona::Informazione:
        return QMessageBox::Information;
    case Icona::Nessuna:
        break;
    }
    return QMessageBox::NoIcon;
}

QPushButton* bottone(QMessageBox& box, const QString& testo, QMessageBox::ButtonRole ruolo) {
    QPushButton* b = box.addButton(testo, ruolo);
    b->setObjectName(testo);
    b->setAutoDefault(false);
    return b;
}

/// What the box stands over. Between two boxes no window may be active yet: without an owner the second one
/// could come up on the public's monitor.
QWidget* finestraAttiva() {
    if (QWidget* modale = QApplication::activeModalWidget())
        return modale;
    if (QWidget* attiva = QApplication::activeWindow())
        return attiva;
    const auto finestre = QApplication::topLevelWidgets();
    const auto principale = std::find_if(finestre.begin(), finestre.end(), [](const QWidget* w) {
        return qobject_cast<const QMainWindow*>(w) && w->isVisible();
    });
    return principale == finestre.end() ? nullptr : *principale;
}

/// Type and buttons in proportion to the monitor, as in the program's own windows.
QString foglio(const QMessageBox& box) {
    const QWidget* sopra = box.parentWidget();
    const QScreen* schermo = sopra ? sopra->screen() : QApplication::primaryScreen();
    const double scala = aspetto::ingrandimento(schermo->availableSize());
    return QStringLiteral("QMessageBox QLabel { font-size: %1px; padding: %2px; }"
                          "QMessageBox QPushButton { font-size: %1px; min-width: %3px; min-height: %4px; }")
        .arg(qRound(18 * scala))
        .arg(qRound(10 * scala))
        .arg(qRound(110 * scala))
        .arg(qRound(40 * scala));
}

} // namespace

Risposta AvvisiQt::chiedi(const Avviso& avviso) {
    QMessageBox box(finestraAttiva());
    box.setObjectName(QStringLiteral("avviso"));
    box.setStyleSheet(foglio(box));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(avviso.testo).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    box.setWindowTitle(avviso.titolo.empty() ? QStringLiteral("Lumigrafo")
                                             : QString::fromStdString(avviso.titolo));
    box.setIcon(icona(avviso.icona));
    box.setWindowModality(Qt::ApplicationModal);
    box.setWindowFlag(Qt::WindowStaysOnTopHint); // a board may lie over everything
    const bool domanda = avviso.bottoni == Bottoni::SiNo;
    QPushButton* primo = domanda ? bottone(box, QStringLiteral("Sì"), QMessageBox::YesRole)
                                 : bottone(box, QStringLiteral("OK"), QMessageBox::AcceptRole);
    if (!domanda)
        box.setDefaultButton(primo); // a question has none: a scanner's Enter must not answer it
    box.setEscapeButton(domanda ? bottone(box, QStringLiteral("No"), QMessageBox::NoRole) : primo);
    box.exec();
    if (!domanda)
        return Risposta::Ok;
    return box.clickedButton() == primo ? Risposta::Si : Risposta::No;
}

} // namespace lumigrafo
