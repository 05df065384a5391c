#pragma once

#include "boards/qt/finestra_videata_qt.h"
#include "forms/qt/immagine.h"
#include "tests/boards/banco_videata.h"

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace lumigrafo::prova {

/// A board with its real window.
class BancoFinestra : public BancoVideata {
public:
    explicit BancoFinestra(TipoVideata tipo = TipoVideata::frmLumigrafo) {
        videata = creaVideata(tipo, servizi, fabbricaFinestreQt());
    }
    ~BancoFinestra() {
        videata.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    }
    /// Shows the board: its window.
    QWidget* mostra() {
        videata->Mostra();
        return finestra();
    }
    /// The window in view; null where there is none.
    static QWidget* finestra() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName().startsWith(QLatin1String("frm")) && w->isVisible())
                return w;
        return nullptr;
    }
};

inline QWidget* figlio(const QWidget* finestra, std::string_view nome, int indice = kSenzaIndice) {
    return finestra->findChild<QWidget*>(QString::fromStdString(nomeCompleto(nome, indice)));
}

/// Waits until the file that a picture was told to show is on show. Throws its failure.
inline void attendiFigura(const QWidget* finestra, std::string_view nome) {
    dynamic_cast<ImmagineWidget&>(*figlio(finestra, nome)).attendi();
}

} // namespace lumigrafo::prova
