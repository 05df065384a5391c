#include "tests/fuzz/giro_access.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t lunghezza) {
    (void)lumigrafo::prova::giroAccess({reinterpret_cast<const char*>(dati), lunghezza});
    return 0;
}
