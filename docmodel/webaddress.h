// An address in a web folder: taken apart, and brought to the one form that is sent.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "services/webauthority.h"

namespace docmodel {

struct WebAddress {
    QByteArray scheme;  // "http" or "https"
    QByteArray host;    // in lower case and ASCII; IPv6 in brackets
    unsigned port = 0;
    QByteArray path;  // escaped, begins with "/"; equal paths have equal bytes
    QString user;     // of "user:password@host"; empty when there is none
    QString password;

    // From what a user wrote or a document stores. "\" stands for "/"; an escape stays; all else
    // that can't stand in a path is escaped, "#" and "?" with it, since files have such names.
    // None: it is no address of http or https.
    static std::optional<WebAddress> FromUser(const QString& text);
    // From the "href" or "Location" of an answer about `base`, with its "." and ".." left alone.
    // None: it is no such address, or relative to something unsaid.
    static std::optional<WebAddress> FromServer(const QByteArray& text, const WebAddress& base);

    QString Server() const;       // "https://host:port"
    QByteArray Sent() const;      // as a header has it: escaped, without user and password
    QString Shown() const;        // as a user writes it, without user and password
    WebAddress AsFolder() const;  // with a "/" at the end
    bool IsOnSameServer(const WebAddress& other) const;
    bool HasDotSegments() const;  // "." or ".." as a step of the path
};

// A path or name as users write it: escapes undone where that loses nothing. FromUser gives the
// same path for it.
QString UnescapedForUser(const QByteArray& escaped);

using docbench::WithoutUser;

}  // namespace docmodel
