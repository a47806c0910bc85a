#include "platform/secretkeyring.h"

#include <qt6keychain/keychain.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <functional>

namespace docbench {
namespace {

const char kService[] = "Tessaforma Docbench";
const char* const kKeyrings[] = {"org.freedesktop.secrets", "org.kde.kwalletd5",
                                 "org.kde.kwalletd6"};

// A keyring that has not answered in time is not waited for again until it does.
bool gIsSilent = false;

// Runs a job and waits for it: the calls that need a password block anyway. Never in clear text.
// False when it failed or did not end in time. Before it deletes itself, `done` may read it.
bool Run(QKeychain::Job* job, const QString& entry, std::chrono::milliseconds limit,
         const std::function<void()>& done = {}) {
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(entry);
    QEventLoop loop;
    bool isDone = false;
    QObject::connect(job, &QKeychain::Job::finished, &loop, [&] {
        isDone = job->error() == QKeychain::NoError;
        if (isDone && done)
            done();
        loop.quit();
    });
    QObject::connect(job, &QKeychain::Job::finished, job, [] { gIsSilent = false; });
    QTimer::singleShot(limit, &loop, [&] {
        gIsSilent = true;
        loop.quit();
    });
    job->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return isDone;
}

}  // namespace

bool SecretKeyRing::IsAvailable() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (gIsSilent || !bus.isConnected())
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
    std::optional<QString> secret;
    auto* job = new QKeychain::ReadPasswordJob(QLatin1String(kService));
    Run(job, entry, limit_, [&] { secret = job->textData(); });
    return secret;
}

bool SecretKeyRing::Write(const QString& entry, const QString& secret) {
    if (!IsAvailable())
        return false;
    auto* job = new QKeychain::WritePasswordJob(QLatin1String(kService));
    job->setTextData(secret);
    return Run(job, entry, limit_);
}

void SecretKeyRing::Delete(const QString& entry) {
    if (IsAvailable())
        Run(new QKeychain::DeletePasswordJob(QLatin1String(kService)), entry, limit_);
}

}  // namespace docbench
