// A web folder on a real server: Apache with its own configuration and folders, as an ordinary
// process on a free port of this machine.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace docbench {

class ApacheServer {
public:
    enum class Login { None, Basic, Digest };  // the user is User(), with Password()
    enum class Tls { None, Good, OtherHost, Expired };
    struct Options {
        Login login = Login::None;
        Tls tls = Tls::None;
        QByteArray extra = {};  // more lines for the configuration
    };

    // Returns when the server answers; ends the test program when it never does.
    explicit ApacheServer(const Options& options);
    ApacheServer() : ApacheServer(Options()) {}
    ~ApacheServer();
    ApacheServer(const ApacheServer&) = delete;
    ApacheServer& operator=(const ApacheServer&) = delete;

    // "http://127.0.0.1:PORT/dav/NAME", and the same file on the disk.
    QString Url(const QString& name = {}) const;
    QString Path(const QString& name = {}) const;
    // With a login: a second folder, which is of another realm.
    QString SecondUrl(const QString& name = {}) const;
    QString Server() const;  // "http://127.0.0.1:PORT"
    QString TrustFile() const { return folder_.filePath(QStringLiteral("ca.pem")); }
    // How many requests the server has answered that start with `start`, such as "GET /dav/a".
    int CountRequests(const QByteArray& start) const;

    static QString User() { return QStringLiteral("anna"); }
    static QString Password() { return QString::fromUtf8("gr\xC3\xBCn & 7"); }
    static QString Realm() { return QStringLiteral("Workshop"); }
    static QString SecondRealm() { return QStringLiteral("Archive"); }

private:
    QByteArray Configuration() const;
    QByteArray LoginConfiguration(const QString& realm) const;
    void MakeFolders();
    void WritePasswords();
    void MakeCertificates();
    bool Start();

    const Options options_;
    QTemporaryDir folder_;
    QProcess process_;
    int port_ = 0;
};

}  // namespace docbench
