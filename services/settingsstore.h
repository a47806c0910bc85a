// The settings store: keys of named values, each a text or a 32-bit number.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

class QSettings;

namespace docbench {

// One opened key. Every call goes to the store afresh and is on disk when it returns, so that programs
// running side by side see each other's values. Key paths separate levels by "\". Value names may hold
// any character, separators included.
class SettingsKey {
public:
    // CurrentUser is an INI file below the user's configuration folder; LocalMachine and ClassesRoot
    // are files below the system's, which a user can usually not write.
    enum class Hive { CurrentUser, LocalMachine, ClassesRoot };

    // Null when the store can't be read.
    static std::unique_ptr<SettingsKey> Open(Hive hive, const QString& keyPath);
    ~SettingsKey();

    QStringList ValueNames();                        // of this key, in the store's order
    std::optional<QString> Text(const QString& name);  // a number comes as its decimal text
    std::optional<quint32> Number(const QString& name);  // none when missing or not a number
    bool SetText(const QString& name, const QString& value);   // false: not written
    bool SetNumber(const QString& name, quint32 value);        // false: not written
    bool Delete(const QString& name);                // false when missing or not written

private:
    explicit SettingsKey(std::unique_ptr<QSettings> store, QString group);
    std::unique_ptr<QSettings> store_;
    QString group_;
};

// The key that the named folder lists and most options live in.
inline constexpr char kExtReferencesKey[] =
    "Software\\Tessaforma\\Tessaforma 2004\\ExtReferences";

}  // namespace docbench
