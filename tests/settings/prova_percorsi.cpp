#include "platform/finti/finti.h"
#include "platform/finti/messaggi_finti.h"
#include "platform/finti/scelta_cartella_finta.h"
#include "platform/linux/luoghi.h"
#include "settings/impo_lumigrafo_android.h"
#include "settings/percorso_archivio.h"
#include "settings/scelta_path.h"
#include "settings/sfoglia_cartelle.h"
#include "tests/sostegno/cartella_temporanea.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumigrafo::prova {
namespace {

using testing::ElementsAre;
constexpr int kNessuno = kSenzaIndice;

struct Stazione {
    Diario diario;
    CartellaTemporanea cartella;
    Ambiente ambiente{cartella.percorso(), "/opt/lumigrafo/lumigrafo", ""};
    FileIni ini{ambiente.file(kFileImpostazioni)};
    MessaggiFinti messaggi{&diario};
    ProcessiFinti processi{&diario};
    SceltaCartellaFinta sceltaCartella;
    std::function<void()> chiudi = [this] { diario.emplace_back("chiusa"); };
};

TEST(PercorsoArchivio, ScriveIlTestoComeStaERiparteAccanto) {
    Stazione s;
    PercorsoArchivio p({s.ambiente, s.messaggi, s.processi, s.sceltaCartella}, s.chiudi);
    Controllo& txtPathDB = p.controlli()("txtPathDB");
    EXPECT_EQ(txtPathDB.Caption(), s.cartella.percorso().string()) << "the program's own folder";

    p.clic("cmdScegliPathDB", kNessuno);
    EXPECT_EQ(txtPathDB.Caption(), s.cartella.percorso().string()) << "given up: the earlier text stays";
    s.sceltaCartella.scelta = "/rete/archivi";
    p.clic("cmdScegliPathDB", kNessuno);
    EXPECT_EQ(txtPathDB.Caption(), "/rete/archivi");
    const RichiestaCartella& chiesta = s.sceltaCartella.chieste.back();
    EXPECT_EQ(chiesta.titolo, "Scelta percorso database archivio.mdb");
    EXPECT_EQ(chiesta.opzioni, 1);
    EXPECT_EQ(chiesta.radice, 18);

    txtPathDB.Caption("\\\\ilserver\\non c'è ");
    p.clic("cmdApplica", kNessuno);
    EXPECT_EQ(s.ini.LeggiIni(kSezioneImpostazioni, "DatabaseLumigrafo"), "\\\\ilserver\\non c'è");
    EXPECT_THAT(s.processi.avviati, ElementsAre("/opt/lumigrafo/lumigrafo RIAVVIO"));
    EXPECT_EQ(s.diario.front(), "messaggio Salvataggio eseguito");
    EXPECT_EQ(s.diario.back(), "chiusa");

    PercorsoArchivio q({s.ambiente, s.messaggi, s.processi, s.sceltaCartella}, s.chiudi);
    q.controlli()("txtPathDB").Caption("altro");
    q.clic("cmdAnnulla", kNessuno);
    EXPECT_EQ(s.ini.LeggiIni(kSezioneImpostazioni, "DatabaseLumigrafo"), "\\\\ilserver\\non c'è");
}

TEST(SfogliaCartelle, SiEntraConUnToccoESiTornaSu) {
    const CartellaTemporanea t;
    for (const char* nome : {"Rete/beta/dentro", "Rete/Alfa", "Rete/.nascosta", "casa"})
        std::filesystem::create_directories(t.percorso() / nome);
    const std::vector<Luogo> luoghi{{"Rete", t.percorso() / "Rete", true}, {"Casa", t.percorso() / "casa"}};
    std::string scelta;
    int chiusure = 0;
    const auto apri = [&](const std::string& attuale) {
        return std::make_unique<SfogliaCartelle>(RichiestaCartella{"Scelta", 1, 18, attuale}, luoghi, scelta,
                                                 [&] { ++chiusure; });
    };
    const auto dove = [](SfogliaCartelle& s) { return s.controlli()("lblPercorso").Caption(); };
    const auto tocca = [](SfogliaCartelle& s, const char* lista, int posizione) {
        s.controlli()(lista).ListIndex(posizione);
        s.clic(lista, kNessuno);
    };
    const std::string rete = (t.percorso() / "Rete").string();
    for (const auto& [attuale, inizio] : {std::pair(std::string("\\\\ilserver\\x"), rete),
                                          {(t.percorso() / "casa").string(), rete},
                                          {rete + "/beta", rete + "/beta"},
                                          {rete + "/manca", rete},
                                          {rete + "/../casa", rete}})
        EXPECT_EQ(dove(*apri(attuale)), inizio) << attuale;

    auto s = apri("");
    EXPECT_THAT(s->controlli()("lstLuoghi").Voci(), ElementsAre("Rete (rete)", "Casa"));
    EXPECT_THAT(s->controlli()("lstCartelle").Voci(), ElementsAre("Alfa", "beta"));
    tocca(*s, "lstCartelle", 1);
    tocca(*s, "lstCartelle", 0);
    EXPECT_EQ(dove(*s), rete + "/beta/dentro");
    EXPECT_TRUE(s->controlli()("lblVuota").Visible());
    s->clic("cmdSu", kNessuno);
    EXPECT_EQ(dove(*s), rete + "/beta");
    s->clic("cmdAnnulla", kNessuno);
    EXPECT_EQ(scelta, "");
    tocca(*s, "lstLuoghi", 1);
    s->clic("cmdOk", kNessuno);
    EXPECT_EQ(scelta, (t.percorso() / "casa").string());
    EXPECT_EQ(chiusure, 2);
    std::filesystem::remove_all(t.percorso() / "casa");
    s->clic("cmdSu", kNessuno);
    tocca(*s, "lstLuoghi", 1);
    EXPECT_EQ(s->controlli()("lblVuota").Caption(), "La cartella non è accessibile");
}

TEST(Luoghi, CondivisioniPrimaDeiDischi) {
    const auto luoghi = luoghiMontati("/dev/sda1 / ext4 rw 0 0\n"
                                      "proc /proc proc rw 0 0\n"
                                      "/dev/sdb1 /media/cassa/CHIAVETTA vfat rw 0 0\n"
                                      "//ilserver/archivi /mnt/archivi\\040di\\040cassa cifs rw 0 0\n"
                                      "ilserver:/foto /srv/foto nfs4 rw 0 0\n"
                                      "riga rotta\n");
    std::vector<std::string> visti;
    for (const Luogo& l : luoghi)
        visti.push_back(l.nome + "=" + l.cartella.string() + (l.rete ? " rete" : ""));
    EXPECT_THAT(visti, ElementsAre("archivi di cassa=/mnt/archivi di cassa rete", "foto=/srv/foto rete",
                                   "CHIAVETTA=/media/cassa/CHIAVETTA"));
    EXPECT_FALSE(LuoghiLinux().elenco().empty());
}

TEST(ImpoLumigrafoAndroid, LeggeEScriveLeSueChiavi) {
    Stazione s;
    const auto leggi = [&](const char* chiave) { return s.ini.LeggiIni(kSezioneAndroid, chiave, "manca"); };
    {
        ImpoLumigrafoAndroid a(s.ambiente, s.sceltaCartella, s.chiudi);
        Controlli& c = a.controlli();
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(c("txtIP", i).Caption() + c("lblValore", i).Caption(), "0");
        EXPECT_EQ(c("chkSoloAndroid").Value(), 0);
        c("txtIP", 1).Caption(" 10.0.0.9");
        c("sldFont", 2).Value(40);
        c("chkSoloAndroid").Value(1);
        s.sceltaCartella.scelta = "\\\\SERVER\\PubblicitÀ ";
        a.clic("cmdScegliPath", kNessuno);
        EXPECT_EQ(s.sceltaCartella.chieste.back().titolo, "Scelta percorso cartella pubblicità");
        a.clic("cmdAnnulla", kNessuno);
        EXPECT_EQ(leggi("IpLumDroid1"), "manca");
        a.clic("cmdApplica", kNessuno);
    }
    for (const auto& [chiave, valore] : {std::pair("IpLumDroid0", "manca"),
                                         {"IpLumDroid1", "10.0.0.9"},
                                         {"FontGruppiDroid0", "0"},
                                         {"FontGruppiDroid2", "40"},
                                         {"PathPubblicita", "\\\\server\\pubblicità"},
                                         {"SoloAndroid", "1"}})
        EXPECT_EQ(leggi(chiave), valore) << chiave;
    s.ini.ScriviIni(kSezioneAndroid, "FontGruppiDroid0", 250);
    ImpoLumigrafoAndroid a(s.ambiente, s.sceltaCartella, s.chiudi);
    EXPECT_EQ(a.controlli()("sldFont", 0).Value(), 100);
    EXPECT_EQ(a.controlli()("lblValore", 2).Caption(), "40");
    EXPECT_EQ(a.controlli()("chkSoloAndroid").Value(), 1);
}

} // namespace
} // namespace lumigrafo::prova
