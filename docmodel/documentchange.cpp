#include "docmodel/documentchange.h"

#include "services/username.h"

namespace docmodel {

DocumentChange::DocumentChange(const BoundPath& path)
    : path_(path.given),
      writer_(path.absolute, path.given),
      content_(&writer_.Current(), path.given) {}

void DocumentChange::RequireUnchanged(const QByteArray& now, const QByteArray& atOpen,
                                      const QString& what) const {
    if (now != atOpen)
        throw DocumentError(QStringLiteral("The %1 of the document %2 was changed by another "
                                           "program since it was opened. Open it again and "
                                           "repeat the change.")
                                .arg(what, path_));
}

void DocumentChange::Commit(const QDateTime& time, const QString& user) {
    content_.Core().SetModified(time, user);
    const QByteArray tables = content_.TablesBytes();
    for (const auto& [name, bytes] : content_.Changed())
        writer_.Put(name, bytes);
    for (const QByteArray& name : content_.Removed())
        writer_.Remove(name);
    writer_.Commit(tables);
}

void DocumentChange::Commit() {
    Commit(QDateTime::currentDateTimeUtc(), docbench::CurrentUserName());
}

}  // namespace docmodel
