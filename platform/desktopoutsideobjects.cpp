#include "platform/desktopoutsideobjects.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

#include "platform/componentplugins.h"
#include "platform/urlfileopen.h"

namespace docbench {
namespace {

constexpr int kTimeout =
    5000;  // ms, for a program that does not answer; opening a document is one call
constexpr char kProperties[] = "org.freedesktop.DBus.Properties";

class DBusOutsideObject : public OutsideObject {
public:
    DBusOutsideObject(QDBusConnection bus, QString programId)
        : bus_(std::move(bus)), id_(std::move(programId)) {}

    bool Call(const QString& method, const QVariantList& arguments) override {
        return Send(id_, method, arguments);
    }

    bool SetProperty(const QString& name, const QVariant& value) override {
        return Send(QLatin1String(kProperties), QStringLiteral("Set"),
                    {id_, name, QVariant::fromValue(QDBusVariant(value))});
    }

private:
    bool Send(const QString& interface, const QString& method, const QVariantList& arguments) {
        const QString path = u'/' + QString(id_).replace(u'.', u'/');
        QDBusMessage call = QDBusMessage::createMethodCall(id_, path, interface, method);
        call.setAutoStartService(false);
        call.setArguments(arguments);
        if (busy_)
            return bus_.send(call);
        const QDBusMessage reply = bus_.call(call, QDBus::Block, kTimeout);
        const QDBusError::ErrorType error = QDBusError(reply).type();
        busy_ = error == QDBusError::NoReply || error == QDBusError::Timeout;
        return reply.type() == QDBusMessage::ReplyMessage;
    }

    QDBusConnection bus_;
    QString id_;
    bool busy_ = false;  // has not answered in time: what follows is sent, and not waited for
};

// What the bus itself says. Qt's own interface to it waits five times as long for an answer.
QDBusMessage AskBus(const QDBusConnection& bus, const QString& method,
                    const QVariantList& arguments) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), method);
    question.setArguments(arguments);
    return bus.call(question, QDBus::Block, kTimeout);
}

// Whether the name has an owner; the question never starts the program.
bool IsRunning(const QDBusConnection& bus, const QString& programId) {
    const QDBusReply<bool> owned = AskBus(bus, QStringLiteral("NameHasOwner"), {programId});
    return owned.isValid() && owned.value();
}

}  // namespace

std::unique_ptr<OutsideObject> DesktopOutsideObjects::Attach(const QString& programId) {
    // The connection is shared by the process and made by the first who asks for it.
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !IsRunning(bus, programId))
        return nullptr;
    return std::make_unique<DBusOutsideObject>(bus, programId);
}

std::unique_ptr<OutsideObject> DesktopOutsideObjects::Start(const QString& programId) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && !IsRunning(bus, programId))
        AskBus(bus, QStringLiteral("StartServiceByName"),
               {programId, 0U});  // the bus knows of it if it is installed
    return Attach(programId);
}

// A plug-in comes before what the program brings itself.
std::unique_ptr<QObject> DesktopOutsideObjects::Create(const QString& programId) {
    std::unique_ptr<QObject> made = CreateComponent(ComponentFolder(), programId);
    if (!made && programId == QLatin1String("URLFileOpenControl.URLFileOpen"))
        made = std::make_unique<URLFileOpen>();
    return made;
}

}  // namespace docbench
