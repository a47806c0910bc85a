#include "docmodel/webfolderlistingobject.h"

namespace docmodel {

WebFolderListingObject::WebFolderListingObject(const QString& prefix, WebFolder folder)
    : entries_(std::move(folder.entries)) {
    urls_.reserve(entries_.size());
    positions_.reserve(entries_.size());
    for (const QString& name : folder.names) {
        positions_.insert(prefix + name, urls_.size());
        urls_.append(prefix + name);
    }
}

bool WebFolderListingObject::Reset() {
    next_ = 0;
    return true;
}

bool WebFolderListingObject::NextEntry(QString& url) {
    const bool isThere = next_ < urls_.size();
    url = isThere ? urls_[next_++] : QString();
    return isThere;
}

bool WebFolderListingObject::GetProperty(const QString& url, const QString& nameSpace,
                                         const QString& name, QString& value) {
    value.clear();
    const qsizetype position = positions_.value(url, -1);
    if (position < 0 || nameSpace != QLatin1String("DAV:"))
        return false;
    const WebResource& entry = entries_[position];
    if (name == QLatin1String("resourcetype") && entry.hasType)
        value = entry.isFolder ? QStringLiteral("Folder") : QStringLiteral("File");
    else if (name == QLatin1String("getetag"))
        value = QString::fromUtf8(entry.version.tag);
    return !value.isEmpty();
}

}  // namespace docmodel
