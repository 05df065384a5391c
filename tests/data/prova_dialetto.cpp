#include "data/dialetto.h"

#include <gtest/gtest.h>

namespace lumigrafo {
namespace {

struct Traduzione {
    const char* scritta;
    const char* tradotta;
};

TEST(Dialetto, MetteAPostoSoloCioCheSqliteNonAccetta) {
    const Traduzione casi[] = {
        {"Delete * from Lumigrafo", "Delete  from Lumigrafo"},
        {"Delete Lumigrafo.* from Lumigrafo where (Lumigrafo.Categoria1 = 0);",
         "Delete  from Lumigrafo where (Lumigrafo.Categoria1 = 0);"},
        {"delete [Lumigrafo] . * FROM Lumigrafo", "delete    FROM Lumigrafo"},
        {"Delete from Lumigrafo", "Delete from Lumigrafo"},
        {"UPDATE T SET T.A = 1, [T].B = T.A WHERE (((T.C)='x') AND ((T.D)=1));",
         "UPDATE T SET A = 1, B = T.A WHERE (((T.C)='x') AND ((T.D)=1));"},
        {"UPDATE T SET A = iif(1, T.B, 2), T.C = (T.D = 3)",
         "UPDATE T SET A = iif(1, T.B, 2), C = (T.D = 3)"},
        {"UPDATE S SET Servito = True WHERE Stornato=FALSE", "UPDATE S SET Servito = (-1) WHERE Stornato=0"},
        {"Select T.True from T where x = -True", "Select T.True from T where x = -(-1)"},
        // Literals: words that look like SQL, doubled quotes, an unfinished one.
        {"UPDATE T SET A = 'T.A = True', T.B = \"False\"", "UPDATE T SET A = 'T.A = True', B = \"False\""},
        {"UPDATE T SET A = 'l''ora, T.B = True', T.B = 2", "UPDATE T SET A = 'l''ora, T.B = True', B = 2"},
        {"Select * from T where A = 'True", "Select * from T where A = 'True"},
        {"Select * from T where A='True'and B=1.5e3", "Select * from T where A='True'and B=1.5e3"},
        {"", ""},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(Dialetto().istruzione(caso.scritta), caso.tradotta) << caso.scritta;
}

TEST(Dialetto, ColonneConMaiuscoleSiConfrontanoSenza) {
    const Dialetto dialetto({"sigla"});
    const Traduzione casi[] = {
        {"Select Sigla from L Where L.Sigla = 'a' Order by [Sigla], Numero",
         "Select Sigla from L Where L.Sigla COLLATE NOCASE = 'a' Order by [Sigla] COLLATE NOCASE, Numero"},
        {"UPDATE L SET Sigla = 'Sigla' WHERE (((L.Sigla)='a'))",
         "UPDATE L SET Sigla = 'Sigla' WHERE (((L.Sigla COLLATE NOCASE)='a'))"},
        {"Insert into L (Sigla) values ('')", "Insert into L (Sigla) values ('')"},
    };
    for (const auto& caso : casi)
        EXPECT_EQ(dialetto.istruzione(caso.scritta), caso.tradotta);
    EXPECT_EQ(dialetto.criterio("Sigla = 'Sigla' and Numero = 1"),
              "Sigla COLLATE NOCASE = 'Sigla' and Numero = 1");
}

TEST(Dialetto, SorgentePerNome) {
    EXPECT_EQ(Dialetto().sorgente("Numero"), "SELECT * FROM \"Numero\"");
    EXPECT_EQ(Dialetto().sorgente(" [Due parole] "), "SELECT * FROM \"Due parole\"");
    EXPECT_EQ(Dialetto().sorgente(" select 1"), " select 1");
    EXPECT_EQ(Dialetto().sorgente("Selezioni"), "SELECT * FROM \"Selezioni\"");
}

TEST(Dialetto, RigheModificabiliSoloDiUnaTabella) {
    const char* modificabili[] = {
        "Select * from T",
        "Select T.* from T;",
        "Select A, T.B, [C] AS D from T X Where A=1 Order by 2",
        "Select A from \"T\" as x",
        "select A from T limit 1",
    };
    for (const char* sql : modificabili)
        EXPECT_TRUE(selezioneSemplice(sql)) << sql;
    const char* altre[] = {
        "SELECT Sum(T.A) AS S FROM T;",
        "Select Distinct A from T",
        "Select A from T Group by A",
        "Select * from T, U",
        "Select * from T inner join U",
        "Select A from T union Select B from U",
        "Select A+1 from T",
        "Select *, A from T",
        "Select * from (Select * from T)",
        "Select A",
        "Select 'x' from T",
        "Update T set A = 1",
        "",
    };
    for (const char* sql : altre)
        EXPECT_FALSE(selezioneSemplice(sql)) << sql;
    const auto s = selezioneSemplice("Select A, T.[B] AS C from T X Where A=1 Order by 2;");
    ASSERT_TRUE(s);
    EXPECT_EQ(s->tabella, "T");
    EXPECT_EQ(s->colonne, (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ("Select " + s->voci + s->da + s->resto, "Select A, T.[B] AS C from T X Where A=1 Order by 2");
}

} // namespace
} // namespace lumigrafo
