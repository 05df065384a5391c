#include "platform/qt/voce_qt.h"

#include "platform/qt/motore_voce.h"

#include <utility>

namespace lumigrafo {

namespace {

template <typename Azione>
void sulFiloDi(QObject* oggetto, Azione azione) {
    QMetaObject::invokeMethod(oggetto, std::move(azione), Qt::QueuedConnection);
}

} // namespace

VoceQt::VoceQt()
    : motore_(new MotoreVoce(
          [this](quint64 numero) {
              sulFiloDi(&qui_, [this, numero] {
                  if (numero == ultimo_)
                      eventi_.EndStream();
              });
          },
          [this] { sulFiloDi(&qui_, [this] { eventi_.Assente(); }); })) {
    motore_->moveToThread(&filo_);
    QObject::connect(&filo_, &QThread::finished, motore_, &QObject::deleteLater);
}

VoceQt::~VoceQt() {
    if (!filo_.isRunning()) {
        delete motore_;
        return;
    }
    filo_.quit();
    filo_.wait();
}

void VoceQt::accendi(EventiVoce eventi, Scelta scelta) {
    eventi_ = std::move(eventi);
    filo_.start();
    sulFiloDi(motore_, [m = motore_, scelta = std::move(scelta)] { m->accendi(scelta); });
}

void VoceQt::Speak(const std::string& testo, int Rate, int Volume) {
    TestoVoce t{++ultimo_, QString::fromStdString(testo), Rate, Volume};
    sulFiloDi(motore_, [m = motore_, t = std::move(t)] { m->di(t); });
    eventi_.StartStream();
}

} // namespace lumigrafo
