// The preview stored in a document.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace docmodel {

// The stored picture's file, as ReadPicture takes it; nothing when the document has none. Raises
// DocumentError when it can't be read or is larger than any preview.
std::optional<QByteArray> StoredPreview(const QString& path);

}  // namespace docmodel
