#include "links/json_bag.h"
#include "platform/guasto.h"
#include "tests/fuzz/giri.h"

#include <stdexcept>

namespace lumigrafo::prova {

namespace {

bool leggi(JsonBag& bag, std::string_view testo) {
    try {
        bag.JSON(testo);
        return true;
    } catch (const Guasto& guasto) {
        if (guasto.numero() != guasti::kTipo && guasto.numero() != guasti::kSovraccarico)
            throw std::logic_error("refused as misuse: " + guasto.descrizione());
        return false;
    }
}

} // namespace

void giroJson(std::string_view testo) {
    for (const bool decimale : {false, true}) {
        JsonBag bag;
        bag.DecimalMode(decimale);
        if (!leggi(bag, testo))
            continue;
        const std::string scritto = bag.JSON();
        bag.Indented = true;
        for (const std::string& forma : {scritto, bag.JSON()}) {
            JsonBag altra;
            altra.DecimalMode(decimale);
            if (!leggi(altra, forma))
                throw std::logic_error("not readable: " + forma);
            if (altra.JSON() != scritto)
                throw std::logic_error("changed on the way: " + scritto + " to " + altra.JSON());
        }
    }
}

} // namespace lumigrafo::prova
