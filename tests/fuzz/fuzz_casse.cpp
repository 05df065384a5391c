#include "tests/fuzz/giro_casse.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t lunghezza) {
    lumigrafo::prova::giroCasse({reinterpret_cast<const char*>(dati), lunghezza});
    return 0;
}
