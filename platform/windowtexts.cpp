#include "platform/windowtexts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>

#include "services/docaccess.h"
#include "services/languagechoice.h"
#include "services/seams.h"

namespace docbench {

namespace {

// The toolkit names its files by language and territory, and Chinese by territory alone.
bool LoadToolkit(QTranslator& texts, const QString& language) {
    const QLocale locale = LocaleOfLanguage(language);
    const QString territory = locale.name();  // such as "zh_CN"
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    return texts.load(QStringLiteral("qtbase_") + territory, folder);
}

}  // namespace

void WindowTexts::Load(const QString& programFolder) {
    if (!gSeams.documents)
        return;  // the numbered texts say so
    const QString folder = gSeams.documents->MakeLanguageSettings()->GetLanguageFolder();
    if (!windows_.load(programFolder + folder + QStringLiteral("/windows.qm")))
        return;
    QCoreApplication::installTranslator(&windows_);
    if (LoadToolkit(toolkit_, QFileInfo(folder).fileName()))
        QCoreApplication::installTranslator(&toolkit_);
}

}  // namespace docbench
