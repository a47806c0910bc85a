// One upload that can't overwrite anybody's work.
#pragma once

#include <optional>

#include "docmodel/webpropfind.h"

namespace docmodel {

class WebUpload {
public:
    // `file` is open for reading and `bytes` long.
    WebUpload(WebSession& session, const WebAddress& address, int file, qint64 bytes)
        : session_(session), address_(address), file_(file), bytes_(bytes) {}

    // Sends the file if the server still has `known`, or nothing where that is none. `mayOverwrite`
    // sends it whatever the server has. Gives the version that the server has then. Raises
    // DocumentError when it would overwrite something and when the server refuses.
    WebVersion Run(const std::optional<WebVersion>& known, bool mayOverwrite);

private:
    using Headers = QList<std::pair<QByteArray, QByteArray>>;

    // The condition to send; none when it is known not to hold.
    std::optional<Headers> Condition(const std::optional<WebVersion>& known);
    WebAnswer Put(const Headers& condition);
    // Holds what the server has now against `known`; gives it in `now`. Raises when there is
    // nothing.
    VersionMatch MatchNow(const WebVersion& known, WebVersion& now);
    bool EndsAs(const WebVersion& known);
    QByteArray DigestOnServer();
    // The server's version if it has exactly these bytes already.
    std::optional<WebVersion> VersionIfSent();
    WebVersion VersionAfter(const WebAnswer& answer);
    [[noreturn]] void RaiseConflict(const std::optional<WebVersion>& known);
    [[noreturn]] void Raise(const QString& reason);

    WebSession& session_;
    const WebAddress address_;
    const int file_;
    const qint64 bytes_;
};

}  // namespace docmodel
