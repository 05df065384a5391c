// Watches a Qt program start from inside its process: when its main window is painted, and how much memory it
// holds once it is idle. Then it ends the process. The program's sleeps are counted instead of slept.
#include "bench/avvio/rapporto.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <unistd.h>

namespace {

using lumigrafo::misure::Rapporto;

constexpr std::int64_t kNano = 1'000'000'000;
std::atomic<std::int64_t> attese{0};

std::int64_t adesso(clockid_t orologio) {
    timespec t{};
    ::clock_gettime(orologio, &t);
    return t.tv_sec * kNano + t.tv_nsec;
}

int contata(const timespec* durata) {
    attese += durata->tv_sec * kNano + durata->tv_nsec;
    return 0;
}

std::int64_t rss() {
    std::int64_t pagine = 0;
    if (std::FILE* f = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(f, "%*s %ld", &pagine) != 1)
            pagine = 0;
        std::fclose(f);
    }
    return pagine * ::sysconf(_SC_PAGESIZE) / 1024;
}

class Spia : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() != QEvent::Paint || vista_ || !oggetto->isWidgetType() ||
            !qobject_cast<QMainWindow*>(static_cast<QWidget*>(oggetto)->window()))
            return false;
        vista_ = true;
        // Behind the whole painting of the window, which this event begins.
        QMetaObject::invokeMethod(
            this, [this] { dipinta(); }, Qt::QueuedConnection);
        return false;
    }

private:
    void dipinta() {
        rapporto_ = {adesso(CLOCK_MONOTONIC), adesso(CLOCK_PROCESS_CPUTIME_ID), attese, 0};
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                [this] { oziosa(); });
    }
    void oziosa() {
        rapporto_.rss = rss();
        const char* fd = std::getenv(lumigrafo::misure::kVariabileSpia);
        const bool detto = fd && ::write(std::atoi(fd), &rapporto_, sizeof rapporto_) == sizeof rapporto_;
        ::_exit(detto ? 0 : 1);
    }

    bool vista_ = false;
    Rapporto rapporto_{};
};

void comincia() {
    QCoreApplication::instance()->installEventFilter(new Spia(QCoreApplication::instance()));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(comincia)

extern "C" int nanosleep(const timespec* durata, timespec*) {
    return contata(durata);
}

extern "C" int clock_nanosleep(clockid_t, int, const timespec* durata, timespec*) {
    return contata(durata);
}
