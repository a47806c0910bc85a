// Asking a server for the properties of a file or of a folder's entries (PROPFIND of WebDAV).
#pragma once

#include <QList>

#include "docmodel/webaddress.h"
#include "docmodel/websession.h"
#include "docmodel/webversion.h"

namespace docmodel {

// What an answer tells of one file or folder.
struct WebResource {
    QByteArray href;  // as the server wrote it
    bool isThere = true;
    bool hasType = false;  // the server said whether it is a folder
    bool isFolder = false;
    WebVersion version;
};

// Reads an answer of status 207. Raises DocumentError about `address` when it is none, whatever it
// is instead.
QList<WebResource> ReadMultistatus(QByteArray xml, const WebAddress& address, const QString& done);

// A folder and what lies right in it.
struct WebFolder {
    QList<WebResource> entries;
    QList<QString> names;  // of the entries, as users write them
};

// Asks for the entries of a folder. Dropped are those on other servers, those that don't lie right
// in the folder, and those whose address has a way up in it. Raises DocumentError when the folder
// can't be listed.
WebFolder AskForFolder(WebSession& session, const WebAddress& address, const QString& done);

// Asks for no more than an answer, so that the server has the password if it wants one.
void Knock(WebSession& session, const WebAddress& address, const QString& done);

// What is at an address now, with its version; `isThere` is false when there is nothing. Raises
// DocumentError when the server does not tell.
WebResource AskFor(WebSession& session, const WebAddress& address, const QString& done);

// The version that is at an address now, after what was to be done is done: nothing where the
// server does not tell, which makes the next upload careful.
WebVersion VersionNow(WebSession& session, const WebAddress& address);

}  // namespace docmodel
