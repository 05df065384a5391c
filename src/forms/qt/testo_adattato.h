#pragma once

#include "forms/descrizione.h"

#include <QColor>
#include <QFont>
#include <QSize>
#include <QString>
#include <QTextLayout>
#include <QTextOption>

#include <memory>

class QPainter;

namespace lumigrafo {

/// A text that is always whole in its area. It stands at the middle of the height, at its own size where it
/// fits, and smaller where it doesn't. A number or a title stays in one line; a sentence (three words or
/// more, or what `frase` says) breaks into lines where the area has room for two of them, and so does a text
/// many times as wide as the area, within its words too where they are as long; line ends of the text itself
/// always break.
class TestoAdattato {
public:
    /// True if anything differs from before.
    bool imposta(const QString& testo, const QFont& carattere, Allineamento allineamento);
    /// Underlines the first such letter, small or capital; 0 for none.
    void sottolinea(char lettera) { sottolineata_ = lettera; }
    /// How many words make a sentence.
    void frase(int parole) { paroleDiFrase_ = parole; }
    [[nodiscard]] const QString& testo() const { return testo_; }
    [[nodiscard]] const QFont& carattere() const { return carattere_; }
    void disegna(QPainter& pennello, const QRect& area, const QColor& colore) const;
    /// The size at which the text is drawn in an area of that size.
    [[nodiscard]] int pixelIn(QSize area) const;

private:
    void adatta(QSize area) const;
    /// `lunghezza`: what the text takes in one line at its own size, pixels.
    void adattaInRighe(QSize area, double lunghezza, QTextOption::WrapMode modo) const;
    [[nodiscard]] Qt::Alignment orizzontale() const;
    [[nodiscard]] qsizetype postoSottolineato() const; ///< -1: none
    void sottolinea(QPainter& pennello, QPointF inizio) const;
    void sottolineaNelleRighe(QPainter& pennello, const QRect& area) const;
    void tratto(QPainter& pennello, QPointF inizio, double lungo) const;

    QString testo_;
    QFont carattere_;
    Allineamento allineamento_ = Allineamento::Sinistra;
    char sottolineata_ = 0;
    int paroleDiFrase_ = 3;
    // Worked out at the first painting, since a label may change more often than it is seen.
    mutable QSize misurata_;
    mutable QFont adattato_;
    mutable std::unique_ptr<QTextLayout> righe_; ///< null for a text in one line
    mutable double altezza_ = 0;                 ///< of those lines
};

} // namespace lumigrafo
