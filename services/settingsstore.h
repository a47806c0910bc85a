// The settings store: keys of named values, each a text or a 32-bit number.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

namespace docbench {

// One opened key. Every call goes to the store afresh and is on disk when it returns, so that
// programs running side by side see each other's values. Key paths separate levels by "\". Value
// names may hold any character, separators included; the empty name is the key's default value.
class SettingsKey {
public:
    // CurrentUser is an INI file below the user's configuration folder; LocalMachine and
    // ClassesRoot are files below the system's, which a user can usually not write.
    enum class Hive { CurrentUser, LocalMachine, ClassesRoot };

    // Null when the store can't be read. A key that holds nothing yet opens as an empty one.
    static std::unique_ptr<SettingsKey> Open(Hive hive, const QString& keyPath);

    QStringList ValueNames();                                 // of this key, in the store's order
    std::optional<QString> Text(const QString& name);         // a number comes as its decimal text
    std::optional<quint32> Number(const QString& name);       // none when missing or not a number
    bool SetText(const QString& name, const QString& value);  // false: not written
    bool SetNumber(const QString& name, quint32 value);       // false: not written
    bool Delete(const QString& name);                         // false when missing or not written

private:
    SettingsKey(QString file, QString section);
    bool Write(const QString& name, const std::optional<QString>& value);  // no value: deletes

    QString file_;
    QString section_;  // the key path as the file has it
};

// The key that the named folder lists and most options live in.
inline constexpr char kExtReferencesKey[] = "Software\\Tessaforma\\Tessaforma 2004\\ExtReferences";

}  // namespace docbench
