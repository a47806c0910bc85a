#include "services/webauthority.h"

#include <QCoreApplication>
#include <QUrl>

namespace docbench {
namespace {

// "user:password@host:port" in an address.
struct Authority {
    explicit Authority(const QString& address) {
        const QString text = QString(address).replace(u'\\', u'/');
        const qsizetype separator = text.indexOf(QLatin1String("://"));
        const qsizetype slash = text.indexOf(u'/', separator < 0 ? 0 : separator + 3);
        const QString scheme = text.left(qMax<qsizetype>(0, separator)).toLower();
        isWeb = scheme == QLatin1String("http") || scheme == QLatin1String("https");
        start = separator < 0 ? 0 : separator + 3;
        end = slash < 0 ? text.size() : slash;
        host = qMax(start, text.left(end).lastIndexOf(u'@') + 1);
    }

    bool isWeb;  // it is an address of http or https
    // Where it begins, where the host begins, and behind its end.
    qsizetype start;
    qsizetype host;
    qsizetype end;
};

}  // namespace

QString ServerOf(const QString& address) {
    const Authority place(address);
    const QString host = address.mid(place.host, place.end - place.host);
    const QUrl url(address.left(place.start).replace(u'\\', u'/') + host);
    if (!place.isWeb || host.isEmpty() || !url.isValid() || url.host().isEmpty())
        return {};
    QString name = url.host(QUrl::FullyEncoded);
    if (name.contains(u':'))
        name = u'[' + name + u']';
    const int usualPort = url.scheme() == QLatin1String("https") ? 443 : 80;
    return QStringLiteral("%1://%2:").arg(url.scheme(), name) +
           QString::number(url.port(usualPort));
}

bool HasPassword(const QString& address) {
    const Authority place(address);
    return place.isWeb && address.mid(place.start, place.host - place.start).contains(u':');
}

QString WithoutUser(const QString& text) {
    const Authority place(text);
    return text.left(place.start) + text.mid(place.host);
}

QString PasswordInAddressText() {
    return QCoreApplication::translate(
        "docbench::WebAddress",
        "Type the address without the password; you will be asked for it. Addresses are "
        "remembered and listed, and a password is not for that.");
}

}  // namespace docbench
