// One save of a document: locks the file, reads the newest state, takes the changes and appends
// them.
#pragma once

#include <QDateTime>
#include <QString>

#include "docmodel/documentcontent.h"
#include "docmodel/package.h"
#include "docmodel/referencepath.h"

namespace docmodel {

// The path that an object is bound to. It leads to the same document when the working folder has
// changed since.
struct BoundPath {
    BoundPath() = default;
    BoundPath(const QString& path) : given(path), absolute(AbsolutePath(path)) {}
    QString given;  // for error texts
    QString absolute;
};

class DocumentChange {
public:
    // Raises DocumentError when the file can't be read or may not be written now.
    explicit DocumentChange(const BoundPath& path);

    DocumentContent& Content() { return content_; }  // the newest state
    // Raises DocumentError if the two stamps differ. `what` names what was changed in the sentence,
    // such as "list of components".
    void RequireUnchanged(const QByteArray& now, const QByteArray& atOpen,
                          const QString& what) const;
    // Writes the content with this time and user as those of the last save.
    void Commit(const QDateTime& time, const QString& user);
    void Commit();  // now, by the user of the process

private:
    QString path_;  // as given
    PackageWriter writer_;
    DocumentContent content_;
};

}  // namespace docmodel
