#include "fuzz/entries.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
    docmodel::FuzzSave(bytes, count);
    docmodel::FuzzChange(bytes, count);
    return 0;
}
