// Loading the document library, and the way to its objects for the rest of the system.
#pragma once

#include <QPluginLoader>
#include <QString>

#include "services/docaccess.h"

namespace docbench {

// Loads the library at construction. It stays loaded for the life of the process, since objects
// that it made may outlive this one.
class DocumentLibrary {
public:
    DocumentLibrary();  // from the program's own folder
    explicit DocumentLibrary(const QString& folder);

    DocumentAccess* Access() const { return access_; }  // null when it could not be loaded
    const QString& Error() const { return error_; }     // why, as a sentence for the user

private:
    QPluginLoader loader_;
    DocumentAccess* access_ = nullptr;
    QString error_;
};

// The library in use. Raises DocumentError when there is none.
DocumentAccess& Documents();

}  // namespace docbench
