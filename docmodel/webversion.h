// What tells one state of a file on a server from another.
#pragma once

#include <QByteArray>

#include "docmodel/websession.h"

namespace docmodel {

struct WebVersion {
    QByteArray tag;          // the ETag, quotes included; empty when there is none
    bool isProxied = false;  // the tag may be somebody's on the way, not the server's
    qint64 modified = -1;    // seconds since 1970; -1 unknown
    qint64 length = -1;      // bytes; -1 unknown
    QByteArray digest;       // of the contents, where the server tells nothing else
    QByteArray ending;  // digest of the last bytes, while the rest may be somebody else's version

    // The tag can be sent as a condition: it is strong, and the server's own.
    bool HasSureTag() const;
    // Something other than the contents tells versions apart.
    bool HasValidator() const { return modified >= 0 || (!tag.isEmpty() && !isProxied); }
};

// Seconds since 1970 of a date as HTTP or a property has it; -1 if it is none.
qint64 SecondsOf(const QByteArray& date);

// From the headers of an answer that has, or would have, the file as its body.
WebVersion VersionOf(const WebAnswer& answer);

// Both have a tag, and it is the same, be it weak or strong.
bool HaveSameTag(const WebVersion& one, const WebVersion& other);

enum class VersionMatch { Same, Changed, Unknown };

// Whether a file that was as `known` is still the same when it is as `now`.
VersionMatch Compare(const WebVersion& known, const WebVersion& now);

}  // namespace docmodel
