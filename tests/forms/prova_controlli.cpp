#include "forms/controlli.h"
#include "tests/forms/dimostrativo.h"
#include "tests/sostegno/guasto_atteso.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

using namespace lumigrafo;

namespace {

using Visti = std::vector<std::pair<std::string, Aspetto>>;

struct Registro : OsservatoreControlli {
    Visti visti;
    void cambiato(const Controllo& c, Aspetto a) override { visti.emplace_back(c.NomeCompleto(), a); }
};

TEST(Controlli, SiTrovanoPerNomeEIndice) {
    Controlli c(dimostrativo::kLayout);
    EXPECT_EQ(c("lblNumero3", 1).Caption(), "A 99999");
    EXPECT_EQ(c("lblNumero3", 1).NomeCompleto(), "lblNumero3(1)");
    EXPECT_EQ(c("txtBarCode").NomeCompleto(), "txtBarCode");
    EXPECT_EQ(c.cerca("lblNumero3", 2), nullptr);
    EXPECT_EQ(c.cerca("lblNumero3"), nullptr) << "an array has no element without an index";
    EXPECT_EQ(prova::guastoDi([&] { (void)c("lblNumero3", 7); }), 340);
}

TEST(Controlli, OsservatoreSaDiOgniCambiamentoVero) {
    Controlli c(dimostrativo::kLayout);
    Registro registro;
    c.osserva(&registro);
    Controllo& n = c("lblNumero3", 0);
    n.Caption("A 12"); // as it was
    n.Caption("A 13");
    n.ForeColor(kGiallo);
    n.Left(100);
    n.FontSize(50);
    n.Visible(false);
    n.ZOrder();
    c("picLogo").Figura("prova"); // the same again: a file may have changed
    using enum Aspetto;
    const std::string nome = "lblNumero3(0)";
    const Visti attesi{{nome, Testo},      {nome, Colori}, {nome, Geometria},  {nome, Carattere},
                       {nome, Visibilita}, {nome, Ordine}, {"picLogo", Figura}};
    EXPECT_EQ(registro.visti, attesi);
    c.osserva(nullptr);
    n.Caption("A 14");
    EXPECT_EQ(registro.visti.size(), attesi.size());
}

TEST(Controlli, ListeSpunteECursoriTengonoSoloCioCheHanno) {
    Controlli c(dimostrativo::kLayout);
    for (const char* nome : {"cboTipo", "lstFont"}) {
        Controllo& lista = c(nome);
        EXPECT_EQ(lista.ListIndex(), -1);
        lista.AddItem("VERTICALE");
        lista.AddItem("ORIZZONTALE");
        lista.ListIndex(1);
        for (const int fuori : {2, -2})
            EXPECT_EQ(prova::guastoDi([&] { lista.ListIndex(fuori); }), 380) << fuori;
        EXPECT_EQ(lista.ListIndex(), 1);
        lista.Clear();
        EXPECT_EQ(lista.ListIndex(), -1);
    }
    for (const auto& [chiesto, preso] : {std::pair(0, 0), {1, 1}, {-1, 1}, {7, 1}}) {
        c("chkVocale").Value(chiesto);
        EXPECT_EQ(c("chkVocale").Value(), preso);
    }
    for (const auto& [chiesto, preso] : {std::pair(3, 3), {300, 10}, {-300, -10}}) {
        c("sldVelocita").Value(chiesto);
        EXPECT_EQ(c("sldVelocita").Value(), preso);
    }
}

} // namespace
