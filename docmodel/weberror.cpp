#include "docmodel/weberror.h"

namespace docmodel {
namespace {

struct StatusText {
    int status;
    const char* text;
};

constexpr StatusText kTexts[] = {
    {400, "the server does not understand the request. Check the address"},
    {401, "the server wants a user name and a password. Try again and give the right ones"},
    {403, "you have no permission for it. Ask the folder's owner for access"},
    {404, "there is nothing of this name on the server. Check the address"},
    {405, "the server allows no such operation there. Check that the address lies in a web folder"},
    {407, "a proxy on the way wants a password. Ask the network's administrator"},
    {408, "the server got tired of waiting. Try again"},
    {409, "the folder that it is to lie in does not exist. Make that folder first"},
    {410, "it was taken off the server for good. Check the address"},
    {412, "it is not as expected on the server. Look at it there, then try again"},
    {413, "it is larger than the server takes. Ask the server's administrator for more room"},
    {414, "the address is longer than the server takes. Shorten the name"},
    {423, "somebody has locked it on the server. Wait until it is released, then try again"},
    {424, "something else that belongs to it could not be done. Look at the folder on the server"},
    {429, "the server gets too many requests. Wait a while, then try again"},
    {500, "the server has an error of its own. Try again later, or tell its administrator"},
    {501, "the server knows no such operation. Check that the address lies in a web folder"},
    {502, "a server on the way got no proper answer. Try again later"},
    {503, "the server is busy or being maintained. Try again later"},
    {504, "a server on the way got no answer in time. Try again later"},
    {507, "the server has no room left. Make room there, or tell its administrator"},
};

QString Printable(QString text) {
    constexpr qsizetype kLongestShown = 80;
    text.truncate(kLongestShown);
    for (QChar& c : text)
        if (!c.isPrint())
            c = QChar::ReplacementCharacter;
    return text;
}

}  // namespace

DocumentError WebError(const WebAddress& address, const QString& done, const QString& reason) {
    return DocumentError(QStringLiteral("%1 can't be %2: %3.").arg(address.Shown(), done, reason));
}

DocumentError NoAddressError(const QString& text, const QString& done) {
    return DocumentError(
        QStringLiteral("%1 can't be %2: it is no address of a web folder. Write it as "
                       "http://server/folder/name.")
            .arg(WithoutUser(text), done));
}

QString StatusReason(int status, const QString& phrase) {
    for (const StatusText& known : kTexts)
        if (known.status == status)
            return QStringLiteral("%1 (%2)").arg(QString::fromLatin1(known.text)).arg(status);
    return QStringLiteral("the server answers \"%1 %2\". Tell its administrator")
        .arg(status)
        .arg(Printable(phrase));
}

}  // namespace docmodel
