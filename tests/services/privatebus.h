// A message bus of the test's own, which programs may be registered at for being started.
#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace docbench {

// Becomes the session bus of this process if it is made before the first use of the session bus.
class PrivateBus {
public:
    PrivateBus() {
        QFile config(folder_.filePath("bus.conf"));
        if (!config.open(QIODevice::WriteOnly))
            return;
        config.write(QStringLiteral("<busconfig><type>session</type>"
                                    "<listen>unix:path=%1/bus</listen>"
                                    "<servicedir>%1</servicedir>"
                                    "<policy context=\"default\">"
                                    "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/>"
                                    "<allow own=\"*\"/>"
                                    "</policy></busconfig>")
                         .arg(folder_.path())
                         .toUtf8());
        config.close();
        daemon_.start("dbus-daemon",
                      {"--nofork", "--print-address", "--config-file=" + config.fileName()});
        while (!daemon_.canReadLine() && daemon_.waitForReadyRead())
            continue;
        address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address_.toUtf8());
    }

    ~PrivateBus() {
        daemon_.terminate();
        daemon_.waitForFinished();
    }

    const QString& Address() const { return address_; }  // empty if the bus could not be started
    QString Folder() const { return folder_.path(); }

    // Lets the bus start `program` for whoever calls the service.
    void LetStart(const QString& service, const QString& program) {
        QFile file(folder_.filePath(service + ".service"));
        if (file.open(QIODevice::WriteOnly))
            file.write(QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n")
                           .arg(service, program)
                           .toUtf8());
    }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
};

}  // namespace docbench
