#pragma once

#include "links/collegamento_android.h"
#include "platform/finti/finti.h"
#include "platform/guasto.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace lumigrafo::prova {

inline const std::string kTestaNotifica = "DEMONE LUMIGRAFO CUCINA\r\n\r\n";

class NotificheFinte : public Notifiche {
public:
    std::vector<std::string> mostrate;

private:
    void mostra(const std::string& testo) override { mostrate.push_back(testo); }
};

/// A board whose labels a test sets; others don't exist.
class DatiFinti : public DatiAndroid {
public:
    bool nove = false;
    LumigrafoAndroid ip[3];
    std::map<std::pair<std::string, int>, std::string> scritte;

    bool Lumigrafo9Numeri() const override { return nove; }
    LumigrafoAndroid& IpDroid(std::size_t i) override { return ip[i]; }
    std::string Reparto(int q) const override { return q < 2 ? q == 0 ? "Cucina" : "Caffè \"Bar\"" : ""; }
    std::string scritta(const std::string& etichetta, int indice) override {
        const auto trovata = scritte.find({etichetta, indice});
        if (trovata == scritte.end())
            throw Guasto(guasti::kElementoMancante);
        return trovata->second;
    }
};

} // namespace lumigrafo::prova
