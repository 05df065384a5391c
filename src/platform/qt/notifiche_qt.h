#pragma once

#include "platform/notifiche.h"

#include <QList>
#include <QPointer>

class QLabel;

namespace lumigrafo {

/// Notices as small windows, one above the other in the lower right corner of the primary screen, each for 6
/// seconds or until a click. Needs a QApplication. Each window's objectName is `notifica`.
class NotificheQt final : public Notifiche {
public:
    void NotificaPopup(const std::string& testo) override;

private:
    void impila();

    QList<QPointer<QLabel>> aperte_; ///< the oldest first, at the foot
};

} // namespace lumigrafo
