#include "data/cls_recordset.h"

#include "platform/conversioni.h"
#include "platform/guasto.h"

#include <chrono>
#include <fstream>

namespace lumigrafo {

namespace {

constexpr std::int16_t kFineDati = 10;
constexpr std::int16_t kNonTrovato = 23;
constexpr std::int16_t kBloccoRifiutato = 93;

constexpr const char* kTitolo = "clsRecordset";
constexpr const char* kACapo = "\r\n";

/// Asking for the cash desks' number again and again would burden the server; other locks are short.
constexpr std::chrono::milliseconds kPausaNumero{1000};

std::string condizione(const std::string& campo, const std::string& operatore, const std::string& valore) {
    return campo + " " + operatore + " " + valore;
}

std::string primaRiga(const std::filesystem::path& file) {
    std::ifstream nota(file, std::ios::binary);
    std::string riga;
    std::getline(nota, riga);
    if (riga.ends_with('\r'))
        riga.pop_back();
    return riga;
}

} // namespace

std::filesystem::path clsRecordset::nellArchivio(const std::string& file) const {
    // Joined as text: a source that begins with a separator must not leave the folder behind.
    return c_.PathDB + "/" + file;
}

void clsRecordset::termina(const std::string& titolo, const std::string& testo, const Guasto& guasto) {
    c_.avvisi.chiedi({testo + kACapo + std::to_string(guasto.numero()) + " " + guasto.descrizione(), titolo,
                      Icona::Critica, Bottoni::Ok});
    c_.uscita.termina(1);
}

void clsRecordset::Apri(const std::string& Chiamante, bool, const std::string& Sorgente, bool Esclusivo,
                        bool Attendi) {
    Chiamante_ = Chiamante;
    if (Esclusivo && BloccaSblocca(Sorgente, Attendi)) {
        CodiceErrore_ = kBloccoRifiutato;
        return;
    }
    Sorgente_ = Sorgente;
    try {
        rs_ = c_.Db.OpenRecordset(Sorgente, dao::dbOpenDynaset);
        DBEngine::Idle(dao::dbRefreshCache);
        rs_->LockEdits(true);
        AggiornaRecordset(*rs_);
        CodiceErrore_ = kFineDati;
        if (rs_->RecordCount() > 0) {
            rs_->MoveFirst();
            CodiceErrore_ = 0;
        }
    } catch (const Guasto& guasto) {
        termina(kTitolo, "Errore nel metodo Apri (tabella:" + Sorgente_ + " ) chiamato da " + Chiamante_,
                guasto);
    }
}

void clsRecordset::AggiornaRecordset(Recordset& rs) {
    // An empty set has no row to move to: that is no failure.
    ignorandoGuasti([&] { rs.MoveLast(); });
    ignorandoGuasti([&] { rs.MoveFirst(); });
    ignorandoGuasti([&] { rs.Requery(); });
}

void clsRecordset::Chiudi() {
    CodiceErrore_ = 0;
    rs_.reset();
    FileBlocco_.reset();
    // Without a lock there is no such file, or it is another station's: both are left unseen.
    ignorandoGuasti([this] { eliminaSeLibero(nellArchivio(Sorgente_ + ".txt")); });
}

bool clsRecordset::Start(const std::string& chiamante, const std::string& Campo1,
                         const std::string& Operatore1, const std::string& Valore1, const std::string& Campo2,
                         const std::string& Operatore2, const std::string& Valore2) {
    std::string criterio;
    try {
        CodiceErrore_ = 0;
        if (ilRecordset().RecordCount() > 0) {
            rs_->MoveFirst();
            criterio = condizione(Campo1, Operatore1, Valore1);
            if (!Campo2.empty())
                criterio += " and " + condizione(Campo2, Operatore2, Valore2);
            rs_->FindFirst(criterio);
            if (!rs_->NoMatch())
                return true;
        }
    } catch (const Guasto& guasto) {
        termina(kTitolo, "Errore nel metodo Start chiamato da " + chiamante + kACapo + criterio, guasto);
    }
    CodiceErrore_ = kNonTrovato;
    return false;
}

void clsRecordset::LeggiNext(const std::string& chiamante) {
    try {
        Recordset& rs = ilRecordset();
        rs.MoveNext();
        if (rs.Eof())
            CodiceErrore_ = kFineDati;
    } catch (const Guasto& guasto) {
        termina(kTitolo,
                "Errore nel metodo LeggiNext chiamato da " + (chiamante.empty() ? Chiamante_ : chiamante) +
                    kACapo + "Recordset:" + Sorgente_,
                guasto);
    }
}

Recordset& clsRecordset::ilRecordset() {
    if (!rs_)
        throw Guasto(guasti::kOggettoMancante);
    return *rs_;
}

std::int32_t clsRecordset::TipoCampo(const std::string& nome) {
    return ilRecordset().Fields().Item(nome).Type();
}

std::int32_t clsRecordset::NomeCampo(const std::string& nome) {
    return aIntero32(ilRecordset().Fields().Item(nome).Name());
}

std::int32_t clsRecordset::QuantiCampi() {
    return static_cast<std::int32_t>(ilRecordset().Fields().Count());
}

void clsRecordset::CancellazioneRecordSet(const std::string& chiamante) {
    try {
        Recordset& rs = ilRecordset();
        AggiornaRecordset(rs);
        while (!rs.Eof()) {
            rs.Delete();
            rs.MoveNext();
        }
    } catch (const Guasto& guasto) {
        termina(kTitolo,
                "Errore nel metodo CancellazioneRecordset chiamato da " + chiamante + kACapo +
                    "Recordset:" + Sorgente_,
                guasto);
    }
}

bool clsRecordset::SiToBool(const Valore& testo) {
    bool vero = false;
    ignorandoGuasti([&] { vero = testo == Valore("SI") || testo.aBooleano(); }); // another word is not true
    return vero;
}

std::string clsRecordset::BoolToSi(bool valore) {
    return valore ? "SI" : "";
}

int clsRecordset::prendiFileBlocco(const std::string& Nome) {
    try {
        FileBlocco_.reset();
        FileBlocco_.emplace(nellArchivio(Nome + ".txt"));
        return 0;
    } catch (const Guasto& guasto) {
        if (guasto.numero() != guasti::kPermessoNegato)
            termina("Errore", "Errore in BloccaSblocca aprendo " + Nome + ".txt", guasto);
        return guasto.numero();
    }
}

bool clsRecordset::BloccaSblocca(const std::string& Nome, bool Attendi) {
    const std::filesystem::path nota = nellArchivio("user_" + Nome + ".txt");
    while (prendiFileBlocco(Nome) == guasti::kPermessoNegato) {
        if (!Attendi) {
            c_.avvisi.chiedi({"File " + Nome + " già aperto in uso esclusivo da " + primaRiga(nota), "",
                              Icona::Nessuna, Bottoni::Ok});
            return true;
        }
        if (maiuscolo(Nome) == "NUMERO")
            c_.orologio.attendi(kPausaNumero);
    }
    std::ofstream(nota, std::ios::binary) << c_.sistema.NomeUtente() << kACapo;
    return false;
}

} // namespace lumigrafo
