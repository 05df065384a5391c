#include "platform/qt/aspetto.h"

#include "platform/qt/caratteri.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QScreen>
#include <QWidget>

namespace lumigrafo::aspetto {

namespace {

constexpr int kCaratterePixel = 16;

// The controls of dialogs; those of a layout paint themselves.
constexpr auto kFoglio = R"(
QPushButton { background: #e2e9f0; border: 1px solid #becad5; border-radius: 8px; padding: 8px 20px;
              min-height: 30px; min-width: 88px; color: #1f2933; }
QPushButton:hover { background: #edf2f6; }
QPushButton:pressed { background: #c9d6e2; }
QPushButton:focus { border: 2px solid #2f6da8; padding: 7px 19px; }
QPushButton:disabled { color: #9aa5b1; background: #eef1f4; }
QLineEdit { border: 1px solid #becad5; border-radius: 6px;
            padding: 2px 8px; selection-background-color: #2f6da8; }
QLineEdit:focus { border: 2px solid #2f6da8; padding: 1px 7px; }
QMenuBar { background: #e9edf1; padding: 2px; }
QMenuBar::item { border-radius: 6px; background: transparent; }
QMenuBar::item:selected { background: #d3dee8; }
QMenu { background: #ffffff; border: 1px solid #becad5; padding: 4px; }
QMenu::item { padding: 12px 28px; border-radius: 6px; }
QMenu::item:selected { background: #d3dee8; color: #1f2933; }
QComboBox { min-height: 34px; padding: 2px 10px; }
QCheckBox, QRadioButton { spacing: 10px; min-height: 36px; }
QCheckBox::indicator, QRadioButton::indicator { width: 24px; height: 24px; }
QListView::item { min-height: 36px; }
QToolTip { background: #ffffff; color: #1f2933; border: 1px solid #becad5; }
)";

QPalette tavolozza() {
    QPalette p(kBottone, kFinestra);
    p.setColor(QPalette::Base, kCarta);
    p.setColor(QPalette::Text, kInchiostro);
    p.setColor(QPalette::WindowText, kInchiostro);
    p.setColor(QPalette::ButtonText, kInchiostro);
    p.setColor(QPalette::Highlight, kAccento);
    p.setColor(QPalette::HighlightedText, kCarta);
    for (const auto ruolo : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, ruolo, QColor(154, 165, 177));
    return p;
}

QIcon freccia() {
    QPixmap figura(16, 16);
    figura.fill(Qt::transparent);
    QPainter p(&figura);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(kInchiostro, 2));
    for (const double x : {3.0, 8.0})
        p.drawPolyline(QPolygonF{{x, 4}, {x + 4, 8}, {x, 12}});
    return figura;
}

/// Qt's plain style, with scroll bars that grow with the monitor. Each menu bar
/// asks it for the arrow of one that is too narrow, a picture file: to read it, all of Qt's picture formats
/// would be loaded at the start and stay in memory.
class Stile final : public QProxyStyle {
public:
    Stile() : QProxyStyle(QStringLiteral("Fusion")) {}
    [[nodiscard]] QIcon standardIcon(StandardPixmap quale, const QStyleOption* opzione,
                                     const QWidget* widget) const override {
        return quale == SP_ToolBarHorizontalExtensionButton
                   ? freccia()
                   : QProxyStyle::standardIcon(quale, opzione, widget);
    }
    [[nodiscard]] int pixelMetric(PixelMetric quale, const QStyleOption* opzione,
                                  const QWidget* widget) const override {
        constexpr int kBarra = 28;
        return quale == PM_ScrollBarExtent && widget
                   ? qRound(kBarra * ingrandimento(widget->screen()->availableSize()))
                   : QProxyStyle::pixelMetric(quale, opzione, widget);
    }
    /// Plain words on the buttons of every dialog.
    [[nodiscard]] int styleHint(StyleHint quale, const QStyleOption* opzione, const QWidget* widget,
                                QStyleHintReturn* altro) const override {
        return quale == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(quale, opzione, widget, altro);
    }
};

} // namespace

void applica(QApplication& applicazione) {
    QApplication::setStyle(new Stile);
    QApplication::setPalette(tavolozza());
    QApplication::setFont(carattere(QStringLiteral("Arial"), kCaratterePixel));
    applicazione.setStyleSheet(QString::fromUtf8(kFoglio));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/figure/icona.svg")));
}

} // namespace lumigrafo::aspetto
