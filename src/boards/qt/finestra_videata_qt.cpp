#include "boards/qt/finestra_videata_qt.h"

#include "boards/modulo_monitor.h"
#include "forms/qt/finestra.h"
#include "platform/qt/schermi_qt.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace lumigrafo {

namespace {

/// Qt puts the program's name where a window has no caption at all; this one has a mark that nobody sees.
const QString kSenzaTitolo(QChar(0x200B));

class FinestraVideataQt final : public FinestraVideata {
public:
    FinestraVideataQt(const std::shared_ptr<Controlli>& controlli, EventiFinestra eventi);
    ~FinestraVideataQt() override;
    FinestraVideataQt(const FinestraVideataQt&) = delete;
    FinestraVideataQt& operator=(const FinestraVideataQt&) = delete;

    void mostra() override;
    void nascondi() override { finestra_->hide(); }
    void ridisegna() override { finestra_->ridisegna(); }
    void riduci(bool ridotta) override;
    [[nodiscard]] bool ridotta() const override { return finestra_->isMinimized(); }
    void titolo(const std::string& testo) override {
        finestra_->setWindowTitle(testo.empty() ? kSenzaTitolo : QString::fromStdString(testo));
    }
    [[nodiscard]] Rettangolo posto() const override;
    void posto(const Rettangolo& rett) override;

private:
    Finestra* finestra_; ///< deletes itself once its last event is over
    std::optional<Rettangolo> chiesto_;
};

FinestraVideataQt::FinestraVideataQt(const std::shared_ptr<Controlli>& controlli, EventiFinestra eventi)
    : finestra_(new Finestra(*controlli, nullptr, Qt::Window | Qt::FramelessWindowHint)) {
    // The widget goes after this object, and its controls after the widget.
    QObject::connect(finestra_, &QObject::destroyed, [controlli] {});
    finestra_->setAttribute(Qt::WA_ShowWithoutActivating);
    finestra_->setAccessibleName(QStringLiteral("Lumigrafo, lato clienti"));
    finestra_->alClic(
        [clic = std::move(eventi.clic)](const Controllo& c) { clic(c.disegno().nome, c.disegno().indice); });
    finestra_->allaAttivazione(std::move(eventi.attivata));
    finestra_->alDoppioClicSfondo(std::move(eventi.doppioClicSfondo));
    finestra_->allaChiusura([chiusa = std::move(eventi.chiusa)] {
        chiusa();
        return true;
    });
}

FinestraVideataQt::~FinestraVideataQt() {
    finestra_->alClic({});
    finestra_->allaAttivazione({});
    finestra_->alDoppioClicSfondo({});
    finestra_->allaChiusura({});
    finestra_->hide();
    finestra_->deleteLater();
}

void FinestraVideataQt::mostra() {
    finestra_->show();
    if (!ridotta())
        finestra_->raise();
}

void FinestraVideataQt::riduci(bool ridotta) {
    finestra_->setWindowState(ridotta ? Qt::WindowMinimized : Qt::WindowNoState);
}

/// A window manager pulls a window back that was put where no monitor is. Its place is still the one that was
/// asked for: the monitor may be there again at the next start.
Rettangolo FinestraVideataQt::posto() const {
    if (chiesto_ && !monitorDi(SchermiQt(), *chiesto_))
        return *chiesto_;
    const QRect r = finestra_->geometry();
    return {aTwip(Pixel(r.x())), aTwip(Pixel(r.y())), aTwip(Pixel(r.width())), aTwip(Pixel(r.height()))};
}

void FinestraVideataQt::posto(const Rettangolo& r) {
    chiesto_ = r;
    finestra_->setGeometry(aPixel(r.left).v, aPixel(r.top).v, std::max(1, aPixel(r.width).v),
                           std::max(1, aPixel(r.height).v));
}

} // namespace

FabbricaFinestre fabbricaFinestreQt() {
    return [](const std::shared_ptr<Controlli>& controlli, EventiFinestra eventi) {
        return std::make_unique<FinestraVideataQt>(controlli, std::move(eventi));
    };
}

} // namespace lumigrafo
