#include "platform/secretkeyring.h"

#include <qt6keychain/keychain.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QEventLoop>
#include <algorithm>

namespace docbench {
namespace {

const char kService[] = "Tessaforma Docbench";
const char* const kKeyrings[] = {"org.freedesktop.secrets", "org.kde.kwalletd5",
                                 "org.kde.kwalletd6"};

// Runs a job and waits for it: the calls that need a password block anyway. Never in clear text.
template <typename Job>
bool Run(Job& job, const QString& entry) {
    job.setAutoDelete(false);
    job.setInsecureFallback(false);
    job.setKey(entry);
    QEventLoop loop;
    QObject::connect(&job, &QKeychain::Job::finished, &loop, &QEventLoop::quit);
    job.start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return job.error() == QKeychain::NoError;
}

}  // namespace

bool SecretKeyRing::IsAvailable() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    const QStringList running = bus.interface()->registeredServiceNames().value();
    const QStringList known = bus.interface()->activatableServiceNames().value();
    return std::any_of(std::begin(kKeyrings), std::end(kKeyrings), [&](const char* name) {
        return running.contains(QLatin1String(name)) || known.contains(QLatin1String(name));
    });
}

std::optional<QString> SecretKeyRing::Read(const QString& entry) {
    if (!IsAvailable())
        return std::nullopt;
    QKeychain::ReadPasswordJob job{QLatin1String(kService)};
    return Run(job, entry) ? std::optional(job.textData()) : std::nullopt;
}

bool SecretKeyRing::Write(const QString& entry, const QString& secret) {
    if (!IsAvailable())
        return false;
    QKeychain::WritePasswordJob job{QLatin1String(kService)};
    job.setTextData(secret);
    return Run(job, entry);
}

void SecretKeyRing::Delete(const QString& entry) {
    if (!IsAvailable())
        return;
    QKeychain::DeletePasswordJob job{QLatin1String(kService)};
    Run(job, entry);
}

}  // namespace docbench
