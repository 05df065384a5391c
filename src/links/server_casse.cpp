#include "links/server_casse.h"

#include "platform/guasto.h"

#include <utility>

namespace lumigrafo {

namespace {

bool letteraDiCassa(const std::string& testo) {
    return testo.size() == 1 && testo[0] >= 'A' && testo[0] <= 'E';
}

} // namespace

ServerCasseTcp::ServerCasseTcp(ReteTcp& rete, CodaCasse& coda, const Orologio& orologio, Avvisi& avvisi,
                               Sistema& sistema, ScriviLog ScriviLogConnessioni, int porta)
    : rete_(rete), coda_(coda), orologio_(orologio), avvisi_(avvisi), sistema_(sistema),
      ScriviLogConnessioni_(std::move(ScriviLogConnessioni)), porta_(porta) {}

EventiPresa ServerCasseTcp::eventi(std::size_t Index) {
    return {[this, Index](std::int64_t requestID) { ConnectionRequest(Index, requestID); },
            [this, Index] { DataArrival(Index); }, [this, Index] { Close(Index); }};
}

void ServerCasseTcp::Apri() {
    wsServer_[0] = rete_.crea(eventi(0));
    wsServer_[0]->LocalPort(porta_);
    for (std::size_t slot = 1; slot <= kPosti; ++slot)
        ignorandoGuasti([&] { wsServer_[slot] = rete_.crea(eventi(slot)); });
    try {
        wsServer_[0]->Listen();
    } catch (const Guasto& guasto) {
        avvisi_.chiedi({"Errore apertura winsock " + std::to_string(guasto.numero()) + " Controllare porta " +
                            std::to_string(wsServer_[0]->LocalPort()),
                        "", Icona::Nessuna, Bottoni::Ok});
    }
}

void ServerCasseTcp::Chiudi() {
    for (const auto& presa : wsServer_)
        if (presa)
            presa->Close();
}

void ServerCasseTcp::ConnectionRequest(std::size_t Index, std::int64_t requestID) {
    try {
        ScriviLogConnessioni_("***********   RICHIESTA " + std::to_string(requestID));
        if (Index == 0)
            accogli(requestID);
    } catch (const Guasto&) {
        ignorandoGuasti([this] { ScriviLogConnessioni_("Error in ConnectionRequest"); });
        sistema_.bip();
    }
}

void ServerCasseTcp::accogli(std::int64_t requestID) {
    ScriviLogConnessioni_("Cassa IP: " + wsServer_[0]->RemoteHostIP());
    std::size_t slot = 1; // the lowest free one
    while (slot <= kPosti && !(wsServer_[slot] && wsServer_[slot]->State() == StatoPresa::Chiusa))
        ++slot;
    if (slot > kPosti)
        return;
    wsServer_[slot]->LocalPort(0);
    wsServer_[slot]->Accept(requestID);
    ++collegamenti_[slot];
    ScriviLogConnessioni_("Connected sock. n. " + std::to_string(slot) + " " +
                          wsServer_[slot]->RemoteHostIP() + " at " + testoOra(orologio_.adesso()));
}

void ServerCasseTcp::DataArrival(std::size_t Index) {
    const unsigned collegamento = collegamenti_[Index];
    const std::string testo = wsServer_[Index]->GetData();
    ScriviLogConnessioni_("Received: " + testo);
    if (testo.empty())
        return;
    if (!letteraDiCassa(testo)) {
        rispondi(Index, collegamento, "Codice Cassa errato: " + testo);
    } else if (coda_.Occupato()) {
        rispondi(Index, collegamento, "RIPROVARE");
    } else {
        const std::string Numero = coda_.ProssimoNumero(testo);
        rispondi(Index, collegamento, Numero.empty() ? "KO" : "NUMERO " + Numero);
    }
}

void ServerCasseTcp::rispondi(std::size_t Index, unsigned collegamento, const std::string& testo) {
    // A desk can be gone when its answer is ready, closed or vanished, which look alike from here, and
    // another one can have its slot: the answer is lost, and the station goes on.
    PresaServer& presa = *wsServer_[Index];
    if (presa.State() == StatoPresa::Chiusa || collegamenti_[Index] != collegamento)
        return;
    try {
        presa.SendData(testo);
    } catch (const Guasto& guasto) {
        if (guasto.numero() != guasti::kConnessioneCaduta)
            throw;
    }
}

void ServerCasseTcp::Close(std::size_t Index) {
    ScriviLogConnessioni_("Closed socket n. " + std::to_string(Index) + " at " +
                          testoOra(orologio_.adesso()));
    wsServer_[Index]->Close();
}

} // namespace lumigrafo
