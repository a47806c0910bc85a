// Servers of one file for the tests of web folders, which tell of it what a test likes.
#pragma once

#include "tests/support/faultserver.h"

namespace docmodel {

using docbench::FaultServer;

inline FaultServer::Script Always(const FaultServer::Reply& reply) {
    return [reply](const FaultServer::Request&) { return reply; };
}

// One file on a server that tells of it what the test likes.
struct StoredFile {
    QByteArray body = "first";
    QByteArray tag = {};
    QByteArray modified = {};
    QList<std::pair<QByteArray, QByteArray>> extra = {};  // more headers of a download

    QList<std::pair<QByteArray, QByteArray>> Headers() const {
        QList<std::pair<QByteArray, QByteArray>> headers = extra;
        if (!tag.isEmpty())
            headers.append({"ETag", tag});
        if (!modified.isEmpty())
            headers.append({"Last-Modified", modified});
        return headers;
    }

    FaultServer::Reply Properties(const QByteArray& path) const {
        QByteArray found = "<resourcetype/><getcontentlength>" + QByteArray::number(body.size()) +
                           "</getcontentlength>";
        if (!tag.isEmpty())
            found += "<getetag>" + tag + "</getetag>";
        if (!modified.isEmpty())
            found += "<getlastmodified>" + modified + "</getlastmodified>";
        return {.status = 207,
                .body = "<multistatus xmlns=\"DAV:\"><response><href>" + path +
                        "</href><propstat><prop>" + found +
                        "</prop><status>HTTP/1.1 200 OK</status></propstat></response>"
                        "</multistatus>"};
    }
};

// Serves it, whatever the address. Uploads succeed and change nothing.
inline FaultServer::Script Serving(const StoredFile& file) {
    return [&file](const FaultServer::Request& request) -> FaultServer::Reply {
        if (request.method == "PROPFIND")
            return file.Properties(request.path);
        if (request.method == "PUT")
            return {.status = 204};
        return {.headers = file.Headers(), .body = file.body};
    };
}

// A header of the first upload that came in.
inline QByteArray HeaderOfUpload(const FaultServer& server, const char* name) {
    for (const FaultServer::Request& request : server.Requests())
        if (request.method == "PUT")
            return request.headers.value(name, "(none)");
    return "(no upload)";
}

}  // namespace docmodel
