#pragma once

#include "platform/notifiche.h"

#include <QList>
#include <QPointer>

class QLabel;

namespace lumigrafo {

/// Notices as small windows, one above the other in the lower right corner of the primary screen, the newest
/// at the foot, each for 6 seconds or until a click; one that says what another says takes its place. Needs a
/// QApplication. Each window's objectName is `notifica`.
class NotificheQt final : public Notifiche {
private:
    void mostra(const std::string& testo) override;
    void impila();

    QList<QPointer<QLabel>> aperte_; ///< the oldest first
};

} // namespace lumigrafo
