#include "links/json_bag.h"
#include "platform/utf8.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace lumigrafo::prova {
namespace {

/// Fills bags with what chance brings: every kind of value, names that repeat, texts from the whole of
/// Unicode.
class Generatore {
public:
    explicit Generatore(std::uint64_t seme) : caso_(seme) {}

    JsonBag documento() {
        JsonBag bag;
        bag.DecimalMode(fino(1) == 0);
        bag.IsArray(fino(1) == 0);
        riempi(bag, 0);
        return bag;
    }

private:
    int fino(int massimo) { return static_cast<int>(caso_() % (static_cast<unsigned>(massimo) + 1)); }

    void riempi(JsonBag& bag, int livello) {
        const int membri = fino(99) == 0 ? 60 : fino(4);
        for (int i = 0; i < membri; ++i) {
            const std::string nome = fino(3) == 0 ? testo() : "m" + std::to_string(fino(80));
            const Chiave chiave = bag.IsArray() ? Chiave(nullptr) : Chiave(nome);
            const int genere = fino(livello < 4 ? 7 : 5);
            if (genere >= 6)
                riempi(genere == 6 ? bag.AddNewArray(chiave) : bag.AddNewObject(chiave), livello + 1);
            else
                bag.Item(chiave, valore(genere, bag.DecimalMode()));
        }
    }

    Valore valore(int genere, bool decimale) {
        switch (genere) {
        case 0:
            return nullptr;
        case 1:
            return fino(1) == 0;
        case 2:
            return static_cast<std::int32_t>(caso_());
        case 3:
            if (decimale)
                return *Decimale::daTesto("-" + std::to_string(caso_()) + "e-" + std::to_string(fino(28)));
            return std::ldexp(static_cast<double>(caso_()) - 9e18, fino(1900) - 1040);
        default:
            return testo();
        }
    }

    std::string testo() {
        static constexpr char32_t kLimiti[] = {0x7F, 0x7F, 0x24F, 0x30FF, 0xFFFF, 0x10FFFF};
        const auto limite = static_cast<int>(kLimiti[fino(5)]);
        std::string risultato;
        for (int i = fino(99) == 0 ? 900 : fino(16); i > 0; --i)
            accodaCarattere(risultato, static_cast<char32_t>(fino(limite)));
        return risultato;
    }

    std::mt19937_64 caso_;
};

TEST(JsonGiro, TenThousandDocumentsComeBackAsTheyWere) {
    Generatore generatore(199903);
    std::size_t byte = 0;
    for (int i = 0; i < 10'000; ++i) {
        JsonBag bag = generatore.documento();
        const std::string scritto = bag.JSON();
        byte += scritto.size();
        bag.Indented = true;
        for (const std::string& forma : {scritto, bag.JSON()}) {
            JsonBag altra;
            altra.DecimalMode(bag.DecimalMode());
            ASSERT_NO_THROW(altra.JSON(forma)) << i << ": " << forma;
            ASSERT_EQ(altra.JSON(), scritto) << i;
        }
    }
    EXPECT_GT(byte, 1'000'000u);
}

} // namespace
} // namespace lumigrafo::prova
