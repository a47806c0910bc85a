// The entries of a web folder as they were when it was listed.
#pragma once

#include <QHash>
#include <QList>

#include "docmodel/webpropfind.h"
#include "services/docaccess.h"

namespace docmodel {

class WebFolderListingObject : public docbench::WebFolderListing {
public:
    // `prefix` stands before the names, so that entries have their folder's address as its user
    // wrote it. Folders among them have no "/" at the end.
    WebFolderListingObject(const QString& prefix, WebFolder folder);

    bool Reset() override;
    bool NextEntry(QString& url) override;
    // Knows "resourcetype" and "getetag" of "DAV:".
    bool GetProperty(const QString& url, const QString& nameSpace, const QString& name,
                     QString& value) override;

private:
    const QList<WebResource> entries_;
    QList<QString> urls_;
    QHash<QString, qsizetype> positions_;  // of the entries, by their addresses
    qsizetype next_ = 0;
};

}  // namespace docmodel
