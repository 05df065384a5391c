#include "data/dao.h"

#include "data/jet/pazienza.h"

#include <filesystem>

namespace lumigrafo {

std::unique_ptr<Recordset> Database::OpenRecordset(const std::string& sorgente, int tipo) {
    if (!sessione_->aperta())
        throw erroreDao(dao::kOggettoNonValido);
    if (tipo != dao::dbOpenDynaset)
        throw erroreDao(dao::kArgomento);
    return std::make_unique<Recordset>(sessione_, sorgente);
}

std::unique_ptr<Database> Workspace::OpenDatabase(const std::string& percorso) {
    auto sessione = std::make_shared<Sessione>(std::filesystem::path(percorso), attesa_);
    std::erase_if(sessioni_, [](const auto& s) { return s.expired(); });
    sessioni_.push_back(sessione);
    return std::make_unique<Database>(std::move(sessione));
}

std::vector<std::shared_ptr<Sessione>> Workspace::aperte() {
    std::vector<std::shared_ptr<Sessione>> v;
    for (const auto& debole : sessioni_)
        if (auto s = debole.lock(); s && s->aperta())
            v.push_back(std::move(s));
    return v;
}

void Workspace::BeginTrans() {
    std::vector<std::shared_ptr<Sessione>> iniziate;
    for (const auto& s : aperte()) {
        try {
            s->inizia();
        } catch (const Guasto&) {
            for (const auto& iniziata : iniziate)
                ignorandoGuasti([&] { iniziata->conferma(); });
            throw;
        }
        iniziate.push_back(s);
    }
}

void Workspace::CommitTrans() {
    for (const auto& s : aperte())
        s->conferma();
}

void Workspace::Rollback() {
    for (const auto& s : aperte())
        s->annulla();
}

namespace {

/// Sessions that give way for as long as this lives, or they are open.
class Cedono {
public:
    explicit Cedono(std::vector<std::shared_ptr<Sessione>> sessioni) : sessioni_(std::move(sessioni)) {
        cedevoli(true);
    }
    ~Cedono() { cedevoli(false); }
    Cedono(const Cedono&) = delete;
    Cedono& operator=(const Cedono&) = delete;

private:
    void cedevoli(bool si) {
        for (const auto& s : sessioni_)
            if (s->aperta())
                s->motore().cedevole(si);
    }

    std::vector<std::shared_ptr<Sessione>> sessioni_;
};

} // namespace

void Workspace::cedendo(const std::function<void()>& lavoro) {
    const Cedono cedono(aperte());
    for (jet::Pazienza pazienza(attesa_);;) {
        try {
            return lavoro();
        } catch (const Guasto& guasto) {
            const bool bloccato = guasto.numero() == dao::kBloccatoAggiornamento ||
                                  guasto.numero() == dao::kBloccatoSalvataggio;
            if (!bloccato || !pazienza.ancora())
                throw;
        }
        pazienza.attendi();
    }
}

Workspace& DBEngine::Workspaces(int indice) {
    static Workspace predefinito;
    if (indice != 0)
        throw erroreDao(dao::kElementoMancante);
    return predefinito;
}

} // namespace lumigrafo
