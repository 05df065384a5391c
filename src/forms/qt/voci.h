#pragma once

#include "forms/qt/vista.h"

#include <QComboBox>
#include <QListWidget>
#include <QString>
#include <QStringList>

namespace lumigrafo {

/// The items of a list control.
[[nodiscard]] inline QStringList testiDi(const Controllo& c) {
    QStringList testi;
    for (const std::string& voce : c.Voci())
        testi << QString::fromStdString(voce);
    return testi;
}

[[nodiscard]] inline QStringList testiDi(const QComboBox& combo) {
    QStringList testi;
    for (int i = 0; i < combo.count(); ++i)
        testi << combo.itemText(i);
    return testi;
}

[[nodiscard]] inline QStringList testiDi(const QListWidget& lista) {
    QStringList testi;
    for (int i = 0; i < lista.count(); ++i)
        testi << lista.item(i)->text();
    return testi;
}

/// The style sheet of items: lines as high as a finger is broad, at the window's present size.
[[nodiscard]] inline QString foglioVoci(const Resa& resa) {
    constexpr int kAltezza = 720; // twips: 48 pixels at the design
    return QStringLiteral(
               "QListView { background: #ffffff; border: 1px solid #becad5; outline: 0; }"
               "QListView::item { height: %1px; padding-left: %2px; color: #1f2933; border: 0; background: #ffffff; }"
               "QListView::item:selected { background: #2f6da8; color: #ffffff; }")
        .arg(resa.scala.altezza(kAltezza))
        .arg(resa.scala.larghezza(120));
}

} // namespace lumigrafo
