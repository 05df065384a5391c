// Another station, for the tests: a process of its own that does what it is told, a line at a time, and
// answers each line when it is done. What it holds, it holds until told otherwise or killed.
#include "data/dao.h"
#include "platform/file.h"

#include <iostream>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <sstream>
#include <string>
#include <thread>

using namespace lumigrafo;

namespace {

class Aiutante {
public:
    void esegui(const std::string& riga) {
        std::istringstream parole(riga);
        std::string comando, resto;
        parole >> comando >> std::ws;
        std::getline(parole, resto);
        if (comando == "attesa") {
            ws_ = Workspace(std::chrono::milliseconds(std::stoi(resto)));
        } else if (comando == "apri") {
            rs_.reset();
            db_ = ws_.OpenDatabase(resto);
            rs_ = db_->OpenRecordset("Lumigrafo");
        } else if (comando == "esegui") {
            db_->Execute(resto);
        } else if (comando == "edit") {
            rs_->Requery();
            rs_->FindFirst(resto);
            rs_->Edit();
        } else if (comando == "pezzi") {
            rs_->Fields()["Pezzi1"].Value(resto);
        } else if (comando == "update") {
            rs_->Update();
        } else if (comando == "annulla") {
            rs_->CancelUpdate();
        } else if (comando == "conta") {
            conta(std::stoi(resto));
        } else if (comando == "occupa") {
            occupa(std::chrono::milliseconds(std::stoi(resto)));
        } else if (comando == "inizia") {
            ws_.BeginTrans();
        } else if (comando == "conferma") {
            ws_.CommitTrans();
        } else if (comando == "esclusivo") {
            sqlite3_open(resto.c_str(), &nudo_);
            sqlite3_exec(nudo_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
        } else if (comando == "legge") { // a reader that never ends keeps others from committing
            sqlite3_open(resto.c_str(), &nudo_);
            sqlite3_exec(nudo_, "BEGIN; SELECT count(*) FROM Lumigrafo", nullptr, nullptr, nullptr);
        } else if (comando == "file") {
            file_.emplace(resto);
        } else {
            throw Guasto(5, "?");
        }
    }

private:
    /// Adds 1 to the first row's pieces, again and again, as two stations do at the same time.
    void conta(int volte) {
        for (int i = 0; i < volte; ++i) {
            rs_->MoveFirst();
            rs_->Edit();
            Field& pezzi = rs_->Fields()["Pezzi1"];
            pezzi.Value(pezzi.Value().aIntero32() + 1);
            rs_->Update();
        }
    }

    /// Holds the first row for so long, and takes it anew as soon as it has given it back.
    [[noreturn]] void occupa(std::chrono::milliseconds tempo) {
        for (;;) {
            rs_->MoveFirst();
            rs_->Edit();
            std::this_thread::sleep_for(tempo);
            rs_->Update();
        }
    }

    Workspace ws_{std::chrono::minutes(1)};
    std::unique_ptr<Database> db_;
    std::unique_ptr<Recordset> rs_;
    std::optional<FileEsclusivo> file_;
    sqlite3* nudo_ = nullptr;
};

} // namespace

int main() {
    Aiutante aiutante;
    for (std::string riga; std::getline(std::cin, riga);) {
        try {
            aiutante.esegui(riga);
            std::cout << "fatto" << std::endl;
        } catch (const Guasto& guasto) {
            std::cout << guasto.numero() << ' ' << guasto.descrizione() << std::endl;
        }
    }
}
