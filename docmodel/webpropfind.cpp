#include "docmodel/webpropfind.h"

#include <QSet>
#include <cstdlib>
#include <cstring>

#include "docmodel/weberror.h"
#include "docmodel/xml.h"

namespace docmodel {
namespace {

constexpr char kDav[] = "DAV:";

constexpr char kEntriesQuestion[] =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<D:propfind xmlns:D=\"DAV:\"><D:prop>"
    "<D:resourcetype/><D:getetag/></D:prop></D:propfind>";
constexpr char kVersionQuestion[] =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<D:propfind xmlns:D=\"DAV:\"><D:prop>"
    "<D:resourcetype/><D:getetag/><D:getlastmodified/><D:getcontentlength/></D:prop></D:propfind>";

// The text of an element, which mostly is one piece.
QByteArray ValueOf(pugi::xml_node element) {
    const pugi::xml_node piece = element.first_child();
    const bool isPlain = piece.type() == pugi::node_pcdata && !piece.next_sibling();
    return (isPlain ? QByteArray(piece.value()) : TextOf(element).toUtf8()).trimmed();
}

// "HTTP/1.1 200 OK"; 0 if it is none.
int StatusOf(pugi::xml_node element) {
    const char* text = element.child_value();
    const char* blank = std::strchr(text + std::strspn(text, " \t\r\n"), ' ');
    return blank ? std::atoi(blank) : 0;
}

void ReadProperties(pugi::xml_node properties, WebResource& resource) {
    for (const pugi::xml_node property : properties) {
        if (IsElement(property, kDav, "resourcetype")) {
            resource.hasType = true;
            resource.isFolder = bool(ChildElement(property, kDav, "collection"));
        } else if (IsElement(property, kDav, "getetag")) {
            resource.version.tag = ValueOf(property);
        } else if (IsElement(property, kDav, "getlastmodified")) {
            resource.version.modified = SecondsOf(ValueOf(property));
        } else if (IsElement(property, kDav, "getcontentlength")) {
            bool isNumber = false;
            const qint64 length = ValueOf(property).toLongLong(&isNumber);
            resource.version.length = isNumber ? length : -1;
        }
    }
}

WebResource ReadResponse(pugi::xml_node response) {
    WebResource resource;
    for (const pugi::xml_node child : response) {
        if (IsElement(child, kDav, "href")) {
            resource.href = ValueOf(child);
        } else if (IsElement(child, kDav, "status")) {
            resource.isThere = StatusOf(child) / 100 == 2;
        } else if (IsElement(child, kDav, "propstat")) {
            if (StatusOf(ChildElement(child, kDav, "status")) == 200)
                ReadProperties(ChildElement(child, kDav, "prop"), resource);
        }
    }
    return resource;
}

struct Asked {
    WebAnswer answer;
    QByteArray xml;
};

Asked Ask(WebSession& session, const WebAddress& address, const char* question, const char* depth,
          const QString& done) {
    Asked asked;
    WebRequest request{.method = "PROPFIND", .done = done};
    request.headers = {{"Depth", depth}, {"Content-Type", "application/xml; charset=utf-8"}};
    request.body = question;
    request.received = [&](const char* bytes, size_t count) {
        if (asked.xml.size() + qsizetype(count) > kMaxXmlBytes)
            throw WebError(address, done,
                           QStringLiteral("the server's list is too long. Divide the folder into "
                                          "smaller ones"));
        asked.xml.append(bytes, qsizetype(count));
    };
    asked.answer = session.Send(address, request);
    return asked;
}

[[noreturn]] void RaiseNoWebFolder(const WebAddress& address, const QString& done) {
    throw WebError(address, done,
                   QStringLiteral("it is no web folder. Check that the address is one of a folder "
                                  "that the server opens for WebDAV"));
}

// The name of an entry right in `folder`, escaped; empty for the folder itself and for what does
// not belong there. The case of the folder's own path is the server's affair.
QByteArray NameIn(const WebAddress& folder, const QByteArray& href) {
    const std::optional<WebAddress> address = WebAddress::FromServer(href, folder);
    if (!address || !address->IsOnSameServer(folder) || address->HasDotSegments())
        return {};
    const QByteArray& path = address->path;
    if (path.size() <= folder.path.size() ||
        qstrnicmp(path.constData(), folder.path.constData(), size_t(folder.path.size())) != 0)
        return {};
    QByteArray name = path.mid(folder.path.size());
    if (name.endsWith('/'))
        name.chop(1);
    for (const char* separator : {"/", "%2F", "%5C", "%00"})
        if (name.contains(separator))
            return {};
    return name;
}

bool IsOfFolder(const WebAddress& folder, const QByteArray& href) {
    const std::optional<WebAddress> address = WebAddress::FromServer(href, folder);
    return address && address->IsOnSameServer(folder) &&
           address->AsFolder().path.compare(folder.path, Qt::CaseInsensitive) == 0;
}

// The servers that know no PROPFIND at an address.
bool IsNoPropfind(int status) {
    return status == 400 || status == 405 || status == 501;
}

WebResource AskByHead(WebSession& session, const WebAddress& address, const QString& done) {
    const WebAnswer answer = session.Send(address, {.method = "HEAD", .done = done});
    WebResource resource;
    resource.isThere = answer.status != 404 && answer.status != 410;
    if (resource.isThere && !answer.IsSuccess())
        throw WebError(address, done, StatusReason(answer.status, answer.phrase));
    if (resource.isThere)
        resource.version = VersionOf(answer);
    return resource;
}

}  // namespace

QList<WebResource> ReadMultistatus(QByteArray xml, const WebAddress& address, const QString& done) {
    const auto parsed = [&] {
        try {
            return XmlPart::Parse(std::move(xml), address.Shown(), "answer");
        } catch (const DocumentError&) {  // speaks of a document
            throw WebError(address, done,
                           QStringLiteral("the server's list can't be read. Tell the server's "
                                          "administrator"));
        }
    }();
    if (!IsElement(parsed.Root(), kDav, "multistatus"))
        RaiseNoWebFolder(address, done);
    QList<WebResource> resources;
    for (const pugi::xml_node child : parsed.Root())
        if (IsElement(child, kDav, "response"))
            resources.append(ReadResponse(child));
    return resources;
}

WebFolder AskForFolder(WebSession& session, const WebAddress& address, const QString& done) {
    Asked asked = Ask(session, address.AsFolder(), kEntriesQuestion, "1", done);
    if (asked.answer.status != 207 && !asked.answer.IsSuccess())
        throw WebError(address, done, StatusReason(asked.answer.status, asked.answer.phrase));
    if (asked.answer.status != 207)
        RaiseNoWebFolder(address, done);
    const WebAddress folder = asked.answer.address.AsFolder();
    WebFolder listed;
    QSet<QByteArray> seen;
    for (WebResource& resource : ReadMultistatus(std::move(asked.xml), address, done)) {
        const QByteArray name = NameIn(folder, resource.href);
        if (name.isEmpty()) {
            if (resource.hasType && !resource.isFolder && IsOfFolder(folder, resource.href))
                RaiseNoWebFolder(address, done);
        } else if (resource.isThere && !seen.contains(name)) {
            seen.insert(name);
            listed.names.append(UnescapedForUser(name));
            listed.entries.append(std::move(resource));
        }
    }
    return listed;
}

void Knock(WebSession& session, const WebAddress& address, const QString& done) {
    Ask(session, address, kVersionQuestion, "0", done);
}

WebResource AskFor(WebSession& session, const WebAddress& address, const QString& done) {
    Asked asked = Ask(session, address, kVersionQuestion, "0", done);
    const int status = asked.answer.status;
    if (IsNoPropfind(status))
        return AskByHead(session, address, done);
    if (status == 404 || status == 410) {
        WebResource nothing;
        nothing.isThere = false;
        return nothing;
    }
    if (status != 207)
        throw WebError(address, done, StatusReason(status, asked.answer.phrase));
    const QList<WebResource> resources = ReadMultistatus(std::move(asked.xml), address, done);
    if (resources.isEmpty())
        RaiseNoWebFolder(address, done);
    return resources.first();
}

WebVersion VersionNow(WebSession& session, const WebAddress& address) {
    try {
        return AskFor(session, address, QStringLiteral("asked for")).version;
    } catch (const DocumentError&) {
        return {};
    }
}

}  // namespace docmodel
