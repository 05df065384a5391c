#include "platform/qt/timers_qt.h"

#include <QTimer>

#include <utility>

namespace lumigrafo {

namespace {

class TimerQt final : public Timer {
public:
    TimerQt(std::chrono::milliseconds periodo, std::function<void()> scatto)
        : timer_(new QTimer), scatto_(std::make_shared<std::function<void()>>(std::move(scatto))) {
        timer_->setTimerType(Qt::PreciseTimer);
        timer_->setInterval(periodo);
        QObject::connect(timer_, &QTimer::timeout, timer_, [this] { scatta(); });
    }
    ~TimerQt() override {
        timer_->disconnect();
        timer_->stop();
        timer_->deleteLater(); // the tick may be running: the object of Qt outlives it
    }

    void abilita(bool acceso) override {
        if (acceso == acceso_)
            return;
        acceso_ = acceso;
        aggiorna();
    }
    [[nodiscard]] bool abilitato() const override { return acceso_; }
    void intervallo(std::chrono::milliseconds periodo) override {
        if (periodo == timer_->intervalAsDuration())
            return;
        timer_->stop();
        timer_->setInterval(periodo);
        aggiorna();
    }

private:
    void aggiorna() {
        if (acceso_ && timer_->interval() > 0)
            timer_->start();
        else
            timer_->stop();
    }
    void scatta() {
        // Qt holds a timer's ticks back while one is being handled, unless it was started anew.
        timer_->start();
        const auto scatto = scatto_; // lives on where the routine destroys the timer
        (*scatto)();
    }

    QTimer* timer_;
    std::shared_ptr<std::function<void()>> scatto_;
    bool acceso_ = false;
};

} // namespace

std::unique_ptr<Timer> TimersQt::crea(std::chrono::milliseconds periodo, std::function<void()> scatto) {
    return std::make_unique<TimerQt>(periodo, std::move(scatto));
}

} // namespace lumigrafo
