#include "services/settingsstore.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <utility>

#include "services/inifile.h"

namespace docbench {
namespace {

// Keeps other writers out for as long as it lives. The lock is on the folder, since the file is
// another one after each write; it ends with the process, and nothing is left on disk.
class WriterLock {
public:
    explicit WriterLock(const QString& folder)
        : handle_(
              ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        constexpr int kLongestWait = 5000;  // ms; a writer takes a few, unless it is stopped
        QElapsedTimer waited;
        waited.start();
        while (handle_ >= 0 && !held_ && !waited.hasExpired(kLongestWait)) {
            held_ = ::flock(handle_, LOCK_EX | LOCK_NB) == 0;
            if (!held_ && errno != EWOULDBLOCK && errno != EINTR)
                break;  // this disk has no locks
            if (!held_)
                QThread::msleep(1);
        }
    }
    ~WriterLock() {
        if (handle_ >= 0)
            ::close(handle_);
    }
    WriterLock(const WriterLock&) = delete;
    WriterLock& operator=(const WriterLock&) = delete;

    bool Held() const { return held_; }

private:
    int handle_;
    bool held_ = false;
};

// The first of the system's configuration folders; asked afresh, since a program may be told
// another.
QString SystemFolder() {
    const QString folders = qEnvironmentVariable("XDG_CONFIG_DIRS");
    const QString first = folders.section(u':', 0, 0, QString::SectionSkipEmpty);
    return QDir::isAbsolutePath(first) ? first : QStringLiteral("/etc/xdg");
}

QString FileOf(SettingsKey::Hive hive) {
    const bool user = hive == SettingsKey::Hive::CurrentUser;
    const bool classes = hive == SettingsKey::Hive::ClassesRoot;
    const QString folder =
        user ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
             : SystemFolder();
    return folder + (classes ? QStringLiteral("/Tessaforma/Classes.ini")
                             : QStringLiteral("/Tessaforma/TessaformaDocbench.ini"));
}

QString SectionOf(const QString& keyPath) {
    QStringList levels;
    for (const QString& level :
         keyPath.split(QLatin1Char(IniFile::kLevelSeparator), Qt::SkipEmptyParts))
        levels.append(IniFile::EncodeLevel(level));
    return levels.join(QLatin1Char(IniFile::kLevelSeparator));
}

QString KeyOf(const QString& section, const QString& name) {
    const QString encoded = IniFile::EncodeLevel(name);
    return section.isEmpty() ? encoded : section + QLatin1Char(IniFile::kLevelSeparator) + encoded;
}

// By mode: the superuser may write anything, and still means what the mode says.
bool MayWrite(const QString& path) {
    constexpr QFile::Permissions anybody =
        QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const QFileInfo info(path);
    return !info.exists() || (info.permissions() & anybody && info.isWritable());
}

}  // namespace

std::unique_ptr<SettingsKey> SettingsKey::Open(Hive hive, const QString& keyPath) {
    const QString file = FileOf(hive);
    if (!IniFile().Load(file))
        return nullptr;
    return std::unique_ptr<SettingsKey>(new SettingsKey(file, SectionOf(keyPath)));
}

SettingsKey::SettingsKey(QString file, QString section)
    : file_(std::move(file)), section_(std::move(section)) {}

QStringList SettingsKey::ValueNames() {
    IniFile store;
    return store.Load(file_) ? store.Names(section_) : QStringList();
}

std::optional<QString> SettingsKey::Text(const QString& name) {
    IniFile store;
    return store.Load(file_) ? store.Value(KeyOf(section_, name)) : std::nullopt;
}

std::optional<quint32> SettingsKey::Number(const QString& name) {
    bool ok = false;
    const quint32 number = Text(name).value_or(QString()).toUInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

bool SettingsKey::SetText(const QString& name, const QString& value) {
    return Write(name, value);
}

bool SettingsKey::SetNumber(const QString& name, quint32 value) {
    return Write(name, QString::number(value));
}

bool SettingsKey::Delete(const QString& name) {
    return Write(name, std::nullopt);
}

bool SettingsKey::Write(const QString& name, const std::optional<QString>& value) {
    const QString folder = QFileInfo(file_).path();
    if (!QDir().mkpath(folder) || !MayWrite(folder) || !MayWrite(file_))
        return false;
    // The file is read again under the lock, so that what others wrote meanwhile is kept.
    const WriterLock lock(folder);
    if (!lock.Held())
        return false;
    IniFile store;
    if (!store.Load(file_))
        return false;
    if (value)
        store.Set(section_, IniFile::EncodeLevel(name), *value);
    else if (!store.Remove(KeyOf(section_, name)))
        return false;
    return store.Save(file_);
}

}  // namespace docbench
