#pragma once

#include "data/dao.h"
#include "tests/sostegno/archivio_prova.h"
#include "tests/sostegno/cartella_temporanea.h"
#include "tests/sostegno/guasto_atteso.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

namespace lumigrafo {

using prova::guastoDi;

/// A test with an archive of its own, open in the program and in a connection beside it.
class ConArchivio : public ::testing::Test {
protected:
    explicit ConArchivio(std::chrono::milliseconds attesa = std::chrono::milliseconds(100)) : ws(attesa) {}

    prova::CartellaTemporanea cartella;
    const std::filesystem::path file = cartella.percorso() / kFileArchivio;
    prova::ArchivioProva archivio{file};
    Workspace ws;
    std::unique_ptr<Database> db = ws.OpenDatabase(file.string());
};

} // namespace lumigrafo
