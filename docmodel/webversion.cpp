#include "docmodel/webversion.h"

#include <neon/ne_dates.h>

namespace docmodel {
namespace {

bool IsWeak(const QByteArray& tag) {
    return tag.startsWith("W/");
}

// A server may call a young file's tag weak and the same tag strong later.
QByteArray Opaque(const QByteArray& tag) {
    return IsWeak(tag) ? tag.mid(2) : tag;
}

// Modules that pack answers mark the tag so; uploads with it would never fit.
bool IsMarkedAsPacked(const QByteArray& tag) {
    return tag.endsWith("-gzip\"") || tag.endsWith(";gzip\"") || tag.endsWith("--gzip\"") ||
           tag.endsWith("-br\"");
}

}  // namespace

bool WebVersion::HasSureTag() const {
    return tag.size() > 2 && tag.startsWith('"') && tag.endsWith('"') && !isProxied;
}

qint64 SecondsOf(const QByteArray& date) {
    const time_t http = ne_httpdate_parse(date.constData());
    return http != time_t(-1) ? http : ne_iso8601_parse(date.constData());
}

WebVersion VersionOf(const WebAnswer& answer) {
    WebVersion version;
    version.tag = answer.Header("etag");
    version.isProxied = answer.headers.contains("via") || answer.headers.contains("age") ||
                        IsMarkedAsPacked(version.tag);
    version.modified = SecondsOf(answer.Header("last-modified"));
    bool isNumber = false;
    const qint64 length = answer.Header("content-length").toLongLong(&isNumber);
    version.length = isNumber ? length : -1;
    return version;
}

bool HaveSameTag(const WebVersion& one, const WebVersion& other) {
    return !one.tag.isEmpty() && Opaque(one.tag) == Opaque(other.tag);
}

VersionMatch Compare(const WebVersion& known, const WebVersion& now) {
    if (known.length >= 0 && now.length >= 0 && known.length != now.length)
        return VersionMatch::Changed;
    const bool bothDated = known.modified >= 0 && now.modified >= 0;
    if (bothDated && known.modified != now.modified)
        return VersionMatch::Changed;
    if (!known.tag.isEmpty() && !now.tag.isEmpty()) {
        if (HaveSameTag(known, now))
            return VersionMatch::Same;
        if (!known.isProxied && !now.isProxied)
            return VersionMatch::Changed;
    }
    if (!known.digest.isEmpty() && !now.digest.isEmpty())
        return known.digest == now.digest ? VersionMatch::Same : VersionMatch::Changed;
    return bothDated ? VersionMatch::Same : VersionMatch::Unknown;
}

}  // namespace docmodel
