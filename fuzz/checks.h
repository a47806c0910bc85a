// What the fuzz entries have in common: a file for the input, and the end of the process on a
// fault.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>

namespace docmodel {

void Demand(
    bool condition);  // ends the process unless it holds, so that the fuzzer keeps the input

// Puts the bytes into a file in memory, always the same one, and gives its path. Bytes that begin
// with
// "<" become the part of a sound package that their root element belongs into: in a package, a
// changed part would mostly just have a wrong checksum.
QString InputFile(const uint8_t* bytes, size_t count);

QByteArray Contents(const QString& path);

}  // namespace docmodel
