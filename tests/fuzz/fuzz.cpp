#include "tests/fuzz/giri.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t lunghezza) {
    (void)lumigrafo::prova::GIRO({reinterpret_cast<const char*>(dati), lunghezza});
    return 0;
}
