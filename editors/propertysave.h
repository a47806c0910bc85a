// Writing what was edited of a document's properties, onto the document as it is by then.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "editors/summaryfields.h"

namespace docbench {

class CellList;
class DocumentInfo;

// The property set of a configuration by its position; null when there is none at it. `path` is a
// path or address. Raises when a configuration of another name stands there now.
std::unique_ptr<DocumentInfo> OpenConfigurationSet(const QString& path, int index,
                                                   const QString& name);

// The rows of an edited property set, what was deleted from it, and its stamp when it was loaded.
struct SetEdits {
    const CellList& rows;
    QStringList deletedNames;
    QByteArray stamp;
};

// Both write and save, and raise when the properties are no longer those that were loaded, which
// stay as they are then; `path` is named in the error.
void SaveConfigurationSet(DocumentInfo& set, const SetEdits& edits, const QString& path);

struct DocumentEdits {
    std::optional<SummaryEdits> summary = {};  // none: the summary is not written
    QByteArray summaryStamp = {};
    std::optional<SetEdits> custom = {};  // none: the custom properties are not written
};
void SaveDocumentProperties(DocumentInfo& info, const DocumentEdits& edits, const QString& path);

}  // namespace docbench
