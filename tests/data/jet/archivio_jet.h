#pragma once

#include "data/jet/catalogo.h"
#include "data/jet/nuovo_archivio.h"
#include "data/jet/tabella.h"
#include "data/jet/verifica.h"
#include "platform/file.h"
#include "tests/sostegno/cartella_temporanea.h"
#include "tests/sostegno/guasto_atteso.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lumigrafo::jet {

using prova::guastoDi;

/// A test with a new archive of its own, without tables but those that it makes.
class ConArchivioJet : public ::testing::Test {
protected:
    explicit ConArchivioJet(const std::vector<TabellaNuova>& tabelle = {}, bool inMemoria = false)
        : cartella(inMemoria ? prova::CartellaTemporanea::inMemoria() : prova::CartellaTemporanea()) {
        std::ofstream(file, std::ios::binary).close();
        nuovoArchivio(file, 46000);
        cambia([&](Pagine& pagine) {
            for (const TabellaNuova& t : tabelle)
                creaTabella(pagine, t);
        });
    }

    /// Changes the archive with nobody else in it.
    template <typename Cambio>
    void cambia(Cambio&& cambio) const {
        Pagine pagine(file, {.da_soli = true});
        cambio(pagine);
        pagine.registra();
    }
    static std::uint32_t definizioneDi(Pagine& pagine, const std::string& nome) {
        for (const VoceCatalogo& v : leggiCatalogo(pagine))
            if (v.nome == nome)
                return v.definizione;
        return 0;
    }
    std::uint32_t definizioneDi(const std::string& nome) const {
        Pagine pagine(file, {.sola_lettura = true});
        return definizioneDi(pagine, nome);
    }
    static Tabella tabella(Pagine& pagine, const std::string& nome) {
        return {pagine, definizioneDi(pagine, nome)};
    }
    std::vector<std::string> discordanze() const {
        Pagine pagine(file, {.sola_lettura = true});
        return verifica(pagine).discordanze;
    }
    std::string byte() const { return leggiFile(file).value(); }

    prova::CartellaTemporanea cartella;
    const std::filesystem::path file = cartella.percorso() / "archivio.mdb";
};

} // namespace lumigrafo::jet
