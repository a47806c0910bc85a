// One save of a document: locks the file, reads the newest state, takes the changes and appends
// them.
#pragma once

#include <QDateTime>
#include <QString>

#include "docmodel/documentcontent.h"
#include "docmodel/package.h"

namespace docmodel {

class DocumentChange {
public:
    // Raises DocumentError when the file can't be read or may not be written now.
    explicit DocumentChange(const QString& path);

    DocumentContent& Content() { return content_; }  // the newest state
    // Raises DocumentError if the two stamps differ. `what` names what was changed in the sentence,
    // such as "list of components".
    void RequireUnchanged(const QByteArray& now, const QByteArray& atOpen,
                          const QString& what) const;
    // Writes the content with this time and user as those of the last save.
    void Commit(const QDateTime& time, const QString& user);
    void Commit();  // now, by the user of the process

private:
    QString path_;
    PackageWriter writer_;
    DocumentContent content_;
};

}  // namespace docmodel
