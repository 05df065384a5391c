#include "forms/qt/lettore_figura.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThreadPool>

#include <condition_variable>
#include <exception>
#include <mutex>
#include <utility>

namespace lumigrafo {

namespace {

const auto kPronta = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

/// One wish, from its asking to its delivery.
struct LettoreFigura::Lettura {
    const FileFigura file;
    const Inquadratura inquadratura;
    const SeGuasta seGuasta;

    std::mutex chiave; ///< of all that follows
    std::condition_variable finita;
    QObject* chi; ///< is told of the end; null: it waits no longer
    bool fatta = false;
    FiguraLetta letta;
    std::exception_ptr guasto;

    Lettura(const FileFigura& f, const Inquadratura& i, SeGuasta s, QObject* perChi)
        : file(f), inquadratura(i), seGuasta(s), chi(perChi) {}
};

void LettoreFigura::chiedi(const FileFigura& file, const Inquadratura& inquadratura, SeGuasta seGuasta) {
    lascia();
    lettura_ = std::make_shared<Lettura>(file, inquadratura, seGuasta, this);
    QThreadPool::globalInstance()->start([lettura = lettura_] { lavora(*lettura); });
}

void LettoreFigura::lascia() {
    if (!lettura_)
        return;
    const auto lettura = std::exchange(lettura_, nullptr);
    const std::lock_guard chiuso(lettura->chiave);
    lettura->chi = nullptr;
}

void LettoreFigura::lavora(Lettura& lettura) {
    {
        const std::lock_guard chiuso(lettura.chiave);
        if (!lettura.chi)
            return; // given up before its turn came
    }
    FiguraLetta letta;
    std::exception_ptr guasto;
    try {
        letta = lettura.file.leggi(lettura.inquadratura);
    } catch (...) {
        guasto = std::current_exception();
    }
    const std::lock_guard chiuso(lettura.chiave);
    lettura.letta = std::move(letta);
    lettura.guasto = guasto;
    lettura.fatta = true;
    // Under the lock: who waits can't go meanwhile.
    if (lettura.chi)
        QCoreApplication::postEvent(lettura.chi, new QEvent(kPronta));
    lettura.finita.notify_all();
}

void LettoreFigura::consegna(bool attendendo) {
    if (!lettura_)
        return;
    const auto lettura = lettura_;
    {
        std::unique_lock aperto(lettura->chiave);
        if (attendendo)
            lettura->finita.wait(aperto, [&] { return lettura->fatta; });
        if (!lettura->fatta)
            return; // the end of an earlier wish was told
    }
    lettura_ = nullptr;
    if (!lettura->guasto)
        consegna_(std::move(lettura->letta));
    else if (lettura->seGuasta == SeGuasta::Ferma)
        std::rethrow_exception(lettura->guasto);
}

void LettoreFigura::attendi() {
    consegna(true);
}

bool LettoreFigura::event(QEvent* evento) {
    if (evento->type() != kPronta)
        return QObject::event(evento);
    consegna(false);
    return true;
}

} // namespace lumigrafo
