// What the fuzz targets, and the test that replays their corpus, do with one input.
#pragma once

#include <cstddef>
#include <cstdint>

namespace docmodel {

// Opens the bytes as a document and reads all of it. Any DocumentError is fine.
void FuzzRead(const uint8_t* bytes, size_t count);

// Saves into the bytes as a document, compacts it, and opens it again after each step. Ends the
// process when a part is lost or changed, a refused document is written to, or a saved one can't be
// opened.
void FuzzSave(const uint8_t* bytes, size_t count);

}  // namespace docmodel
