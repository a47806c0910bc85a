#include "services/languagechoice.h"

#include <QDir>
#include <QFile>
#include <algorithm>

#include "services/settingsstore.h"

namespace docbench {

namespace {

using Hive = SettingsKey::Hive;

const char kSimplified[] = "chinese-simplified";
const char kTraditional[] = "chinese-traditional";

std::unique_ptr<SettingsKey> OpenKey(Hive hive) {
    return SettingsKey::Open(hive, QLatin1String(kLanguageKey));
}

bool IsFolderName(const QString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar letter) {
        return (letter >= u'a' && letter <= u'z') || letter == u'-';
    });
}

// Only Chinese tells its two scripts apart; English is no "American English" here.
QString NativeName(const QString& folder) {
    if (folder == QLatin1String("english"))
        return QStringLiteral("English");
    const QString name = LocaleOfLanguage(folder).nativeLanguageName();
    return name.isEmpty() ? folder : name.left(1).toUpper() + name.mid(1);
}

}  // namespace

QString LanguageFolderOf(const QLocale& locale) {
    switch (locale.language()) {
        case QLocale::C:
        case QLocale::AnyLanguage:
            return QStringLiteral("english");
        case QLocale::Chinese:
            return QLatin1String(locale.script() == QLocale::TraditionalHanScript ? kTraditional
                                                                                  : kSimplified);
        default:
            return QLocale::languageToString(locale.language()).toLower();
    }
}

QLocale LocaleOfLanguage(const QString& folder) {
    if (folder == QLatin1String(kSimplified))
        return {QLocale::Chinese, QLocale::SimplifiedHanScript, QLocale::AnyTerritory};
    if (folder == QLatin1String(kTraditional))
        return {QLocale::Chinese, QLocale::TraditionalHanScript, QLocale::AnyTerritory};
    for (int language = QLocale::C + 1; language <= QLocale::LastLanguage; ++language)
        if (QLocale::languageToString(QLocale::Language(language)).toLower() == folder)
            return QLocale(QLocale::Language(language));
    return QLocale::c();
}

QList<OfferedLanguage> OfferedLanguages(const QString& programFolder) {
    const QDir folder(programFolder + QStringLiteral("/lang"));
    QList<OfferedLanguage> languages;
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        if (IsFolderName(name) && folder.exists(name + QStringLiteral("/tessadocres.qm")))
            languages.append({name, NativeName(name)});
    return languages;
}

QString ChosenLanguage() {
    for (const Hive hive : {Hive::CurrentUser, Hive::LocalMachine}) {
        const auto key = OpenKey(hive);
        const auto stored = key ? key->Text(QLatin1String(kLanguageValue)) : std::nullopt;
        if (const QString folder = stored.value_or(QString()).trimmed().toLower();
            IsFolderName(folder))
            return folder;
    }
    return {};
}

bool ChooseLanguage(const QString& folder) {
    const auto key = OpenKey(Hive::CurrentUser);
    return key && key->SetText(QLatin1String(kLanguageValue), folder);
}

}  // namespace docbench
