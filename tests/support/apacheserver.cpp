#include "tests/support/apacheserver.h"

#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>

namespace docbench {
namespace {

constexpr int kStartTries = 5;
constexpr int kStartMilliseconds = 20'000;
constexpr int kPollMilliseconds = 20;

// Below the system's own temporary folder: a server started by root serves as another user, who
// must be able to walk to its folder.
QString FolderTemplate() {
    return QStringLiteral("/tmp/docbench-apache-XXXXXX");
}

const char* ServingUser() {
    return "nobody";
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("can't write %s", qPrintable(path));
}

void RunTool(const QString& program, const QStringList& arguments, const QString& folder) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s: %s", qPrintable(program), process.readAll().constData());
}

int FreePort() {
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHost))
        qFatal("no free port");
    return probe.serverPort();
}

QByteArray Hex(QCryptographicHash::Algorithm algorithm, const QString& text) {
    return QCryptographicHash::hash(text.toUtf8(), algorithm).toHex();
}

}  // namespace

ApacheServer::ApacheServer(const Options& options) : options_(options), folder_(FolderTemplate()) {
    MakeFolders();
    WritePasswords();
    if (options_.tls != Tls::None)
        MakeCertificates();
    for (int i = 0; i < kStartTries; ++i)
        if (Start())
            return;
    QFile log(folder_.filePath(QStringLiteral("error.log")));
    const QByteArray text = log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
    qFatal("no server: %s%s", process_.readAll().constData(), text.constData());
}

ApacheServer::~ApacheServer() {
    process_.terminate();
    if (!process_.waitForFinished(kStartMilliseconds)) {
        process_.kill();
        process_.waitForFinished();
    }
}

QString ApacheServer::Server() const {
    return QStringLiteral("%1://127.0.0.1:%2")
        .arg(options_.tls == Tls::None ? QStringLiteral("http") : QStringLiteral("https"))
        .arg(port_);
}

QString ApacheServer::Url(const QString& name) const {
    return Server() + QStringLiteral("/dav/") + name;
}

QString ApacheServer::SecondUrl(const QString& name) const {
    return Server() + QStringLiteral("/second/") + name;
}

QString ApacheServer::Path(const QString& name) const {
    return folder_.filePath(QStringLiteral("htdocs/dav/") + name);
}

int ApacheServer::CountRequests(const QByteArray& start) const {
    QFile log(folder_.filePath(QStringLiteral("access.log")));
    if (!log.open(QIODevice::ReadOnly))
        return 0;
    int count = 0;
    for (const QByteArray& line : log.readAll().split('\n'))
        count += line.startsWith(start) ? 1 : 0;
    return count;
}

void ApacheServer::MakeFolders() {
    QDir(folder_.path()).mkpath(QStringLiteral("htdocs/dav"));
    QDir(folder_.path()).mkpath(QStringLiteral("htdocs/second"));
    QDir(folder_.path()).mkpath(QStringLiteral("lock"));
    if (geteuid() != 0)
        return;
    QFile::setPermissions(folder_.path(),
                          QFile::permissions(folder_.path()) | QFile::ReadOther | QFile::ExeOther);
    const passwd* user = getpwnam(ServingUser());
    for (const char* name : {"htdocs/dav", "htdocs/second", "lock"}) {
        const QByteArray path = QFile::encodeName(folder_.filePath(QLatin1String(name)));
        if (!user || chown(path.constData(), user->pw_uid, user->pw_gid) != 0)
            qFatal("can't give away %s", path.constData());
    }
}

void ApacheServer::WritePasswords() {
    const QByteArray sum =
        QCryptographicHash::hash(Password().toUtf8(), QCryptographicHash::Sha1).toBase64();
    Write(folder_.filePath(QStringLiteral("basic")), User().toUtf8() + ":{SHA}" + sum + '\n');
    QByteArray digests;
    for (const QString& realm : {Realm(), SecondRealm()}) {
        const QString secret = QStringList{User(), realm, Password()}.join(u':');
        digests +=
            (User() + u':' + realm + u':').toUtf8() + Hex(QCryptographicHash::Md5, secret) + '\n';
    }
    Write(folder_.filePath(QStringLiteral("digest")), digests);
}

void ApacheServer::MakeCertificates() {
    const QString tool = QStringLiteral("openssl");
    const QString folder = folder_.path();
    const auto run = [&](const QString& line) { RunTool(tool, line.split(u' '), folder); };
    Write(folder_.filePath(QStringLiteral("server.ext")), options_.tls == Tls::OtherHost
                                                              ? "subjectAltName=DNS:other.example\n"
                                                              : "subjectAltName=IP:127.0.0.1\n");
    run(QStringLiteral(
        "req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -days 30 -subj "
        "/CN=TestCA -keyout ca.key -out ca.pem"));
    run(
        QStringLiteral("req -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=Server "
                       "-keyout server.key -out server.csr"));
    run(QStringLiteral("x509 -req -in server.csr -CA ca.pem -CAkey ca.key -CAcreateserial -days %1 "
                       "-extfile server.ext -out server.pem")
            .arg(options_.tls == Tls::Expired ? -1 : 30));
}

bool ApacheServer::Start() {
    port_ = FreePort();
    const QString pidFile = folder_.filePath(QStringLiteral("pid"));
    QFile::remove(pidFile);
    Write(folder_.filePath(QStringLiteral("apache.conf")), Configuration());
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process_.start(QStringLiteral("/usr/sbin/apache2"),
                   {QStringLiteral("-DFOREGROUND"), QStringLiteral("-f"),
                    folder_.filePath(QStringLiteral("apache.conf"))});
    // It writes the file once the port is its own. Somebody else may have taken the port; then it
    // ends.
    for (int waited = 0; waited < kStartMilliseconds; waited += kPollMilliseconds) {
        QTcpSocket socket;
        if (QFile::exists(pidFile)) {
            socket.connectToHost(QHostAddress::LocalHost, quint16(port_));
            if (socket.waitForConnected(kStartMilliseconds))
                return true;
        }
        if (process_.waitForFinished(kPollMilliseconds) || process_.state() == QProcess::NotRunning)
            return false;
    }
    return false;
}

QByteArray ApacheServer::LoginConfiguration(const QString& realm) const {
    if (options_.login == Login::None)
        return "Require all granted\n";
    const bool isBasic = options_.login == Login::Basic;
    return QByteArray("AuthType ") + (isBasic ? "Basic" : "Digest") + "\nAuthName \"" +
           realm.toUtf8() + "\"\n" +
           (isBasic ? "AuthBasicProvider file\nAuthUserFile "
                    : "AuthDigestProvider file\n"
                      "AuthUserFile ") +
           folder_.filePath(isBasic ? QStringLiteral("basic") : QStringLiteral("digest")).toUtf8() +
           "\nRequire valid-user\n";
}

QByteArray ApacheServer::Configuration() const {
    QByteArray text = "ServerName 127.0.0.1\nListen 127.0.0.1:" + QByteArray::number(port_) + '\n';
    for (const char* module :
         {"mpm_event", "authn_core", "authz_core", "authn_file", "authz_user", "auth_basic",
          "auth_digest", "alias", "headers", "setenvif", "dav", "dav_fs", "ssl"})
        text += QByteArray("LoadModule ") + module + "_module /usr/lib/apache2/modules/mod_" +
                module + ".so\n";
    const QByteArray folder = folder_.path().toUtf8();
    text += "ServerRoot " + folder +
            "\nPidFile pid\nErrorLog error.log\n"
            "DefaultRuntimeDir " +
            folder + "\nMutex file:" + folder +
            "/lock default\n"
            "LogFormat \"%r %>s\" plain\nCustomLog access.log plain\n"
            "StartServers 1\nThreadsPerChild 8\nMaxRequestWorkers 8\nServerLimit 1\n"
            "KeepAliveTimeout 2\nDavLockDB lock/dav\nDocumentRoot htdocs\n"
            "<Directory />\nRequire all denied\n</Directory>\n"
            "<Directory " +
            folder + "/htdocs>\nRequire all granted\n</Directory>\n";
    if (geteuid() == 0)
        text += QByteArray("User ") + ServingUser() + "\nGroup nogroup\n";
    if (options_.tls != Tls::None)
        text += "SSLEngine on\nSSLCertificateFile server.pem\nSSLCertificateKeyFile server.key\n";
    text += "<Location /dav>\nDav On\n" + LoginConfiguration(Realm()) + "</Location>\n" +
            "<Location /second>\nDav On\n" + LoginConfiguration(SecondRealm()) + "</Location>\n" +
            options_.extra;
    return text;
}

}  // namespace docbench
