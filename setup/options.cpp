#include "setup/options.h"

#include "services/settingsstore.h"
#include "shell/viewer.h"

namespace docbench {
namespace {

using Hive = SettingsKey::Hive;

constexpr char kLoggingKey[] = "Software\\Tessaforma\\TessaformaDocbench\\Performance Logging";

struct Place {
    QString key;
    QString value;
};

Place PlaceOf(Option option) {
    const QString options = QLatin1String(kExtReferencesKey);
    switch (option) {
        case Option::ShowDescription:
            return {options, QStringLiteral("Show Description")};
        case Option::UseSearchRules:
            return {options, QStringLiteral("Use Search Rules")};
        case Option::UseViewer:
            return {options, QLatin1String(kUseViewerValue)};
        case Option::Logging:
            break;
    }
    return {QLatin1String(kLoggingKey), QStringLiteral("Email Enabled")};
}

std::optional<bool> Read(Hive hive, const Place& place) {
    const auto key = SettingsKey::Open(hive, place.key);
    const std::optional<quint32> value = key ? key->Number(place.value) : std::nullopt;
    return value ? std::optional(*value != 0) : std::nullopt;
}

}  // namespace

std::optional<bool> ReadOption(Option option) {
    const Place place = PlaceOf(option);
    const std::optional<bool> own = Read(Hive::CurrentUser, place);
    if (own || option != Option::Logging)
        return own;
    return Read(Hive::LocalMachine, place);
}

Stored StoreOption(Option option, bool value) {
    const Place place = PlaceOf(option);
    const auto key = SettingsKey::Open(Hive::CurrentUser, place.key);
    if (!key)
        return Stored::NotOpened;
    return key->SetNumber(place.value, value ? 1 : 0) ? Stored::Yes : Stored::Failed;
}

}  // namespace docbench
