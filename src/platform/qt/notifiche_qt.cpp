#include "platform/qt/notifiche_qt.h"

#include "platform/qt/aspetto.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTimer>

#include <algorithm>

namespace lumigrafo {

namespace {

constexpr int kDurataMs = 6000;
constexpr int kLarghezza = 420;
constexpr int kMargine = 16;
/// More than these would cover the console; the oldest give way.
constexpr qsizetype kMassimo = 4;

/// Goes at a click.
class Notifica final : public QLabel {
public:
    explicit Notifica(const QString& testo)
        : QLabel(testo, nullptr,
                 Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                     Qt::WindowDoesNotAcceptFocus) {
        setObjectName(QStringLiteral("notifica"));
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_DeleteOnClose);
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setFixedWidth(kLarghezza);
        setStyleSheet(QStringLiteral("background:#26323F; color:white; padding:14px; font-size:15px;"
                                     "border-left:6px solid #FFC845;"));
        adjustSize();
    }

protected:
    void mousePressEvent(QMouseEvent*) override { close(); }
};

} // namespace

void NotificheQt::mostra(const std::string& testo) {
    const QString righe = QString::fromStdString(testo).remove(u'\r');
    // Else one board that is off would fill the corner in a busy hour.
    aperte_.removeIf([&](const QPointer<QLabel>& n) { return n && n->text() == righe && n->close(); });
    auto* nuova = new Notifica(righe);
    QTimer::singleShot(kDurataMs, nuova, &QWidget::close);
    QObject::connect(nuova, &QObject::destroyed, [this] { impila(); });
    aperte_.append(nuova);
    while (aperte_.size() > kMassimo)
        if (QLabel* prima = aperte_.takeFirst())
            prima->close();
    impila();
    nuova->show();
}

void NotificheQt::impila() {
    aperte_.removeIf([](const QPointer<QLabel>& n) { return n.isNull(); });
    const QRect lavoro = QGuiApplication::primaryScreen()->availableGeometry();
    int piede = lavoro.bottom() - kMargine;
    for (qsizetype i = aperte_.size(); i-- > 0;) {
        QLabel* const n = aperte_[i];
        n->move(lavoro.right() - kMargine - n->width(), piede - n->height());
        piede -= n->height() + kMargine / 2;
    }
}

} // namespace lumigrafo
