// What the fuzz targets, and the test that replays their corpus, do with one input.
#pragma once

#include <cstddef>
#include <cstdint>

namespace docmodel {

// Opens the bytes as a document and reads all of it: the parts, the tables, the properties. Any
// DocumentError is fine that names the file.
void FuzzRead(const uint8_t* bytes, size_t count);

// Saves into the bytes as a package, compacts it, and opens it again after each step. Ends the
// process when a part is lost or changed, a refused package is written to, or a saved one can't be
// opened.
void FuzzSave(const uint8_t* bytes, size_t count);

// Changes a row, a hyperlink and a property of the bytes as a document, and opens it again. Ends
// the process when the change is not there, another row is lost, or a refused document is written
// to.
void FuzzChange(const uint8_t* bytes, size_t count);

}  // namespace docmodel
