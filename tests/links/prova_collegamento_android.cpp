#include "links/json_bag.h"
#include "platform/finti/cliente_tcp_finto.h"
#include "tests/links/finti_android.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class CollegamentoAndroidProva : public testing::Test {
protected:
    Diario diario;
    CartellaTemporanea cartella;
    FileIni ini{cartella.percorso() / kFileImpostazioni};
    DatiFinti dati;
    OrologioFinto orologio{&diario};
    ClienteTcpFinto rete{diario};
    NotificheFinte notifiche;
    CollegamentoAndroid android{ini, dati, orologio, rete, notifiche};

    void indirizzo(int i, const std::string& ip) {
        ini.ScriviIni(kSezioneAndroid, "IpLumDroid" + std::to_string(i), ip);
        dati.ip[i].Ip = ip;
    }
    /// The members of the last document of a host, as "name=value" in their order; a bare number as "name:".
    std::vector<std::string> membri(const std::string& ip) {
        JsonBag radice;
        radice.JSON(rete.host[ip].ricevuto);
        std::vector<std::string> tutti{radice.Name(1) + " " + std::to_string(radice.Count())};
        const JsonBag& d = comeBag(radice.Item(1));
        for (const std::string& nome : d.NewEnum()) {
            const Valore& valore = d.Item(nome);
            if (const auto* testo = std::get_if<std::string>(&valore))
                tutti.push_back(nome + "=" + *testo);
            else
                tutti.push_back(nome + ":" + std::to_string(static_cast<int>(std::get<double>(valore))));
        }
        return tutti;
    }
};

TEST_F(CollegamentoAndroidProva, theDocumentMemberByMember) {
    indirizzo(0, "a");
    rete.host["a"] = {};
    dati.nove = true;
    for (int g = 0; g < 2; ++g) // group 2 has no labels, and slot 9 is missing
        for (int n = 1; n <= 8; ++n)
            dati.scritte[{"lblNumero" + std::to_string(n), g}] = "A " + std::to_string(10 * g + n);
    ini.ScriviIni(kSezioneAndroid, "FontGruppiDroid0", 72);
    ini.ScriviIni(kSezioneAndroid, "PathPubblicita", "\\\\server\\pub");
    ini.ScriviIni(kSezioneImpostazioni, "ColoreSfondo0", 1); // the push doesn't look at it
    ini.ScriviIni(kSezioneImpostazioni, "ColoreSfondo1", 255);
    ini.ScriviIni(kSezioneImpostazioni, "ColoreTesto3", 65280);
    const auto atteso = [](bool azzera, int last) {
        std::vector<std::string> m{"DatiLumigrafo 1", "TipoLumigrafo=ELIMINACODE"};
        if (azzera)
            m.insert(m.end(), {"ServerDir=\\\\server\\pub", "Reset=1"});
        m.insert(m.end(), {"Categoria1=Cucina", "Categoria2=Caffè \"Bar\"", "Categoria3=", "FontNumeri:72",
                           "TitoloLumigrafo=Stiamo servendo i numeri"});
        for (int g = 0; g < 3; ++g)
            for (int n = 1; n <= 9; ++n)
                m.push_back("Categoria" + std::to_string(g) + "_numero" + std::to_string(n) + "=" +
                            (g < 2 && n < 9 ? "A " + std::to_string(10 * g + n) : ""));
        if (!azzera)
            m.push_back("Last:" + std::to_string(last));
        m.insert(m.end(),
                 {"BackColorCategoria1=255", "ForeColorCategoria1=16777215", "BackColorCategoria2=0",
                  "ForeColorCategoria2=16777215", "BackColorCategoria3=0", "ForeColorCategoria3=65280"});
        return m;
    };
    for (const std::int16_t last : {-1, 0, 2}) {
        android.SincronizzaLumAndroid(last);
        EXPECT_EQ(membri("a"), atteso(last == -1, last));
    }
    EXPECT_THAT(rete.host["a"].ricevuto, HasSubstr(R"({"DatiLumigrafo":{"TipoLumigrafo":"ELIMINACODE",)"));
    EXPECT_THAT(rete.host["a"].ricevuto, HasSubstr(R"("Categoria2":"Caffè \"Bar\"","Categoria3":"",)"));
    EXPECT_THAT(notifiche.mostrate, IsEmpty());
}

TEST_F(CollegamentoAndroidProva, aLabelThatIsMissingLeavesItsPlaceAndSevenToNineNeedTheSetting) {
    indirizzo(0, "a");
    rete.host["a"] = {};
    dati.scritte = {{{"lblNumero3", 0}, "A 1"}, {{"lblNumero7", 0}, "A 7"}};
    android.SincronizzaLumAndroid(0);
    EXPECT_THAT(rete.host["a"].ricevuto, HasSubstr(R"("Categoria0_numero7":"","Categoria0_numero8":"",)"));
    dati.nove = true;
    android.SincronizzaLumAndroid(0);
    dati.scritte = {{{"lblNumero1", 0}, "A 2"}};
    android.SincronizzaLumAndroid(0);
    EXPECT_THAT(
        rete.host["a"].ricevuto,
        HasSubstr(R"("Categoria0_numero1":"A 2","Categoria0_numero2":"","Categoria0_numero3":"A 1",)"));
    EXPECT_THAT(rete.host["a"].ricevuto, HasSubstr(R"("Categoria0_numero7":"A 7")"));
}

TEST_F(CollegamentoAndroidProva, theFirstAddressTurnsTheLinkOnAndIsReadAnewAtEachPush) {
    indirizzo(1, "b");
    indirizzo(2, "c");
    android.SincronizzaLumAndroid(0);
    EXPECT_THAT(diario, IsEmpty());
    indirizzo(0, "a");
    for (const char* ip : {"a", "b", "c", "d"})
        rete.host[ip] = {};
    ini.ScriviIni(kSezioneAndroid, "IpLumDroid1", "d"); // changed in the dialog meanwhile
    ini.ScriviIni(kSezioneAndroid, "FontGruppiDroid1", 40);
    android.SincronizzaLumAndroid(0);
    EXPECT_EQ(rete.host["b"].ricevuto, "");
    EXPECT_THAT(rete.host["d"].ricevuto, HasSubstr(R"("FontNumeri":40,)"));
    EXPECT_THAT(rete.host["c"].ricevuto, HasSubstr(R"("FontNumeri":0,)"));
    EXPECT_EQ(dati.ip[1].Ip, "d");
}

TEST_F(CollegamentoAndroidProva, eachMisbehavingBoardIsNotifiedOnceAndTheNextIsServed) {
    const std::vector<std::string> intera = {"connetti a:8989 1000", "sonde 0", "inattività 1000",
                                             "attendi 200",          "invia",   "ricevi",
                                             "chiudi 20000"};
    struct Caso {
        ClienteTcpFinto::Host host;
        std::vector<std::string> passi, notifiche;
    };
    const Caso casi[] = {
        {{true, "O"}, intera, {}},
        {{false}, {"connetti a:8989 1000"}, {kTestaNotifica + "Errore connessione a lumigrafo con IP = a"}},
        {{true, ""}, intera, {kTestaNotifica + "Non ricevuto esito positivo da lumigrafo con IP = a"}},
        {{true, "", false}, intera, {kTestaNotifica + "Non ricevuto esito positivo da lumigrafo con IP = a"}},
    };
    indirizzo(0, "a");
    indirizzo(2, "c");
    for (const Caso& caso : casi) {
        rete.host = {{"a", caso.host}, {"c", {}}};
        diario.clear();
        notifiche.mostrate.clear();
        android.SincronizzaLumAndroid(1);
        EXPECT_EQ(std::vector(diario.begin(), diario.end() - 7), caso.passi);
        EXPECT_EQ(notifiche.mostrate, caso.notifiche);
        EXPECT_THAT(rete.host["c"].ricevuto, Not(IsEmpty()));
    }
}

} // namespace
} // namespace lumigrafo::prova
