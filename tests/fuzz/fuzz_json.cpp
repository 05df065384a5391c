#include "tests/fuzz/giro_json.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t lunghezza) {
    lumigrafo::prova::giroJson({reinterpret_cast<const char*>(dati), lunghezza});
    return 0;
}
