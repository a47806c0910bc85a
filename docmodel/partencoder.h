// Makes a part's bytes ready for the file: compressed if that pays, with headers to match.
#pragma once

#include <QByteArray>

#include "docmodel/zipformat.h"

namespace docmodel {

struct EncodedPart {
    zip::NewPart head;
    QByteArray data;  // as it stands in the file
};

// Raises DocumentError, naming `path`, when `name` can't be a part's name or `bytes` are too many.
EncodedPart EncodePart(const QByteArray& name, const QByteArray& bytes, const QString& path);

// Raises DocumentError when `name` can't be the name of a part that is to be written.
void CheckNewName(const QByteArray& name, const QString& path);

}  // namespace docmodel
