// Documents for tests: real files in a temporary folder, made through the document library.
#pragma once

#include <QList>
#include <QString>
#include <QTemporaryDir>

#include "services/docaccess.h"

namespace docbench {

class TestLibrary {
public:
    struct Component {
        QString path;
        int count = 1;
    };
    struct External {
        QString path;
        QString kind;
    };

    TestLibrary();  // makes the real document library the program's until it is destroyed
    ~TestLibrary();

    QString Folder() const { return folder_.path(); }
    // The path of a file in the folder, whether or not there is one.
    QString Path(const QString& name) const { return folder_.filePath(name); }

    // Make a document of that name ("top.tfmasm", "sub/pin.tfmprt"); they give its path.
    QString Make(const QString& name, const QList<Component>& components = {},
                 const QList<External>& externals = {});
    QString MakeBroken(const QString& name);  // a file that is no package
    void LockReferences(const QString& path);
    void SetPreview(const QString& path, const QByteArray& picture);
    // Reserves the document in the lock record.
    void Lock(const QString& path, const QString& user);
    bool IsLocked(const QString& path) const;
    QString LockedBy(const QString& path) const;

private:
    QTemporaryDir folder_;
    DocumentAccess* former_;
};

}  // namespace docbench
