#include "services/language.h"

#include <QTranslator>

#include "services/dialogs.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/localefont.h"
#include "services/programfolder.h"
#include "services/seams.h"
#include "services/texts.h"

namespace docbench {

std::array<QString, kLastText + 1> gStrings;
bool gResourcesLoaded = false;
QString gAppTitle;
QString gPreviewHelp;
QString gOpenFilter;
QString gOldFormatText;
QString gRelationDefault;
QString gRelationAssembly;
QString gRelationPart;
QString gHelpFile;

namespace {

constexpr int kTextNumbers[] = {
#define TEXT(number, role, values) number,
#include "lang/texts.def"
#undef TEXT
};

// The texts that are known by a name, each with its number.
const std::pair<QString*, TextId<0>> kAliases[] = {
    {&gAppTitle, Text::AppTitle},
    {&gPreviewHelp, Text::PreviewHelp},
    {&gOpenFilter, Text::OpenFilter},
    {&gOldFormatText, Text::OldFormat},
    {&gRelationDefault, Text::RelationDefault},
    {&gRelationAssembly, Text::RelationAssembly},
    {&gRelationPart, Text::RelationPart},
};

// Empty delimiters keep the reader from trying shorter names.
bool LoadFrom(QTranslator& texts, const QString& folder) {
    return texts.load(QStringLiteral("tessadocres"), folder, QStringLiteral(""),
                      QStringLiteral(".qm"));
}

QString CutToBytes(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    if (bytes.size() <= kLongestText)
        return text;
    qsizetype end = kLongestText;
    while ((bytes[end] & 0xC0) == 0x80)  // never in the middle of a character
        --end;
    return QString::fromUtf8(bytes.first(end));
}

void ReadTexts(const QTranslator& texts) {
    for (const int number : kTextNumbers) {
        const QByteArray id = "tessadocres-" + QByteArray::number(number);
        gStrings[size_t(number)] = CutToBytes(texts.translate(nullptr, id.constData()));
    }
    for (const auto& [alias, text] : kAliases)
        *alias = Tr(text);
}

void Load(const QString& programFolder) {
    const QString language = Documents().MakeLanguageSettings()->GetLanguageFolder();
    QTranslator texts;
    const bool loaded = LoadFrom(texts, programFolder + language) ||
                        LoadFrom(texts, programFolder + QStringLiteral("/lang/english")) ||
                        LoadFrom(texts, programFolder);
    gHelpFile = programFolder + language + QStringLiteral("/TFDocbench.chm");
    if (loaded)
        return ReadTexts(texts);
    gSeams.dialogs->Box(QStringLiteral("Failed to load resources.  Please check the installation."),
                        Dialogs::Icon::Exclamation, gAppTitle);
}

}  // namespace

void LoadResources() {
    LoadResources(ProgramFolder());
}

void LoadResources(const QString& programFolder) {
    if (std::exchange(gResourcesLoaded, true))
        return;
    try {
        Load(programFolder);
    } catch (const std::exception& error) {
        gSeams.dialogs->Box(
            QStringLiteral("Failed to load resources, Error: ") + DescriptionOf(error),
            Dialogs::Icon::Exclamation, gAppTitle);
    }
}

void UnloadResources() {
    gResourcesLoaded = false;
    gStrings.fill(QString());
    for (const auto& [alias, text] : kAliases)
        alias->clear();
    gHelpFile.clear();
}

void ApplyLanguageFont(QFont& font) {
    ApplyFontOfLocale(font, QLocale::system());
}

QString sprintf(const QString& format, const QStringList& values) {
    const QStringList parts = format.split(QStringLiteral("%s"));
    if (parts.size() != values.size() + 1)
        gSeams.dialogs->Box(
            QStringLiteral("Error in sprintf: Format mismatch, please report as a bug. Format = ") +
                format,
            Dialogs::Icon::None, QString());
    QString text = parts[0];
    for (qsizetype i = 1; i < parts.size(); ++i)
        text += values.value(i - 1) + parts[i];
    return text;
}

}  // namespace docbench
