// The bytes of a new state of a package: new parts, directory and end record, laid out for a place
// in the file.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <vector>

#include "docmodel/partencoder.h"

namespace docmodel {

struct StateImage {
    std::vector<QByteArray> early;  // to be written and synced before the rest, from `offset` on
    QByteArray last;                // to be written in one step, behind `early`
    quint64 offset = 0;
    quint64 lastOffset = 0;
    quint64 end = 0;  // of the file, when all is written
    quint64 entryCount = 0;
    quint64 directoryBytes = 0;
};

enum class Checksum { No, Yes };

// Lays out a state behind `offset`: `parts`, at least one, in their order, then a directory of the
// `kept` raw records and of the new parts. With a checksum, the end record protects what is written
// in the last step, and no disk sector border crosses it: a sector is on the disk wholly or not at
// all, so an end record whose checksum is missing can't come about.
StateImage LayOutState(quint64 offset, const QList<QByteArray>& kept,
                       const std::vector<EncodedPart>& parts, Checksum checksum);

// Raises DocumentError, naming `path`, when the state would be one that is refused at reading.
void CheckLimits(const StateImage& image, const QString& path);

}  // namespace docmodel
