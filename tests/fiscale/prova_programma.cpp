#include "tests/fiscale/banco.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::HasSubstr;
using namespace std::chrono_literals;

/// Killed with its parent. A container without a reaper keeps it as a zombie.
bool finito(int pid) {
    const auto limite = std::chrono::steady_clock::now() + 5s;
    while (std::chrono::steady_clock::now() < limite) {
        const auto stato = leggiFile("/proc/" + std::to_string(pid) + "/stat");
        if (!stato || stato->find(") Z") != stato->npos || stato->find(") X") != stato->npos)
            return true;
    }
    return false;
}

TEST(Programma, OnlyItsOwnGoodWordCounts) {
    const struct {
        const char *nome, *corpo;
        Fine fine;
        const char* testo;
    } casi[] = {
        {"done", "cat >/dev/null; echo '{\"esito\": \"fatto\"}'", Fine::Fatto, ""},
        {"done, without reading", "echo '{\"esito\": \"fatto\"}'", Fine::Fatto, ""},
        {"failed", "cat >/dev/null; echo '{\"esito\": \"fallito\", \"messaggio\": \"Registratore chiuso.\"}'",
         Fine::NonStampato, "Registratore chiuso."},
        {"unsure", "echo '{\"esito\": \"incerto\"}'", Fine::Incerto, "non è riuscito"},
        {"done, but it fell", "echo '{\"esito\": \"fatto\"}'; exit 3", Fine::Incerto, "incomprensibile"},
        {"nonsense", "echo fatto", Fine::Incerto, "incomprensibile"},
        {"half an answer", "echo '{\"esito\": \"fat'; kill -9 $$", Fine::Incerto, "incomprensibile"},
        {"no end to its words", "yes '{\"esito\": \"fatto\"}'", Fine::Incerto, "non ha risposto in tempo"},
        {"hangs with a child", "sleep 600 & echo $! > figlio; wait", Fine::Incerto,
         "non ha risposto in tempo"},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        BancoFiscale b(TipoDriver::Programma);
        const std::string qui = b.cartella.percorso().string();
        b.impostazioni.indirizzo() = b.programma("stampa", "cd " + qui + "; " + caso.corpo);
        const auto inizio = std::chrono::steady_clock::now();
        EXPECT_EQ(b.emetti(7), caso.fine == Fine::Fatto);
        EXPECT_LT(std::chrono::steady_clock::now() - inizio, 8s);
        EXPECT_EQ(b.registro().at(0).fine, caso.fine);
        EXPECT_THAT(b.avviso(), HasSubstr(caso.testo));
        if (const auto figlio = leggiFile(b.cartella.percorso() / "figlio")) {
            EXPECT_TRUE(finito(std::stoi(*figlio)));
        }
    }
}

TEST(Programma, WhatItIsTold) {
    BancoFiscale b(TipoDriver::Programma);
    b.archivio.esegui("UPDATE Dettaglio SET Prezzo = NULL WHERE Descrizione = 'Caffè'");
    const std::string qui = b.cartella.percorso().string();
    b.impostazioni.indirizzo() =
        b.programma("stampa", "cat > " + qui + "/chiesto; cp " + qui + "/Fiscale_scontrini.txt " + qui +
                                  "/allora; echo '{\"esito\": \"fatto\"}'");
    ASSERT_TRUE(b.emetti(7));
    const std::string chiesto = leggiFile(b.cartella.percorso() / "chiesto").value_or("");
    EXPECT_THAT(
        chiesto,
        HasSubstr(
            R"("richiesta":"stampa","id":7,"sigla":"A","numero":"12","data":20260315,"copia":false,"totale":19.5,)"));
    EXPECT_THAT(chiesto,
                HasSubstr(R"({"descrizione":"Lasagne al ragù","quantita":2,"prezzo":8,"totale":16})"));
    EXPECT_THAT(chiesto, HasSubstr(R"("prezzo":null,"totale":3.5)"));
    // A power cut while it prints leaves a trace.
    EXPECT_THAT(leggiFile(b.cartella.percorso() / "allora").value_or(""), HasSubstr("INCERTO"));
    EXPECT_EQ(b.registro().at(0).fine, Fine::Fatto);
    b.impostazioni.indirizzo() = qui + "/manca";
    EXPECT_FALSE(b.emetti(7));
    EXPECT_EQ(b.registro().at(0).fine, Fine::NonStampato);
}

} // namespace
} // namespace lumigrafo::prova
