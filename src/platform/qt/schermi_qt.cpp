#include "platform/qt/schermi_qt.h"

#include <QGuiApplication>
#include <QScreen>

namespace lumigrafo {

namespace {

Rettangolo inTwip(const QRect& r) {
    return {aTwip(Pixel(r.x())), aTwip(Pixel(r.y())), aTwip(Pixel(r.width())), aTwip(Pixel(r.height()))};
}

} // namespace

std::vector<Schermo> SchermiQt::elenco() const {
    std::vector<Schermo> schermi;
    for (const QScreen* s : QGuiApplication::screens())
        schermi.push_back({inTwip(s->geometry()), inTwip(s->availableGeometry()),
                           s == QGuiApplication::primaryScreen(),
                           static_cast<std::int32_t>(schermi.size()) + 1});
    return schermi;
}

} // namespace lumigrafo
