#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <utility>

/// The hand of an operator in a window that holds up whoever opened it.
namespace lumigrafo::prova {

/// `azione` runs once the next modal window is up.
inline void poi(std::function<void(QWidget& modale)> azione) {
    QTimer::singleShot(0, [azione = std::move(azione)] {
        QWidget* modale = QApplication::activeModalWidget();
        ASSERT_TRUE(modale && QTest::qWaitForWindowActive(modale));
        azione(*modale);
    });
}

template <typename Widget = QWidget>
Widget* figlio(const QWidget& finestra, const char* nome) {
    return dynamic_cast<Widget*>(finestra.findChild<QWidget*>(QString::fromLatin1(nome)));
}

inline void tocca(const QWidget& finestra, const char* nome) {
    QTest::mouseClick(figlio(finestra, nome), Qt::LeftButton);
}

} // namespace lumigrafo::prova
